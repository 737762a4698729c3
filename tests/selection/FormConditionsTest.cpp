/// Which boxes a chart needs, and what is refused in them, as a user enters conditions.

#include "app/mdlPublic.h"
#include "tests/selection/ConditionsTest.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLocale>
#include <QTest>

static const QString BiasTo16 = "DC Bias Voltage is invalid!|Please enter a Number from 0 to 16[V]";
static const QString BiasUnder16 = "DC Bias Voltage is invalid!|Please enter a Number from 0 under 16[V]";
static const QString FrequencyRange = "Frequency is invalid!|Please enter a Number from 10 to 1000 [kHz]";
static const QString HeatAboveZero = "Heat Resistance is invalid!|Please enter a Number from 0 [C/W]";
static const QString Ambient20To125 =
    "Ambient Temperature is invalid!|Please enter a Number from 20 to 125 [C]";
static const QString NotANumber = "A Non-numerical value exists where numerical value should be in.";

class FormConditionsTest : public ConditionsTest
{
    Q_OBJECT

private Q_SLOTS:
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
        QCOMPARE(desk->messages.Taken(), QStringList{message});
        QCOMPARE(desk->newCharts + desk->redrawnCharts, 0);
        QCOMPARE(mdlPublic.Charts.ChartData().size(), std::size_t{1});
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
        QCOMPARE(mdlPublic.Charts.ChartData()[0].DCBiasVoltage, 2.5F);
    }
};

QTEST_MAIN(FormConditionsTest)
#include "FormConditionsTest.moc"
