#include "tests/chart/forms/AxisDialog.h"

#include "chart/frmGraph.h"

#include <QApplication>
#include <QTest>

void InDialog(Desk& desk, const std::function<void(QDialog&)>& act)
{
    bool shown = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look,
                     [&]
                     {
                         auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                         if (dialog != nullptr && dialog->objectName() == "frmSetAxis")
                         {
                             look.stop();
                             shown = true;
                             QApplication::setActiveWindow(dialog);
                             act(*dialog);
                             if (dialog->isVisible())
                             {
                                 QTest::keyClick(dialog, Qt::Key_Escape);
                             }
                         }
                     });
    look.start(1);
    desk.Choose("mnuChartExpand");
    QVERIFY(shown);
}

QLineEdit* Box(const QDialog& dialog, const QString& name)
{
    return dialog.findChild<QLineEdit*>(name);
}

QStringList Boxes(const QDialog& dialog)
{
    QStringList texts;
    for (const char* name : {"txtX_0", "txtX_1", "txtY_0", "txtY_1"})
    {
        texts << Box(dialog, name)->text();
    }
    return texts;
}

/// Types into the box that has the focus.
static void Type(const QDialog& dialog, const QString& text)
{
    QTest::keyClicks(dialog.focusWidget(), text);
}

void Fill(QDialog& dialog, const QStringList& texts)
{
    Box(dialog, "txtX_0")->setFocus();
    for (const QString& text : texts)
    {
        dialog.focusWidget()->setFocus();
        qobject_cast<QLineEdit*>(dialog.focusWidget())->selectAll();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Delete);
        Type(dialog, text);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
}

void Enter(QDialog& dialog)
{
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

std::array<float, 4> RangeOf(const frmGraph* chart)
{
    const AxisRange& range = chart->Range();
    return {range.XMax, range.YMax, range.XMin, range.YMin};
}

frmGraph* PlotKind(Desk& desk, int type, const QString& x, const QString& y)
{
    desk.ClickChartType(type);
    desk.PickXAxis(x);
    desk.PickYAxis(y);
    desk.TypePart(ListedPart(desk, 0));
    if (type != 3)
    {
        desk.Type("txtDCBiasVol", "0");
    }
    if (type == 0 || type == 1)
    {
        desk.Type("txtAmbientTemp", "25");
    }
    if (type == 0)
    {
        desk.Type(x == "Frequency" ? "txtParameter" : "txtFrequency", x == "Frequency" ? "0.001" : "100");
    }
    desk.ClickPlot();
    return desk.Charts().size() == 1 ? desk.Charts().front() : nullptr;
}

frmGraph* PlotCapacitance(Desk& desk)
{
    return PlotKind(desk, 2, "Temperature", "Capacitance Change");
}
