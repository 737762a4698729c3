#include "calc/ChartNames.h"

#include "calc/ChartKinds.h"

#include <algorithm>

std::int16_t GetChartTypeNumber(std::string_view name)
{
    const auto kinds = ChartKinds();
    const auto found = std::ranges::find(kinds, name, &ChartKind::Caption);
    return found != kinds.end() ? NumberOf(*found) : std::int16_t{0};
}

std::string ChartCaption(const ChartKey& chart)
{
    std::string caption(ChartKindOf(chart.ChartType).Caption);
    caption.append("(").append(chart.XAxisName).append(",").append(chart.YAxisName).append(")");
    return caption;
}

/// Cuts `text` at the first `mark`: returns what stands before it and leaves what follows.
static std::string_view CutAt(std::string_view& text, char mark)
{
    const auto end = std::min(text.find(mark), text.size());
    const auto head = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return head;
}

ChartKey ChartOfCaption(std::string_view caption)
{
    const auto type = GetChartTypeNumber(CutAt(caption, '('));
    const auto xAxisName = CutAt(caption, ',');
    const auto yAxisName = CutAt(caption, ')');
    return {type, std::string(xAxisName), std::string(yAxisName)};
}
