#include "calc/DataFile.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "calc/NumberText.h"
#include "calc/ProgramTitle.h"
#include "calc/Quantities.h"
#include "partdata/OneLine.h"
#include "partdata/Windows1252.h"

static constexpr std::string_view ColumnGap = "            ";
static constexpr std::string_view LineEnd = "\r\n";

std::string DataXText(const ChartRecord& line, std::size_t point)
{
    const float perShown = KindOf(QuantityNamed(line.XAxisName)).StoredPerShown;
    return FormatNumber(line.XData[point] / perShown, NumberFormat::ScientificTwo);
}

std::string DataYText(const ChartRecord& line, std::size_t point)
{
    return FormatNumber(line.YData[point], NumberFormat::ScientificTwo);
}

/// Appends one line made of pieces.
template <class... Pieces> static void AddLine(std::string& text, const Pieces&... pieces)
{
    (text.append(pieces), ...);
    text.append(LineEnd);
}

/// A text from elsewhere that stays on its line.
static std::string Kept(std::string_view ansi)
{
    return Windows1252FromUtf8(WithoutControls(Utf8FromWindows1252(ansi)));
}

std::string DataFileText(const ChartRecord& line, const PartRecord& part, CodeView view,
                         std::string_view date)
{
    // Refuses a line of no chart type, which has no name either.
    const auto conditions = ConditionLines(line);
    const auto code = static_cast<std::size_t>(view);
    std::string text;
    AddLine(text, "!", ProgramTitleText, "  ", Kept(date));
    AddLine(text, "!ChartType-> ", ChartKindOf(line.ChartType).Caption);
    AddLine(text, "!Halvex Part Number-> ", Kept(part.PartNum[code]), " (", Kept(part.PartNum[code + 2]),
            ")");
    for (const ConditionLine& condition : conditions)
    {
        AddLine(text, "!", condition.Name, "-> ", condition.Value, " ", condition.Unit);
    }
    AddLine(text, line.XAxisName, GetUnit(line.XAxisName, {}), "  ", line.YAxisName,
            GetUnit(line.YAxisName, {}));
    for (std::size_t point = 0; point < CurvePoints; ++point)
    {
        AddLine(text, DataXText(line, point), ColumnGap, DataYText(line, point));
    }
    return text;
}
