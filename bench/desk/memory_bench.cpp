/// The memory of the program with the largest possible part range and all thirteen charts open, six lines in
/// each, or of bare windows with the same controls.
///
///     memory_bench program|bare|bare_with_charts
///
/// Prints the memory that the process has written to and shares with no other, in KiB.

#include "app/mdlPublic.h"
#include "bench/desk/BareWindows.h"
#include "bench/desk/LargestRange.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

static constexpr int Charts = 13;
static constexpr int LinesPerChart = 6;

static long DirtyKilobytes()
{
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string line; std::getline(rollup, line);)
    {
        if (line.starts_with("Private_Dirty:"))
        {
            return std::stol(line.substr(line.find(':') + 1));
        }
    }
    return 0;
}

static void EnterIfAsked(Desk& desk, const char* box, const QString& entry)
{
    if (desk.Find<QLineEdit>(QString::fromLatin1(box))->isEnabled())
    {
        desk.Type(QString::fromLatin1(box), entry);
    }
}

/// Six lines of a part in one chart, each at an ambient temperature or a bias of its own.
static void PlotSixLines(Desk& desk, int type, const QString& xAxis, const QString& yAxis)
{
    desk.ClickChartType(type);
    desk.PickYAxis(yAxis);
    desk.TypePart(ListedPart(desk, 5));
    desk.PickXAxis(xAxis);
    for (int line = 0; line < LinesPerChart; ++line)
    {
        EnterIfAsked(desk, "txtDCBiasVol", type < 2 ? QStringLiteral("0") : QString::number(line));
        EnterIfAsked(desk, "txtFrequency", QStringLiteral("100"));
        EnterIfAsked(desk, "txtParameter", QStringLiteral("0.001"));
        EnterIfAsked(desk, "txtAmbientTemp", QString::number(25 + line));
        desk.ClickPlot();
    }
}

static void OpenAllCharts(Desk& desk)
{
    for (const char* axis : {"Current", "Voltage", "Apparent Power", "Effective Power"})
    {
        PlotSixLines(desk, 0, QString::fromLatin1(axis), QStringLiteral("Temperature Rise"));
        PlotSixLines(desk, 1, QStringLiteral("Frequency"), QString::fromLatin1(axis));
    }
    PlotSixLines(desk, 0, QStringLiteral("Frequency"), QStringLiteral("Temperature Rise"));
    for (const char* axis : {"Capacitance", "Capacitance Change"})
    {
        PlotSixLines(desk, 2, QStringLiteral("Temperature"), QString::fromLatin1(axis));
        PlotSixLines(desk, 3, QStringLiteral("DC Bias Voltage"), QString::fromLatin1(axis));
    }
}

static int MeasureProgram()
{
    Desk desk(LargestRange().Folder());
    OpenAllCharts(desk);
    for (const auto& said : desk.TakeBoxes())
    {
        std::cerr << said.text.toStdString() << '\n';
    }
    if (desk.Charts().size() != Charts ||
        mdlPublic.Charts.Lines().size() != std::size_t{Charts * LinesPerChart})
    {
        std::cerr << desk.Charts().size() << " charts, " << mdlPublic.Charts.Lines().size() << " lines\n";
        return 1;
    }
    std::printf("%ld\n", DirtyKilobytes());
    return 0;
}

static int MeasureBare(int charts)
{
    BareDesk desk;
    desk.window.show();
    for (int i = 0; i < charts; ++i)
    {
        AddBareChart(*desk.area)->show();
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    std::printf("%ld\n", DirtyKilobytes());
    return 0;
}

int main(int argc, char* argv[])
{
    const std::string what = argc == 2 ? argv[1] : "";
    if (what != "program" && what != "bare" && what != "bare_with_charts")
    {
        std::cerr << "usage: memory_bench program|bare|bare_with_charts\n";
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    return what == "program" ? MeasureProgram() : MeasureBare(what == "bare" ? 0 : Charts);
}
