#include "requests/StressSheet.h"

#include "calc/Bounds.h"
#include "requests/FourDigits.h"
#include "requests/PlotOnSheet.h"
#include "requests/StressShares.h"
#include "stress/PrefixedText.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{
constexpr double margin = 8;
constexpr double titleHeight = 22;
constexpr double reportHeight = 480;
/// Of what stands in the left half: the record, and the shares.
constexpr double mainShare = 0.6;
constexpr double mostLineHeight = 18;
/// A smaller share is told as none.
constexpr double leastTold = 0.0005;
constexpr Color white = {255, 255, 255};
constexpr Color countedColor = {214, 228, 247};
constexpr Color insideColor = {0, 82, 164};
constexpr Color outsideColor = {204, 85, 0};
constexpr Color hatchColor = {205, 205, 205};

/// Values are told in this many times the unit, which bears the prefix.
struct Prefix
{
    double Factor;
    std::string Text;
};

Prefix PrefixFor(double largest)
{
    constexpr double thousand = 1e3;
    Prefix prefix{1, ""};
    for (const char* const smaller : {"m", "\u00B5", "n"})
    {
        if (largest == 0 || largest * prefix.Factor >= 1)
        {
            break;
        }
        prefix = {prefix.Factor * thousand, smaller};
    }
    return prefix;
}

std::string TimeText(double seconds)
{
    const auto prefix = PrefixFor(std::abs(seconds));
    return FourDigits(static_cast<float>(seconds * prefix.Factor)) + ' ' + prefix.Text + 's';
}

/// A curve through the envelope, in the values of its axes.
std::vector<Point> CurveOf(const Envelope& envelope, const WavePoint& origin, double perSecond,
                           double perAmpere)
{
    std::vector<Point> curve;
    const double step = envelope.Span.Length() / static_cast<double>(envelope.Pieces.size());
    double time = envelope.Span.From - origin.Seconds + step / 2;
    for (const auto& piece : envelope.Pieces)
    {
        const double low = (piece.Lowest - origin.Amperes) * perAmpere;
        const double high = (piece.Highest - origin.Amperes) * perAmpere;
        // From the end that the piece before ended near, so that a fine line stays one.
        const bool rises = curve.empty() || curve.back().Y <= (low + high) / 2;
        curve.push_back({time * perSecond, rises ? low : high});
        curve.push_back({time * perSecond, rises ? high : low});
        time += step;
    }
    return curve;
}

/// The current within a stretch of time, both told from an origin.
void DrawCurrent(const Envelope& envelope, const WavePoint& origin, const Box& box, const std::string& title,
                 const TimeSpan* counted, SheetSurface& sheet)
{
    constexpr double room = 0.05;
    double low = std::ranges::min_element(envelope.Pieces, {}, &Envelope::Piece::Lowest)->Lowest;
    double high = std::ranges::max_element(envelope.Pieces, {}, &Envelope::Piece::Highest)->Highest;
    const double blank = room * (high - low);
    low -= origin.Amperes + blank;
    high -= origin.Amperes - blank;
    const double from = envelope.Span.From - origin.Seconds;
    const double to = envelope.Span.To - origin.Seconds;
    const auto amperes = PrefixFor(std::max(std::abs(low), std::abs(high)));
    const auto seconds = PrefixFor(std::max(std::abs(from), std::abs(to)));
    PlotOnSheet plot(box, {from * seconds.Factor, to * seconds.Factor, title + " [" + seconds.Text + "s]"},
                     {low * amperes.Factor, high * amperes.Factor, "Current [" + amperes.Text + "A]"}, sheet);
    if (counted != nullptr)
    {
        plot.Fill((counted->From - origin.Seconds) * seconds.Factor,
                  (counted->To - origin.Seconds) * seconds.Factor, high * amperes.Factor, countedColor);
    }
    plot.DrawAxes();
    plot.Curve(CurveOf(envelope, origin, seconds.Factor, amperes.Factor));
}

/// Where the pieces of a picture stand.
struct Places
{
    Box Title;
    Box Record;
    Box Period;
    Box Shares;
    Box Notes;
};

Places PlacesIn(const Box& place)
{
    const double height = (place.Height - titleHeight - margin) / 2;
    const double width = place.Width - 2 * margin;
    const double main = mainShare * width;
    const double left = place.Left + margin;
    const double upper = place.Top + titleHeight;
    const double lower = upper + height;
    return {.Title = {left, place.Top + 4, width, titleHeight},
            .Record = {left, upper, main, height},
            .Period = {left + main, upper, width - main, height},
            .Shares = {left, lower, main, height},
            .Notes = {left + main + margin, lower + margin, width - main - margin, height - margin}};
}

/// The smallest box that holds two that stand side by side.
Box Joined(const Box& left, const Box& right)
{
    return {left.Left, left.Top, right.Left + right.Width - left.Left, left.Height};
}

void DrawCurrents(const CurrentLoad& load, const Places& places, SheetSurface& sheet)
{
    const double start = load.Shape.Span.From;
    if (!load.Record)
    {
        // The direct current flows past the capacitors.
        DrawCurrent(load.Shape, {start, load.Figures.Mean}, Joined(places.Record, places.Period),
                    "Time in one period", nullptr, sheet);
        return;
    }
    DrawCurrent(load.Record->Course, {0, 0}, places.Record, "Time", &load.Record->Counted.Span, sheet);
    DrawCurrent(load.Shape, {start, 0}, places.Period, "Time in the last period", nullptr, sheet);
}

std::string Percent(double share)
{
    constexpr float percent = 100;
    const float value = static_cast<float>(share) * percent;
    return share < leastTold ? "0 %" : FourDigits(std::round(value * 10) / 10) + " %";
}

std::string TitleOf(const StressReport& report, CodeView code, const CurveSettings& settings)
{
    constexpr int digits = 4;
    const auto sine = report.Load.Lines.Moments.Total().Sine();
    auto title = report.Title() + ": " + PrefixedText(report.Load.Arms(), "Arms", digits) +
                 ", heats like a sine of " + PrefixedText(sine.Arms, "Arms", digits) + " at " +
                 PrefixedText(sine.Hertz, "Hz", digits);
    if (report.Parts.size() == 1)
    {
        const auto& [part, stress] = report.Parts.front();
        title += "; " + ShownPartNum(*part, code, settings) +
                 (stress.Rise ? " rises " + FourDigits(static_cast<float>(*stress.Rise)) + " \u00B0C"
                              : ": no rise");
    }
    return title;
}

/// The axis of frequencies: whole decades from 1 kHz, or from below the lowest line that is seen.
PlotAxis FrequencyAxis(const StressShares& shares)
{
    constexpr double seen = 1e-3;
    constexpr double usualLow = 1e3;
    constexpr double high = 1e7;
    const auto lowest =
        std::ranges::find_if(shares.Lines, [](const auto& line) { return line.Share >= seen; });
    const double low = lowest == shares.Lines.end() ? usualLow : std::min(usualLow, lowest->Hertz);
    return {std::pow(10, std::floor(std::log10(low))), high, "Frequency", AxisKind::Logarithmic};
}

void DrawShares(const StressShares& shares, const Box& box, SheetSurface& sheet)
{
    constexpr double percent = 100;
    constexpr double room = 1.08;
    /// Half the width of a bar, as a factor.
    const double half = std::pow(10, 0.02);
    constexpr double unresolvedHertz = 6.5e6;
    const auto axis = FrequencyAxis(shares);
    double most = shares.Unresolved;
    for (const auto& line : shares.Lines)
    {
        most = std::max(most, line.Share);
    }
    PlotOnSheet plot(box, axis,
                     {0, most * percent * room,
                      shares.Of != nullptr ? "Share of the rise [%]" : "Share of the square [%]"},
                     sheet);
    plot.Hatch(axis.Low, LowestFrequencyHz, hatchColor);
    plot.Hatch(HighestFrequencyHz, axis.High, hatchColor);
    plot.DrawAxes();
    plot.Mark(LowestFrequencyHz, frameColor);
    plot.Mark(HighestFrequencyHz, frameColor);
    for (const auto& line : shares.Lines)
    {
        plot.Fill(line.Hertz / half, line.Hertz * half, line.Share * percent,
                  line.Reach == DataReach::Inside ? insideColor : outsideColor);
    }
    plot.Fill(unresolvedHertz / half, unresolvedHertz * half, shares.Unresolved * percent, outsideColor);
}

/// A line beside the shares.
struct Note
{
    std::string Text;
    ::Color Color = frameColor;
};

std::vector<Note> NotesOf(const CurrentLoad& load, const StressShares& shares)
{
    std::vector<Note> notes;
    if (load.Record)
    {
        const auto& stretch = load.Record->Counted;
        notes.push_back({std::to_string(stretch.Periods) +
                         (stretch.Periods == 1 ? " period of " : " periods of ") + TimeText(stretch.Period) +
                         " from"});
        notes.push_back(
            {TimeText(stretch.Span.From) + " to " + TimeText(stretch.Span.To) + " (shaded) count"});
        notes.push_back({});
    }
    notes.push_back({shares.Of != nullptr ? "Of the rise:" : "Of the square of the current:"});
    notes.push_back({Percent(shares.SumOf(DataReach::Inside)) + " from 10 kHz to 1 MHz", insideColor});
    notes.push_back({Percent(shares.SumOf(DataReach::Below)) + " below 10 kHz", outsideColor});
    notes.push_back({Percent(shares.SumOf(DataReach::Above)) + " above 1 MHz", outsideColor});
    if (shares.Unresolved >= leastTold)
    {
        notes.push_back(
            {"(" + Percent(shares.Unresolved) + " above 4 MHz, the rightmost bar)", outsideColor});
    }
    return notes;
}

void DrawNotes(const std::vector<Note>& notes, const Box& place, SheetSurface& sheet)
{
    const double lineHeight = std::min(mostLineHeight, place.Height / static_cast<double>(notes.size()));
    double top = place.Top;
    for (const auto& [text, color] : notes)
    {
        sheet.Text({place.Left, top, place.Width, lineHeight}, text, color);
        top += lineHeight;
    }
}
} // namespace

StressPicture StressPictureOf(const StressReport& report, CodeView code, const CurveSettings& settings)
{
    return {.Title = TitleOf(report, code, settings), .Load = report.Load, .Shares = StressSharesOf(report)};
}

void DrawStressPicture(const StressPicture& picture, const Box& place, SheetSurface& sheet)
{
    sheet.Fill(place, white);
    const auto places = PlacesIn(place);
    // A chart gives the sheet the font of the texts that follow.
    DrawCurrents(picture.Load, places, sheet);
    DrawShares(picture.Shares, places.Shares, sheet);
    DrawNotes(NotesOf(picture.Load, picture.Shares), places.Notes, sheet);
    sheet.Text(places.Title, picture.Title, frameColor);
}

double StressSheetHeight(std::size_t reports)
{
    return reportHeight * static_cast<double>(reports);
}

void DrawStressSheet(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings,
                     SheetSurface& sheet)
{
    double top = 0;
    for (const auto& report : reports)
    {
        DrawStressPicture(StressPictureOf(report, code, settings), {0, top, StressSheetWidth, reportHeight},
                          sheet);
        top += reportHeight;
    }
}
