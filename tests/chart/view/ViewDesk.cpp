#include "tests/chart/view/ViewDesk.h"

#include "chart/frmGraph.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMdiArea>
#include <QTest>
#include <QWheelEvent>

/// Parts of 10 µF and 25 V that have data for every chart, largest differences first.
static constexpr std::array<const char*, MaximumLines> PartsOfLines = {
    "KTS21JB51E106MA01", "KTS31NB51E106MA01", "KTS32XR71E106KA01",
    "KTS32XB51E106MA01", "KTS32XF51E106ZA01", "KTS43XR71E106KA01",
};

ViewDesk::ViewDesk(Kind kindOfChart, int lines)
    : kind(kindOfChart)
{
    for (int row = 0; row < lines; ++row)
    {
        PlotLine(row);
    }
    Open();
}

void ViewDesk::PlotLine(int part)
{
    switch (kind)
    {
    case Kind::CapacitanceOverTemperature:
        desk.ClickChartType(2);
        break;
    case Kind::CapacitanceOverBias:
        desk.ClickChartType(3);
        break;
    case Kind::RiseOverCurrent:
        desk.ClickChartType(0);
        break;
    case Kind::RiseOverFrequency:
        desk.ClickChartType(0);
        desk.PickXAxis("Frequency");
        break;
    case Kind::AllowablePower:
        desk.ClickChartType(1);
    }
    desk.TypePart(NumberOnDisplay(PartsOfLines.at(static_cast<std::size_t>(part))));
    if (desk.Find<QLineEdit>("txtDCBiasVol")->isEnabled())
    {
        desk.Type("txtDCBiasVol", "12");
    }
    if (desk.Find<QLineEdit>("txtFrequency")->isEnabled())
    {
        desk.Type("txtFrequency", "300");
    }
    if (desk.Find<QLineEdit>("txtParameter")->isEnabled())
    {
        desk.Type("txtParameter", "1.5");
    }
    desk.ClickPlot();
}

void ViewDesk::Open()
{
    QApplication::setActiveWindow(desk.main.get());
    desk.Area()->setActiveSubWindow(Chart());
    QTest::keyClick(Chart(), Qt::Key_E, Qt::ControlModifier);
    Settle();
    if (qEnvironmentVariableIsSet("DESK_SMALL"))
    {
        View()->resize(View()->minimumSize());
    }
    QApplication::setActiveWindow(View());
    Settle();
}

frmChartView* ViewDesk::View() const
{
    for (QWidget* window : QApplication::topLevelWidgets())
    {
        auto* const view = qobject_cast<frmChartView*>(window);
        if (view != nullptr && view->isVisible())
        {
            return view;
        }
    }
    return nullptr;
}

void ViewDesk::Press(int key, Qt::KeyboardModifiers modifiers) const
{
    // Without a desktop, nothing brings the window back after a dialog.
    QApplication::setActiveWindow(View());
    QWidget* const focus = View()->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : View(), static_cast<Qt::Key>(key), modifiers);
}

void ViewDesk::TypeText(const QString& text) const
{
    for (const QChar letter : text)
    {
        QTest::keyClick(View()->focusWidget(), letter.toLatin1());
    }
}

QPoint ViewDesk::At(double x, double y) const
{
    const QRectF plot = Canvas()->Chart().Plot();
    return QPointF(plot.left() + plot.width() * x / 100, plot.bottom() - plot.height() * y / 100).toPoint();
}

void ViewDesk::MoveTo(const QPoint& place, Qt::MouseButtons pressed, Qt::KeyboardModifiers modifiers) const
{
    QMouseEvent move(QEvent::MouseMove, place, Canvas()->mapToGlobal(place), Qt::NoButton, pressed,
                     modifiers);
    QCoreApplication::sendEvent(Canvas(), &move);
}

void ViewDesk::Click(const QPoint& place) const
{
    MoveTo(place);
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, place);
}

void ViewDesk::Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers) const
{
    QTest::mousePress(Canvas(), Qt::LeftButton, modifiers, from);
    MoveTo((from + to) / 2, Qt::LeftButton, modifiers);
    MoveTo(to, Qt::LeftButton, modifiers);
    QTest::mouseRelease(Canvas(), Qt::LeftButton, modifiers, to);
}

void ViewDesk::Turn(const QPoint& place, int notches, Qt::KeyboardModifiers modifiers) const
{
    QWheelEvent wheel(place, Canvas()->mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Canvas(), &wheel);
}

void SendContextMenu(QWidget* widget, const QPoint& place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
}

QMenu* OpenMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QString PlainTextOf(const QAction* entry)
{
    return entry->text().section(u'\t', 0, 0).remove(u'&');
}

void Choose(QMenu* menu, const QString& text)
{
    for (QAction* entry : menu->actions())
    {
        if (PlainTextOf(entry) == text)
        {
            menu->close();
            entry->trigger();
            Settle();
            return;
        }
    }
    QFAIL(qPrintable("no entry " + text));
}
