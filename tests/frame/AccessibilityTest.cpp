/// What assistive technology is told of the windows, and what can be seen in palettes of strong contrast.

#include "app/mdlPublic.h"
#include "chart/ChartPicture.h"
#include "chart/frmGraph.h"
#include "formkit/EdgedStyle.h"
#include "formkit/Edges.h"
#include "tests/frame/FindDesk.h"

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QStyleFactory>
#include <QTest>

#include <array>

class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ChartTellsItsNameAndAxes();
    void ChartTellsItsLinesWithTheirValues();
    void ChartTellsTheRangeInForce();
    void ParameterTellsQuantityAndUnit();
    void StatusBarsAndEditHaveNames();
    void EmptyListsAreTold();
    void EmptyListsLookEmpty();
    void EmptyListShowsItsFocus();
    void EdgesAreSeen_data();
    void EdgesAreSeen();
    void EdgesOfTheSearchAreSeen_data();
    void EdgesOfTheSearchAreSeen();
    void UsualPalettesLookAsEver();
};

void AccessibilityTest::init()
{
    QApplication::setStyle(new EdgedStyle(QStyleFactory::create("Fusion")));
}

void AccessibilityTest::cleanup()
{
    QApplication::setPalette(QPalette());
}

static QString Told(QWidget* widget, QAccessible::Text kind)
{
    return QAccessible::queryAccessibleInterface(widget)->text(kind);
}

// ---- The chart ----

static ChartPicture* Picture(const Desk& desk)
{
    return desk.Charts().front()->findChild<ChartPicture*>("picGraph");
}

void AccessibilityTest::ChartTellsItsNameAndAxes()
{
    Desk desk;
    desk.PlotCapacitance("KTS31NB51E106MA01", "12");
    QCOMPARE(QAccessible::queryAccessibleInterface(Picture(desk))->role(), QAccessible::Chart);
    QCOMPARE(Told(Picture(desk), QAccessible::Name), desk.Charts().front()->windowTitle());
    const QString first = Told(Picture(desk), QAccessible::Description).split('\n').front();
    QVERIFY2(first.startsWith("X axis: Temperature -75["), qPrintable(first));
    QVERIFY2(first.contains("] to Temperature 100["), qPrintable(first));
    QVERIFY2(first.contains(". Y axis: Capacitance "), qPrintable(first));
}

void AccessibilityTest::ChartTellsItsLinesWithTheirValues()
{
    Desk desk;
    desk.PlotCapacitance("KTS31NB51E106MA01", "12");
    desk.PlotCapacitance("KTS21JB51E106MA01", "12");
    const QStringList told = Told(Picture(desk), QAccessible::Description).split('\n');
    QCOMPARE(told.size(), 3);
    QVERIFY2(told[1].startsWith("No.1: KTS31NB51E106MA01 (12[V]"), qPrintable(told[1]));
    QVERIFY2(told[2].startsWith("No.2: KTS21JB51E106MA01 (12[V]"), qPrintable(told[2]));

    // In the middle of the axis the values are those that the pointer reads out there: the plot area reaches
    // from 1/6 to 121/126 of the picture.
    auto* picture = Picture(desk);
    const QPoint middle(qRound(picture->width() * 71.0 / 126.0), picture->height() / 2);
    MoveMouse(picture, middle);
    for (const int line : {0, 1})
    {
        const auto* pane = desk.Charts().front()->findChild<QLabel*>(QStringLiteral("lblPara_%1").arg(line));
        QVERIFY(pane->text().contains("["));
        const double read = pane->text().section('[', 0, 0).toDouble();
        const double spoken =
            told[line + 1].section("Temperature 12.5[", 1).section(": ", 1).section('[', 0, 0).toDouble();
        QVERIFY2(read > 0 && qAbs(spoken - read) < 0.01 * read,
                 qPrintable(told[line + 1] + " " + pane->text()));
    }
}

void AccessibilityTest::ChartTellsTheRangeInForce()
{
    Desk desk;
    desk.PlotCapacitance("KTS31NB51E106MA01", "12");
    desk.Charts().front()->WriteMagnification(50, 8000000, 10, 2000000);
    const QString told = Told(Picture(desk), QAccessible::Description);
    QVERIFY2(told.contains("Temperature 10[") && told.contains("to Temperature 50["), qPrintable(told));
    QVERIFY(told.contains("Capacitance 2000000["));
    QVERIFY(told.contains("Temperature 20["));
}

// ---- The form ----

void AccessibilityTest::ParameterTellsQuantityAndUnit()
{
    Desk desk;
    auto* box = desk.Find<QLineEdit>("txtParameter");
    QCOMPARE(Told(box, QAccessible::Name), QString("Parameter: Current in Arms"));
    desk.PickXAxis("Frequency");
    desk.TypePart(ListedPart(desk, 0));
    const std::array<const char*, 4> names = {"Parameter: Current in Arms", "Parameter: Voltage in Vrms",
                                              "Parameter: Effective Power in W",
                                              "Parameter: Apparent Power in VA"};
    for (const int index : {3, 2, 1, 0})
    {
        desk.ClickParameter(index);
        QCOMPARE(Told(box, QAccessible::Name), QString(names.at(static_cast<std::size_t>(index))));
    }
}

void AccessibilityTest::StatusBarsAndEditHaveNames()
{
    Desk desk;
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QCOMPARE(Told(desk.Find<QStatusBar>("sbrMain"), QAccessible::Name), QString("Status"));
    QCOMPARE(Told(desk.Charts().front()->findChild<QStatusBar*>("sbr1"), QAccessible::Name),
             QString("Values at the pointer"));
    QCOMPARE(Told(desk.Find<QComboBox>("cmbPartNum")->lineEdit(), QAccessible::Name), QString("Part Number"));
}

// ---- Empty lists ----

void AccessibilityTest::EmptyListsAreTold()
{
    Desk desk;
    auto* lower = desk.Find<QComboBox>("cmbTcc");
    QCOMPARE(Told(lower, QAccessible::Description), QString("Empty"));
    auto* upper = desk.Find<QComboBox>("cmbSizeCode");
    QCOMPARE(Told(upper, QAccessible::Description), upper->toolTip());
    upper->setFocus();
    QTest::keyClick(upper, Qt::Key_Down);
    QCOMPARE(Told(lower, QAccessible::Description), lower->toolTip());
    auto* parts = desk.Find<QComboBox>("cmbPartNum");
    QCOMPARE(Told(parts, QAccessible::Description), parts->toolTip());
    desk.Find<frmLibrary>("frmLibrary")->AllClear();
    QCOMPARE(Told(parts, QAccessible::Description), QString("Empty"));
}

void AccessibilityTest::EmptyListsLookEmpty()
{
    Desk desk;
    auto* lower = desk.Find<QComboBox>("cmbTcc");
    auto* upper = desk.Find<QComboBox>("cmbSizeCode");
    QCOMPARE(lower->size(), upper->size());
    const QImage empty = lower->grab().toImage();
    QVERIFY(empty != upper->grab().toImage());
    lower->setEnabled(false);
    QCOMPARE(lower->grab().toImage(), empty);
    lower->setEnabled(true);
    upper->setFocus();
    QTest::keyClick(upper, Qt::Key_Down);
    desk.Find<QLineEdit>("txtDCBiasVol")->setFocus();
    QVERIFY(lower->count() > 0);
    QVERIFY(lower->grab().toImage() != empty);
}

void AccessibilityTest::EmptyListShowsItsFocus()
{
    Desk desk;
    auto* lower = desk.Find<QComboBox>("cmbTcc");
    const QImage before = lower->grab().toImage();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::AltModifier);
    QVERIFY(lower->hasFocus());
    QVERIFY(lower->grab().toImage() != before);
}

// ---- Edges ----

void AccessibilityTest::EdgesAreSeen_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<double>("contrast");
    QTest::newRow("white on black") << PaletteOf(Qt::black, Qt::white) << 3.0;
    QTest::newRow("yellow on black") << PaletteOf(Qt::black, Qt::yellow) << 3.0;
    QTest::newRow("green on black") << PaletteOf(Qt::black, Qt::green) << 3.0;
    QTest::newRow("black on white") << PaletteOf(Qt::white, Qt::black) << 3.0;
    QTest::newRow("dark") << PaletteOf(QColor(53, 53, 53), Qt::white) << 3.0;
}

/// The strongest contrast to the window's ground along a row of pixels that crosses the left edge of a box.
static double EdgeContrast(QWidget* box, int row)
{
    const QImage picture = box->grab().toImage();
    const QColor ground = box->palette().color(QPalette::Active, QPalette::Window);
    double strongest = 1;
    for (int x = 0; x < 2; ++x)
    {
        strongest = std::max(strongest, ContrastOf(ground, picture.pixelColor(x, row)));
    }
    return strongest;
}

void AccessibilityTest::EdgesAreSeen()
{
    QFETCH(QPalette, palette);
    QFETCH(double, contrast);
    QApplication::setPalette(palette);
    Desk desk;
    desk.PickXAxis("Frequency");
    desk.TypePart(ListedPart(desk, 0));
    desk.Find<QWidget>("optChartType_0")->setFocus();
    for (const char* name : {"cmbSizeCode", "cmbXaxis", "cmbPartNum", "txtDCBiasVol", "txtParameter",
                             "cmdPlot", "optChartType_1", "optParameter_2", "fraSelection"})
    {
        auto* box = desk.Find<QWidget>(name);
        const double seen = EdgeContrast(box, box->height() / 2);
        QVERIFY2(seen >= contrast, qPrintable(QStringLiteral("%1 %2").arg(name).arg(seen)));
    }
}

void AccessibilityTest::EdgesOfTheSearchAreSeen_data()
{
    EdgesAreSeen_data();
    QTest::newRow("usual") << QStyleFactory::create("Fusion")->standardPalette() << 1.5;
}

void AccessibilityTest::EdgesOfTheSearchAreSeen()
{
    QFETCH(QPalette, palette);
    QFETCH(double, contrast);
    QApplication::setPalette(palette);
    const FindDesk desk;
    for (const char* name : {"txtFindCap", "cmbFindMaxSize", "cmbFindRatedVol", "chkFindParallel", "tblFound",
                             "cmbFindChartType", "cmdFindSelect"})
    {
        auto* box = desk.Control<QWidget>(name);
        const double seen = EdgeContrast(box, box->height() / 2);
        QVERIFY2(seen >= contrast, qPrintable(QStringLiteral("%1 %2").arg(name).arg(seen)));
    }
    desk.Enter("txtFindCap", "many");
    auto* const refused = desk.Control<QLineEdit>("txtFindCap");
    const double seen = EdgeContrast(refused, refused->height() / 2);
    QVERIFY2(seen >= 3, qPrintable(QStringLiteral("refused %1").arg(seen)));
}

void AccessibilityTest::UsualPalettesLookAsEver()
{
    QVERIFY(!NeedsStrongEdges(QStyleFactory::create("Fusion")->standardPalette()));
    Desk desk;
    desk.TypePart(ListedPart(desk, 0));
    auto* contents = desk.Find<QWidget>("frmLibraryContents");
    const QImage edged = contents->grab().toImage();
    QApplication::setStyle("Fusion");
    Settle();
    QCOMPARE(contents->grab().toImage(), edged);
}

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
