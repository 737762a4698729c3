#include "calc/CornerCurrent.h"

#include "calc/Bounds.h"
#include "calc/SearchBox.h"
#include "calc/TemperatureRise.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <tuple>

CurrentCorners::CurrentCorners(const PartRecord& heated, const HeatingBox& asked, PermittedRise rise,
                               double resistance)
    : part(heated)
    , box(asked)
    , permitted(rise)
    , heatResistance(resistance)
    , perHertz{part.Data[Value::CurrentPerF], part.Data[Value::CurrentTPerF], part.Data[Value::CurrentT2PerF]}
    , flat{part.Data[Value::Current], part.Data[Value::CurrentT], part.Data[Value::CurrentT2]}
    , byHertz{part.Data[Value::CurrentF], part.Data[Value::CurrentTF], part.Data[Value::CurrentT2F]}
{
    RefuseUnlessPositive(box.AmbientC.Low, box.AmbientC.High, box.LowestHertz, box.HighestHertz, 0);
}

/// Halves the box until each piece is known to heat.
void CurrentCorners::RefuseUnlessPositive(double fromC, double toC, double fromHertz, double toHertz,
                                          int depth) const
{
    constexpr int deepest = 12;
    const auto least = [=](const Quadratic& polynomial)
    { return OnSpan(polynomial, fromC - HeatingReferenceC, toC - HeatingReferenceC).Values().Low; };
    const double q1 = least(perHertz);
    const double q3 = least(byHertz);
    const bool hasPeak = fromHertz < toHertz && q1 < 0 && q3 < 0;
    const double sum =
        q1 / (q1 < 0 ? fromHertz : toHertz) + least(flat) + q3 * (q3 < 0 ? toHertz : fromHertz);
    if (sum > 0 && !hasPeak)
    {
        return;
    }
    if (depth == deepest)
    {
        throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall);
    }
    const double middleC = std::midpoint(fromC, toC);
    const double middleHertz = std::sqrt(fromHertz * toHertz);
    const bool isOverC = fromHertz == toHertz || (depth % 2 == 0 && fromC < toC);
    RefuseUnlessPositive(fromC, isOverC ? middleC : toC, fromHertz, isOverC ? toHertz : middleHertz,
                         depth + 1);
    RefuseUnlessPositive(isOverC ? middleC : fromC, toC, isOverC ? fromHertz : middleHertz, toHertz,
                         depth + 1);
}

/// The bracket of the heating law over the temperature, counted from that of reference.
CurrentCorners::Quadratic CurrentCorners::HeatingAt(double hertz) const
{
    Quadratic heating;
    for (std::size_t i = 0; i < heating.size(); ++i)
    {
        heating[i] = perHertz[i] / hertz + flat[i] + byHertz[i] * hertz;
    }
    return heating;
}

PowerModel CurrentCorners::ModelAt(double ambientC) const
{
    return CurrentModelOf(part, ambientC, heatResistance);
}

/// The extreme of a value over the ends of the frequency range, at both ends of the ambient range, where the
/// permitted rise begins to fall, and at the zeros of each polynomial that `turnsOf` gives for a bracket.
template <class ValueAt, class TurnsOf>
Extreme CurrentCorners::ExtremeOf(int sign, const ValueAt& valueAt, const TurnsOf& turnsOf) const
{
    Extreme best{.Value = -sign * std::numeric_limits<double>::infinity(), .At = {}};
    for (const double hertz : {box.LowestHertz, box.HighestHertz})
    {
        const auto tryAt = [&](double celsius)
        {
            const Extreme tried{valueAt(ModelAt(celsius), celsius, hertz),
                                {box.BiasVolts.Low, celsius, hertz}};
            best = tried.IsBeyond(best, sign) ? tried : best;
        };
        tryAt(box.AmbientC.Low);
        if (!box.AmbientC.IsPoint())
        {
            tryAt(box.AmbientC.High);
            TrySeam(tryAt);
            std::apply([&](const auto&... polynomials) { (TryZeros(polynomials, tryAt), ...); },
                       turnsOf(HeatingAt(hertz)));
        }
        if (box.LowestHertz == box.HighestHertz)
        {
            break;
        }
    }
    return best;
}

template <class TryAt> void CurrentCorners::TrySeam(const TryAt& tryAt) const
{
    const float seam = permitted.FallsFrom();
    if (seam > box.AmbientC.Low && seam < box.AmbientC.High)
    {
        tryAt(seam);
    }
}

template <std::size_t Count, class TryAt>
void CurrentCorners::TryZeros(const Polynomial<Count>& polynomial, const TryAt& tryAt) const
{
    VisitZeros(polynomial, box.AmbientC.Low - HeatingReferenceC, box.AmbientC.High - HeatingReferenceC,
               [&](double t) { tryAt(t + HeatingReferenceC); });
}

double CurrentCorners::MostLossResistance() const
{
    return ExtremeOf(
               1,
               [](const PowerModel& model, double, double hertz)
               { return model.LossResistance(hertz).value_or(0); },
               [](const Quadratic& heating) { return std::tuple(Derivative(heating)); })
        .Value;
}

double CurrentCorners::LeastCurrent() const
{
    // Where the permitted rise falls, Tmax - T over the bracket q turns at the zeros of q + (Tmax - T)·q'.
    const Polynomial<2> left{permitted.MaxC - HeatingReferenceC, -1};
    return ExtremeOf(
               -1,
               [&](const PowerModel& model, double celsius, double hertz)
               { return CurrentOfRise(permitted.At(celsius), model.kI(hertz)); },
               [&](const Quadratic& heating)
               {
                   const auto slope = Derivative(heating);
                   auto turns = Product(left, slope);
                   for (std::size_t i = 0; i < turns.size(); ++i)
                   {
                       turns[i] += heating[i];
                   }
                   return std::tuple(slope, turns);
               })
        .Value;
}

Extreme CurrentCorners::MostRise(double amperes) const
{
    return ExtremeOf(
        1,
        [=](const PowerModel& model, double, double hertz)
        { return RiseAt(model, Quantity::Current, amperes, hertz); },
        [](const Quadratic& heating) { return std::tuple(Derivative(heating)); });
}

/// The slope of ambient temperature and rise together.
Polynomial<2> CurrentCorners::BodySlope(const Quadratic& heating, double amperes) const
{
    const double perSquare = amperes * amperes * heatResistance / part.Data[Value::HeatResistance];
    const auto slope = Derivative(heating);
    return {1 + perSquare * slope[0], perSquare * slope[1]};
}

Extreme CurrentCorners::MostBody(double amperes) const
{
    return ExtremeOf(
        1,
        [=](const PowerModel& model, double celsius, double hertz)
        { return celsius + RiseAt(model, Quantity::Current, amperes, hertz); },
        [=, this](const Quadratic& heating) { return std::tuple(BodySlope(heating, amperes)); });
}

/// Over the frequency the heating falls to where its parts that fall and rise are equal, and rises from
/// there.
double CurrentCorners::LeastRiseAt(double ambientC, double amperes) const
{
    const double t = ambientC - HeatingReferenceC;
    const double square = ValueOf(perHertz, t) / ValueOf(byHertz, t);
    const double turn = square > 0 && std::isfinite(square) ? std::sqrt(square) : box.LowestHertz;
    const auto model = ModelAt(ambientC);
    double least = std::numeric_limits<double>::infinity();
    for (const double hertz :
         {box.LowestHertz, std::clamp(turn, box.LowestHertz, box.HighestHertz), box.HighestHertz})
    {
        least = std::min(least, RiseAt(model, Quantity::Current, amperes, hertz));
    }
    return least;
}

/// True when the body grows warmer with the ambient temperature at every frequency: its slope, linear over
/// the temperature, is least at an end.
bool CurrentCorners::IsWarmerThroughout(double amperes) const
{
    const double perSquare = amperes * amperes * heatResistance / part.Data[Value::HeatResistance];
    for (const double celsius : {box.AmbientC.Low, box.AmbientC.High})
    {
        double least = std::numeric_limits<double>::infinity();
        const double t = celsius - HeatingReferenceC;
        const double falling = ValueOf(Derivative(perHertz), t);
        const double rising = ValueOf(Derivative(byHertz), t);
        for (const double hertz : {box.LowestHertz, box.HighestHertz})
        {
            least = std::min(least, falling / hertz + rising * hertz);
        }
        least = std::min(least, falling > 0 && rising > 0 ? 2 * std::sqrt(falling * rising) : least);
        if (1 + perSquare * (least + ValueOf(Derivative(flat), t)) < 0)
        {
            return false;
        }
    }
    return true;
}

double CurrentCorners::LeastBody(double amperes) const
{
    if (IsWarmerThroughout(amperes))
    {
        return box.AmbientC.Low + LeastRiseAt(box.AmbientC.Low, amperes);
    }
    constexpr int nodes = 9;
    const auto bodyAt = [&](const std::array<double, 1>& celsius)
    { return celsius[0] + LeastRiseAt(celsius[0], amperes); };
    LeastInBox<1> best;
    for (const double celsius : EvenNodes(box.AmbientC.Low, box.AmbientC.High, nodes))
    {
        const double body = bodyAt({celsius});
        best = body < best.Value ? LeastInBox<1>{{celsius}, body} : best;
    }
    const double step = (box.AmbientC.High - box.AmbientC.Low) / (nodes - 1);
    return RefinedIn<1>(bodyAt, best, {SearchSide{box.AmbientC.Low, box.AmbientC.High, step}}).Value;
}

Extreme CurrentCorners::LeastMargin(double amperes) const
{
    return ExtremeOf(
        -1,
        [=, this](const PowerModel& model, double celsius, double hertz)
        { return permitted.At(celsius) - RiseAt(model, Quantity::Current, amperes, hertz); },
        [=, this](const Quadratic& heating)
        { return std::tuple(Derivative(heating), BodySlope(heating, amperes)); });
}
