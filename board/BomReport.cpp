#include "board/BomReport.h"

#include "board/BomText.h"
#include "board/ChartSvg.h"
#include "board/HtmlText.h"
#include "board/References.h"
#include "requests/FourDigits.h"

#include <string_view>
#include <vector>

namespace
{
/// Colours of the verdicts, each with letters that stand out from it by more than 4.5 to 1.
constexpr std::string_view start = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'">
<title>Capacitors of the board</title>
<style>
@page { size: landscape; margin: 12mm; }
body { font: 13px/1.35 sans-serif; color: #000; background: #fff; margin: 16px; }
h1 { font-size: 20px; }
h2 { font-size: 16px; }
table { border-collapse: collapse; width: 100%; }
thead { display: table-header-group; }
tr { break-inside: avoid; }
th, td { border-bottom: 1px solid #bbb; padding: 3px 6px; text-align: left; vertical-align: top; max-width: 16em; overflow-wrap: break-word; }
th, .verdict, .number { overflow-wrap: normal; white-space: nowrap; }
.number { text-align: right; }
.part { min-width: 12em; }
.verdict { font-weight: bold; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
.fail { background: #b00020; color: #fff; }
.unknown { background: #505050; color: #fff; }
.warn { background: #ffd24d; color: #000; }
.ok { background: #1e6b2e; color: #fff; }
svg { display: block; print-color-adjust: exact; -webkit-print-color-adjust: exact; font-family: sans-serif; }
</style>
</head>
<body>
<h1>Capacitors of the board</h1>
)";

constexpr std::string_view aboutCharts =
    "<p>The charts show capacitance over DC bias, less the tolerance, at both ends of the ambient range: the "
    "range of the bias shaded, beyond the rated voltage red, the capacitance that is wanted dashed, and the "
    "least a dot.</p>\n";

std::string Cell(const std::string& text, std::string_view kind = {})
{
    return "<td" + (kind.empty() ? std::string() : " class=\"" + std::string(kind) + '"') + '>' +
           HtmlText(text) + "</td>";
}

std::string VerdictCell(BomVerdict verdict)
{
    const auto name = std::string(BomVerdictNames.at(static_cast<std::size_t>(verdict)));
    return Cell(name, "verdict " + name);
}

std::string TableStart(const std::vector<std::string_view>& headings)
{
    std::string html = "<table>\n<thead><tr>";
    for (const auto heading : headings)
    {
        html += "<th>" + std::string(heading) + "</th>";
    }
    return html + "</tr></thead>\n<tbody>\n";
}

std::string RangeText(const ConditionRange& range, const std::string& unit)
{
    return (range.IsPoint() ? "" : FourDigits(range.Low) + "..") + FourDigits(range.High) + ' ' + unit;
}

/// "10.8..13.2 V, -10..65 C".
std::string ConditionsText(const BomQuestion& question)
{
    const auto& at = question.Asked.At;
    return (question.HasBias ? RangeText(at.BiasVolts, "V") + ", " : "") + RangeText(at.AmbientC, "C");
}

// ---- Nets ----

std::string NetRow(const JudgedNet& net)
{
    const auto& answer = net.Answer;
    return "<tr>" + VerdictCell(net.Verdict) + Cell(net.Name) + Cell(std::to_string(net.Parts()), "number") +
           Cell(answer.Nominal > 0 ? FaradsText(answer.Nominal) : "", "number") +
           Cell(answer.Least ? FaradsText(*answer.Least) : "", "number") +
           Cell(answer.Least ? PlaceText(answer.LeastAt) : "") +
           Cell(net.Wanted ? FaradsText(double{*net.Wanted}) : "", "number") +
           Cell(net.Reserve ? PercentText(*net.Reserve) : "", "number") +
           Cell(answer.Arms ? FourDigits(static_cast<float>(*answer.Arms)) + " Arms" : "", "number") +
           Cell(net.Reason) + "</tr>\n";
}

std::string NetsOf(const JudgedBom& bom)
{
    std::string rows;
    for (const JudgedNet& net : bom.Nets)
    {
        rows += net.IsTold() ? NetRow(net) : "";
    }
    return rows.empty() ? ""
                        : "<h2>Nets</h2>\n" +
                              TableStart({"Verdict", "Net", "Parts", "Nominal", "Least", "At", "Wanted",
                                          "Reserve", "Current", "Reasons"}) +
                              rows + "</tbody>\n</table>\n";
}

// ---- Rows ----

std::string RowOf(const JudgedItem& item, const BomSettings& settings)
{
    const auto chart = ChartOf(item);
    return "<tr>" + VerdictCell(item.Verdict) + Cell(ReferenceText(item.Item->References)) +
           Cell(PartText(item, settings), "part") + Cell(item.Item->TextOf(BomField::Net)) +
           Cell(item.Part != nullptr ? ConditionsText(item.Question) : "") +
           Cell(item.Reserve ? PercentText(*item.Reserve) : "", "number") + Cell(LeastText(item), "number") +
           Cell(RiseText(item), "number") + Cell(ReasonsText(item, settings)) + "<td>" +
           (chart ? SvgOf(*chart) : "") + "</td></tr>\n";
}

std::string RowsOf(const JudgedBom& bom, const BomSettings& settings)
{
    auto html = "<h2>Parts</h2>\n" + std::string(aboutCharts) +
                TableStart({"Verdict", "References", "Part", "Net", "Works at", "Reserve", "Least", "Rise",
                            "Reasons", "Chart"});
    for (const JudgedItem& item : bom.Items)
    {
        html += RowOf(item, settings);
    }
    return html + "</tbody>\n</table>\n";
}

std::string NotesOf(const std::vector<BomRemark>& warnings)
{
    std::string html;
    for (const BomRemark& warning : warnings)
    {
        html += "<li>" + HtmlText(RemarkText(warning, {"bill", "conditions"})) + "</li>\n";
    }
    return html.empty() ? "" : "<h2>Notes</h2>\n<ul>\n" + html + "</ul>\n";
}
} // namespace

std::string BomReport(const CheckedBom& bom, const BomSettings& settings)
{
    return std::string(start) + "<p>" + CountsText(bom.Judged) + "</p>\n" + NetsOf(bom.Judged) +
           RowsOf(bom.Judged, settings) + NotesOf(bom.Warnings) + "</body>\n</html>\n";
}
