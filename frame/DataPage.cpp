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
/// Between neighbouring texts, at least.
constexpr double textGap = 1;

/// Headings of Y end with their rule; that of the last column, the shortest, leaves this room, and all are
/// alike.
constexpr double headingRoom = 10;

/// Nine points, in twips.
constexpr int fontHeight = 180;
/// Width of the rules against the height of the font: half a point to nine.
constexpr double ruleWeight = 1 / 18.0;
/// Of the height of the font what the rows of the table need at least: digits, and white between them.
constexpr double leastPitch = 0.95;

/// Arial 9, on small paper as much smaller as the rows of the table need.
QFont PageFont(double unitHeight)
{
    const auto tallest = static_cast<int>(pointPitch * unitHeight / leastPitch);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(std::clamp(tallest, 1, fontHeight));
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
        , font(PageFont(unitHeight))
        , metrics(font, pagePainter.device())
        , baselineDrop(BaselineDrop())
    {
        painter.setFont(font);
        painter.setPen(QtColor(frameColor));
    }

    /// Writes a text that ends at `right`, which leaves it so much room, or before.
    void Write(double x, double y, double right, const QString& text)
    {
        const auto room = (right - x) * unitWidth;
        FittedText(text, room, metrics).Draw(painter, ToTwips(x, y) + QPointF(0, baselineDrop));
    }

    void Rule(double left, double right, double y)
    {
        const auto from = ToTwips(left, y);
        const auto to = ToTwips(right, y);
        const auto width = font.pixelSize() * ruleWeight;
        painter.fillRect(QRectF(from.x(), from.y() - width / 2, to.x() - from.x(), width),
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
    QFont font;
    QFontMetricsF metrics;
    double baselineDrop;
};

/// Where a text hangs, and where it ends at the latest.
struct Place
{
    double X;
    double Y;
    double Right;
};

QString Utf8(const std::string& text)
{
    return QString::fromStdString(text);
}

void DrawNames(const DataPage& page, DataSheet& sheet)
{
    const auto form = static_cast<std::size_t>(page.View);
    const auto type = ChartKindOf(page.Line.ChartType).Caption;
    sheet.Write(0, 105, pageRight, ProgramTitle() + "  " + page.Date);
    sheet.Write(0, 103, pageRight, "ChartType -> " + Utf8(std::string(type)));
    sheet.Write(0, 101, pageRight,
                "Halvex Part Num -> " + FromAnsi(page.Part.PartNum[form]) + '(' +
                    FromAnsi(page.Part.PartNum[form + 2]) + ')');
}

void DrawConditions(const std::vector<ConditionLine>& conditions, DataSheet& sheet)
{
    constexpr double secondLeft = 35;
    constexpr double firstRight = secondLeft - textGap;
    constexpr std::array<Place, 4> places = {
        {{0, 99, firstRight}, {secondLeft, 99, pageRight}, {0, 97, firstRight}, {secondLeft, 97, pageRight}}};
    for (std::size_t i = 0; i < conditions.size(); ++i)
    {
        const auto& condition = conditions[i];
        const auto& place = places.at(i);
        sheet.Write(place.X, place.Y, place.Right,
                    Utf8(condition.Name + " -> " + condition.Value + ' ' + condition.Unit));
    }
}

void DrawTableHeading(const DataPage& page, DataSheet& sheet)
{
    const auto xName = Utf8(page.Line.XAxisName);
    const auto yName = Utf8(page.Line.YAxisName);
    const auto xUnit = Utf8(GetUnit(page.Line.XAxisName, page.DegreeSign));
    const auto yUnit = Utf8(GetUnit(page.Line.YAxisName, page.DegreeSign));
    for (std::size_t column = 0; column < ruleEnds.size(); ++column)
    {
        const auto left = columnWidth * static_cast<double>(column);
        const auto yLeft = left + yOffset;
        sheet.Write(left, namesTop, yLeft - textGap, xName);
        sheet.Write(left, unitsTop, yLeft - textGap, xUnit);
        sheet.Write(yLeft, namesTop, yLeft + headingRoom, yName);
        sheet.Write(yLeft, unitsTop, yLeft + headingRoom, yUnit);
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
        const auto yLeft = left + yOffset;
        sheet.Write(left, top, yLeft - textGap, Utf8(DataXText(line, i)));
        sheet.Write(yLeft, top, std::min(left + columnWidth - textGap, pageRight), Utf8(DataYText(line, i)));
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
