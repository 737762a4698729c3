/// Which clicks and keys leave a condition box, and so have its entry checked.

#include "tests/selection/ConditionsTest.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QTest>

static const QString BiasTo16 = "DC Bias Voltage is invalid!|Please enter a Number from 0 to 16[V]";
static const QString FrequencyRange = "Frequency is invalid!|Please enter a Number from 10 to 1000 [kHz]";

class FormLeavingTest : public ConditionsTest
{
    Q_OBJECT

private Q_SLOTS:
    void LetsAClickActThatEmptiesTheBadBox_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("control");
        QTest::newRow("chart type") << "txtDCBiasVol"
                                    << "optChartType_2";
        for (const char* list : {"cmbSizeCode", "cmbTcc", "cmbCap", "cmbRatedVol", "cmbPartNum"})
        {
            QTest::newRow(list) << "txtDCBiasVol" << list;
        }
        QTest::newRow("X axis for frequency") << "txtFrequency"
                                              << "cmbXaxis";
        QTest::newRow("X axis for parameter") << "txtParameter"
                                              << "cmbXaxis";
        QTest::newRow("parameter button for parameter") << "txtParameter"
                                                        << "optParameter_2";
    }
    void LetsAClickActThatEmptiesTheBadBox()
    {
        QFETCH(QString, box);
        QFETCH(QString, control);
        StartAtBadEntry(box);
        desk->Click(control.toLatin1().constData());
        QCOMPARE(desk->messages.Taken(), QStringList());
        if (auto* option = desk->form->findChild<QRadioButton*>(control))
        {
            QVERIFY(option->isChecked());
        }
        if (auto* list = desk->form->findChild<QComboBox*>(control))
        {
            QCOMPARE(list->view()->isVisible(), list->count() > 0 && control != "cmbPartNum");
            list->hidePopup();
        }
        QCOMPARE(desk->Focus(), control);
    }

    void ChecksWhereAClickLeavesTheBoxAsItIs_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("message");
        QTest::newRow("X axis for bias") << "txtDCBiasVol"
                                         << "cmbXaxis" << BiasTo16;
        QTest::newRow("Y axis for frequency") << "txtFrequency"
                                              << "cmbYaxis" << FrequencyRange;
        QTest::newRow("parameter button for bias") << "txtDCBiasVol"
                                                   << "optParameter_2" << BiasTo16;
        QTest::newRow("another box") << "txtDCBiasVol"
                                     << "txtHeatResistance" << BiasTo16;
    }
    void ChecksWhereAClickLeavesTheBoxAsItIs()
    {
        QFETCH(QString, box);
        QFETCH(QString, control);
        QFETCH(QString, message);
        StartAtBadEntry(box);
        if (control.startsWith("optParameter"))
        {
            desk->Pick("cmbXaxis", "Frequency");
            desk->messages.Taken();
        }
        desk->Box(box.toLatin1().constData())->setFocus();
        desk->Click(control.toLatin1().constData());
        QCOMPARE(desk->messages.Taken(), QStringList{message});
        QCOMPARE(desk->Focus(), box);
        QVERIFY(desk->Option("optParameter_0")->isChecked());
    }

    void SaysNothingWhileTheBoxIsNotLeft()
    {
        StartAtBadEntry("txtDCBiasVol");
        desk->Press(Qt::Key_Escape);
        QCOMPARE(desk->messages.Taken(), QStringList());
        // A label, a caption, a disabled control and empty ground take no focus.
        desk->Click("lblHeatResistance");
        desk->Click("txtParameter");
        QTest::mouseClick(desk->Find<QWidget>("frmLibraryContents"), Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(desk->messages.Taken(), QStringList());
        QCOMPARE(desk->Focus(), "txtDCBiasVol");
    }

    void SaysNothingWhenAnotherWindowComesAndGoes()
    {
        StartAtBadEntry("txtDCBiasVol");
        QMainWindow other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        desk->window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk->window));
        QCOMPARE(desk->messages.Taken(), QStringList());
        QCOMPARE(desk->Focus(), "txtDCBiasVol");
    }

    void SaysNothingWhenTheFocusedBoxIsDisabled()
    {
        StartAtBadEntry("txtDCBiasVol");
        desk->form->AllClear();
        QCOMPARE(desk->messages.Taken(), QStringList());
        desk->form->SelectChartType(0);
        QCOMPARE(desk->messages.Taken(), QStringList());
        QCOMPARE(desk->Focus(), "optChartType_0");
    }

    void SaysNothingWhenTheWindowCloses()
    {
        StartAtBadEntry("txtFrequency");
        desk->window.close();
    }

    void SelectsTheWholeTextOnEnteringABox()
    {
        desk->Pick("cmbPartNum", "P0-0");
        auto* box = desk->Box("txtHeatResistance");
        box->setText("46.5");
        desk->Click("txtHeatResistance");
        QCOMPARE(box->selectedText(), "46.5");
        desk->Press(Qt::Key_Tab);
        QCOMPARE(desk->Box("txtAmbientTemp")->selectedText(), "25");
        desk->Press(Qt::Key_Backtab);
        QCOMPARE(box->selectedText(), "46.5");
        desk->Click("txtHeatResistance");
        QCOMPARE(box->selectedText(), "");
        // A pop-up menu over a part of the text keeps that part selected.
        box->setSelection(0, 2);
        QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
        QApplication::sendEvent(box, &back);
        QCOMPARE(box->selectedText(), "46");
    }
};

QTEST_MAIN(FormLeavingTest)
#include "FormLeavingTest.moc"
