#include "chart/frmChartView.h"

#include "chart/LineTable.h"
#include "chart/frmSetAxis.h"
#include "formkit/RunCommand.h"
#include "ui_frmChartView.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>

static constexpr double ZoomStep = 1.25;
static constexpr double TextStep = 1.15;

void frmChartView::ConnectCommands()
{
    const auto connectTo = [this](QAction* action, auto command)
    { connect(action, &QAction::triggered, this, command); };
    connectTo(ui->mnuDefaultRange, &frmChartView::mnuDefaultRange_Click);
    connectTo(ui->mnuRange, &frmChartView::mnuRange_Click);
    connectTo(ui->mnuToChartWindow, &frmChartView::mnuToChartWindow_Click);
    connectTo(ui->mnuZoomIn, [this] { Zoom(ZoomStep); });
    connectTo(ui->mnuZoomOut, [this] { Zoom(1 / ZoomStep); });
    connectTo(ui->mnuDashes, &frmChartView::mnuDashes_Click);
    connectTo(ui->mnuTextSmaller, [this] { ScaleText(1 / TextStep); });
    connectTo(ui->mnuTextLarger, [this] { ScaleText(TextStep); });
    connectTo(ui->mnuFullScreen, &frmChartView::mnuFullScreen_Click);
    const auto connectOutput = [this](QAction* action, void (frmChartView::*command)())
    {
        connect(action, &QAction::triggered, this,
                [=, this] { RunCommand(this, [=, this] { (this->*command)(); }); });
    };
    connectOutput(ui->mnuSavePicture, &frmChartView::mnuSavePicture_Click);
    connectOutput(ui->mnuSaveData, &frmChartView::mnuSaveData_Click);
    connectOutput(ui->mnuSaveModel, &frmChartView::mnuSaveModel_Click);
    connectOutput(ui->mnuCopy, &frmChartView::mnuCopy_Click);
    connectTo(ui->mnuPrint, &frmChartView::mnuPrint_Click);
    connectTo(ui->mnuCopyTable, &frmChartView::mnuCopyTable_Click);
    connectTo(ui->mnuUseConditions, &frmChartView::mnuUseConditions_Click);
    connectTo(ui->mnuHelp, [this] { chart.Host().ShowHelpTopic(QStringLiteral("windows-view")); });
    connectTo(ui->mnuClose, &frmChartView::close);
    // The plus sign shares its key with the equals sign on many keyboards, and comes with Shift on others.
    ui->mnuZoomIn->setShortcuts(
        {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal, Qt::CTRL | Qt::SHIFT | Qt::Key_Plus});
    addActions({ui->mnuZoomIn, ui->mnuZoomOut, ui->mnuTextSmaller, ui->mnuTextLarger, ui->mnuFullScreen,
                ui->mnuSaveModel, ui->mnuCopyTable, ui->mnuHelp, ui->mnuClose});
}

// ---- The range ----

/// Draws the chart in the range that zoom and pan have come to.
void frmChartView::ChangeRange()
{
    scene.View.Range = zoom.Range();
    hasOwnRange = !zoom.IsDefault() && zoom.Range() != chartShown.Range;
    NoteUnseenLines();
    ui->picChartView->Redraw();
    ShowCursorTexts();
}

void frmChartView::NoteUnseenLines()
{
    unseen.clear();
    for (std::size_t line = 0; line < scene.Lines.size(); ++line)
    {
        const bool isSeen = !ViewedCurve(scene.Lines[line], scene.View, scene.Code).empty();
        if (hasOwnRange && !isSeen)
        {
            unseen << QStringLiteral("No.%1").arg(line + 1);
        }
    }
}

void frmChartView::Pan(double byX, double byY)
{
    zoom.Pan(byX, byY);
    ChangeRange();
}

void frmChartView::StartDrag()
{
    zoomAtDrag = zoom;
    plotAtDrag = ui->picChartView->Chart().Plot();
}

/// Y goes first: its labels decide where the plot stands in which X goes with the pointer.
void frmChartView::Drag(const QPointF& from, const QPointF& to)
{
    const QPointF start = PlotUnits(from, plotAtDrag);
    zoom = zoomAtDrag;
    zoom.Pan(0, start.y() - PlotUnits(to, plotAtDrag).y());
    const QRectF plot = ui->picChartView->PlotShowing(zoom.Range());
    Pan(start.x() - PlotUnits(to, plot).x(), 0);
}

/// What stands at a place, or at the nearest of the plot, stays there. New Y labels may move the plot: a
/// first trial tells where to.
void frmChartView::ZoomAbout(double factor, const QPointF& place, ZoomAxes axes)
{
    const QRectF plot = ui->picChartView->Chart().Plot();
    const QPointF held(std::clamp(place.x(), plot.left(), plot.right()),
                       std::clamp(place.y(), plot.top(), plot.bottom()));
    const QPointF at = PlotUnits(held, plot);
    ZoomRange trial = zoom;
    trial.Zoom(factor, at.x(), at.y(), axes);
    const QPointF after = PlotUnits(held, ui->picChartView->PlotShowing(trial.Range()));
    zoom.Zoom(factor, at.x(), at.y(), axes, after.x());
    ChangeRange();
}

/// Zooms about the cursor, or about the middle while it is out of view.
void frmChartView::Zoom(double factor)
{
    const FittingChart& shown = ui->picChartView->Chart();
    const QPointF middle = shown.Plot().center();
    ZoomAbout(factor, {shown.PixelOfX(scene.Cursors.Moving()).value_or(middle.x()), middle.y()},
              ZoomAxes::Both);
}

void frmChartView::mnuDefaultRange_Click()
{
    zoom.Reset();
    ChangeRange();
}

void frmChartView::mnuRange_Click()
{
    frmSetAxis dialog(scene.View, defaults, this);
    if (dialog.exec() == QDialog::Accepted)
    {
        zoom.Set(dialog.Range());
        ChangeRange();
    }
}

void frmChartView::mnuToChartWindow_Click()
{
    chart.SetRange(scene.View.Range);
}

// ---- Taking away ----

void frmChartView::mnuCopyTable_Click()
{
    QGuiApplication::clipboard()->setText(table->CopiedWhole());
    ShowTold(QStringLiteral("Copied"), false);
}

/// The chosen rows while the table has the focus, all where none is chosen; else the picture.
void frmChartView::mnuCopy_Click()
{
    std::vector<int> rows;
    for (const QModelIndex& chosen : ui->tblLines->selectionModel()->selectedRows())
    {
        rows.push_back(chosen.row());
    }
    std::ranges::sort(rows);
    if (!ui->tblLines->hasFocus())
    {
        CopyPicture();
    }
    else
    {
        QGuiApplication::clipboard()->setText(rows.empty() ? table->CopiedWhole() : table->Copied(rows));
    }
    ShowTold(QStringLiteral("Copied"), false);
}

void frmChartView::mnuUseConditions_Click()
{
    const int line = scene.Chosen.value_or(0);
    // Those of the chart also while loss resistances are shown, which have fewer.
    chart.Host().UseConditions(chart.ViewedLines().at(static_cast<std::size_t>(line)).Line, line + 1);
}

// ---- The context menu ----

void frmChartView::ShowMenu(const QPoint& at)
{
    auto* const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuPopupView"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(
        {ui->mnuDefaultRange, ui->mnuZoomIn, ui->mnuZoomOut, ui->mnuRange, ui->mnuToChartWindow});
    menu->addSeparator();
    if (ui->mnuLossResistance->isEnabled())
    {
        menu->addAction(ui->mnuLossResistance);
    }
    menu->addActions({ui->mnuDashes, ui->mnuTextSmaller, ui->mnuTextLarger, ui->mnuFullScreen});
    menu->addSeparator();
    menu->addActions(
        {ui->mnuSavePicture, ui->mnuSaveData, ui->mnuSaveModel, ui->mnuCopy, ui->mnuCopyTable, ui->mnuPrint});
    menu->addSeparator();
    menu->addActions({ui->mnuUseConditions, ui->mnuHelp, ui->mnuClose});
    menu->popup(at);
}

/// At the chosen row while the table is worked in, else in the middle of the chart.
void frmChartView::ShowMenuByKey()
{
    const QWidget* const rows = ui->tblLines->viewport();
    const QRect row = ui->tblLines->visualRect(ui->tblLines->currentIndex());
    const bool atRow = ui->tblLines->hasFocus() && row.isValid();
    ShowMenu(atRow ? rows->mapToGlobal(row.center())
                   : ui->picChartView->mapToGlobal(ui->picChartView->rect().center()));
}

void frmChartView::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
    {
        ShowMenuByKey();
        return;
    }
    const QPoint inTable = ui->tblLines->viewport()->mapFromGlobal(event->globalPos());
    const int line = table->LineOf(ui->tblLines->rowAt(inTable.y()));
    if (ui->tblLines->viewport()->rect().contains(inTable) && line >= 0)
    {
        Choose(line);
        ShowChosenRow();
    }
    ShowMenu(event->globalPos());
}
