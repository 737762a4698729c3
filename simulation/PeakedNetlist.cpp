#include "simulation/PeakedNetlist.h"

#include "simulation/GaussPoints.h"
#include "simulation/HornerText.h"
#include "simulation/NetlistLine.h"

#include <algorithm>
#include <charconv>

namespace
{
/// A point of the sum to the last digit that a double is sure of.
std::string PointText(double value)
{
    constexpr int digits = 15;
    char buffer[32];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    std::replace(buffer, written.ptr, 'e', 'E');
    return {buffer, written.ptr};
}

/// A number behind a sign.
std::string Operand(double value)
{
    return value < 0 ? "(" + NetlistNumber(value) + ")" : NetlistNumber(value);
}

/// TX - Tp.
std::string DistanceText(const ModelNumbers& numbers, std::string_view variable)
{
    return "{TX-(" + HornerText(numbers, Values::PeakTemperature, variable) + ")}";
}

/// The decay of one flank times its power of the distance, which is 0 on the other side of the peak: no case
/// needed.
std::string FlankText(const std::string& decay, const std::string& distance, char side, double exponent)
{
    return "(" + decay + ")*PWR((ABS(" + distance + ")" + side + distance + ")/2," + NetlistNumber(exponent) +
           ")";
}

std::string ColdText(const ModelNumbers& numbers, std::string_view variable, const std::string& distance)
{
    return FlankText(HornerText(numbers, Values::DecayBelow, variable), distance, '-',
                     numbers[Value::ExponentBelow]);
}

std::string WarmText(const ModelNumbers& numbers, std::string_view variable, const std::string& distance)
{
    return FlankText(HornerText(numbers, Values::DecayAbove, variable), distance, '+',
                     numbers[Value::ExponentAbove]);
}

/// The capacitance over the nominal one; the exponent of the bell is a text of its own.
std::string RelativeText(const ModelNumbers& numbers, const std::string& variable,
                         const std::string& exponent)
{
    return "{1+(" + NetlistNumber(numbers[Value::PeakOffset]) + "+" + Operand(numbers[Value::PeakAmplitude]) +
           "*(1+" + variable + "/100*(" + HornerText(numbers, Values::BiasPolynomial, variable) + "))*EXP(" +
           exponent + "))/100}";
}

/// The voltage of the peak that lies at TX, held to 0 and VR: a root of the quadratic in the form that does
/// not lose digits and has no case for a quadratic that is straight.
std::string PeakVoltageText(const ModelNumbers& numbers)
{
    const double square = numbers[Values::PeakTemperature.First];
    const double slope = numbers[Values::PeakTemperature.First + 1];
    if (square == 0 && slope == 0)
    {
        return "{0}";
    }
    const std::string sign = slope + square * numbers[Value::RatedVoltage] >= 0 ? "1" : "-1";
    return "{MIN(MAX(2*DC/((" + NetlistNumber(slope) + ")+(" + sign + ")*SQRT(MAX(" +
           NetlistNumber(slope * slope) + "+4*(" + NetlistNumber(square) + ")*DC,0))+(" + sign +
           "E-30)),0),VR)}";
}

/// The sum of all points at U = 0.
std::string SumAtZero()
{
    std::string sum;
    for (const auto& point : GaussPoints)
    {
        sum += (sum.empty() ? "" : "+") + PointText(point.Weight) + "*RELC(R1+(-R1)*" +
               PointText(point.Place) + ")";
    }
    return sum;
}
} // namespace

std::string PeakedParameters(const ModelNumbers& numbers)
{
    const std::string atRated = ColdText(numbers, "VR", "DE") + "+" + WarmText(numbers, "VR", "DE");
    return NetlistLine(".FUNC DIST(U) " + DistanceText(numbers, "U")) +
           NetlistLine(".FUNC COLD(U) {" + ColdText(numbers, "U", "DIST(U)") + "}") +
           NetlistLine(".FUNC WARM(U) {" + WarmText(numbers, "U", "DIST(U)") + "}") +
           NetlistLine(".FUNC RELC(U) " + RelativeText(numbers, "U", "-COLD(U)-WARM(U)")) +
           NetlistLine(".PARAM DE=" + DistanceText(numbers, "VR")) +
           NetlistLine(".PARAM KE={" + atRated + "}") +
           NetlistLine(".PARAM CE=" + RelativeText(numbers, "VR", "-KE")) +
           NetlistLine(".PARAM EPS={1E-8*VR}") +
           NetlistLine(".PARAM DC={TX-(" + NetlistNumber(numbers[Value::PeakTemperature]) + ")}") +
           NetlistLine(".PARAM R1=" + PeakVoltageText(numbers));
}

std::string PeakedSources(std::string_view inner)
{
    auto lines = NetlistLine("EU U 0 VALUE={MIN(ABS(V(" + std::string(inner) + ",2)),VR)+EPS}");
    std::string sum;
    for (std::size_t i = 0; i < GaussPoints.size(); ++i)
    {
        const auto number = std::to_string(i + 1);
        const auto& point = GaussPoints.at(i);
        lines += NetlistLine("EP" + number + " P" + number + " 0 VALUE={R1+(V(U)-R1)*" +
                             PointText(point.Place) + "}");
        lines += NetlistLine("EG" + number + " G" + number + " 0 VALUE={" + PointText(point.Weight) +
                             "*RELC(V(P" + number + "))}");
        sum += (sum.empty() ? "V(G" : "+V(G") + number + ")";
    }
    return lines + NetlistLine("EH H 0 VALUE={(V(U)-R1)*(" + sum + ")}") +
           NetlistLine("EZ Z 0 VALUE={-R1*(" + SumAtZero() + ")}") +
           NetlistLine("EM M 0 VALUE={(V(H)-V(Z))/MAX(V(U),EPS)}");
}
