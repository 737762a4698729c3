#include "requests/StressFormats.h"

#include "calc/NumberText.h"
#include "requests/ListText.h"

#include <array>
#include <cmath>

namespace
{
constexpr double hertzPerKilohertz = 1e3;

std::string Number(double value)
{
    return NumberText(static_cast<float>(value));
}

std::string NumberIf(const std::optional<double>& value, double divisor = 1)
{
    return value ? Number(*value / divisor) : "";
}

/// "rest" where all lines that are not told stand together.
ListRow PartRow(const std::string& part, const StressLine& line)
{
    return {part,
            line.Hertz ? NumberIf(line.Hertz, hertzPerKilohertz) : "rest",
            Number(line.Arms),
            NumberIf(line.Milliohms),
            Number(line.Rise),
            Number(line.Share)};
}

void AddSide(std::vector<ListRow>& rows, const StressReport& report)
{
    for (const SpectralLine& line : report.Load.Lines.Lines)
    {
        rows.push_back({report.Title(), Number(line.Hertz / hertzPerKilohertz),
                        Number(std::sqrt(line.Square)), "", "", ""});
    }
    rows.push_back({report.Title(), "rest", Number(std::sqrt(report.Load.Lines.Unresolved)), "", "", ""});
}

std::string Csv(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings)
{
    std::vector<ListRow> rows = {{reports.front().Parts.empty() ? "side" : "part", "frequency [kHz]",
                                  "current [Arms]", "loss resistance [mOhm]", "rise [\u00B0C]", "share"}};
    for (const StressReport& report : reports)
    {
        for (const StressedPart& part : report.Parts)
        {
            for (const StressLine& line : part.Stress.Lines)
            {
                rows.push_back(PartRow(ShownPartNum(*part.Part, code, settings), line));
            }
        }
        if (report.Parts.empty())
        {
            AddSide(rows, report);
        }
    }
    return CsvOf(rows);
}
} // namespace

std::span<const StressFormat> StressFormats()
{
    static constexpr std::array<StressFormat, 3> formats = {{
        {{"table", "if left out"}, StressText},
        {{"csv", ""}, Csv},
        {{"json", ""}, StressJson},
    }};
    return formats;
}
