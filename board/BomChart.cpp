#include "board/BomChart.h"

#include "board/BomText.h"
#include "calc/Capacitance.h"
#include "calc/Conditions.h"
#include "find/KindsOfData.h"
#include "partdata/RunTimeError.h"
#include "requests/FourDigits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
constexpr Color biasColor = {214, 226, 240};
constexpr Color beyondColor = {250, 219, 219};
constexpr Color coldColor = {20, 80, 160};
constexpr Color warmColor = {150, 60, 0};
constexpr double percent = 100;

/// Capacitance over bias at one ambient temperature.
struct AmbientCurve
{
    float AmbientC = 0;
    /// In V and pF.
    std::vector<Point> Points;
};

std::string Volts(double value)
{
    return FourDigits(static_cast<float>(value)) + " V";
}

/// A value to end an axis at: the next one that reads easily.
double AxisEnd(double largest)
{
    constexpr std::array steps = {1.0, 1.2, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0};
    const double decade = std::pow(10.0, std::floor(std::log10(largest)));
    const auto* const found =
        std::ranges::find_if(steps, [&](double step) { return step * decade >= largest; });
    return (found == steps.end() ? steps.front() * 10 : *found) * decade;
}

/// What of a row stands in its chart, in V and pF.
class ChartData
{
public:
    ChartData(const JudgedItem& judged, int pointCount)
        : item(judged)
        , at(judged.Question.Asked.At)
        , rated(judged.Part->Data[Value::RatedVoltage])
    {
        AddCurve(at.AmbientC.Low, pointCount);
        if (!at.AmbientC.IsPoint())
        {
            AddCurve(at.AmbientC.High, pointCount);
        }
    }

    const std::vector<AmbientCurve>& Curves() const { return curves; }
    double Rated() const { return rated; }
    double MostVolts() const
    {
        constexpr double behindRating = 1.15;
        constexpr double behindBias = 1.05;
        constexpr double most = 3;
        const double reach = item.Question.HasBias ? behindBias * at.BiasVolts.High : 0;
        return std::min(std::max(behindRating * rated, reach), most * rated);
    }

    /// The largest of all that is drawn; 0 where nothing is.
    double MostPicofarads() const
    {
        double most = Limit().value_or(0);
        for (const AmbientCurve& curve : curves)
        {
            for (const Point& point : curve.Points)
            {
                most = std::max(most, point.Y);
            }
        }
        return most;
    }

    std::optional<ConditionRange> Bias() const
    {
        return item.Question.HasBias ? std::optional(at.BiasVolts) : std::nullopt;
    }

    /// The larger of the capacitances that are wanted at least, the one in percent turned into one.
    std::optional<double> Limit() const
    {
        const auto& wanted = item.Question.Asked.Wanted;
        double limit = wanted.LeastCapacitance.value_or(0);
        const auto left = item.Figure(FoundColumn::Left);
        if (wanted.LeastLeft && left && *left > 0)
        {
            limit = std::max(limit, double{*wanted.LeastLeft} / *left * Least().value_or(Point{}).Y);
        }
        return limit > 0 ? std::optional(limit) : std::nullopt;
    }

    /// The place of the least.
    std::optional<Point> Least() const
    {
        const auto place = item.Judged ? item.Judged->Figures.ConditionsAt(FoundPlace::Least) : std::nullopt;
        const auto total = item.Figure(FoundColumn::Total);
        return place && total ? std::optional(Point{(*place)[0], *total}) : std::nullopt;
    }

private:
    void AddCurve(float ambientC, int pointCount)
    {
        if (!IsClassAmbientPermitted(ambientC, *item.Part, at.View))
        {
            return;
        }
        AmbientCurve curve{.AmbientC = ambientC, .Points = {}};
        const double parts = item.Question.Parallel() * (1 - at.Tolerance.Down / percent);
        for (int i = 0; i <= pointCount; ++i)
        {
            const double volts = rated * i / pointCount;
            const auto point = CapacitancePointAt(*item.Part, volts, ambientC, at.View);
            curve.Points.push_back({volts, parts * point.value_or(CapacitancePoint{}).PicoFarads});
        }
        curves.push_back(std::move(curve));
    }

    const JudgedItem& item;
    const OperatingPoint& at;
    double rated;
    std::vector<AmbientCurve> curves;
};

/// Lays the data out in pixels.
class ChartLayout
{
public:
    ChartLayout(const ChartData& shown, const BomChartSize& size)
        : data(shown)
        , mostVolts(shown.MostVolts())
        , mostPicofarads(AxisEnd(shown.MostPicofarads()))
        , left(size.TextHeight * leftLetters)
        , right(size.Width - size.TextHeight * edge)
        , top(size.TextHeight * edge)
        , bottom(size.Height - size.TextHeight * below)
    {
        chart.Size = size;
    }

    BomChart Lay()
    {
        LayBands();
        LayCurves();
        LayLimit();
        LayLeast();
        LayFrame();
        return std::move(chart);
    }

private:
    static constexpr double leftLetters = 4;
    static constexpr double edge = 0.6;
    static constexpr double below = 1.5;
    static constexpr double lineHeight = 1.15;
    /// From the middle of a line of text to the line that its letters stand on.
    static constexpr double middleToBase = 0.35;

    double X(double volts) const { return left + (right - left) * std::min(volts / mostVolts, 1.0); }
    /// What a law takes below nothing stands on the axis.
    double Y(double picofarads) const
    {
        return bottom - (bottom - top) * std::max(picofarads, 0.0) / mostPicofarads;
    }

    void LayBands()
    {
        AddBand(data.Rated(), mostVolts, beyondColor);
        if (const auto bias = data.Bias())
        {
            AddBand(bias->Low, bias->High, biasColor);
        }
    }

    /// At least so wide that a single bias is seen.
    void AddBand(double lowVolts, double highVolts, const Color& fill)
    {
        constexpr double leastWidth = 2;
        const double width = std::max(X(highVolts) - X(lowVolts), leastWidth);
        const double start = std::min(X(lowVolts), right - width);
        chart.Bands.push_back({{start, top}, width, bottom - top, fill});
    }

    void LayCurves()
    {
        double base = top + chart.Size.TextHeight;
        for (const AmbientCurve& curve : data.Curves())
        {
            const auto& ink = &curve == &data.Curves().front() ? coldColor : warmColor;
            ChartStroke stroke{.Points = {}, .Ink = ink};
            std::ranges::transform(curve.Points, std::back_inserter(stroke.Points),
                                   [&](const Point& point) {
                                       return Point{X(point.X), Y(point.Y)};
                                   });
            chart.Strokes.push_back(std::move(stroke));
            AddLabel({right - 2, base}, TextAnchor::End, FourDigits(curve.AmbientC) + " C", ink);
            base += chart.Size.TextHeight * lineHeight;
        }
    }

    void LayLimit()
    {
        if (const auto limit = data.Limit())
        {
            chart.Strokes.push_back(
                {.Points = {{left, Y(*limit)}, {right, Y(*limit)}}, .Ink = frameColor, .IsDashed = true});
        }
    }

    void LayLeast()
    {
        constexpr double radius = 2.8;
        if (const auto least = data.Least())
        {
            chart.Dots.push_back({{X(least->X), Y(least->Y)}, radius, frameColor});
        }
    }

    void LayFrame()
    {
        chart.Strokes.push_back({.Points = {{left, top}, {left, bottom}, {right, bottom}}, .Ink = gridColor});
        const double base = chart.Size.Height - chart.Size.TextHeight * middleToBase;
        AddLabel({left, base}, TextAnchor::Middle, "0", frameColor);
        AddLabel({X(data.Rated()), base}, TextAnchor::Middle, Volts(data.Rated()), frameColor);
        // A limit near the end of the axis takes the place of its label.
        const auto limit = data.Limit();
        const bool isNearEnd = limit && Y(*limit) - top < chart.Size.TextHeight * lineHeight;
        if (!isNearEnd)
        {
            AddHeightLabel(mostPicofarads);
        }
        if (limit)
        {
            AddHeightLabel(*limit);
        }
    }

    void AddHeightLabel(double picofarads)
    {
        AddLabel({left - 3, Y(picofarads) + chart.Size.TextHeight * middleToBase}, TextAnchor::End,
                 FaradsText(picofarads), frameColor);
    }

    void AddLabel(const Point& place, TextAnchor anchor, std::string text, const Color& ink)
    {
        chart.Labels.push_back({place, anchor, std::move(text), ink});
    }

    const ChartData& data;
    double mostVolts;
    double mostPicofarads;
    double left;
    double right;
    double top;
    double bottom;
    BomChart chart;
};
} // namespace

std::optional<BomChart> ChartOf(const JudgedItem& item, const BomChartSize& size)
{
    constexpr double pixelsPerPoint = 6;
    if (item.Part == nullptr || !HasCapacitanceData(*item.Part))
    {
        return std::nullopt;
    }
    try
    {
        const bool isRated = item.Part->Data[Value::RatedVoltage] > 0;
        const ChartData data(item, std::max(1, static_cast<int>(size.Width / pixelsPerPoint)));
        return !isRated || data.Curves().empty() || !(data.MostPicofarads() > 0)
                   ? std::nullopt
                   : std::optional(ChartLayout(data, size).Lay());
    }
    catch (const RunTimeError&)
    {
        return std::nullopt;
    }
}
