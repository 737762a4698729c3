/// The window that finds parts: its answers, and its place beside the main window.

#include "chart/frmGraph.h"
#include "tests/frame/FindDesk.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QScreen>
#include <QSignalSpy>

class FindWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpensFromTheCornerButton();
    void OpensByKeyOnceFromFormAndChart();
    void CornerButtonTakesNoFocus();
    void StartsAsItIsAskedNothing();
    void AnswersWhileTyping();
    void ANewAnswerIsPaintedOnce();
    void TellsTheWorstOfRanges();
    void EmptyAnswerTellsTheReasons();
    void HeadingsSortUpDownAndBack();
    void ChosenPartsStayChosen();
    void CodeSwitchRelabels();
    void NumberSwitchRelabels();
    void EntriesScrollBeforeTheTableVanishes();
    void StaysOutsideTheForms();
    void ClosesWithTheMainWindow();
};

// ---- The window ----

void FindWindowTest::OpensFromTheCornerButton()
{
    const FindDesk desk;
    QVERIFY(desk.window != nullptr);
    QVERIFY(desk.window->isVisible());
    QVERIFY(desk.window->isWindow());
    QCOMPARE(desk.window->windowTitle(), QString("Find Parts"));
    QCOMPARE(desk.main->OpenForms(), 2);
    QCOMPARE(desk.Find<QMenuBar>("mnuBar")->cornerWidget()->objectName(), QString("cmdFind"));
}

void FindWindowTest::OpensByKeyOnceFromFormAndChart()
{
    Desk desk;
    QVERIFY(FindDesk::WindowOf() == nullptr);
    desk.main->activateWindow();
    QTest::keyClick(desk.main.get(), Qt::Key_F, Qt::ControlModifier);
    frmFind* const window = FindDesk::WindowOf();
    QVERIFY(window != nullptr);
    window->close();
    desk.PlotCapacitance("KTS31NB51C226MA01", "12");
    QCOMPARE(desk.MenuTitles().size(), 5);
    QVERIFY(desk.Find<QToolButton>("cmdFind")->isVisible());
    QApplication::setActiveWindow(desk.main.get());
    QTest::keyClick(desk.Charts().front(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(window->isVisible());
    QCOMPARE(FindDesk::WindowOf(), window);
}

void FindWindowTest::CornerButtonTakesNoFocus()
{
    const Desk desk;
    QCOMPARE(desk.Find<QToolButton>("cmdFind")->focusPolicy(), Qt::NoFocus);
    QVERIFY(!desk.Find<QMenuBar>("mnuBar")->isNativeMenuBar());
}

void FindWindowTest::StartsAsItIsAskedNothing()
{
    const FindDesk desk;
    QCOMPARE(desk.Control<QLineEdit>("txtFindDCBiasVol")->text(), QString("0"));
    QCOMPARE(desk.Control<QLineEdit>("txtFindAmbientTemp")->text(),
             IsJapaneseDesk() ? QString("20") : QString("25"));
    QCOMPARE(desk.Control<QComboBox>("cmbFindChartType")->currentText(),
             QString("Capacitance-DC Voltage Characteristics"));
    // Without a frequency a part needs data of capacitance.
    QCOMPARE(desk.Line(), QString("1126 parts fit; left out: 53 no capacitance data"));
    QCOMPARE(desk.Rows(), 1126);
    QVERIFY(desk.Table()->isColumnHidden(desk.Column("No.")));
    QVERIFY(desk.Table()->isColumnHidden(desk.Column("Allowed [Arms]")));
    QVERIFY(!desk.Table()->isColumnHidden(desk.Column("Effective")));
}

// ---- The answer ----

void FindWindowTest::AnswersWhileTyping()
{
    const FindDesk desk;
    desk.AskForABank();
    Grab(desk, "bank");
    // As the command line answers: one large part, then four of 10 µF on little more board.
    QCOMPARE(desk.Cell(0, "Part number"), NumberOnDisplay("KTS32XR71C226KA01"));
    QCOMPARE(desk.Cell(0, "Effective"), QString("10.46 µF"));
    QCOMPARE(desk.Cell(0, "Nominal"), QString("22 µF"));
    QCOMPARE(desk.Cell(0, "No."), QString("1"));
    QCOMPARE(desk.Cell(0, "Area [mm²]"), QString("8"));
    QVERIFY(!desk.Table()->isColumnHidden(desk.Column("No.")));
    QVERIFY(!desk.Table()->isColumnHidden(desk.Column("Rise [°C]")));
    QVERIFY(desk.Line().startsWith(QString::number(desk.Rows()) + " parts fit; left out: "));

    desk.Enter("txtFindPartNum", "nb51c226");
    QCOMPARE(desk.Line(), QString("1 part fits"));
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    int Count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        Count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

void FindWindowTest::ANewAnswerIsPaintedOnce()
{
    const FindDesk desk;
    desk.AskForABank();
    Settle();
    PaintCounter painted;
    desk.Table()->viewport()->installEventFilter(&painted);
    const int before = desk.Rows();
    // Another number of rows, below the same headings.
    desk.Enter("txtFindMinCap", "1");
    QVERIFY(desk.Rows() > before);
    Settle();
    Settle();
    QCOMPARE(painted.Count, 1);
}

void FindWindowTest::TellsTheWorstOfRanges()
{
    const FindDesk desk;
    desk.Enter("txtFindPartNum", NumberOnDisplay("KTS31NB51C226MA01"));
    desk.Enter("txtFindDCBiasVol", "12V±10%");
    QVERIFY(desk.Column("Effective") < 0);
    desk.Enter("txtFindAmbientTemp", "-20..85");
    QCOMPARE(desk.Cell(0, "Least"), QString("5.747 µF"));
    QCOMPARE(desk.Cell(0, "At"), QString("13.2 V, 85 °C"));
    QCOMPARE(desk.Cell(0, "Most"), QString("7.751 µF"));
    const auto* const model = desk.Table()->model();
    QCOMPARE(model->index(0, desk.Column("Least")).data(Qt::ToolTipRole).toString(),
             QString("At 13.2 V, 85 °C"));
    QVERIFY(!desk.Table()->isColumnHidden(desk.Column("Most")));
    desk.Enter("txtFindTolerance", "-20/+80");
    QCOMPARE(desk.Cell(0, "Least"), QString("4.598 µF"));
    Grab(desk, "ranges");
    // At a point there is no worst to tell.
    desk.Enter("txtFindTolerance", "");
    desk.Enter("txtFindDCBiasVol", "12");
    desk.Enter("txtFindAmbientTemp", "85");
    QCOMPARE(desk.Cell(0, "Effective"), QString("6.276 µF"));
    QVERIFY(desk.Table()->isColumnHidden(desk.Column("Most")));
    QVERIFY(desk.Table()->isColumnHidden(desk.Column("At")));
}

void FindWindowTest::EmptyAnswerTellsTheReasons()
{
    const FindDesk desk;
    desk.Enter("txtFindPartNum", "no such number");
    QCOMPARE(desk.Line(), QString("No part fits."));
    desk.Enter("txtFindPartNum", NumberOnDisplay("KTS31NB51C226MA01"));
    desk.Enter("txtFindDCBiasVol", "17");
    QCOMPARE(desk.Line(), QString("No part fits. Left out: 1 bias too high"));
    QVERIFY(!desk.Control<QPushButton>("cmdFindSelect")->isEnabled());
}

void FindWindowTest::HeadingsSortUpDownAndBack()
{
    const FindDesk desk;
    desk.AskForABank();
    const QString least = desk.Cell(0, "Part number");
    QHeaderView* const heads = desk.Table()->horizontalHeader();
    const int column = desk.Column("Rated [V]");
    const auto click = [&]
    {
        desk.Table()->scrollTo(desk.Table()->model()->index(0, column));
        const QPoint middle(heads->sectionViewportPosition(column) + heads->sectionSize(column) / 2,
                            heads->height() / 2);
        QTest::mouseClick(heads->viewport(), Qt::LeftButton, {}, middle);
    };
    const auto ratings = [&]
    {
        std::vector<double> values;
        for (int row = 0; row < desk.Rows(); ++row)
        {
            values.push_back(desk.Cell(row, "Rated [V]").toDouble());
        }
        return values;
    };
    click();
    auto sorted = ratings();
    QVERIFY(std::is_sorted(sorted.begin(), sorted.end()));
    click();
    sorted = ratings();
    QVERIFY(std::is_sorted(sorted.rbegin(), sorted.rend()));
    // A new answer keeps the order.
    desk.Enter("txtFindMinCap", "9");
    sorted = ratings();
    QVERIFY(std::is_sorted(sorted.rbegin(), sorted.rend()));
    desk.Enter("txtFindMinCap", "10");
    click();
    QCOMPARE(desk.Cell(0, "Part number"), least);
    QCOMPARE(heads->sortIndicatorSection(), -1);
}

void FindWindowTest::ChosenPartsStayChosen()
{
    const FindDesk desk;
    desk.AskForABank();
    desk.ChooseRows(2, 3);
    const auto chosen = desk.ChosenParts();
    QCOMPARE(chosen.size(), 2);
    desk.Enter("txtFindMinCap", "9.5");
    QCOMPARE(desk.ChosenParts(), chosen);
    desk.Table()->sortByColumn(desk.Column("Part number"), Qt::DescendingOrder);
    auto sorted = desk.ChosenParts();
    std::ranges::sort(sorted);
    auto expected = chosen;
    std::ranges::sort(expected);
    QCOMPARE(sorted, expected);
    desk.Enter("txtFindPartNum", chosen.front());
    QCOMPARE(desk.ChosenParts(), QStringList(chosen.front()));
}

// ---- Beside the main window ----

void FindWindowTest::CodeSwitchRelabels()
{
    if (IsJapaneseDesk())
    {
        QSKIP("switches from the EIA code to the JIS code and back");
    }
    FindDesk desk;
    desk.Pick("cmbFindMaxSize", "0603");
    desk.Pick("cmbFindTcc", "X5R");
    const int rows = desk.Rows();
    QVERIFY(rows > 0);
    desk.main->mnuViewCode_Click(1);
    QCOMPARE(desk.Control<QComboBox>("cmbFindMaxSize")->currentText(), QString("1608"));
    QCOMPARE(desk.Control<QComboBox>("cmbFindTcc")->currentText(), QString("B"));
    QCOMPARE(desk.Control<QLineEdit>("txtFindAmbientTemp")->text(), QString("20"));
    QCOMPARE(desk.Rows(), rows);
    QVERIFY(QStringList({"1608", "1005", "0603"}).contains(desk.Cell(0, "Size")));
    desk.Enter("txtFindAmbientTemp", "85");
    desk.main->mnuViewCode_Click(0);
    QCOMPARE(desk.Control<QLineEdit>("txtFindAmbientTemp")->text(), QString("85"));
    QCOMPARE(desk.Control<QComboBox>("cmbFindMaxSize")->currentText(), QString("0603"));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void FindWindowTest::NumberSwitchRelabels()
{
    const FindDesk desk;
    const QString present = NumberOnDisplay("KTS31NB51C226MA01");
    desk.Enter("txtFindPartNum", present);
    QCOMPARE(desk.Rows(), 1);
    desk.main->mnuPartNum_Click(1);
    QCOMPARE(desk.Rows(), 1);
    const QString previous = desk.Cell(0, "Part number");
    QVERIFY(previous != present);

    // An answer that stays while an entry is refused is renamed, too.
    desk.Enter("txtFindFrequency", "1");
    QSignalSpy renamed(desk.Table()->model(), &QAbstractItemModel::dataChanged);
    desk.main->mnuPartNum_Click(0);
    QVERIFY(renamed.count() > 0);
    QCOMPARE(desk.Cell(0, "Part number"), present);
}

void FindWindowTest::EntriesScrollBeforeTheTableVanishes()
{
    const FindDesk desk;
    const QRect screen = desk.window->screen()->availableGeometry();
    QVERIFY(screen.contains(desk.window->frameGeometry()));
    desk.window->resize(600, 400);
    Settle();
    QCOMPARE(desk.window->size(), QSize(600, 400));
    QVERIFY(desk.Table()->height() >= 130);
    auto* const last = desk.Control<QLineEdit>("txtFindMaxRise");
    QVERIFY(last->visibleRegion().boundingRect().size() != last->size());
    QApplication::setActiveWindow(desk.window);
    last->setFocus();
    Settle();
    Grab(desk, "small");
    QCOMPARE(last->visibleRegion().boundingRect().size(), last->size());
}

void FindWindowTest::StaysOutsideTheForms()
{
    FindDesk desk;
    desk.PlotCapacitance("KTS31NB51C226MA01", "12");
    QCOMPARE(desk.main->OpenForms(), 3);
    desk.main->mnuCloseAllChartWindows_Click();
    QVERIFY(desk.window->isVisible());
    QCOMPARE(desk.main->OpenForms(), 2);
    desk.PlotCapacitance("KTS31NB51C226MA01", "12");
    desk.main->mnuViewCode_Click(IsJapaneseDesk() ? 0 : 1);
    QCOMPARE(desk.TakeText(), QString("Close all chart windows"));
    QVERIFY(desk.window->isVisible());
}

void FindWindowTest::ClosesWithTheMainWindow()
{
    FindDesk desk;
    QVERIFY(!desk.window->testAttribute(Qt::WA_QuitOnClose));
    desk.main->close();
    QVERIFY(!desk.window->isVisible());
    desk.main.reset();
    QVERIFY(FindDesk::WindowOf() == nullptr);
}

QTEST_MAIN(FindWindowTest)
#include "FindWindowTest.moc"
