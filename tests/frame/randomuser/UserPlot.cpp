/// How the random user plots, and what must come of it.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/randomuser/PlainNumbers.h"
#include "tests/frame/randomuser/User.h"

#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QTest>

#include <cmath>

/// The checks before Plot, Save and Print: the first that fails tells its message and gets the focus.
bool User::ChecksPass()
{
    for (const QString& box : form->CheckedBoxes())
    {
        if (const auto refusal = form->Refusal(box))
        {
            Expect({Exclamation(*refusal)});
            found.Same("the focus", hands->Focus(), box);
            return false;
        }
    }
    return true;
}

/// A limit as the message shows it: rounded down to four digits.
static QString ShownLimit(double limit)
{
    const QString text = PlainText(static_cast<float>(limit));
    const double value = text.toDouble();
    const double unit = std::pow(10.0, std::floor(std::log10(value)) - 3);
    return PlainText(static_cast<float>(std::floor(value / unit + 1e-6) * unit));
}

/// The line that is asked for, with its curve; nothing when its parameter is refused, which must have been
/// told.
std::optional<PlainLine> User::LineUnlessRefused(const ChartRecord& asked)
{
    const PartRecord& part = mdlPublic.Parts.PartData[static_cast<std::size_t>(asked.PartDataIndex)];
    PlainLine line{.Asked = asked, .Curve = PlainCurveOf(part, asked, View())};
    const bool overFrequency = asked.ChartType == 0 && asked.XAxisName == "Frequency";
    const float value = asked.ParameterValue;
    if (overFrequency && !(value >= 0 && value <= static_cast<float>(line.Curve.Limit)))
    {
        Expect({Exclamation("Parameter is invalid!\nPlease enter a Number from 0 to " +
                            ShownLimit(line.Curve.Limit))});
        found.Same("the focus", hands->Focus(), QString("txtParameter"));
        return std::nullopt;
    }
    return line;
}

/// What Plot must have done.
void User::Plot()
{
    hands->Ready();
    if (!ChecksPass())
    {
        return;
    }
    const ChartRecord asked = form->Asked();
    if (charts.Holds(asked))
    {
        Expect({Exclamation("This Chart is already opened!")});
    }
    else if (charts.LinesOf(CaptionOf(asked)) == 6)
    {
        Expect({Exclamation("Maximum Numbers of this Chart Type open!")});
    }
    else if (const auto line = LineUnlessRefused(asked))
    {
        ShowLine(*line);
    }
}

/// The default ranges of a chart, from the store, whose curves are compared with the model's.
AxisRange User::Defaults(const QString& caption) const
{
    std::optional<AxisRange> range;
    for (const ChartRecord& line : mdlPublic.Charts.Lines())
    {
        if (CaptionOf(line) == caption)
        {
            const AxisRange limits = PlainLimits(line, View());
            range = range ? Union(*range, limits) : limits;
        }
    }
    return range.value_or(AxisRange{});
}

void User::ShowLine(const PlainLine& line)
{
    const QString caption = CaptionOf(line.Asked);
    charts.Plot(line, Defaults(caption));
    const auto* chart = hands->Chart(caption);
    found.Check(chart != nullptr && hands->Area()->activeSubWindow() == chart,
                "the plotted chart is not the active window: " + caption);
}

QString User::PlotByMouse()
{
    if (!form->CanPlot)
    {
        return "disabled";
    }
    if (const auto refusal = RefusalOnLeaving("cmdPlot", true))
    {
        const QString box = BoxWithFocus();
        hands->ClickPlot();
        hands->Ready();
        Expect({Exclamation(*refusal)});
        found.Same("the focus", hands->Focus(), box);
        return "refused";
    }
    hands->ClickPlot();
    Plot();
    return CaptionOf(form->Asked());
}

/// Space on the button that has the focus.
QString User::PlotByKey()
{
    if (!form->CanPlot || !GoTo("cmdPlot", false))
    {
        return "not reached";
    }
    hands->Press(Qt::Key_Space);
    Plot();
    return CaptionOf(form->Asked());
}

/// Enter in the box that has the focus.
QString User::PlotByEnter()
{
    if (BoxWithFocus().isEmpty())
    {
        return "no box has the focus";
    }
    hands->Press(Chance(50) ? Qt::Key_Return : Qt::Key_Enter);
    Plot();
    return CaptionOf(form->Asked());
}

/// The button goes down for a moment before it acts.
QString User::PlotByAccessKey()
{
    hands->Press(Qt::Key_P, Qt::AltModifier);
    if (!form->CanPlot)
    {
        return "not reached";
    }
    const auto* button = hands->Of<QPushButton>("cmdPlot");
    found.Check(QTest::qWaitFor([&] { return !button->isDown(); }, 2000), "Plot stays down");
    Settle();
    Plot();
    return CaptionOf(form->Asked());
}

/// Chooses everything rightly and plots, so that charts fill up to the seventh line.
QString User::PlotSomething()
{
    const int type = Chance(50) ? form->Selection.ChartType : Lot(4);
    if (GoTo(QStringLiteral("optChartType_%1").arg(type), true))
    {
        form->ChooseChartType(type);
    }
    for (const char* list : {"cmbXaxis", "cmbYaxis"})
    {
        const QStringList entries = QString(list) == "cmbXaxis" ? form->XAxes() : form->YAxes();
        const int row = Lot(static_cast<int>(entries.size()));
        hands->ClickArrow(list);
        hands->PickOpen(list, row);
        PickEntry(list, row);
    }
    const auto& parts = form->Selection.Parts;
    const int row = Lot(static_cast<int>(parts.size()));
    hands->ClickArrow("cmbPartNum");
    hands->PickOpen("cmbPartNum", row);
    PickEntry("cmbPartNum", row);
    static const QMap<QString, QStringList> entries = {{"txtDCBiasVol", {"0", "1"}},
                                                       {"txtFrequency", {"100", "200"}},
                                                       {"txtAmbientTemp", {"20", "30", "40"}},
                                                       {"txtParameter", {"0", "0.00001"}}};
    for (const QString& box : form->CheckedBoxes())
    {
        if (entries.contains(box) && GoTo(box, true))
        {
            const QString entry = AnyOf(entries[box]);
            hands->Replace(hands->Of<QLineEdit>(box), entry, true);
            form->Boxes[box] = entry;
        }
    }
    return PlotByMouse();
}
