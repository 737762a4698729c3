/// Conditions of plotted lines, taken over into the boxes of the form.

#include "app/mdlPublic.h"
#include "tests/selection/ConditionsTest.h"
#include "tests/selection/Ranges.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

class FormTakeTest : public ConditionsTest
{
    Q_OBJECT

private Q_SLOTS:
    void F4FillsTheBoxesFromTheLastLineOfTheChartType()
    {
        mdlPublic.DegreeSign = "\xB0";
        PlotRise("P0-0", "2", "300");
        PlotRise("P1-0", "3", "200");
        QSignalSpy told(desk->form, &frmLibrary::ConditionsTaken);
        desk->Pick("cmbPartNum", "P0-0");
        desk->Click("txtDCBiasVol");
        desk->Press(Qt::Key_F4);
        QCOMPARE(told.takeFirst().front().toString(),
                 QStringLiteral("Conditions of No.2 taken: 3 V, 200 kHz, 25 \u00B0C"));
        QCOMPARE(desk->Text("txtDCBiasVol"), "3");
        QCOMPARE(desk->Text("txtFrequency"), "200");
        QCOMPARE(desk->Text("txtAmbientTemp"), "25");
        QCOMPARE(desk->Box("txtDCBiasVol")->selectedText(), "3");
        QCOMPARE(desk->Text("txtHeatResistance"), "40");
        QCOMPARE(desk->messages.Taken(), QStringList());
    }

    void OnlyBoxesInUseAreFilled()
    {
        PlotRise("P0-0", "2", "300");
        desk->Pick("cmbXaxis", "Frequency");
        desk->Press(Qt::Key_F4, Qt::ShiftModifier);
        QCOMPARE(desk->Text("txtFrequency"), "300");
        desk->Click("optParameter_1");
        desk->Press(Qt::Key_F4);
        // The box of a frequency that is swept is not in use, and the line has no parameter.
        QVERIFY(!desk->Enabled("txtFrequency"));
        QVERIFY(desk->Option("optParameter_1")->isChecked());
        QCOMPARE(desk->Text("txtParameter"), "");
    }

    void AParameterComesWithItsButton()
    {
        desk.reset();
        desk = std::make_unique<SelectionDesk>(SampleRange());
        desk->Pick("cmbPartNum", "KTS188R71H224KA01");
        desk->Pick("cmbXaxis", "Frequency");
        desk->Enter("txtDCBiasVol", "2");
        desk->Click("optParameter_1");
        desk->Enter("txtParameter", "0.001");
        desk->Click("cmdPlot");
        desk->Click("optParameter_0");
        desk->Press(Qt::Key_F4);
        QVERIFY(desk->Option("optParameter_1")->isChecked());
        QCOMPARE(desk->Text("txtParameter"), "0.001");
        QCOMPARE(desk->form->findChild<QLabel*>("lblParameter")->text(), "[Vrms]");
    }

    void ListsKeepTheKeyThatOpensThem_data()
    {
        QTest::addColumn<QString>("list");
        for (const char* list :
             {"cmbSizeCode", "cmbTcc", "cmbCap", "cmbRatedVol", "cmbPartNum", "cmbXaxis", "cmbYaxis"})
        {
            QTest::newRow(list) << list;
        }
    }
    void ListsKeepTheKeyThatOpensThem()
    {
        QFETCH(QString, list);
        PlotRise("P0-0", "2", "300");
        QSignalSpy told(desk->form, &frmLibrary::ConditionsTaken);
        auto* const box = desk->List(qPrintable(list));
        box->setFocus();
        desk->Press(Qt::Key_F4);
        QVERIFY(box->view()->isVisible());
        QCOMPARE(told.size(), 0);
        box->hidePopup();
    }

    void TellsWhyNothingIsTaken()
    {
        QSignalSpy told(desk->form, &frmLibrary::ConditionsTaken);
        desk->Option("optChartType_0")->setFocus();
        desk->Press(Qt::Key_F4);
        QCOMPARE(told.takeFirst().front().toString(), "No line of this chart type is plotted yet.");
        PlotRise("P0-0", "2", "300");
        desk->ChooseChartType(0);
        desk->TypePart("no such part");
        desk->Option("optChartType_0")->setFocus();
        desk->Press(Qt::Key_F4);
        QCOMPARE(told.takeFirst().front().toString(), "Choose a part first.");
        desk->ChooseChartType(3);
        desk->Press(Qt::Key_F4);
        QCOMPARE(told.takeFirst().front().toString(), "No line of this chart type is plotted yet.");
    }

private:
    void PlotRise(const char* part, const char* bias, const char* kiloHertz)
    {
        desk->Pick("cmbPartNum", part);
        desk->Enter("txtDCBiasVol", bias);
        desk->Enter("txtFrequency", kiloHertz);
        desk->Click("cmdPlot");
    }
};

QTEST_MAIN(FormTakeTest)
#include "FormTakeTest.moc"
