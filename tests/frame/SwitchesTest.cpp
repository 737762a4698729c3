/// Switching code system and part-number generation, with and without open charts.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QTest>

class SwitchesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StartsInEiaAndGlobal();
    void JapaneseHelpStartsInJis();
    void ChosenMarkStaysAndNothingHappens();
    void ChosenMarkStaysInChartMenu();
    void MarksAreCopiedAsChartViewOpens();
    void CodeSwitchWithoutChartsIsSilent();
    void CodeSwitchClosesAllChartsAfterOneNotice();
    void CodeSwitchFromChartMenuClosesThatChart();
    void CodeSwitchIsUnderWayUntilTheNoticeIsAnswered();
    void CodeSwitchSetsReferenceTemperature();
    void NumberingSwitchRelabelsPanesAndKeepsWindows();
    void NumberingSwitchMovesTheMarkLast();
    void NumberingSwitchStopsAtFirstEmptyPane();
    void NumberingSwitchFindsFullTextOfCutLabels();
    void SwitchesInAnyOrderNameThePartPlainly();
    void NoticeShowsNormalPointer();
};

/// Where a part stands in the table, by a plain walk.
static const PartRecord& PartNamed(const QString& number, std::size_t form)
{
    for (const PartRecord& part : mdlPublic.Parts.PartData)
    {
        if (QString::fromLatin1(part.PartNum[form].data(), part.PartNum[form].size()) == number)
        {
            return part;
        }
    }
    qFatal("No part %s", qPrintable(number));
}

static QString NumberOf(const PartRecord& part, std::size_t form)
{
    return QString::fromLatin1(part.PartNum[form].data(), part.PartNum[form].size());
}

static QString Pane(const frmGraph* chart, int i)
{
    return chart->findChild<QLabel*>(QStringLiteral("lblStatus_%1").arg(i))->text();
}

static QList<bool> Marks(const Desk& desk, const QString& part = "mnuPartNum")
{
    return {desk.Entry("mnuViewCode_0")->isChecked(), desk.Entry("mnuViewCode_1")->isChecked(),
            desk.Entry(part + "_0")->isChecked(), desk.Entry(part + "_1")->isChecked()};
}

void SwitchesTest::StartsInEiaAndGlobal()
{
    const Desk desk;
    QCOMPARE(Marks(desk), QList<bool>({true, false, true, false}));
    QCOMPARE(GetPartNumForm(), std::int16_t{0});
    QVERIFY(desk.main->GetPartNewOld());
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("25"));
}

void SwitchesTest::JapaneseHelpStartsInJis()
{
    Desk desk(SAMPLE_RANGE, 1);
    QCOMPARE(Marks(desk), QList<bool>({false, true, true, false}));
    QCOMPARE(GetPartNumForm(), std::int16_t{1});
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("20"));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QVERIFY(IsAtRest());
    // The list names parts in JIS code from the start.
    QCOMPARE(NumberOf(PartNamed(ListedPart(desk, 0), 1), 1), ListedPart(desk, 0));
}

void SwitchesTest::ChosenMarkStaysAndNothingHappens()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    const QString before = Pane(desk.Charts().front(), 0);
    desk.Choose("mnuViewCode_0");
    desk.Choose("mnuPartNum_0");
    QCOMPARE(Marks(desk), QList<bool>({true, false, true, false}));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    QCOMPARE(Pane(desk.Charts().front(), 0), before);
    desk.Choose("mnuPartNum_1");
    desk.Choose("mnuPartNum_1");
    QCOMPARE(Marks(desk), QList<bool>({true, false, false, true}));
    QVERIFY(!desk.main->GetPartNewOld());
}

void SwitchesTest::ChosenMarkStaysInChartMenu()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Choose("mnuViewCode_0");
    desk.Choose("mnuViewPart_0");
    QMenu* view = desk.OpenMenuOf("mnuViewCode_0");
    QCOMPARE(Marks(desk, "mnuViewPart"), QList<bool>({true, false, true, false}));
    view->close();
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(desk.Charts().size(), std::size_t{1});
}

void SwitchesTest::MarksAreCopiedAsChartViewOpens()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Choose("mnuViewPart_1");
    QMenu* view = desk.OpenMenuOf("mnuViewCode_0");
    QCOMPARE(Marks(desk, "mnuViewPart"), QList<bool>({true, false, false, true}));
    view->close();
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    QCOMPARE(Marks(desk), QList<bool>({true, false, false, true}));
    desk.Choose("mnuPartNum_0");
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    view = desk.OpenMenuOf("mnuViewCode_0");
    QCOMPARE(Marks(desk, "mnuViewPart"), QList<bool>({true, false, true, false}));
    view->close();
}

void SwitchesTest::CodeSwitchWithoutChartsIsSilent()
{
    Desk desk;
    desk.TypePart(ListedPart(desk, 3));
    const PartRecord& part = PartNamed(desk.Find<QComboBox>("cmbPartNum")->currentText(), 0);
    desk.Choose("mnuViewCode_1");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(Marks(desk), QList<bool>({false, true, true, false}));
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), NumberOf(part, 1));
    QCOMPARE(desk.Find<QComboBox>("cmbSizeCode")->currentText(),
             QString::fromLatin1(part.SizeCode[1].data(), part.SizeCode[1].size()));
    QVERIFY(desk.CanPlot());
    QVERIFY(IsAtRest());
}

void SwitchesTest::CodeSwitchClosesAllChartsAfterOneNotice()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    desk.PlotRise(0, "25");
    QCOMPARE(desk.Charts().size(), std::size_t{3});
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    desk.Choose("mnuViewCode_1");
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes.front().text, QString("Close all chart windows"));
    QCOMPARE(boxes.front().icon, QMessageBox::Information);
    QCOMPARE(boxes.front().title, desk.main->windowTitle());
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
    QCOMPARE(Marks(desk), QList<bool>({false, true, true, false}));
}

void SwitchesTest::CodeSwitchFromChartMenuClosesThatChart()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Choose("mnuViewCode_1");
    QCOMPARE(desk.TakeText(), QString("Close all chart windows"));
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QCOMPARE(Marks(desk), QList<bool>({false, true, true, false}));
    QVERIFY(IsAtRest());
    // The same entry chosen again is the chosen one.
    desk.Choose("mnuViewCode_1");
    QCOMPARE(Marks(desk), QList<bool>({false, true, true, false}));
}

/// True while a long command is under way that list handlers have to leave alone.
static bool IsUpdatingUnderHourglass()
{
    const QCursor* pointer = QGuiApplication::overrideCursor();
    return mdlPublic.Updating && pointer != nullptr && pointer->shape() == Qt::WaitCursor;
}

void SwitchesTest::CodeSwitchIsUnderWayUntilTheNoticeIsAnswered()
{
    Desk desk;
    desk.ClickChartType(3);
    const PartRecord& part = PartNamed(ListedPart(desk, 0), 0);
    desk.TypePart(NumberOf(part, 0));
    desk.Type("txtAmbientTemp", "60");
    desk.ClickPlot();
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));

    // As the mark moves, the part is named anew and the temperature is the old one.
    bool underWay = false;
    QString temperature;
    QString number;
    connect(desk.Entry("mnuViewCode_1"), &QAction::toggled, this,
            [&]
            {
                underWay = IsUpdatingUnderHourglass();
                temperature = desk.Text("txtAmbientTemp");
                number = desk.Find<QComboBox>("cmbPartNum")->currentText();
            });
    // As the notice stands, all is switched, and the chart is still there.
    QStringList seen;
    QTimer watch;
    connect(&watch, &QTimer::timeout, &watch,
            [&]
            {
                if (QApplication::activeModalWidget() != nullptr && seen.isEmpty())
                {
                    seen = {mdlPublic.Updating ? "updating" : "at rest", desk.Text("txtAmbientTemp"),
                            QString::number(GetCodeForm()), QString::number(desk.Charts().size())};
                }
            });
    watch.start(0);
    desk.Choose("mnuViewCode_1");
    QVERIFY(underWay);
    QCOMPARE(temperature, QString("60"));
    QCOMPARE(number, NumberOf(part, 1));
    QCOMPARE(seen, QStringList({"updating", "20", "1", "1"}));
    QCOMPARE(desk.TakeText(), QString("Close all chart windows"));
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QVERIFY(IsAtRest());
}

void SwitchesTest::CodeSwitchSetsReferenceTemperature()
{
    Desk desk;
    desk.ClickChartType(3);
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtAmbientTemp", "60");
    desk.Choose("mnuViewCode_1");
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("20"));
    desk.Type("txtAmbientTemp", "60");
    desk.Choose("mnuPartNum_1");
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("60"));
    desk.Choose("mnuViewCode_0");
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("25"));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void SwitchesTest::NumberingSwitchRelabelsPanesAndKeepsWindows()
{
    Desk desk;
    desk.ClickChartType(2);
    const QString first = ListedPart(desk, 0);
    const QString second = ListedPart(desk, 7);
    desk.PlotCapacitance(first, "0");
    desk.PlotCapacitance(second, "0");
    desk.PlotCapacitance(second, "0", "Capacitance Change");
    QCOMPARE(desk.Charts().size(), std::size_t{2});
    desk.Choose("mnuViewPart_1");
    QCOMPARE(desk.Charts().size(), std::size_t{2});
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(Pane(desk.Charts()[0], 0), NumberOf(PartNamed(first, 0), 2));
    QCOMPARE(Pane(desk.Charts()[0], 1), NumberOf(PartNamed(second, 0), 2));
    QCOMPARE(Pane(desk.Charts()[0], 2), QString());
    QCOMPARE(Pane(desk.Charts()[1], 0), NumberOf(PartNamed(second, 0), 2));
    desk.Choose("mnuViewPart_0");
    QCOMPARE(Pane(desk.Charts()[0], 0), first);
    QCOMPARE(Pane(desk.Charts()[1], 0), second);
    QVERIFY(IsAtRest());
}

void SwitchesTest::NumberingSwitchMovesTheMarkLast()
{
    Desk desk;
    desk.ClickChartType(2);
    const PartRecord& part = PartNamed(ListedPart(desk, 0), 0);
    desk.PlotCapacitance(NumberOf(part, 0), "0");
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    bool underWay = false;
    QString pane;
    connect(desk.Entry("mnuPartNum_1"), &QAction::toggled, this,
            [&]
            {
                underWay = IsUpdatingUnderHourglass();
                pane = Pane(desk.Charts().front(), 0);
            });
    desk.Choose("mnuPartNum_1");
    QVERIFY(underWay);
    QCOMPARE(pane, NumberOf(part, 2));
    QVERIFY(IsAtRest());
}

void SwitchesTest::NumberingSwitchStopsAtFirstEmptyPane()
{
    Desk desk;
    desk.ClickChartType(2);
    const QString part = ListedPart(desk, 0);
    desk.PlotCapacitance(part, "0");
    // A text beyond the first empty pane is out of reach.
    auto* third = desk.Charts().front()->findChild<QLabel*>("lblStatus_2");
    third->setText(part);
    desk.Choose("mnuViewPart_1");
    QCOMPARE(Pane(desk.Charts().front(), 0), NumberOf(PartNamed(part, 0), 2));
    QCOMPARE(third->text(), part);
}

void SwitchesTest::NumberingSwitchFindsFullTextOfCutLabels()
{
    Desk desk;
    desk.ClickChartType(2);
    const QString part = ListedPart(desk, 0);
    desk.PlotCapacitance(part, "0");
    auto* label = desk.Charts().front()->findChild<QLabel*>("lblStatus_0");
    label->setFixedWidth(20);
    QVERIFY(label->fontMetrics().horizontalAdvance(part) > label->width());
    label->repaint();
    desk.Choose("mnuViewPart_1");
    QCOMPARE(label->text(), NumberOf(PartNamed(part, 0), 2));
}

void SwitchesTest::SwitchesInAnyOrderNameThePartPlainly()
{
    Desk desk;
    desk.ClickChartType(2);
    const PartRecord& part = PartNamed(ListedPart(desk, 11), 0);
    const QList<QPair<QString, std::size_t>> steps = {
        {"mnuViewCode_1", 1}, {"mnuPartNum_1", 3},  {"mnuViewCode_0", 2}, {"mnuPartNum_0", 0},
        {"mnuPartNum_1", 2},  {"mnuViewCode_1", 3}, {"mnuPartNum_0", 1},  {"mnuViewCode_0", 0}};
    for (const auto& [entry, form] : steps)
    {
        desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
        desk.Choose(entry);
        desk.TakeBoxes();
        QCOMPARE(GetPartNumForm(), static_cast<std::int16_t>(form));
        desk.TypePart(NumberOf(part, form));
        QVERIFY(desk.CanPlot());
        desk.Type("txtDCBiasVol", "0");
        desk.ClickPlot();
        // An open chart shows this line already after a numbering switch.
        desk.TakeBoxes();
        QCOMPARE(Pane(desk.Charts().front(), 0), NumberOf(part, form));
    }
}

void SwitchesTest::NoticeShowsNormalPointer()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    Qt::CursorShape seen = Qt::BlankCursor;
    QTimer watch;
    connect(&watch, &QTimer::timeout,
            [&]
            {
                const QCursor* cursor = QGuiApplication::overrideCursor();
                if (QApplication::activeModalWidget() != nullptr)
                {
                    seen = cursor != nullptr ? cursor->shape() : Qt::ArrowCursor;
                }
            });
    watch.start(0);
    desk.Choose("mnuViewCode_1");
    QCOMPARE(desk.TakeText(), QString("Close all chart windows"));
    QCOMPARE(seen, Qt::ArrowCursor);
    QVERIFY(IsAtRest());
}

QTEST_MAIN(SwitchesTest)
#include "SwitchesTest.moc"
