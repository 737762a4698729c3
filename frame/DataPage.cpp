#include "frame/DataPage.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "calc/DataFile.h"
#include "chart/drawing/FittedText.h"
#include "chart/drawing/QtColors.h"
#include "formkit/Messages.h"
#include "formkit/Texts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{

constexpr double pageLeft = -5;
constexpr double pageRight = 95;
constexpr double pageTop = 110;
constexpr double pageWidth = 100;
constexpr double pageHeight = 115;

constexpr double namesTop = 95;
constexpr double unitsTop = 93.5;
constexpr double pointsTop = 92;
constexpr double pointPitch = 1.3;
constexpr double columnWidth = 32;
constexpr double yOffset = 16;
constexpr std::size_t pointsPerColumn = 67;
constexpr std::array<double, 3> ruleEnds = {30, 62, 90};

/// Nine points, and half a point, in twips.
constexpr int fontHeight = 180;
constexpr double ruleWidth = 10;

QFont PageFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(fontHeight);
    return font;
}

/// The page in its own units, y upwards.
class DataSheet
{
public:
    DataSheet(QPainter& pagePainter, const QSizeF& extent)
        : painter(pagePainter)
        , unitWidth(extent.width() / pageWidth)
        , unitHeight(extent.height() / pageHeight)
        , metrics(PageFont(), pagePainter.device())
        , baselineDrop(BaselineDrop())
    {
        painter.setFont(PageFont());
        painter.setPen(QtColor(frameColor));
    }

    void Write(double x, double y, const QString& text)
    {
        const auto room = (pageRight - x) * unitWidth;
        FittedText(text, room, metrics).Draw(painter, ToTwips(x, y) + QPointF(0, baselineDrop));
    }

    void Rule(double left, double right, double y)
    {
        const auto from = ToTwips(left, y);
        const auto to = ToTwips(right, y);
        painter.fillRect(QRectF(from.x(), from.y() - ruleWidth / 2, to.x() - from.x(), ruleWidth),
                         QtColor(frameColor));
    }

private:
    QPointF ToTwips(double x, double y) const
    {
        return {(x - pageLeft) * unitWidth, (pageTop - y) * unitHeight};
    }

    /// How far below its position the baseline of a text is: so far that a rule at the height of the units
    /// stands in the middle of what is free between the names above it and the units below it.
    double BaselineDrop() const
    {
        const auto below = metrics.tightBoundingRect(QStringLiteral("gpqy")).bottom();
        const auto above = -metrics.tightBoundingRect(QStringLiteral("[W]")).top();
        return ((namesTop - unitsTop) * unitHeight - below + above) / 2;
    }

    QPainter& painter;
    double unitWidth;
    double unitHeight;
    QFontMetricsF metrics;
    double baselineDrop;
};

QString Utf8(const std::string& text)
{
    return QString::fromStdString(text);
}

void DrawNames(const DataPage& page, DataSheet& sheet)
{
    const auto form = static_cast<std::size_t>(page.View);
    const auto type = ChartKindOf(page.Line.ChartType).Caption;
    sheet.Write(0, 105, ProgramTitle() + "  " + page.Date);
    sheet.Write(0, 103, "ChartType -> " + Utf8(std::string(type)));
    sheet.Write(0, 101,
                "Halvex Part Num -> " + FromAnsi(page.Part.PartNum[form]) + '(' +
                    FromAnsi(page.Part.PartNum[form + 2]) + ')');
}

void DrawConditions(const std::vector<ConditionLine>& conditions, DataSheet& sheet)
{
    constexpr std::array<std::pair<double, double>, 4> places = {{{0, 99}, {35, 99}, {0, 97}, {35, 97}}};
    for (std::size_t i = 0; i < conditions.size(); ++i)
    {
        const auto& condition = conditions[i];
        const auto [x, y] = places.at(i);
        sheet.Write(x, y, Utf8(condition.Name + " -> " + condition.Value + ' ' + condition.Unit));
    }
}

void DrawTableHeading(const DataPage& page, DataSheet& sheet)
{
    const auto xName = Utf8(page.Line.XAxisName);
    const auto yName = Utf8(page.Line.YAxisName);
    for (std::size_t column = 0; column < ruleEnds.size(); ++column)
    {
        const auto left = columnWidth * static_cast<double>(column);
        sheet.Write(left, namesTop, xName);
        sheet.Write(left, unitsTop, Utf8(GetUnit(page.Line.XAxisName, page.DegreeSign)));
        sheet.Write(left + yOffset, namesTop, yName);
        sheet.Write(left + yOffset, unitsTop, Utf8(GetUnit(page.Line.YAxisName, page.DegreeSign)));
        sheet.Rule(left, ruleEnds[column], unitsTop);
    }
}

void DrawPoints(const ChartRecord& line, DataSheet& sheet)
{
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const auto column = i / pointsPerColumn;
        const auto left = columnWidth * static_cast<double>(column);
        const auto top = pointsTop - pointPitch * static_cast<double>(i - pointsPerColumn * column);
        sheet.Write(left, top, Utf8(DataXText(line, i)));
        sheet.Write(left + yOffset, top, Utf8(DataYText(line, i)));
    }
}

/// Title, date, chart type, part number and conditions.
void PrintDataHeader(const DataPage& page, const std::vector<ConditionLine>& conditions, DataSheet& sheet)
{
    DrawNames(page, sheet);
    DrawConditions(conditions, sheet);
}

/// The 200 points under their headings and rules.
void PrintDataTable(const DataPage& page, DataSheet& sheet)
{
    DrawTableHeading(page, sheet);
    DrawPoints(page.Line, sheet);
}

} // namespace

void DrawDataPage(const DataPage& page, const PageArea& area, QPainter& painter)
{
    const auto conditions = ConditionLines(page.Line);
    const TwipsScope twips(painter, area);
    DataSheet sheet(painter, twips.Extent());
    PrintDataHeader(page, conditions, sheet);
    PrintDataTable(page, sheet);
}
