#include "tests/chart/view/PlainView.h"

#include "calc/ValueAt.h"
#include "chart/LineTable.h"

#include <algorithm>
#include <cmath>

void PlainCursors::Follow(double x)
{
    if (Pinned.size() < 2)
    {
        Free = x;
    }
}

void PlainCursors::MoveTo(double x)
{
    if (Pinned.size() == 2)
    {
        Pinned.back() = x;
    }
    Free = x;
}

void PlainCursors::Pin(double x)
{
    Pinned.size() == 2 ? Pinned.pop_back() : Pinned.push_back(x);
    Free = x;
}

void PlainCursors::Jump(double x)
{
    Pinned.size() == 2 ? MoveTo(x) : Pin(x);
}

bool PlainCursors::Unpin()
{
    if (Pinned.empty())
    {
        return false;
    }
    // A alone stays where it was pinned, as does B.
    Free = Pinned.back();
    Pinned.pop_back();
    return true;
}

AxisRange WholeRange(const std::vector<ViewedLine>& lines)
{
    AxisRange whole{lines[0].Line.XMax, lines[0].Line.YMax, lines[0].Line.XMin, lines[0].Line.YMin};
    for (const ViewedLine& line : lines)
    {
        whole.XMax = std::max(whole.XMax, line.Line.XMax);
        whole.YMax = std::max(whole.YMax, line.Line.YMax);
        whole.XMin = std::min(whole.XMin, line.Line.XMin);
        whole.YMin = std::min(whole.YMin, line.Line.YMin);
    }
    return whole;
}

double PointsAway(const ChartRecord& line, double from, int points)
{
    double x = from;
    for (int step = 0; step < std::abs(points); ++step)
    {
        std::optional<float> next;
        for (const float candidate : line.XData)
        {
            const bool ahead =
                points > 0 ? candidate > static_cast<float>(x) : candidate < static_cast<float>(x);
            const bool nearer = !next || (points > 0 ? candidate < *next : candidate > *next);
            next = ahead && nearer ? candidate : next;
        }
        if (!next)
        {
            // Beyond the ends there is only the end itself.
            return points > 0 ? line.XData.back() : line.XData.front();
        }
        x = *next;
    }
    return x;
}

static QString LinesDifference(const ViewScene& scene, const std::vector<ChartRecord>& lines)
{
    bool same = scene.Lines.size() == lines.size();
    for (std::size_t i = 0; same && i < lines.size(); ++i)
    {
        same = SameLine(scene.Lines[i].Line, lines[i]) && scene.Lines[i].Line.YData == lines[i].YData;
    }
    return same ? QString() : QStringLiteral("lines");
}

static QString CursorDifference(const ChartCursors& cursors, const PlainCursors& plain)
{
    const bool same = cursors.A() == plain.A() && cursors.B() == plain.B() &&
                      cursors.IsPinnedA() == !plain.Pinned.empty() &&
                      cursors.IsPinnedB() == (plain.Pinned.size() == 2);
    return same ? QString()
                : QStringLiteral("cursors %1 %2, not %3 %4")
                      .arg(cursors.A())
                      .arg(cursors.B().value_or(NAN))
                      .arg(plain.A())
                      .arg(plain.B().value_or(NAN));
}

/// Each value in the table is the law's, and rows stand in the order that is asked for.
static QString TableDifference(const ViewScene& scene, const LineTable& table, const PlainView& plain)
{
    const double x = plain.Cursors.B().value_or(plain.Cursors.A());
    std::optional<double> before;
    for (int row = 0; row < table.rowCount(); ++row)
    {
        const int line = table.LineOf(row);
        const ViewedLine& viewed = scene.Lines[static_cast<std::size_t>(line)];
        const auto* const cell = table.Table().Find(static_cast<std::size_t>(line), CursorColumn::Value);
        const auto value = ValueAt(viewed.Part, viewed.Line, x, scene.Code);
        if (cell == nullptr || cell->Number != value)
        {
            return QStringLiteral("value of No.%1").arg(line + 1);
        }
        if (plain.Order == 0 && line != row)
        {
            return QStringLiteral("row %1").arg(row);
        }
        if (plain.Order != 0 && before && value && (plain.Order == 1 ? *before > *value : *before < *value))
        {
            return QStringLiteral("order");
        }
        before = value;
    }
    return table.rowCount() == static_cast<int>(scene.Lines.size()) ? QString() : QStringLiteral("rows");
}

QString DifferenceOf(const frmChartView& view, const PlainView& plain, const std::vector<ChartRecord>& lines)
{
    const ViewScene& scene = view.Scene();
    const QString told = LinesDifference(scene, lines) + CursorDifference(scene.Cursors, plain.Cursors);
    if (!told.isEmpty())
    {
        return told;
    }
    if (scene.Chosen != plain.Chosen)
    {
        return QStringLiteral("chosen line");
    }
    if (scene.View.Range != plain.Range)
    {
        const auto text = [](const AxisRange& range) {
            return QStringLiteral("%1 %2 %3 %4")
                .arg(range.XMin)
                .arg(range.XMax)
                .arg(range.YMin)
                .arg(range.YMax);
        };
        return QStringLiteral("range %1, not %2").arg(text(scene.View.Range), text(plain.Range));
    }
    if (scene.Marks.Dashed != plain.Dashed)
    {
        return QStringLiteral("dashes");
    }
    return TableDifference(scene, *view.findChild<LineTable*>(), plain);
}
