/// What a click and Plot cost until everything is painted, beside bare windows with the same controls: the
/// click fills the same lists with plain entries, and the plot opens a window that paints the same lines at
/// once.

#include "app/mdlPublic.h"
#include "bench/NotedChart.h"
#include "bench/Turns.h"
#include "bench/desk/BareWindows.h"
#include "calc/DefaultAxes.h"
#include "chart/frmGraph.h"
#include "chart/layout/ChartDrawing.h"
#include "tests/frame/Desk.h"

#include <QApplication>
#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QTest>

// ---- A click on a chart type ----

static const std::vector<const char*> listNames = {"cmbSizeCode", "cmbTcc",   "cmbCap",  "cmbRatedVol",
                                                   "cmbPartNum",  "cmbXaxis", "cmbYaxis"};

/// What the form's lists hold after a click on a chart type.
static std::vector<QStringList> EntriesOf(const Desk& desk)
{
    std::vector<QStringList> entries;
    for (const char* name : listNames)
    {
        const auto* box = desk.Find<QComboBox>(QString::fromLatin1(name));
        auto& list = entries.emplace_back();
        for (int row = 0; row < box->count(); ++row)
        {
            list << box->itemText(row);
        }
    }
    return entries;
}

static void FillLists(const BareDesk& bare, const std::vector<QStringList>& entries)
{
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        bare.lists[i]->clear();
        bare.lists[i]->addItems(entries[i]);
    }
}

static void CompareClicks(Desk& desk, BareDesk& bare)
{
    std::vector<std::vector<QStringList>> entries;
    for (int type = 0; type < 4; ++type)
    {
        desk.ClickChartType(type);
        entries.push_back(EntriesOf(desk));
        QObject::connect(bare.chartTypes[static_cast<std::size_t>(type)], &QRadioButton::clicked,
                         [&, type] { FillLists(bare, entries[static_cast<std::size_t>(type)]); });
    }
    CompareInTurns(
        "click-chart-type", 200,
        [&](int round)
        {
            return MicrosecondsOf(
                [&]
                {
                    desk.ClickChartType(round % 4);
                    Settle();
                });
        },
        [&](int round)
        {
            return MicrosecondsOf(
                [&]
                {
                    QTest::mouseClick(bare.chartTypes[static_cast<std::size_t>(round % 4)], Qt::LeftButton,
                                      {}, QPoint(8, 8));
                    Settle();
                });
        });
}

// ---- Plot ----

/// Everything that the charts of the store paint, noted.
static std::shared_ptr<NotedChart> NoteChart()
{
    QImage picture(374, 244, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    const QRectF target(0, 0, chartSurfaceWidth, chartSurfaceHeight);
    auto noted = std::make_shared<NotedChart>(painter, target, chartScale);
    const auto lines = mdlPublic.Charts.LinesToPlace();
    const ChartKey chart = KeyOf(lines.front());
    const ChartView view = {chart, DefaultRange(chart, lines)};
    PlaceCurves(view, lines);
    DrawAxes(view, *noted);
    DrawCurves(view, lines, *noted);
    return noted;
}

static double MicrosecondsOfBarePlot(BareDesk& bare, const std::shared_ptr<NotedChart>& noted)
{
    const auto font = ChartFont();
    QMdiSubWindow* chart = nullptr;
    const double time = MicrosecondsOf(
        [&]
        {
            chart = AddBareChart(*bare.area,
                                 [noted, font](QPainter& painter) { PaintNoted(*noted, painter, font); });
            chart->show();
            Settle();
        });
    chart->close();
    Settle();
    return time;
}

/// A first line in a window of its own, which is closed again; closing is not counted.
static void ComparePlots(Desk& desk, BareDesk& bare)
{
    desk.ClickChartType(2);
    desk.TypePart(ListedPart(desk, 5));
    desk.Type(QStringLiteral("txtDCBiasVol"), QStringLiteral("1"));
    desk.ClickPlot();
    const auto noted = NoteChart();
    desk.Charts().front()->close();
    Settle();
    CompareInTurns(
        "plot-new-window", 100,
        [&](int)
        {
            const double time = MicrosecondsOf([&] { desk.ClickPlot(); });
            desk.Charts().front()->close();
            Settle();
            return time;
        },
        [&](int) { return MicrosecondsOfBarePlot(bare, noted); });
}

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    Desk desk;
    BareDesk bare;
    bare.window.show();
    Settle();
    CompareClicks(desk, bare);
    ComparePlots(desk, bare);
    return 0;
}
