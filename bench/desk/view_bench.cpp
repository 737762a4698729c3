/// What the steps of a chart view cost until everything is painted, beside a bare window of the same size
/// that fills itself anew: a cursor's step, another line under the pointer, a notch of the wheel, a step of
/// size.

#include "bench/Turns.h"
#include "bench/desk/BareWindows.h"
#include "chart/frmChartView.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <array>
#include <string>

/// Longer than a view waits until it keeps its chart as a picture.
static constexpr int UntilQuiet = 400;
static constexpr int Rounds = 100;

/// A view of six lines, and the bare window beside it.
class ViewBench
{
public:
    ViewBench(frmChartView& chartView, const QSize& windowSize)
        : view(chartView)
        , canvas(*chartView.findChild<ChartCanvas*>(QStringLiteral("picChartView")))
        , size(windowSize)
    {
        view.showNormal();
        view.resize(size);
        bare.resize(size);
        bare.show();
        QTest::qWait(UntilQuiet);
    }

    void Compare()
    {
        CompareSteps("cursor", [this](int round)
                     { QTest::keyClick(&canvas, round % 20 < 10 ? Qt::Key_Right : Qt::Key_Left); });
        PinBoth();
        CompareSteps("hover", [this](int round)
                     { QTest::mouseMove(&canvas, lines[static_cast<std::size_t>(round % 2)]); });
        TurnWheel(120);
        CompareSteps("wheel", [this](int round) { TurnWheel(round % 2 == 0 ? 120 : -120); });
        CompareResizing();
    }

private:
    std::string NameOf(const std::string& step) const
    {
        return "view-" + step + '-' + std::to_string(size.height());
    }

    void CompareSteps(const std::string& step, const std::function<void(int)>& work)
    {
        QTest::qWait(UntilQuiet);
        CompareInTurns(
            NameOf(step), Rounds,
            [&](int round)
            {
                return MicrosecondsOf(
                    [&]
                    {
                        work(round);
                        Settle();
                    });
            },
            [this](int)
            {
                return MicrosecondsOf(
                    [this]
                    {
                        bare.update();
                        Settle();
                    });
            });
    }

    void CompareResizing()
    {
        const auto resized = [this](QWidget& window, int round)
        {
            return MicrosecondsOf(
                [&]
                {
                    window.resize(size - (round % 2 == 0 ? QSize(10, 6) : QSize(0, 0)));
                    Settle();
                });
        };
        CompareInTurns(
            NameOf("resize"), Rounds, [&](int round) { return resized(view, round); },
            [&](int round) { return resized(bare, round); });
    }

    /// Pins both cursors, so that the pointer does not move one, and finds places on two lines.
    void PinBoth()
    {
        QTest::keyClick(&canvas, Qt::Key_Return);
        QTest::keyClick(&canvas, Qt::Key_Return);
        const QRectF plot = canvas.Chart().Plot();
        const double x = plot.center().x();
        for (int y = static_cast<int>(plot.top()); y < plot.bottom(); ++y)
        {
            if (const auto line = canvas.Chart().LineNear({x, static_cast<double>(y)}, 1))
            {
                lines[*line == 0 ? 0 : 1] = QPoint(static_cast<int>(x), y);
            }
        }
    }

    void TurnWheel(int angle)
    {
        const QPointF at = lines[0];
        QWheelEvent turn(at, canvas.mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&canvas, &turn);
    }

    frmChartView& view;
    ChartCanvas& canvas;
    QSize size;
    BareView bare;
    /// Places on the first line and on another.
    std::array<QPoint, 2> lines;
};

static frmChartView* OpenedView(Desk& desk)
{
    for (int line = 0; line < 6; ++line)
    {
        desk.PlotCapacitance(ListedPart(desk, 5 + 20 * line), QStringLiteral("1"),
                             QStringLiteral("Capacitance Change"));
    }
    auto* const picture = desk.Charts().front()->findChild<QWidget*>(QStringLiteral("picGraph"));
    QTest::mouseDClick(picture, Qt::LeftButton, {}, picture->rect().center());
    for (QWidget* window : QApplication::topLevelWidgets())
    {
        if (auto* const view = qobject_cast<frmChartView*>(window))
        {
            return view;
        }
    }
    return nullptr;
}

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    Desk desk;
    frmChartView* const view = OpenedView(desk);
    if (view == nullptr || view->Scene().Lines.size() != 6)
    {
        std::fputs("no view of six lines has opened\n", stderr);
        return 1;
    }
    for (const QSize& size : {QSize(1920, 1080), QSize(3840, 2160)})
    {
        ViewBench(*view, size).Compare();
    }
    return 0;
}
