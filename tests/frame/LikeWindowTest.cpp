/// Replacements of a found part, in the table of the window that finds parts.

#include "app/mdlPublic.h"
#include "find/KindsOfData.h"
#include "formkit/Texts.h"
#include "tests/frame/FindDesk.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QStatusBar>

#include <algorithm>

class LikeWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ShowsWhatMayStandForTheRow();
    void ComparesOverTypedRanges();
    void MarksTheNearestWhereNoneFits();
    void EscapeLeadsBack();
    void AnyEntryLeadsBack();
    void SelectAndPlotWorkOnTheRows();
    void SelectTakesThePlaceOfTheLeastRatio();
    void SortsAndCopiesTheRows();
    void StandsInTheMenuOfTheRows();
    void FollowsTheNaming();
    void RefusedEntryOffersNone();
    void TellsOfAPartWithoutCapacitanceData();
};

/// Ctrl+L on the row of this part alone.
static void ReplaceByKey(const FindDesk& desk, const char* part)
{
    desk.Enter("txtFindPartNum", NumberOnDisplay(part));
    QVERIFY(desk.Rows() == 1);
    desk.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.window));
    QTest::keyClick(desk.Control<QLineEdit>("txtFindPartNum"), Qt::Key_Down);
    QVERIFY(desk.Table()->hasFocus());
    QTest::keyClick(desk.Table(), Qt::Key_L, Qt::ControlModifier);
    Settle();
}

static void TypeRanges(const FindDesk& desk)
{
    desk.Enter("txtFindDCBiasVol", "10.8..13.2V");
    desk.Enter("txtFindAmbientTemp", "-10..65C");
}

void LikeWindowTest::ShowsWhatMayStandForTheRow()
{
    const FindDesk desk;
    ReplaceByKey(desk, "KTS188B51A475MA01");
    QCOMPARE(desk.Rows(), 3);
    const QString begin = "Like " + NumberOnDisplay("KTS188B51A475MA01") + ": 3 parts (Esc: back); 0..10 V, ";
    QVERIFY2(desk.Line().startsWith(begin), qPrintable(desk.Line()));
    QCOMPARE(desk.Column("Mark"), -1);
    if (IsJapaneseDesk())
    {
        return;
    }
    QVERIFY2(desk.Line().contains("-55..85 °C; left out: "), qPrintable(desk.Line()));
    int row = 0;
    while (row < 3 && desk.Cell(row, "Part number") != NumberOnDisplay("KTS188B51C475MA01"))
    {
        ++row;
    }
    QVERIFY(row < 3);
    QVERIFY2(desk.Cell(row, "Least [%]").startsWith("-1.7"), qPrintable(desk.Cell(row, "Least [%]")));
    QVERIFY2(desk.Cell(row, "Most [%]").startsWith("+3.3"), qPrintable(desk.Cell(row, "Most [%]")));
    QVERIFY2(std::abs(desk.Cell(row, "Loss [%]").toDouble()) <= 0.05, qPrintable(desk.Cell(row, "Loss [%]")));
    Grab(desk, "like");
}

void LikeWindowTest::ComparesOverTypedRanges()
{
    const FindDesk desk;
    TypeRanges(desk);
    ReplaceByKey(desk, "KTS32XR71E106KA01");
    QVERIFY2(desk.Line().contains(": 3 parts (Esc: back); 10.8..13.2 V, -10..65 °C"),
             qPrintable(desk.Line()));
    int row = 0;
    while (row < desk.Rows() && desk.Cell(row, "Part number") != NumberOnDisplay("KTS32XB51E226MA01"))
    {
        ++row;
    }
    QVERIFY(row < desk.Rows());
    QVERIFY2(std::abs(desk.Cell(row, "Least [%]").toDouble() - 60.4) <= 0.05,
             qPrintable(desk.Cell(row, "Least [%]")));
    QVERIFY2(std::abs(desk.Cell(row, "Most [%]").toDouble() - 80.4) <= 0.05,
             qPrintable(desk.Cell(row, "Most [%]")));
    QCOMPARE(desk.Cell(row, "At"), QString("13.2 V, 65 °C"));
    // One range alone is no box: the part's own holds.
    desk.Enter("txtFindAmbientTemp", "65");
    ReplaceByKey(desk, "KTS32XR71E106KA01");
    QVERIFY2(desk.Line().contains("(Esc: back); 0..25 V, -55..125 °C"), qPrintable(desk.Line()));
}

void LikeWindowTest::MarksTheNearestWhereNoneFits()
{
    const FindDesk desk;
    ReplaceByKey(desk, "KTS32XR71E106KA01");
    QVERIFY2(desk.Line().contains(": no part, the nearest are short (Esc: back); "), qPrintable(desk.Line()));
    QVERIFY(desk.Rows() >= 1 && desk.Rows() <= 3);
    QVERIFY2(desk.Cell(0, "Least [%]").startsWith("-32"), qPrintable(desk.Cell(0, "Least [%]")));
    for (int row = 0; row < desk.Rows(); ++row)
    {
        QCOMPARE(desk.Cell(row, "Mark"), QString("short"));
    }
    Grab(desk, "like-short");
}

void LikeWindowTest::EscapeLeadsBack()
{
    const FindDesk desk;
    TypeRanges(desk);
    desk.Enter("txtFindPartNum", "KTS32X");
    const int rows = desk.Rows();
    const QString line = desk.Line();
    auto* const heads = desk.Table()->horizontalHeader();
    heads->setSortIndicator(0, Qt::DescendingOrder);
    const int width = heads->sectionSize(0) + 30;
    heads->resizeSection(0, width);
    desk.ChooseRows(2, 2);
    const QStringList chosen = desk.ChosenParts();
    desk.Table()->setFocus();
    QTest::keyClick(desk.Table(), Qt::Key_L, Qt::ControlModifier);
    QVERIFY2(desk.Line().startsWith("Like " + chosen.front() + ": "), qPrintable(desk.Line()));
    QCOMPARE(heads->sortIndicatorSection(), -1);
    QVERIFY(desk.ChosenParts().empty());
    // Replacements of a replacement.
    QVERIFY(desk.Rows() > 0);
    const QString first = desk.Cell(0, "Part number");
    QTest::keyClick(desk.Table(), Qt::Key_L, Qt::ControlModifier);
    QVERIFY2(desk.Line().startsWith("Like " + first + ": "), qPrintable(desk.Line()));
    QTest::keyClick(desk.Table(), Qt::Key_Escape);
    QVERIFY(desk.window->isVisible());
    QCOMPARE(desk.Line(), line);
    QCOMPARE(desk.Rows(), rows);
    QCOMPARE(desk.ChosenParts(), chosen);
    QCOMPARE(heads->sortIndicatorSection(), 0);
    QCOMPARE(heads->sortIndicatorOrder(), Qt::DescendingOrder);
    QCOMPARE(heads->sectionSize(0), width);
    QVERIFY(!desk.Table()->isColumnHidden(desk.Column("Least")));
    QVERIFY(desk.Table()->isColumnHidden(desk.Column("Body [°C]")));
    QTest::keyClick(desk.Table(), Qt::Key_Escape);
    QVERIFY(!desk.window->isVisible());
}

void LikeWindowTest::AnyEntryLeadsBack()
{
    const FindDesk desk;
    ReplaceByKey(desk, "KTS188B51A475MA01");
    QTest::keyClick(desk.Control<QLineEdit>("txtFindMinCap"), Qt::Key_1);
    QVERIFY2(desk.Line().startsWith("1 part fits"), qPrintable(desk.Line()));
    QCOMPARE(desk.Rows(), 1);
    QCOMPARE(desk.ChosenParts(), QStringList(NumberOnDisplay("KTS188B51A475MA01")));
    // So does one that is refused; the answer before it is then greyed.
    QTest::keyClick(desk.Table(), Qt::Key_L, Qt::ControlModifier);
    QVERIFY(desk.Line().startsWith("Like "));
    QTest::keyClick(desk.Control<QLineEdit>("txtFindMinCap"), Qt::Key_X);
    QVERIFY(!desk.Line().startsWith("Like "));
    QCOMPARE(desk.Rows(), 1);
    QVERIFY(!desk.Control<QPushButton>("cmdFindPlot")->isEnabled());
}

void LikeWindowTest::SelectAndPlotWorkOnTheRows()
{
    FindDesk desk;
    ReplaceByKey(desk, "KTS188B51A475MA01");
    const QString second = desk.Cell(1, "Part number");
    desk.ChooseRows(1, 1);
    QTest::keyClick(desk.Table(), Qt::Key_Return);
    QVERIFY(desk.CanPlot());
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), second);
    desk.ChooseRows(0, 2);
    QTest::keyClick(desk.Table(), Qt::Key_Return, Qt::ControlModifier);
    Settle();
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.Lines().size(), std::size_t{3});
    QVERIFY(desk.Line().startsWith("Like "));
}

void LikeWindowTest::SelectTakesThePlaceOfTheLeastRatio()
{
    FindDesk desk;
    TypeRanges(desk);
    ReplaceByKey(desk, "KTS32XR71E106KA01");
    int row = 0;
    while (desk.Cell(row, "Part number") != NumberOnDisplay("KTS32XB51E226MA01"))
    {
        ++row;
    }
    desk.ChooseRows(row, row);
    QTest::keyClick(desk.Table(), Qt::Key_Return);
    const auto* const bar = desk.Find<QStatusBar>("sbrMain");
    QCOMPARE(bar->currentMessage(), QString("Conditions of the least ratio taken: 13.2 V, 65 °C"));
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("65"));
    desk.Pick("cmbFindChartType", "Temperature Rise Characteristics");
    QTest::keyClick(desk.Table(), Qt::Key_Return);
    QCOMPARE(bar->currentMessage(), QString("Conditions of the largest loss ratio taken: 20 °C, 10 kHz"));
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("20"));
    QCOMPARE(desk.Text("txtFrequency"), QString("10"));
}

void LikeWindowTest::SortsAndCopiesTheRows()
{
    const FindDesk desk;
    ReplaceByKey(desk, "KTS21JF51A106ZA01");
    QVERIFY(desk.Rows() > 3);
    const QString changesLeast = desk.Cell(0, "Part number");
    auto* const heads = desk.Table()->horizontalHeader();
    const int column = desk.Column("Least [%]");
    heads->setSortIndicator(column, Qt::DescendingOrder);
    const auto leastAt = [&](int row) { return desk.Cell(row, "Least [%]").toDouble(); };
    for (int row = 1; row < desk.Rows(); ++row)
    {
        QVERIFY(leastAt(row) <= leastAt(row - 1));
    }
    heads->setSortIndicator(-1, Qt::AscendingOrder);
    QCOMPARE(desk.Cell(0, "Part number"), changesLeast);
    desk.ChooseRows(0, 0);
    QTest::keyClick(desk.Table(), Qt::Key_C, Qt::ControlModifier);
    const auto lines = QGuiApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.at(0),
             QString("Part number\tSize\tTCC\tNominal [pF]\tRated [V]\tLeast [%]\tLeast at [V], [°C]\t"
                     "Most [%]\tMost at [V], [°C]\tLoss [%]\tLoss at [°C], [kHz]\tArea [mm²]"));
    const auto cells = lines.at(1).split('\t');
    QCOMPARE(cells.size(), 12);
    QCOMPARE(cells.at(0), changesLeast);
    QVERIFY(std::abs(cells.at(5).toDouble() - leastAt(0)) <= 0.006);
}

void LikeWindowTest::StandsInTheMenuOfTheRows()
{
    const FindDesk desk;
    desk.Enter("txtFindPartNum", NumberOnDisplay("KTS188B51A475MA01"));
    desk.ChooseRows(0, 0);
    Q_EMIT desk.Table()->customContextMenuRequested(QPoint(5, 5));
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    // By its access key.
    QTest::keyClick(menu, Qt::Key_R);
    Settle();
    QCOMPARE(desk.Rows(), 3);
    QVERIFY(desk.Line().startsWith("Like "));
}

void LikeWindowTest::FollowsTheNaming()
{
    const FindDesk desk;
    ReplaceByKey(desk, "KTS188B51A475MA01");
    const QString size = desk.Cell(0, "Size");
    desk.main->mnuViewCode_Click(IsJapaneseDesk() ? 0 : 1);
    Settle();
    QVERIFY2(desk.Line().startsWith("Like "), qPrintable(desk.Line()));
    QVERIFY(desk.Cell(0, "Size") != size);
    QTest::keyClick(desk.Table(), Qt::Key_Escape);
    QVERIFY(desk.Line().contains("fit"));
}

void LikeWindowTest::RefusedEntryOffersNone()
{
    const FindDesk desk;
    desk.Enter("txtFindDCBiasVol", "x");
    const QString line = desk.Line();
    QTest::keyClick(desk.Table(), Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(desk.Line(), line);
}

void LikeWindowTest::TellsOfAPartWithoutCapacitanceData()
{
    const FindDesk desk;
    const auto& parts = mdlPublic.Parts.PartData;
    const auto part = std::ranges::find_if(parts, [](const PartRecord& each)
                                           { return !HasCapacitanceData(each) && HasHeatingData(each); });
    QVERIFY(part != parts.end());
    const QString name = NumberOnDisplay(FromAnsi(part->PartNum[0]));
    desk.Enter("txtFindFrequency", "100");
    ReplaceByKey(desk, name.toUtf8().constData());
    QCOMPARE(desk.Line(), name + ": has no capacitance data");
    // The answer stays as it is.
    QCOMPARE(desk.Rows(), 1);
    QTest::keyClick(desk.Table(), Qt::Key_Escape);
    QVERIFY(!desk.window->isVisible());
}

QTEST_MAIN(LikeWindowTest)
#include "LikeWindowTest.moc"
