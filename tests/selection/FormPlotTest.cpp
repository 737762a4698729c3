/// Plotting the line that the form describes.

#include "app/mdlPublic.h"
#include "partdata/RunTimeError.h"
#include "tests/selection/ConditionsTest.h"
#include "tests/selection/Ranges.h"

#include <QTest>

#include <new>

class FormPlotTest : public ConditionsTest
{
    Q_OBJECT

private Q_SLOTS:
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
        QCOMPARE(mdlPublic.Charts.CurrentChart(), 6);
        QCOMPARE(mdlPublic.Charts.ChartData().size(), std::size_t{6});
        QCOMPARE(desk->Text("txtDCBiasVol"), "7");
        desk->Pick("cmbYaxis", "Capacitance Change");
        desk->Click("cmdPlot");
        QCOMPARE(desk->newCharts, 2);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void KeepsNoLineThatCouldNotBeShown_data()
    {
        QTest::addColumn<bool>("memory");
        QTest::addColumn<QString>("message");
        QTest::newRow("an error") << false << "other icon: Unexpected Error 57|Device I/O error";
        QTest::newRow("no memory") << true << "other icon: Unexpected Error 7|Out of memory";
    }
    void KeepsNoLineThatCouldNotBeShown()
    {
        QFETCH(bool, memory);
        desk->ChooseChartType(2);
        desk->Pick("cmbPartNum", "P0-0");
        desk->Enter("txtDCBiasVol", "1");
        desk->chartFault = memory ? std::make_exception_ptr(std::bad_alloc())
                                  : std::make_exception_ptr(RunTimeError(RunTimeErrorNumber::DeviceIoError));
        desk->Click("cmdPlot");
        QTEST(desk->messages.Taken().join(u','), "message");
        QCOMPARE(mdlPublic.Charts.CurrentChart(), 0);
        QCOMPARE(mdlPublic.Charts.ChartData().size(), std::size_t{1});
        QCOMPARE(mdlPublic.Charts.ChartData()[0].XAxisName, std::string());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        desk->chartFault = nullptr;
        desk->Click("cmdPlot");
        QCOMPARE(desk->newCharts, 1);
    }

    void RefusesAParameterAboveTheLimitAndTakesTheLimitItself()
    {
        desk.reset();
        desk = std::make_unique<SelectionDesk>(SampleRange());
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
        QCOMPARE(mdlPublic.Charts.ChartData()[0].XAxisName, std::string());
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
};

QTEST_MAIN(FormPlotTest)
#include "FormPlotTest.moc"
