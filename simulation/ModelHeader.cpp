#include "simulation/ModelHeader.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "partdata/Characteristic.h"
#include "simulation/GaussPoints.h"
#include "simulation/ModelCharge.h"
#include "simulation/ModelNumbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

/// A name of the part where a line break or a letter beyond ASCII would make another line, or none that
/// simulators read.
static std::string PlainText(std::string_view text)
{
    std::string plain(text);
    std::ranges::replace_if(
        plain, [](char c) { return c < ' ' || c > '~'; }, '_');
    return plain;
}

/// Two digits, "1.1e-10".
static std::string TwoDigits(double value)
{
    char buffer[32];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 1);
    return {buffer, written.ptr};
}

/// A share above 0 that is told as the most there is: rounded up.
static std::string RoundedUp(double share)
{
    const double halfOfLastDigit = 0.05 * std::pow(10, std::floor(std::log10(share)));
    const auto text = TwoDigits(share);
    return ToldBy(text) < share ? TwoDigits(share + halfOfLastDigit) : text;
}

static std::string PartLine(const ModelFacts& model)
{
    const auto& part = model.Part;
    const auto view = model.Form % CodeForms;
    return "* " + PlainText(part.PartNum.at(model.Form)) + "  " +
           NetlistNumber(part.Data[Value::NominalCapacitance]) + " pF  " + PlainText(part.Tcc.at(view)) +
           "  " + NetlistNumber(part.Data[Value::RatedVoltage]) + " V  " + PlainText(part.SizeCode.at(view)) +
           "\n";
}

static std::string FrequencyLine(LossData loss)
{
    switch (loss)
    {
    case LossData::Present:
        return "*   FESR  frequency in Hz at which the loss resistance is taken, held within 10K to 1MEG\n";
    case LossData::Missing:
        return "*   FESR  without effect: the part has no heating data\n";
    case LossData::Unusable:
        break;
    }
    return "*   FESR  without effect: the heating data gives no resistance\n";
}

static std::string ParameterLines(const ModelFacts& model)
{
    const auto range = ModelTemperatures(model.Part);
    return "* Connect: X1 node1 node2 " + model.Name + ModelParameters() + "\n" +
           "*   TDEG  temperature of the part in deg C, held within " + NetlistNumber(range.MinC) + " to " +
           NetlistNumber(range.MaxC) + "\n" + FrequencyLine(model.Loss) +
           "*   TOL   deviation of the capacitance from its nominal value, percent\n"
           "*   LEAK  insulation resistance times capacitance in seconds; not measured, helps the "
           "simulator\n";
}

static std::string LawLines(const ModelFacts& model)
{
    const auto volts = NetlistNumber(model.Part.Data[Value::RatedVoltage]) + " V";
    auto lines = "* Law: C(V,T) of the chart for 0 to " + volts +
                 "; the same for negative voltage; beyond it C stays\n"
                 "*   at its value at " +
                 volts + ". Not polarised. C0 in farads, V in volts, Q = C0*V*MEANC(|V|).\n";
    if (CapacitanceModelOf(model.Part) == CapacitanceModel::Peaked)
    {
        lines += "*   The charge is integrated from the peak on by " + std::to_string(GaussPoints.size()) +
                 " Gauss points; C differs by at most " + RoundedUp(model.Deviation) + ".\n";
    }
    return lines;
}

static std::string LossLine(const ModelFacts& model)
{
    switch (model.Loss)
    {
    case LossData::Present:
        return "* Loss: resistance of the heating data, no dependence on voltage; " +
               NetlistNumber(LowestHeatingAmbientC) + " to " +
               NetlistNumber(model.Part.Data[Value::UpperTemperature]) + " deg C, held there.\n";
    case LossData::Missing:
        return "* Loss: none, the part has no heating data. Put a resistor in series if its value is "
               "known.\n";
    case LossData::Unusable:
        break;
    }
    return "* Loss: none, the heating data is not above 0 everywhere. Put a resistor in series if known.\n";
}

std::string ModelParameters()
{
    return " PARAMS: TDEG=25 FESR=100K TOL=0 LEAK=100";
}

std::string ModelHeader(const ModelFacts& model)
{
    return PartLine(model) +
           "* Multilayer ceramic chip capacitor; charge from capacitance over DC voltage and temperature.\n" +
           ParameterLines(model) + LawLines(model) + LossLine(model) +
           "* Not in the model: self-inductance, ageing, hysteresis, level of the alternating voltage,\n"
           "*   fall of capacitance with frequency, self-heating.\n"
           "* Start from an operating point or .IC; with UIC the capacitor is empty. For steps under 10 ns\n"
           "*   and currents of amperes set .OPTIONS ABSTOL=1N or more.\n";
}
