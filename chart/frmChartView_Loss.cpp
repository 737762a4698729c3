#include "chart/frmChartView.h"

#include "app/mdlPublic.h"
#include "calc/ChartNames.h"
#include "chart/layout/ChartDrawing.h"
#include "chart/layout/LossLines.h"
#include "formkit/Texts.h"
#include "ui_frmChartView.h"

#include <utility>

// The loss resistances of a heating chart's parts, in the place of the chart.

void frmChartView::ConnectLoss()
{
    ui->mnuLossResistance->setEnabled(HasLossLines(chart.View().Chart));
    connect(ui->mnuLossResistance, &QAction::triggered, this, &frmChartView::mnuLossResistance_Click);
    addAction(ui->mnuLossResistance);
}

/// Takes the lines over that are to be shown.
ChartView frmChartView::TakeLines()
{
    scene.Code = GetCodeView();
    scene.Lines = chart.ViewedLines();
    ChartView shown = chart.View();
    if (ui->mnuLossResistance->isChecked())
    {
        scene.Lines = LossLinesOf(std::move(scene.Lines), scene.Code);
        shown.Chart = KeyOf(scene.Lines.front().Line);
        shown.Range = DefaultOfLines();
        shown.Rescaled = false;
    }
    return shown;
}

/// Range, cursors and title of what is not shown are kept for when it is shown again.
void frmChartView::mnuLossResistance_Click()
{
    const bool isFirst = !other;
    const auto x = scene.View.Chart.XAxisName;
    const OtherChart left{.Zoom = zoom,
                          .Shown = chartShown,
                          .HasOwnRange = hasOwnRange,
                          .Cursors = scene.Cursors,
                          .Title = windowTitle()};
    const OtherChart taken = other.value_or(OtherChart{.Cursors = scene.Cursors});
    other = left;
    zoom = taken.Zoom;
    chartShown = taken.Shown;
    hasOwnRange = taken.HasOwnRange;
    scene.Cursors = taken.Cursors;
    ui->mnuToChartWindow->setEnabled(!ui->mnuLossResistance->isChecked());
    ShowLines();
    if (isFirst && x != scene.View.Chart.XAxisName)
    {
        StartCursor();
    }
    setWindowTitle(isFirst ? QStringLiteral("Chart View - ") + FromAnsi(ChartCaption(scene.View.Chart))
                           : taken.Title);
}
