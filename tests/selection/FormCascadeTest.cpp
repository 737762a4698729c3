/// Choosing a part, as a user does it.

#include "tests/selection/Ranges.h"
#include "tests/selection/SelectionDesk.h"

#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>

/// P3 and P0 agree in all but the number; P4 has no data for the power charts, P5 none for capacitance.
static PartTable Range()
{
    return MakeRange({
        {"P0", {"0805", "2012"}, {"X7R", "R"}, 1000, 50},
        {"P1", {"0402", "1005"}, {"X7R", "R"}, 100, 16},
        {"P2", {"0805", "2012"}, {"X5R", "B"}, 2.5F, 25},
        {"P3", {"0805", "2012"}, {"X7R", "R"}, 1000, 50},
        {"P4", {"1206", "3216"}, {"Y5V", "F"}, 10, 6.3F, false, true},
        {"P5", {"1210", "3225"}, {"Y5V", "F"}, 10, 6.3F, true, false},
    });
}

class FormCascadeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { desk = std::make_unique<SelectionDesk>(Range()); }
    void cleanup()
    {
        QCOMPARE(desk->messages.Taken(), QStringList());
        desk.reset();
    }

    void StartsWithTemperatureRiseAndNothingChosen()
    {
        QVERIFY(desk->Option("optChartType_0")->isChecked());
        QVERIFY(desk->Option("optParameter_0")->isChecked());
        QCOMPARE(desk->Entries("cmbSizeCode"), QStringList({"0805", "0402", "1210"}));
        QCOMPARE(desk->Entries("cmbPartNum"), QStringList({"P0-0", "P1-0", "P2-0", "P3-0", "P5-0"}));
        QCOMPARE(desk->Entries("cmbTcc"), QStringList());
        QCOMPARE(desk->Text("cmbSizeCode"), "");
        QCOMPARE(desk->Text("cmbPartNum"), "");
        QVERIFY(!desk->Enabled("cmdPlot"));
        QVERIFY(!desk->Enabled("fraCondition"));
        QCOMPARE(desk->Text("txtAmbientTemp"), "25");
        QCOMPARE(desk->Text("cmbXaxis"), "Current");
        QCOMPARE(desk->Text("cmbYaxis"), "Temperature Rise");
    }

    void FillsNothingFromABoxWithoutAChoice()
    {
        const auto sizes = desk->Entries("cmbSizeCode");
        const auto parts = desk->Entries("cmbPartNum");
        desk->form->FillTccList();
        desk->form->FillCapList();
        desk->form->FillRatedVolList();
        desk->form->FillPartNumList();
        QCOMPARE(desk->Entries("cmbSizeCode"), sizes);
        QCOMPARE(desk->Entries("cmbPartNum"), parts);
        for (const char* list : {"cmbTcc", "cmbCap", "cmbRatedVol"})
        {
            QCOMPARE(desk->Entries(list), QStringList());
        }
        QCOMPARE(desk->Text("cmbPartNum"), "");
    }

    void NarrowsDownToTheLastPartLeft()
    {
        desk->Pick("cmbSizeCode", "0805");
        QCOMPARE(desk->Entries("cmbTcc"), QStringList({"X7R", "X5R"}));
        QCOMPARE(desk->Text("cmbTcc"), "");
        QCOMPARE(desk->Entries("cmbPartNum"), QStringList({"P0-0", "P2-0", "P3-0"}));
        desk->Pick("cmbTcc", "X7R");
        QCOMPARE(desk->Entries("cmbCap"), QStringList({"1000"}));
        QVERIFY(!desk->Enabled("cmdPlot"));
        desk->Pick("cmbCap", "1000");
        QCOMPARE(desk->Entries("cmbRatedVol"), QStringList({"50"}));
        QVERIFY(!desk->Enabled("cmdPlot"));
        desk->Pick("cmbRatedVol", "50");
        QCOMPARE(desk->Entries("cmbPartNum"), QStringList({"P0-0", "P3-0"}));
        QCOMPARE(desk->Text("cmbPartNum"), "P3-0");
        QVERIFY(desk->Enabled("cmdPlot"));
        QCOMPARE(desk->form->GetSelectedPart(), 3);
        QCOMPARE(desk->Text("txtHeatResistance"), "40");
        desk->Pick("cmbCap", "1000");
        QCOMPARE(desk->Text("cmbRatedVol"), "");
        QCOMPARE(desk->Text("cmbPartNum"), "");
        QVERIFY(!desk->Enabled("cmdPlot"));
        QCOMPARE(desk->Text("txtHeatResistance"), "");
    }

    void NarrowsDownWithTheKeyboardAlone()
    {
        desk->PickByKeys("cmbSizeCode", "0805");
        desk->PickByKeys("cmbTcc", "X5R");
        desk->PickByKeys("cmbCap", "2.5");
        desk->PickByKeys("cmbRatedVol", "25");
        QCOMPARE(desk->Text("cmbPartNum"), "P2-0");
        QVERIFY(desk->Enabled("cmdPlot"));
    }

    void ChoosesWithUpAndDownInAClosedList()
    {
        desk->List("cmbSizeCode")->setFocus();
        desk->Press(Qt::Key_Down);
        QCOMPARE(desk->Text("cmbSizeCode"), "0805");
        QCOMPARE(desk->Entries("cmbTcc"), QStringList({"X7R", "X5R"}));
        desk->Press(Qt::Key_Down);
        QCOMPARE(desk->Text("cmbSizeCode"), "0402");
        QCOMPARE(desk->Entries("cmbTcc"), QStringList({"X7R"}));
    }

    void ShowsAPickedPartAloneInTheLowerLists()
    {
        desk->Pick("cmbPartNum", "P2-0");
        QCOMPARE(desk->Text("cmbSizeCode"), "0805");
        QCOMPARE(desk->Entries("cmbSizeCode"), QStringList({"0805", "0402", "1210"}));
        QCOMPARE(desk->Entries("cmbTcc"), QStringList({"X5R"}));
        QCOMPARE(desk->Entries("cmbCap"), QStringList({"2.5"}));
        QCOMPARE(desk->Entries("cmbRatedVol"), QStringList({"25"}));
        QCOMPARE(desk->Text("cmbRatedVol"), "25");
        QCOMPARE(desk->Entries("cmbPartNum").size(), 5);
        QVERIFY(desk->Enabled("cmdPlot"));
        desk->PickByKeys("cmbPartNum", "P1-0");
        QCOMPARE(desk->Text("cmbSizeCode"), "0402");
        QCOMPARE(desk->Entries("cmbCap"), QStringList({"100"}));
    }

    void TakesATypedNumberAsSoonAsItIsWhole_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("taken");
        QTest::newRow("whole") << "P2-0" << true;
        QTest::newRow("unfinished") << "P2-" << false;
        QTest::newRow("too long") << "P2-00" << false;
        QTest::newRow("other letter case") << "p2-0" << false;
        QTest::newRow("unknown") << "Z9" << false;
        QTest::newRow("of a part without data for the chart") << "P4-0" << false;
        QTest::newRow("in another naming") << "P2-1" << false;
        QTest::newRow("blank behind") << "P2-0 " << false;
        QTest::newRow("empty") << "" << false;
    }
    void TakesATypedNumberAsSoonAsItIsWhole()
    {
        QFETCH(QString, typed);
        QFETCH(bool, taken);
        desk->TypePart(typed);
        QCOMPARE(desk->Enabled("cmdPlot"), taken);
        QCOMPARE(desk->Enabled("txtDCBiasVol"), taken);
        QCOMPARE(desk->Text("cmbPartNum"), typed);
        QCOMPARE(desk->Entries("cmbPartNum").size(), 5);
        desk->Press(Qt::Key_Return);
        desk->Press(Qt::Key_Tab);
        QCOMPARE(desk->Enabled("cmdPlot"), taken);
        QCOMPARE(desk->Text("cmbPartNum"), typed);
        QCOMPARE(desk->Entries("cmbPartNum").size(), 5);
    }

    /// Passing through the box must not choose its part anew.
    void LeavesListsAndEntriesAloneWhenTheNumberBoxIsOnlyPassedThrough()
    {
        desk->Pick("cmbSizeCode", "0805");
        desk->Pick("cmbTcc", "X7R");
        desk->Pick("cmbCap", "1000");
        desk->Pick("cmbRatedVol", "50");
        desk->Enter("txtHeatResistance", "12");
        desk->List("cmbPartNum")->setFocus(Qt::TabFocusReason);
        desk->Press(Qt::Key_Return);
        desk->Press(Qt::Key_Tab);
        QCOMPARE(desk->Focus(), "cmbXaxis");
        QCOMPARE(desk->Text("txtHeatResistance"), "12");
        QCOMPARE(desk->Entries("cmbTcc"), QStringList({"X7R", "X5R"}));
    }

    void DropsThePartWhenItsNumberIsEdited()
    {
        desk->Pick("cmbPartNum", "P2-0");
        desk->Enter("txtDCBiasVol", "5");
        QTest::mouseClick(desk->List("cmbPartNum")->lineEdit(), Qt::LeftButton);
        desk->Press(Qt::Key_End);
        desk->Press(Qt::Key_Backspace);
        QVERIFY(!desk->Enabled("cmdPlot"));
        QCOMPARE(desk->Text("txtDCBiasVol"), "");
        QCOMPARE(desk->Text("cmbRatedVol"), "25");
        desk->Press(Qt::Key_0);
        QVERIFY(desk->Enabled("cmdPlot"));
        QCOMPARE(desk->Focus(), "cmbPartNum");
    }

    void PicksTheSameEntryAgainAfterItsTextWasEdited()
    {
        desk->Pick("cmbPartNum", "P2-0");
        desk->TypePart("x");
        desk->Pick("cmbPartNum", "P2-0");
        QCOMPARE(desk->Text("cmbPartNum"), "P2-0");
        QVERIFY(desk->Enabled("cmdPlot"));
    }

    void GoesOnFromATypedNumberWithTheArrowKeys()
    {
        desk->TypePart("P2-0");
        desk->Press(Qt::Key_Down);
        QCOMPARE(desk->Text("cmbPartNum"), "P3-0");
    }

    void IgnoresTheWheelOverAListWithoutFocus()
    {
        desk->Pick("cmbSizeCode", "0805");
        desk->Option("optChartType_0")->setFocus();
        Wheel(desk->List("cmbSizeCode"));
        Wheel(desk->List("cmbPartNum"));
        Wheel(desk->List("cmbPartNum")->lineEdit());
        Wheel(desk->List("cmbXaxis"));
        QCOMPARE(desk->Text("cmbSizeCode"), "0805");
        QCOMPARE(desk->Text("cmbPartNum"), "");
        QCOMPARE(desk->Text("cmbXaxis"), "Current");
        desk->List("cmbSizeCode")->setFocus();
        Wheel(desk->List("cmbSizeCode"));
        QCOMPARE(desk->Text("cmbSizeCode"), "0402");
    }

    void KeepsThePartOverChartTypesThatOfferIt()
    {
        desk->Pick("cmbPartNum", "P2-0");
        desk->ChooseChartType(1);
        QCOMPARE(desk->Text("cmbPartNum"), "P2-0");
        QVERIFY(desk->Enabled("cmdPlot"));
        QCOMPARE(desk->Entries("cmbPartNum").size(), 5);
        QCOMPARE(desk->Text("cmbRatedVol"), "25");
        QCOMPARE(desk->Text("cmbYaxis"), "Current");
        desk->ChooseChartType(2);
        QCOMPARE(desk->Text("cmbPartNum"), "P2-0");
        QCOMPARE(desk->Entries("cmbSizeCode"), QStringList({"0805", "0402", "1206"}));
    }

    void StartsEmptyWhereTheChartTypeDoesNotOfferThePart()
    {
        desk->Pick("cmbPartNum", "P5-0");
        desk->ChooseChartType(3);
        QCOMPARE(desk->Text("cmbPartNum"), "");
        QCOMPARE(desk->Text("cmbSizeCode"), "");
        QVERIFY(!desk->Enabled("cmdPlot"));
    }

    void FollowsTheNamingOnDisplay()
    {
        desk->Pick("cmbSizeCode", "0805");
        desk->Pick("cmbTcc", "X7R");
        desk->SwitchCodeView(1);
        QCOMPARE(desk->Text("cmbSizeCode"), "2012");
        QCOMPARE(desk->Entries("cmbTcc"), QStringList({"R", "B"}));
        QCOMPARE(desk->Text("cmbTcc"), "R");
        QCOMPARE(desk->Entries("cmbCap"), QStringList({"1000"}));
        QCOMPARE(desk->Entries("cmbPartNum"), QStringList({"P0-1", "P3-1"}));
        QCOMPARE(desk->Text("txtAmbientTemp"), "20");
        desk->Pick("cmbCap", "1000");
        desk->Pick("cmbRatedVol", "50");
        desk->SwitchNumbering(1);
        QCOMPARE(desk->Text("cmbPartNum"), "P3-3");
        QCOMPARE(desk->Entries("cmbPartNum"), QStringList({"P0-3", "P3-3"}));
        QVERIFY(desk->Enabled("cmdPlot"));
        QCOMPARE(desk->form->GetSelectedPart(), 3);
        desk->SwitchCodeView(0);
        QCOMPARE(desk->Text("cmbPartNum"), "P3-2");
        QCOMPARE(desk->Text("cmbTcc"), "X7R");
        QVERIFY(desk->Enabled("cmdPlot"));
    }

    void ForgetsATypedTextThatIsNoPartNumberWhenTheNamingChanges()
    {
        desk->TypePart("nothing");
        desk->SwitchNumbering(1);
        QCOMPARE(desk->Text("cmbPartNum"), "");
        QVERIFY(!desk->Enabled("cmdPlot"));
    }

    /// A caption that wraps is a button over all its lines.
    void TakesClicksOnEveryLineOfAChartTypeCaption()
    {
        auto* button = desk->Option("optChartType_2");
        for (const QPoint place :
             {QPoint(25, 2), QPoint(25, button->height() - 3), QPoint(5, button->height() / 2)})
        {
            desk->ChooseChartType(0);
            QTest::mouseClick(button, Qt::LeftButton, {}, place);
            QVERIFY2(button->isChecked(), qPrintable(QString::number(place.y())));
        }
    }

    void StaysOpen()
    {
        desk->form->close();
        QVERIFY(desk->form->isVisible());
        QVERIFY(desk->form->width() <= 200);
    }

private:
    static void Wheel(QWidget* over)
    {
        const QPointF place = over->rect().center();
        QWheelEvent down(place, over->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(over, &down);
    }

    std::unique_ptr<SelectionDesk> desk;
};

QTEST_MAIN(FormCascadeTest)
#include "FormCascadeTest.moc"
