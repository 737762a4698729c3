#include "chart/layout/FittingAxis.h"

#include "calc/EngineeringText.h"
#include "calc/NumberText.h"
#include "chart/layout/Mapping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{

constexpr Color minorColor = {228, 228, 228};
constexpr Color tickColor = {178, 178, 178};
constexpr Color decadeColor = {120, 120, 120};

/// Distances in text sizes: of X labels, of Y labels, between X labels, of lines between ticks.
constexpr double xTickDistance = 4.5;
constexpr double yTickDistance = 2.4;
constexpr double xLabelGap = 1;
constexpr double minorDistance = 1.5;
/// Rounding that a position, a logarithm or a count of steps may bear.
constexpr double tolerance = 1e-6;

/// A distance between ticks: `Mantissa` times ten to the power `Exponent`.
struct Step
{
    double Mantissa;
    int Exponent;

    double Value() const { return Mantissa * std::pow(10.0, Exponent); }
    int Decimals() const { return std::max(0, -Exponent + (Mantissa == 2.5 ? 1 : 0)); }
    /// Into how many parts it is divided evenly.
    int Parts() const { return Mantissa == 2 ? 4 : 5; }
};

/// A value as labels tell it.
std::string LabelOf(double value, int decimals)
{
    const auto text = FixedNumber(value, decimals);
    return text.starts_with('-') ? std::string(MinusSign) + text.substr(1) : text;
}

/// One axis while its ticks are chosen; values are those that labels tell.
class AxisFitter
{
public:
    AxisFitter(AxisKind axisKind, double from, double to, double pixels)
        : kind(axisKind)
        , low(from)
        , high(to)
        , length(pixels)
    {
    }

    /// Least distance of neighbouring ticks in pixels, beside which labels must stand clear where they are
    /// measured.
    void Space(double leastDistance, double leastMinorDistance)
    {
        distance = leastDistance;
        minorDistancePixels = leastMinorDistance;
    }
    void MeasureLabels(const TextRuler& labelRuler, double gap)
    {
        ruler = &labelRuler;
        labelGap = gap;
    }
    /// Quarters instead of fifths: 25, not 20.
    void PreferQuarters() { mantissas = {1, 2.5, 5}; }

    FittingAxis Fit()
    {
        if (kind == AxisKind::Linear || std::log10(high / low) < 1 - tolerance)
        {
            FitSteps();
        }
        else
        {
            FitDecades();
        }
        std::ranges::stable_sort(axis.Grid, std::ranges::greater(),
                                 [](const GridLine& line) { return line.Color.Red; });
        return std::move(axis);
    }

private:
    double PositionOf(double value) const
    {
        const double share = kind == AxisKind::Linear ? (value - low) / (high - low)
                                                      : std::log(value / low) / std::log(high / low);
        return std::clamp(100 * share, 0.0, 100.0);
    }
    double PixelsBetween(double a, double b) const { return (PositionOf(b) - PositionOf(a)) * length / 100; }
    /// True within the range of a logarithmic axis.
    bool IsInside(double value) const
    {
        return value >= low * (1 - tolerance) && value <= high * (1 + tolerance);
    }
    double RoomOf(const std::string& label) const
    {
        return std::max(distance, ruler != nullptr ? ruler->WidthOf(label) + labelGap : 0);
    }

    // ---- Even steps ----

    /// The multiples of a step within the range.
    std::pair<long, long> MultiplesOf(double step) const
    {
        return {std::lround(std::ceil(low / step - tolerance)),
                std::lround(std::floor(high / step + tolerance))};
    }

    bool StandsClear(const Step& step) const
    {
        const auto [first, last] = MultiplesOf(step.Value());
        for (long i = first; i < last; ++i)
        {
            const double at = static_cast<double>(i) * step.Value();
            const double next = static_cast<double>(i + 1) * step.Value();
            const double room =
                (RoomOf(LabelOf(at, step.Decimals())) + RoomOf(LabelOf(next, step.Decimals()))) / 2;
            if (PixelsBetween(at, next) < room - tolerance)
            {
                return false;
            }
        }
        return true;
    }

    /// The smallest step whose labels stand clear; the largest that has two ticks where none does.
    Step SmallestStep() const
    {
        const double least = (high - low) * std::min(1.0, distance / length) / 10;
        Step smallest = {1, static_cast<int>(std::floor(std::log10(least)))};
        for (int exponent = smallest.Exponent;; ++exponent)
        {
            for (const double mantissa : mantissas)
            {
                const Step step = {mantissa, exponent};
                const auto [first, last] = MultiplesOf(step.Value());
                if (last <= first)
                {
                    return smallest;
                }
                smallest = step;
                if (step.Value() >= least && StandsClear(step))
                {
                    return step;
                }
            }
        }
    }

    /// Into how many parts the steps are divided by lines: evenly with room, else in halves or not at all.
    int PartsOf(const Step& step) const
    {
        const auto last = static_cast<double>(MultiplesOf(step.Value()).second) * step.Value();
        for (const int parts : {step.Parts(), 2})
        {
            // On a logarithmic axis lines are closest at its upper end.
            if (PixelsBetween(last - step.Value() / parts, last) >= minorDistancePixels)
            {
                return parts;
            }
        }
        return 1;
    }

    void FitSteps()
    {
        const Step step = SmallestStep();
        const int parts = PartsOf(step);
        const double part = step.Value() / parts;
        const auto [first, last] = MultiplesOf(part);
        for (long i = first; i <= last; ++i)
        {
            const double value = static_cast<double>(i) * part;
            if (i % parts == 0)
            {
                axis.Ticks.push_back({PositionOf(value), LabelOf(value, step.Decimals())});
            }
            axis.Grid.push_back({PositionOf(value), i % parts == 0 ? ColorOfTick(value) : minorColor});
        }
    }

    /// A power of ten on a logarithmic axis stands out.
    Color ColorOfTick(double value) const
    {
        if (kind == AxisKind::Linear)
        {
            return tickColor;
        }
        const double exponent = std::log10(value);
        return std::abs(exponent - std::round(exponent)) < tolerance ? decadeColor : tickColor;
    }

    // ---- Decades ----

    bool StandsClear(std::span<const int> digits) const
    {
        const double decade = length / std::log10(high / low);
        for (std::size_t i = 0; i < digits.size(); ++i)
        {
            const double next = i + 1 < digits.size() ? digits[i + 1] : 10.0;
            if (std::log10(next / digits[i]) * decade < WidestDecadeLabel(digits))
            {
                return false;
            }
        }
        return true;
    }

    double WidestDecadeLabel(std::span<const int> digits) const
    {
        double widest = 0;
        for (int exponent = FirstDecade(); exponent <= LastDecade(); ++exponent)
        {
            for (const int digit : digits)
            {
                widest = std::max(widest, RoomOf(DecadeLabel(digit, exponent)));
            }
        }
        return widest;
    }

    static std::string DecadeLabel(int digit, int exponent)
    {
        return LabelOf(digit * std::pow(10.0, exponent), std::max(0, -exponent));
    }
    int FirstDecade() const { return static_cast<int>(std::floor(std::log10(low) + tolerance)); }
    int LastDecade() const { return static_cast<int>(std::floor(std::log10(high) + tolerance)); }

    /// The digits before powers of ten that are labelled.
    std::span<const int> LabelledDigits() const
    {
        static constexpr std::array digits = {1, 2, 3, 4, 5, 6, 7, 8, 9};
        static constexpr std::array some = {1, 2, 5};
        // A range of a decade holds one of each.
        static constexpr std::array two = {1, 3};
        for (const std::span<const int> labelled : {std::span<const int>(digits), std::span<const int>(some)})
        {
            if (StandsClear(labelled))
            {
                return labelled;
            }
        }
        const bool onePower = !IsInside(std::pow(10.0, LastDecade() - 1));
        return onePower ? std::span<const int>(two) : std::span<const int>(digits).first(1);
    }

    /// Every how many decades there is room for a label.
    int DecadesPerLabel(std::span<const int> labelled) const
    {
        const double decade = length / std::log10(high / low);
        return std::max(1, static_cast<int>(std::ceil(WidestDecadeLabel(labelled) / decade - tolerance)));
    }

    void FitDecades()
    {
        const auto labelled = LabelledDigits();
        const int every = labelled.size() == 1 ? DecadesPerLabel(labelled) : 1;
        for (int exponent = FirstDecade(); exponent <= LastDecade(); ++exponent)
        {
            for (int digit = 1; digit <= 9; ++digit)
            {
                const double value = digit * std::pow(10.0, exponent);
                if (!IsInside(value))
                {
                    continue;
                }
                const bool isLabelled =
                    std::ranges::find(labelled, digit) != labelled.end() && exponent % every == 0;
                if (isLabelled)
                {
                    axis.Ticks.push_back({PositionOf(value), DecadeLabel(digit, exponent)});
                }
                axis.Grid.push_back({PositionOf(value), digit == 1   ? decadeColor
                                                        : isLabelled ? tickColor
                                                                     : minorColor});
            }
        }
    }

    AxisKind kind;
    double low;
    double high;
    double length;
    double distance = 0;
    double minorDistancePixels = 0;
    const TextRuler* ruler = nullptr;
    double labelGap = 0;
    std::vector<double> mantissas = {1, 2, 5};
    FittingAxis axis;
};

FittingAxis Titled(std::string title)
{
    return {.Title = std::move(title), .Ticks = {}, .Grid = {}};
}

} // namespace

FittingAxis FitXAxis(const ChartView& view, double width, const TextRuler& ruler)
{
    const auto quantity = QuantityNamed(view.Chart.XAxisName);
    const auto kind = XAxisKind(view.Chart);
    const auto title = view.Chart.XAxisName + ' ' + UnitOf(quantity, view.DegreeSign);
    if (!AxisMapping(kind, view.Range.XMin, view.Range.XMax).HasExtent())
    {
        return Titled(title);
    }
    const auto unit = double{KindOf(quantity).StoredPerShown};
    AxisFitter fitter(kind, view.Range.XMin / unit, view.Range.XMax / unit, width);
    fitter.Space(xTickDistance * ruler.TextSize(), minorDistance * ruler.TextSize());
    fitter.MeasureLabels(ruler, xLabelGap * ruler.TextSize());
    if (quantity == Quantity::Temperature)
    {
        fitter.PreferQuarters();
    }
    auto axis = fitter.Fit();
    axis.Title = title;
    return axis;
}

FittingAxis FitYAxis(const ChartView& view, double height, const TextRuler& ruler)
{
    const auto quantity = QuantityNamed(view.Chart.YAxisName);
    const auto kind = YAxisKind(view.Chart);
    const auto& range = view.Range;
    const double larger = std::max(std::abs(range.YMin), std::abs(range.YMax));
    const auto form = FormOf(quantity, larger, view.DegreeSign);
    const auto title = view.Chart.YAxisName + " [" + form.Unit + ']';
    if (!AxisMapping(kind, range.YMin, range.YMax).HasExtent())
    {
        return Titled(title);
    }
    const double factor = std::pow(10.0, form.Shift);
    AxisFitter fitter(kind, range.YMin * factor, range.YMax * factor, height);
    fitter.Space(yTickDistance * ruler.TextSize(), minorDistance * ruler.TextSize());
    auto axis = fitter.Fit();
    axis.Title = title;
    return axis;
}
