/// Entering conditions and plotting, as a user does it.

#include "app/mdlPublic.h"
#include "tests/selection/Desk.h"
#include "tests/selection/Ranges.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLocale>
#include <QTest>

static PartTable Range()
{
    return MakeRange({{"P0", {"0805", "2012"}, {"X7R", "R"}, 1000, 16},
                      {"P1", {"0805", "2012"}, {"X5R", "B"}, 1000, 6.3F},
                      {"P2", {"0805", "2012"}, {"Y5V", "F"}, 1000, 50}});
}

static const QString BiasTo16 = "DC Bias Voltage is invalid!|Please enter a Number from 0 to 16[V]";
static const QString BiasUnder16 = "DC Bias Voltage is invalid!|Please enter a Number from 0 under 16[V]";
static const QString FrequencyRange = "Frequency is invalid!|Please enter a Number from 10 to 1000 [kHz]";
static const QString HeatAboveZero = "Heat Resistance is invalid!|Please enter a Number from 0 [C/W]";
static const QString Ambient20To125 =
    "Ambient Temperature is invalid!|Please enter a Number from 20 to 125 [C]";
static const QString NotANumber = "A Non-numerical value exists where numerical value should be in.";

class FormConditionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { desk = std::make_unique<Desk>(Range()); }
    void cleanup()
    {
        QCOMPARE(desk->messages.Taken(), QStringList());
        desk.reset();
        QLocale::setDefault(QLocale::c());
    }

    // ---- Which boxes a chart needs ----

    void EnablesTheBoxesOfTheChartType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("xAxis");
        QTest::addColumn<QStringList>("enabled");
        QTest::newRow("temperature rise over load")
            << 0 << "Voltage"
            << QStringList{"txtDCBiasVol", "txtFrequency", "txtHeatResistance", "txtAmbientTemp"};
        QTest::newRow("temperature rise over frequency")
            << 0 << "Frequency"
            << QStringList{"txtDCBiasVol", "txtHeatResistance", "txtAmbientTemp", "txtParameter"};
        QTest::newRow("allowable power")
            << 1 << "Frequency" << QStringList{"txtDCBiasVol", "txtHeatResistance", "txtAmbientTemp"};
        QTest::newRow("over temperature") << 2 << "Temperature" << QStringList{"txtDCBiasVol"};
        QTest::newRow("over bias") << 3 << "DC Bias Voltage" << QStringList{"txtAmbientTemp"};
    }
    void EnablesTheBoxesOfTheChartType()
    {
        QFETCH(int, type);
        QFETCH(QString, xAxis);
        QFETCH(QStringList, enabled);
        desk->ChooseChartType(type);
        desk->Pick("cmbXaxis", xAxis);
        desk->Pick("cmbPartNum", "P0-0");
        QCOMPARE(EnabledBoxes(), enabled);
        QCOMPARE(desk->Text("txtHeatResistance"), type <= 1 ? "40" : "");
        for (const char* option : {"optParameter_0", "optParameter_1", "optParameter_2", "optParameter_3"})
        {
            QCOMPARE(desk->Enabled(option), enabled.contains("txtParameter"));
        }
        desk->TypePart("none");
        QCOMPARE(EnabledBoxes(), QStringList());
        QCOMPARE(desk->Text("txtHeatResistance"), "");
        QVERIFY(!desk->Enabled("fraCondition"));
        QVERIFY(!desk->Enabled("fraParameter"));
    }

    void LetsTheXAxisDecideBetweenFrequencyAndParameter()
    {
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtFrequency", "100");
        desk->Pick("cmbXaxis", "Frequency");
        QVERIFY(!desk->Enabled("txtFrequency"));
        QVERIFY(!desk->Enabled("lblFrequency"));
        QVERIFY(desk->Enabled("txtParameter"));
        desk->Click("optParameter_3");
        desk->Enter("txtParameter", "5");
        desk->Pick("cmbXaxis", "Current");
        QVERIFY(desk->Enabled("txtFrequency"));
        QVERIFY(!desk->Enabled("txtParameter"));
        QCOMPARE(desk->Text("txtParameter"), "");
        QVERIFY(desk->Option("optParameter_0")->isChecked());
        QCOMPARE(desk->Find<QLabel>("lblParameter")->text(), "[Arms]");
    }

    void EnablesTheParameterWithoutAPartButNotTheFrequency()
    {
        desk->Pick("cmbXaxis", "Frequency");
        QCOMPARE(EnabledBoxes(), QStringList{"txtParameter"});
        desk->Pick("cmbXaxis", "Voltage");
        QCOMPARE(EnabledBoxes(), QStringList());
    }

    void NamesTheUnitOfTheParameter()
    {
        desk->Pick("cmbPartNum", "P0-0");
        desk->Pick("cmbXaxis", "Frequency");
        const QStringList units = {"[Arms]", "[Vrms]", "[W]", "[VA]"};
        for (int i = 3; i >= 0; --i)
        {
            desk->Enter("txtParameter", "1");
            desk->Click(("optParameter_" + std::to_string(i)).c_str());
            QCOMPARE(desk->Find<QLabel>("lblParameter")->text(), units[i]);
            QCOMPARE(desk->Text("txtParameter"), "");
            QCOMPARE(desk->form->GetParameterType(), i);
        }
    }

    void ResetsTheAmbientTemperatureToTheReferenceOfTheCode()
    {
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtAmbientTemp", "60");
        desk->Pick("cmbSizeCode", "0805");
        QCOMPARE(desk->Text("txtAmbientTemp"), "25");
        desk->SwitchCodeView(1);
        QCOMPARE(desk->Text("txtAmbientTemp"), "20");
        desk->ChooseChartType(3);
        QCOMPARE(desk->Text("txtAmbientTemp"), "20");
    }

    // ---- Refusals ----

    void RefusesABadEntryHoweverItsBoxIsLeft_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("xAxis");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("message");
        QTest::newRow("bias") << 0 << "Current"
                              << "txtDCBiasVol"
                              << "17" << BiasTo16;
        QTest::newRow("empty bias") << 0 << "Current"
                                    << "txtDCBiasVol"
                                    << "" << BiasTo16;
        QTest::newRow("rated bias for allowable power") << 1 << "Frequency"
                                                        << "txtDCBiasVol"
                                                        << "16" << BiasUnder16;
        QTest::newRow("bias over temperature") << 2 << "Temperature"
                                               << "txtDCBiasVol"
                                               << "-1" << BiasTo16;
        QTest::newRow("frequency") << 0 << "Current"
                                   << "txtFrequency"
                                   << "9.99" << FrequencyRange;
        QTest::newRow("empty frequency") << 0 << "Current"
                                         << "txtFrequency"
                                         << "" << FrequencyRange;
        QTest::newRow("heat") << 1 << "Frequency"
                              << "txtHeatResistance"
                              << "0" << HeatAboveZero;
        QTest::newRow("ambient") << 0 << "Current"
                                 << "txtAmbientTemp"
                                 << "126" << Ambient20To125;
        QTest::newRow("ambient over bias")
            << 3 << "DC Bias Voltage"
            << "txtAmbientTemp"
            << "-56"
            << "Ambient Temperature is invalid!|Please enter a Number from -55 to 125 [C]";
        QTest::newRow("parameter") << 0 << "Frequency"
                                   << "txtParameter"
                                   << "x" << NotANumber;
        QTest::newRow("empty parameter") << 0 << "Frequency"
                                         << "txtParameter"
                                         << "" << NotANumber;
    }
    void RefusesABadEntryHoweverItsBoxIsLeft()
    {
        QFETCH(int, type);
        QFETCH(QString, xAxis);
        QFETCH(QString, box);
        QFETCH(QString, entry);
        QFETCH(QString, message);
        desk->ChooseChartType(type);
        desk->Pick("cmbXaxis", xAxis);
        desk->Pick("cmbPartNum", "P0-0");
        const QByteArray name = box.toLatin1();
        desk->Enter(name.constData(), entry);

        const auto refused = [&]
        {
            const bool focused = desk->Focus() == box;
            const bool selected = desk->Box(name.constData())->selectedText() == entry;
            return desk->messages.Taken() == QStringList{message} && focused && selected &&
                   desk->Text(name.constData()) == entry;
        };
        desk->Press(Qt::Key_Tab);
        QVERIFY2(refused(), "Tab");
        desk->Press(Qt::Key_Backtab);
        QVERIFY2(refused(), "Backtab");
        desk->Click("cmbYaxis");
        QVERIFY2(refused(), "click on a list");
        QVERIFY(!desk->List("cmbYaxis")->view()->isVisible());
        desk->Press(Qt::Key_Y, Qt::AltModifier);
        QVERIFY2(refused(), "access key of a list");
        desk->Press(Qt::Key_S, Qt::AltModifier);
        QVERIFY2(refused(), "access key of an upper list");
    }

    void AllowsNoPlotPastABadEntry_data() { RefusesABadEntryHoweverItsBoxIsLeft_data(); }
    void AllowsNoPlotPastABadEntry()
    {
        QFETCH(int, type);
        QFETCH(QString, xAxis);
        QFETCH(QString, box);
        QFETCH(QString, entry);
        QFETCH(QString, message);
        desk->ChooseChartType(type);
        desk->Pick("cmbXaxis", xAxis);
        desk->Pick("cmbPartNum", "P0-0");
        FillAllBoxes();
        const QByteArray name = box.toLatin1();
        desk->Enter(name.constData(), entry);

        desk->Click("cmdPlot");
        QCOMPARE(desk->messages.Taken(), QStringList{message});
        QCOMPARE(desk->Focus(), box);
        desk->Press(Qt::Key_P, Qt::AltModifier);
        QTest::qWait(150);
        QCOMPARE(desk->messages.Taken(), QStringList{message});
        QCOMPARE(desk->Focus(), box);
        desk->PlotButton()->setFocus();
        desk->Press(Qt::Key_Return);
        QCOMPARE(desk->messages.Taken(), QStringList{message});
        QCOMPARE(desk->Focus(), box);
        desk->PlotButton()->setFocus();
        desk->Press(Qt::Key_Space);
        QCOMPARE(desk->messages.Taken(), QStringList{message});
        desk->Press(Qt::Key_Return);
        QCOMPARE(desk->newCharts + desk->redrawnCharts, 0);
        QCOMPARE(mdlPublic.Charts.ChartData.size(), std::size_t{1});
        QCOMPARE(desk->Text(name.constData()), entry);
    }

    void ShowsOnlyTheFirstOfSeveralRefusalsOnPlot()
    {
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtFrequency", "5");
        desk->PlotButton()->setFocus();
        desk->Press(Qt::Key_Space);
        QCOMPARE(desk->messages.Taken(), QStringList{BiasTo16});
        QCOMPARE(desk->Focus(), "txtDCBiasVol");
    }

    /// The frequency comes last, after the ambient temperature.
    void ChecksTheFrequencyAfterTheAmbientTemperature()
    {
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtDCBiasVol", "0");
        desk->Enter("txtAmbientTemp", "10");
        desk->PlotButton()->setFocus();
        desk->Press(Qt::Key_Space);
        QCOMPARE(desk->messages.Taken(), QStringList{Ambient20To125});
        desk->Enter("txtAmbientTemp", "25");
        desk->Click("cmdPlot");
        QCOMPARE(desk->messages.Taken(), QStringList{FrequencyRange});
        QCOMPARE(desk->Focus(), "txtFrequency");
    }

    void KeepsTheRangeOfTheCharacteristicInBothCodes_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("part");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("range");
        QTest::newRow("X5R at -55 in EIA code") << 0 << "P1-0"
                                                << "-55"
                                                << "";
        QTest::newRow("X5R at -55 in JIS code") << 1 << "P1-1"
                                                << "-55"
                                                << "-25 to 85";
        QTest::newRow("Y5V at -30 in EIA code") << 0 << "P2-0"
                                                << "-30"
                                                << "";
        QTest::newRow("Y5V at -31 in EIA code") << 0 << "P2-0"
                                                << "-31"
                                                << "-30 to 85";
        QTest::newRow("Y5V at -30 in JIS code") << 1 << "P2-1"
                                                << "-30"
                                                << "-25 to 85";
        QTest::newRow("X7R at 126 in JIS code") << 1 << "P0-1"
                                                << "126"
                                                << "-55 to 125";
    }
    void KeepsTheRangeOfTheCharacteristicInBothCodes()
    {
        QFETCH(int, code);
        QFETCH(QString, part);
        QFETCH(QString, entry);
        QFETCH(QString, range);
        desk->SwitchCodeView(code);
        desk->ChooseChartType(3);
        desk->Pick("cmbPartNum", part);
        desk->Enter("txtAmbientTemp", entry);
        desk->Press(Qt::Key_Tab);
        const auto expected =
            range.isEmpty()
                ? QStringList()
                : QStringList{"Ambient Temperature is invalid!|Please enter a Number from " + range + " [C]"};
        QCOMPARE(desk->messages.Taken(), expected);
    }

    void ReadsTheUsersDecimalComma()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        desk->ChooseChartType(2);
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtDCBiasVol", "2,5");
        desk->Click("cmdPlot");
        QCOMPARE(desk->newCharts, 1);
        QCOMPARE(mdlPublic.Charts.ChartData[0].DCBiasVoltage, 2.5F);
    }

    // ---- What is no leaving ----

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
        desk->Press(Qt::Key_Return);
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

    // ---- Plot ----

    void RefusesTheSameLineTwiceAndASeventhOne()
    {
        desk->ChooseChartType(2);
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtDCBiasVol", "1");
        desk->Click("cmdPlot");
        QCOMPARE(desk->newCharts, 1);
        desk->Click("cmdPlot");
        QCOMPARE(desk->messages.Taken(), QStringList{"This Chart is already opened!"});
        for (const char* bias : {"2", "3", "4", "5", "6"})
        {
            desk->Enter("txtDCBiasVol", bias);
            desk->Press(Qt::Key_P, Qt::AltModifier);
            QTest::qWait(150);
        }
        QCOMPARE(desk->newCharts, 1);
        QCOMPARE(desk->redrawnCharts, 5);
        desk->Enter("txtDCBiasVol", "7");
        desk->Click("cmdPlot");
        QCOMPARE(desk->messages.Taken(), QStringList{"Maximum Numbers of this Chart Type open!"});
        QCOMPARE(mdlPublic.Charts.CurrentChart, 6);
        QCOMPARE(mdlPublic.Charts.ChartData.size(), std::size_t{6});
        QCOMPARE(desk->Text("txtDCBiasVol"), "7");
        desk->Pick("cmbYaxis", "Capacitance Change");
        desk->Click("cmdPlot");
        QCOMPARE(desk->newCharts, 2);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void KeepsNoLineThatCouldNotBeShown()
    {
        desk->ChooseChartType(2);
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtDCBiasVol", "1");
        desk->chartsFail = true;
        desk->Click("cmdPlot");
        QCOMPARE(desk->messages.Taken(), QStringList{"other icon: Unexpected Error 57|Device I/O error"});
        QCOMPARE(mdlPublic.Charts.CurrentChart, 0);
        QCOMPARE(mdlPublic.Charts.ChartData.size(), std::size_t{1});
        QCOMPARE(mdlPublic.Charts.ChartData[0].XAxisName, std::string());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        desk->chartsFail = false;
        desk->Click("cmdPlot");
        QCOMPARE(desk->newCharts, 1);
    }

    void RefusesAParameterAboveTheLimitAndTakesTheLimitItself()
    {
        desk.reset();
        desk = std::make_unique<Desk>(SampleRange());
        desk->Pick("cmbPartNum", "KTS188R71H224KA01");
        desk->Pick("cmbXaxis", "Frequency");
        desk->Enter("txtDCBiasVol", "0");
        desk->Enter("txtParameter", "1e9");
        desk->Click("cmdPlot");
        const auto shown = desk->messages.Taken();
        QCOMPARE(shown.size(), 1);
        const QString opening = "Parameter is invalid!|Please enter a Number from 0 to ";
        QVERIFY2(shown.front().startsWith(opening), qPrintable(shown.front()));
        QCOMPARE(desk->Focus(), "txtParameter");
        QCOMPARE(desk->Box("txtParameter")->selectedText(), "1e9");
        QCOMPARE(desk->newCharts, 0);
        QCOMPARE(mdlPublic.Charts.ChartData[0].XAxisName, std::string());
        desk->Enter("txtParameter", "-1");
        desk->Click("cmdPlot");
        QCOMPARE(desk->messages.Taken(), shown);
        desk->Enter("txtParameter", shown.front().mid(opening.size()));
        desk->Click("cmdPlot");
        QCOMPARE(desk->newCharts, 1);
    }

    void WritesWhatTheFormShowsAndZeroForDisabledBoxes()
    {
        desk->Pick("cmbPartNum", "P1-0");
        desk->Enter("txtDCBiasVol", "1.5");
        desk->Enter("txtFrequency", "250");
        desk->Enter("txtHeatResistance", "30");
        desk->Enter("txtAmbientTemp", "60");
        auto record = desk->form->WriteChartData(1, 0);
        QCOMPARE(record.XAxisName, std::string("Current"));
        QCOMPARE(record.YAxisName, std::string("Temperature Rise"));
        QCOMPARE(record.DCBiasVoltage, 1.5F);
        QCOMPARE(record.Frequency, 250.0F);
        QCOMPARE(record.HeatResistance, 30.0F);
        QCOMPARE(record.AmbientTemp, 60.0F);
        QCOMPARE(record.ParameterName, std::string("Current"));
        QCOMPARE(record.ParameterValue, 0.0F);
        desk->Pick("cmbXaxis", "Frequency");
        desk->Click("optParameter_3");
        desk->Enter("txtParameter", "7");
        record = desk->form->WriteChartData(1, 0);
        QCOMPARE(record.Frequency, 0.0F);
        QCOMPARE(record.ParameterName, std::string("Apparent Power"));
        QCOMPARE(record.ParameterValue, 7.0F);
        desk->ChooseChartType(3);
        record = desk->form->WriteChartData(1, 3);
        QCOMPARE(record.DCBiasVoltage, 0.0F);
        QCOMPARE(record.HeatResistance, 0.0F);
        QCOMPARE(record.AmbientTemp, 25.0F);
    }

private:
    static constexpr std::array<const char*, 5> Boxes = {"txtDCBiasVol", "txtFrequency", "txtHeatResistance",
                                                         "txtAmbientTemp", "txtParameter"};

    QStringList EnabledBoxes() const
    {
        QStringList enabled;
        for (const char* box : Boxes)
        {
            if (desk->Enabled(box))
            {
                enabled << box;
            }
        }
        return enabled;
    }

    void FillAllBoxes() const
    {
        const std::array<const char*, 5> valid = {"0", "100", "40", "25", "1"};
        for (std::size_t i = 0; i < Boxes.size(); ++i)
        {
            if (desk->Enabled(Boxes[i]))
            {
                desk->Enter(Boxes[i], valid[i]);
            }
        }
    }

    /// A complete part of a temperature rise, and a bad entry under the cursor.
    void StartAtBadEntry(const QString& box) const
    {
        if (box == "txtParameter")
        {
            desk->Pick("cmbXaxis", "Frequency");
        }
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter(box.toLatin1().constData(), "x");
    }

    std::unique_ptr<Desk> desk;
};

QTEST_MAIN(FormConditionsTest)
#include "FormConditionsTest.moc"
