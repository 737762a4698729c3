/// What the random user does on one chart: its ranges, the pointer over it, its picture.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/randomuser/PlainNumbers.h"
#include "tests/frame/randomuser/User.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QTest>

#include <array>
#include <cmath>

static const std::array<const char*, 4> RangeBoxes = {"txtX_0", "txtX_1", "txtY_0", "txtY_1"};
static const QString Degree = QStringLiteral("\u00B0");

/// Any line of a chart: type and axes are the same for all.
ChartRecord User::LineOf(const QString& caption) const
{
    for (const PlainLine& line : charts.Lines)
    {
        if (CaptionOf(line.Asked) == caption)
        {
            return line.Asked;
        }
    }
    return {};
}

// ---- Ranges ----

static float Factor(const std::string& quantity)
{
    return quantity == "Frequency" ? 1000.0F : 1.0F;
}

/// The four entries as the dialog must show them: from and to of X, from and to of Y.
static QStringList EntriesOf(const AxisRange& range, const ChartRecord& line)
{
    const float x = Factor(line.XAxisName);
    const float y = Factor(line.YAxisName);
    return {PlainText(range.XMin / x), PlainText(range.XMax / x), PlainText(range.YMin / y),
            PlainText(range.YMax / y)};
}

/// The message about the four entries and the box that gets the focus, or nothing.
static std::optional<std::pair<QString, int>> RefusalOf(const QStringList& entries, const ChartRecord& line,
                                                        const AxisRange& defaults)
{
    for (int i = 0; i < 4; ++i)
    {
        if (!PlainEntry(entries[i]))
        {
            return std::pair(QString("A Non-numerical value exits where numerical value should be in."), i);
        }
    }
    for (int axis = 0; axis < 2; ++axis)
    {
        const auto [lowest, highest] =
            axis == 0 ? PlainPermittedX(line, defaults) : PlainPermittedY(line, defaults);
        const std::string& quantity = axis == 0 ? line.XAxisName : line.YAxisName;
        const float from = *PlainEntry(entries[2 * axis]);
        const float to = *PlainEntry(entries[2 * axis + 1]);
        const bool fromIsRight = from >= lowest && from <= highest;
        if (!fromIsRight || !(to >= lowest && to <= highest) || !(from < to))
        {
            const QString message = QString("Set ") + (axis == 0 ? "X" : "Y") + " Range of " +
                                    QString::fromStdString(quantity) + " from " + PlainText(lowest) + " to " +
                                    PlainText(highest) + " " + PlainUnit(quantity, "");
            return std::pair(message, 2 * axis + (fromIsRight ? 1 : 0));
        }
    }
    return std::nullopt;
}

/// Opens the dialog of a chart, types into some of its boxes, and ends it by OK or Cancel.
QString User::SetRange()
{
    PlainWindow* window = AnyWindow();
    if (window == nullptr || window->Minimised)
    {
        return "none";
    }
    frmGraph* chart = Shown(*window);
    hands->ClickTitle(chart);
    const ChartRecord line = LineOf(window->Caption);
    const AxisRange defaults = Defaults(window->Caption);
    QStringList entries = EntriesOf(window->Range, line);
    const QStringList shown = entries;
    const auto permittedX = PlainPermittedX(line, defaults);
    const auto permittedY = PlainPermittedY(line, defaults);
    const QStringList wrong = {"", "x", "1,5", "1E39", "-1E39", "nan", "--", "1E9", "-1E9"};
    for (int i = 0; i < 4; ++i)
    {
        const auto& [lowest, highest] = i < 2 ? permittedX : permittedY;
        if (Chance(60))
        {
            // Any of 20 steps through the permitted range, the first ones for the lower end.
            const int step = Lot(11) + (i % 2) * 10;
            entries[i] = PlainText(lowest + (highest - lowest) * static_cast<float>(step) / 20);
        }
        if (Chance(6))
        {
            entries[i] = AnyOf(wrong);
        }
    }
    const bool ok = Chance(85);
    const auto refusal = RefusalOf(entries, line, defaults);
    const bool opened = hands->InDialog(
        "frmSetAxis", [&] { hands->Choose("mnuChartExpand"); },
        [&](QDialog& dialog)
        {
            for (int i = 0; i < 4; ++i)
            {
                auto* box = dialog.findChild<QLineEdit*>(RangeBoxes[static_cast<std::size_t>(i)]);
                found.Same("an entry of the range dialog", box->text(), shown[i]);
                QTest::mouseClick(box, Qt::LeftButton);
                if (entries[i] != shown[i])
                {
                    hands->Replace(box, entries[i], Chance(50));
                }
            }
            auto* button = dialog.findChild<QPushButton*>(ok ? "cmdOK" : "cmdCancel");
            QTest::mouseClick(button, Qt::LeftButton);
            found.Same("the range dialog is open", dialog.isVisible(), ok && refusal);
            if (ok && refusal)
            {
                QApplication::setActiveWindow(&dialog);
                found.Same("the focus in the range dialog", dialog.focusWidget()->objectName(),
                           QString(RangeBoxes[static_cast<std::size_t>(refusal->second)]));
            }
        });
    found.Check(opened, "the range dialog does not open");
    Expect(ok && refusal ? QStringList{Exclamation(refusal->first)} : QStringList());
    if (ok && !refusal)
    {
        const auto value = [&](int i)
        { return *PlainEntry(entries[i]) * Factor(i < 2 ? line.XAxisName : line.YAxisName); };
        window->Range = {.XMax = value(1), .YMax = value(3), .XMin = value(0), .YMin = value(2)};
        // The window keeps its height on the screen, not its distance from the left.
        window->Left = ChartLeft;
    }
    return window->Caption + ": " + entries.join(' ') + (ok ? "" : ", cancelled");
}

// ---- Read-out ----

/// The value at a place of an axis, 0 to 100.
static double ValueAt(bool logarithmic, float from, float to, double place)
{
    return logarithmic ? std::pow(10.0, std::log10(double{from}) +
                                            place / 100 * (std::log10(double{to}) - std::log10(double{from})))
                       : from + place / 100 * (double{to} - from);
}

/// True when a text is a name, a number close to a value, and a unit.
static bool Reads(const QString& text, const QString& name, double value, const QString& unit)
{
    bool isNumber = false;
    const QString number = text.mid(name.size(), text.size() - name.size() - unit.size());
    const double read = number.toDouble(&isNumber);
    return text.startsWith(name) && text.endsWith(unit) && isNumber &&
           std::abs(read - value) <= 0.00051 + 1e-5 * std::abs(value);
}

static double Kilo(const std::string& quantity, double value)
{
    return quantity == "Frequency" ? value / 1000 : value;
}

/// Moves the pointer over a chart and away again.
QString User::Point()
{
    PlainWindow* window = AnyWindow();
    if (window == nullptr || window->Minimised)
    {
        return "none";
    }
    frmGraph* chart = Shown(*window);
    const ChartRecord line = LineOf(window->Caption);
    // 21 of 126 units lie left of the plot area, 7 of 122 above it; the picture is 5600 by 3650 twips.
    const QPointF at(Lot(373), Lot(243));
    const double x = at.x() * 126 * 15 / 5600 - 21;
    const double y = 107 - at.y() * 122 * 15 / 3650;
    auto* picture = chart->findChild<QWidget*>("picGraph");
    MoveMouse(picture, at.toPoint());
    const bool inside = x >= 0 && x <= 100 && y >= 0 && y <= 100;
    const QString xShown = chart->findChild<QLabel*>("sbr1_1")->text();
    const QString yShown = chart->findChild<QLabel*>("sbr1_2")->text();
    if (inside)
    {
        const bool xLog = line.ChartType == 1 || line.XAxisName == "Frequency";
        const bool yLog = line.ChartType == 1;
        const double xValue = ValueAt(xLog, window->Range.XMin, window->Range.XMax, x);
        const double yValue = ValueAt(yLog, window->Range.YMin, window->Range.YMax, y);
        found.Check(Reads(xShown, QString::fromStdString(line.XAxisName) + " ", Kilo(line.XAxisName, xValue),
                          PlainUnit(line.XAxisName, Degree)),
                    "the pointer reads " + xShown + " at " + QString::number(xValue));
        // A range that a line of zeros leaves empty has one value throughout.
        found.Check(Reads(yShown, QString::fromStdString(line.YAxisName) + " ", yValue,
                          PlainUnit(line.YAxisName, Degree)),
                    "the pointer reads " + yShown + " at " + QString::number(yValue));
    }
    else
    {
        found.Same("the read-out beside the plot", xShown + yShown, QString());
    }
    if (Chance(30))
    {
        hands->ClickTitleButton(chart, QStyle::SC_TitleBarMinButton);
        window->Minimised = true;
    }
    else
    {
        Chance(50) ? MoveMouse(picture, QPoint(2, 2))
                   : static_cast<void>(
                         [&]
                         {
                             QEvent leave(QEvent::Leave);
                             QCoreApplication::sendEvent(picture, &leave);
                         }());
    }
    return QStringLiteral("%1 %2").arg(x).arg(y);
}

// ---- The picture ----

QString User::Copy()
{
    if (!ChartIsActive())
    {
        return "no chart is active";
    }
    QGuiApplication::clipboard()->clear();
    hands->Choose("mnuChartClipboard");
    found.Same("the size of the copied picture", QGuiApplication::clipboard()->image().size(),
               QSize(1462, 584));
    QGuiApplication::clipboard()->clear();
    return {};
}
