#include "chart/frmGraph.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "chart/FittedLabel.h"
#include "chart/ModelSaving.h"
#include "chart/frmChartView.h"
#include "formkit/RunCommand.h"
#include "ui_frmGraph.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QShortcut>

/// How long the status bar tells where a model is, unless the pointer reads the chart out before.
static constexpr int SavedShownMs = 10000;

// ---- The chart view ----

void frmGraph::ConnectView()
{
    auto* const open = new QShortcut(Qt::CTRL | Qt::Key_E, this);
    open->setContext(Qt::WidgetWithChildrenShortcut);
    connect(open, &QShortcut::activated, this, &frmGraph::OpenView);
    connect(ui->picGraph, &ChartPicture::DoubleClicked, this, &frmGraph::OpenView);
}

void frmGraph::OpenView()
{
    if (chartView == nullptr)
    {
        chartView = new frmChartView(*this);
        chartView->setWindowTitle(QStringLiteral("Chart View - ") + windowTitle());
    }
    chartView->ComeToFront();
}

void frmGraph::ShowInView()
{
    if (chartView != nullptr && !Lines().empty())
    {
        chartView->ShowLines();
    }
}

ChartView frmGraph::View() const
{
    return ui->picGraph->View();
}

std::vector<ViewedLine> frmGraph::ViewedLines() const
{
    std::vector<ViewedLine> viewed;
    for (const ChartRecord* line : Lines())
    {
        // As the pane names it: the numbers on display switch pane by pane.
        const QLabel* const pane = lblStatus[viewed.size()];
        viewed.push_back({.Line = *line,
                          .Part = mdlPublic.Parts.PartData[static_cast<std::size_t>(line->PartDataIndex)],
                          .PartNumber = pane->text().toStdString()});
    }
    return viewed;
}

void frmGraph::SetRange(const AxisRange& range)
{
    WriteMagnification(range.XMax, range.YMax, range.XMin, range.YMin);
}

void frmGraph::UseConditionsOf(std::size_t line)
{
    const auto lines = Lines();
    if (line < lines.size())
    {
        host.UseConditions(*lines[line], static_cast<int>(line) + 1);
    }
}

void frmGraph::SaveModelOf(std::size_t line)
{
    const auto lines = Lines();
    if (line >= lines.size())
    {
        return;
    }
    RunCommand(this,
               [&]
               {
                   const auto ask = [this](const FileQuestion& question)
                   { return host.AskForFile(this, question); };
                   if (const auto path = SaveModels(this, {lines[line]->PartDataIndex}, ask))
                   {
                       ui->sbr1->showMessage(QStringLiteral("Model saved to ") + *path, SavedShownMs);
                   }
               });
}

// ---- Context menus ----

static QMenu* NewMenu(QWidget* parent, const char* name)
{
    auto* const menu = new QMenu(parent);
    menu->setObjectName(QLatin1String(name));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu;
}

void frmGraph::ShowChartMenu(const QPoint& at)
{
    QMenu* const menu = NewMenu(this, "mnuPopupChart");
    menu->addAction(QStringLiteral("&Open in Chart View\tCtrl+E"), this, &frmGraph::OpenView);
    QMenu* const conditions = menu->addMenu(QStringLiteral("&Use Conditions of"));
    const auto partNums = PartNums(GetPartNumForm());
    for (std::size_t line = 0; line < partNums.size(); ++line)
    {
        // A part number has no access key, whatever stands in it.
        const QString partNum = QString(partNums[line]).replace(u'&', QStringLiteral("&&"));
        conditions->addAction(QStringLiteral("No.&%1 %2").arg(line + 1).arg(partNum), this,
                              [this, line] { UseConditionsOf(line); });
    }
    menu->addSeparator();
    menu->addActions({ui->mnuChartExpand, ui->mnuChartClipboard, ui->mnuFilePrint});
    menu->popup(at);
}

void frmGraph::ShowPaneMenu(std::size_t pane, const QPoint& at)
{
    QMenu* const menu = NewMenu(this, "mnuPopupPane");
    menu->addAction(QStringLiteral("&Use These Conditions"), this, [this, pane] { UseConditionsOf(pane); });
    menu->addAction(QStringLiteral("&Copy Part Number"), this,
                    [this, pane] { QGuiApplication::clipboard()->setText(lblStatus[pane]->text()); });
    menu->addAction(QLatin1String(SaveModelText), this, [this, pane] { SaveModelOf(pane); })
        ->setEnabled(CanHaveModel({Lines()[pane]->PartDataIndex}));
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Open in Chart View\tCtrl+E"), this, &frmGraph::OpenView);
    menu->popup(at);
}

/// The pane with a line at a place of the chart's ground.
std::optional<std::size_t> frmGraph::PaneAt(const QPoint& place) const
{
    const std::size_t lines = std::min<std::size_t>(Lines().size(), MaximumLines);
    for (std::size_t pane = 0; pane < lines; ++pane)
    {
        if (fraStatus[pane]->geometry().contains(place))
        {
            return pane;
        }
    }
    return std::nullopt;
}

void frmGraph::ShowChartMenuByKey()
{
    ShowChartMenu(ui->picGraph->mapToGlobal(ui->picGraph->rect().center()));
}

void frmGraph::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard && !isMinimized() && !Lines().empty())
    {
        ShowChartMenuByKey();
        return;
    }
    const QPoint place = ui->grpChart->mapFromGlobal(event->globalPos());
    if (isMinimized() || Lines().empty() || !ui->grpChart->rect().contains(place))
    {
        QMdiSubWindow::contextMenuEvent(event);
        return;
    }
    const auto pane = PaneAt(place);
    pane ? ShowPaneMenu(*pane, event->globalPos()) : ShowChartMenu(event->globalPos());
}

void frmGraph::keyPressEvent(QKeyEvent* event)
{
    const bool asksForMenu = event->key() == Qt::Key_Menu ||
                             (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (asksForMenu && !isMinimized() && !Lines().empty())
    {
        ShowChartMenuByKey();
        return;
    }
    QMdiSubWindow::keyPressEvent(event);
}
