#include "chart/frmGraph.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/ChartKinds.h"
#include "calc/ChartNames.h"
#include "chart/ChartPictureText.h"
#include "chart/drawing/QtColors.h"
#include "chart/frmChartView.h"
#include "chart/layout/ChartDrawing.h"
#include "chart/layout/PaneText.h"
#include "formkit/Texts.h"
#include "formkit/Twips.h"
#include "partdata/Windows1252.h"
#include "ui_frmGraph.h"

#include <QCloseEvent>
#include <QMdiArea>

static constexpr int WindowLeft = Twips(3000);
static constexpr int WindowWidth = Twips(10995);
static constexpr int WindowHeight = Twips(4425);
static constexpr int PanesBottom = 248;
/// Between a part number and the conditions beside it.
static constexpr int PaneTextGap = 4;

/// Chart and panes are light on every desktop, so that the line colours can be told apart.
static QPalette LightPalette()
{
    return QPalette(QColor(240, 240, 240));
}

/// Takes out of a window menu what a chart window does not offer: another size, and staying on top of a chart
/// that Plot brings to the front.
static void RemoveUnofferedEntries(QMenu* windowMenu)
{
    for (QAction* entry : windowMenu->actions())
    {
        if (entry->text() == QMdiSubWindow::tr("&Size") || entry->text() == QMdiSubWindow::tr("Stay on &Top"))
        {
            windowMenu->removeAction(entry);
        }
    }
}

frmGraph::frmGraph(ChartHost& chartHost, QWidget* parent)
    : QMdiSubWindow(parent, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                Qt::WindowCloseButtonHint)
    , ui(std::make_unique<Ui::frmGraph>())
    , host(chartHost)
{
    setObjectName("frmGraph");
    OfferChartPictureText();
    setAttribute(Qt::WA_DeleteOnClose);
    RemoveUnofferedEntries(systemMenu());
    auto* contents = new QMainWindow;
    ui->setupUi(contents);
    ui->mnuBar->hide();
    setWidget(contents);

    fraStatus = {ui->fraStatus_0, ui->fraStatus_1, ui->fraStatus_2,
                 ui->fraStatus_3, ui->fraStatus_4, ui->fraStatus_5};
    lblStatus = {ui->lblStatus_0, ui->lblStatus_1, ui->lblStatus_2,
                 ui->lblStatus_3, ui->lblStatus_4, ui->lblStatus_5};
    lblPara = {ui->lblPara_0, ui->lblPara_1, ui->lblPara_2, ui->lblPara_3, ui->lblPara_4, ui->lblPara_5};
    for (std::size_t i = 0; i < MaximumLines; ++i)
    {
        // The label reaches under its neighbour, its text ends before it.
        const int covered = lblStatus[i]->geometry().right() + 1 - lblPara[i]->x();
        lblStatus[i]->setContentsMargins(0, 0, covered + PaneTextGap, 0);
    }
    ui->grpChart->setPalette(LightPalette());
    for (std::size_t i = 0; i < panels.size(); ++i)
    {
        panels[i] = new QLabel;
        panels[i]->setObjectName(QStringLiteral("sbr1_%1").arg(i + 1));
        ui->sbr1->addWidget(panels[i], 1);
    }
    Connect();
    ConnectView();
}

frmGraph::~frmGraph()
{
    delete chartView;
}

void frmGraph::Connect()
{
    connect(ui->mnuFile, &QMenu::aboutToShow, this, &frmGraph::mnuFile_Click);
    connect(ui->mnuView, &QMenu::aboutToShow, this, &frmGraph::mnuView_Click);
    connect(ui->mnuFileReset, &QAction::triggered, this, [this] { host.mnuResetSelction_Click(); });
    connect(ui->mnuFileExit, &QAction::triggered, this, [this] { host.mnuExit_Click(); });
    connect(ui->mnuFilePageSetup, &QAction::triggered, this, [this] { host.mnuFilePageSetup_Click(); });
    connect(ui->mnuFilePrint, &QAction::triggered, this, &frmGraph::mnuFilePrint_Click);
    connect(ui->mnuFileSaveData, &QAction::triggered, this, [this] { host.mnuSaveDataToFile_Click(); });
    connect(ui->mnuPrintData, &QAction::triggered, this, [this] { host.mnuPrintData_Click(); });
    connect(ui->mnuChartExpand, &QAction::triggered, this, &frmGraph::mnuChartExpand_Click);
    connect(ui->mnuChartClipboard, &QAction::triggered, this, &frmGraph::mnuChartClipboard_Click);
    connect(ui->mnuHelpContents, &QAction::triggered, this, [this] { host.mnuContents_Click(); });
    connect(ui->mnuHelpAbout, &QAction::triggered, this, [this] { host.mnuAbout_Click(); });
    connect(ui->picGraph, &ChartPicture::PointerMoved, this, &frmGraph::picGraph_MouseMove);
    connect(ui->picGraph, &ChartPicture::PointerLeft, this, &frmGraph::picGraph_MouseLeave);
    connect(ui->mnuViewCode_0, &QAction::triggered, this, [this] { host.mnuViewCode_Click(0); });
    connect(ui->mnuViewCode_1, &QAction::triggered, this, [this] { host.mnuViewCode_Click(1); });
    connect(ui->mnuViewPart_0, &QAction::triggered, this, [this] { host.mnuPartNum_Click(0); });
    connect(ui->mnuViewPart_1, &QAction::triggered, this, [this] { host.mnuPartNum_Click(1); });
    connect(ui->mnuWindowClose, &QAction::triggered, this, [this] { host.mnuCloseAllChartWindows_Click(); });
}

QList<QAction*> frmGraph::Menus() const
{
    return ui->mnuBar->actions();
}

void frmGraph::mnuFile_Click()
{
    ui->mnuOutPut->setEnabled(false);
    ui->mnuOutPut->setEnabled(host.CanPlot());
}

void frmGraph::EnableOutput(bool enabled)
{
    ui->mnuOutPut->setEnabled(enabled);
}

void frmGraph::mnuView_Click()
{
    const ViewMarks& marks = mdlPublic.Marks;
    ui->mnuViewCode_0->setChecked(marks.mnuViewCode(0));
    ui->mnuViewCode_1->setChecked(marks.mnuViewCode(1));
    ui->mnuViewPart_0->setChecked(marks.mnuPartNum(0));
    ui->mnuViewPart_1->setChecked(marks.mnuPartNum(1));
}

// ---- Drawing ----

void frmGraph::Form_Load()
{
    ChartStore& store = mdlPublic.Charts;
    const ChartKey chart = KeyOf(store.WorkingRecord());
    const bool formerRescaled = rescaled;
    const AxisRange formerRange = axisRange;
    store.Commit();
    try
    {
        rescaled = false;
        ClearReadOut();
        InitChartWindow(chart);
        Draw(DefaultRange(chart, store.Lines()));
    }
    catch (...)
    {
        // A line that could not be drawn does not count as plotted; the others are shown as before.
        store.RollBack();
        rescaled = formerRescaled;
        Draw(formerRange);
        throw;
    }
}

void frmGraph::WriteMagnification(float xMax, float yMax, float xMin, float yMin, int notRescaled)
{
    rescaled = notRescaled != 1;
    ClearReadOut();
    InitChartWindow(key);
    Draw({.XMax = xMax, .YMax = yMax, .XMin = xMin, .YMin = yMin});
}

/// Names, places and colours the window, which comes up from its icon. A chart type that has no name leaves
/// the caption as it is, and a window with a range of the user's stays where it is.
void frmGraph::InitChartWindow(const ChartKey& chart)
{
    if (isMinimized())
    {
        showNormal();
    }
    if (FindChartKind(chart.ChartType) != nullptr)
    {
        const std::string caption = ChartCaption(chart);
        setWindowTitle(QString::fromStdString(caption));
        // Where an axis name holds a comma or a bracket, the window is of the chart that its caption spells.
        key = ChartOfCaption(caption);
    }
    const int top = rescaled ? y() : Twips((host.OpenForms() - 3) * 300 + 50);
    setGeometry(WindowLeft, top, WindowWidth, WindowHeight);
    for (std::size_t i = 0; i < MaximumLines; ++i)
    {
        ColorPane(i, QtColor(GetPaneColor(static_cast<int>(i))));
    }
}

/// Gives a pane its colour, once: a changed palette paints the whole pane anew.
void frmGraph::ColorPane(std::size_t index, const QColor& color)
{
    QPalette palette = fraStatus[index]->palette();
    if (palette.color(QPalette::WindowText) == color && fraStatus[index]->testAttribute(Qt::WA_SetPalette))
    {
        return;
    }
    palette.setColor(QPalette::WindowText, color);
    fraStatus[index]->setPalette(palette);
    lblStatus[index]->setPalette(palette);
    lblPara[index]->setPalette(palette);
}

void frmGraph::Draw(const AxisRange& range)
{
    axisRange = range;
    const ChartView view{.Chart = key,
                         .Range = range,
                         .Rescaled = rescaled,
                         .DegreeSign = Utf8FromWindows1252(mdlPublic.DegreeSign)};
    PlaceCurves(view, mdlPublic.Charts.LinesToPlace());
    ui->picGraph->Show(view);
    FillStatusPanes();
    ShowInView();
}

/// The window's lines in store order.
std::vector<const ChartRecord*> frmGraph::Lines() const
{
    std::vector<const ChartRecord*> lines;
    for (const ChartRecord& line : mdlPublic.Charts.Lines())
    {
        if (KeyOf(line) == key)
        {
            lines.push_back(&line);
        }
    }
    return lines;
}

/// The part numbers of the window's lines in a part-number form.
std::vector<QString> frmGraph::PartNums(int partNumForm) const
{
    std::vector<QString> partNums;
    for (const ChartRecord* line : Lines())
    {
        partNums.push_back(PartNumText(line->PartDataIndex, partNumForm));
    }
    return partNums;
}

void frmGraph::FillStatusPanes()
{
    const auto lines = Lines();
    const auto partNums = PartNums(GetPartNumForm());
    const auto degreeSign = Utf8FromWindows1252(mdlPublic.DegreeSign);
    for (std::size_t p = 0; p < MaximumLines; ++p)
    {
        const bool hasLine = p < lines.size();
        lblStatus[p]->setText(hasLine ? partNums[p] : QString());
        lblPara[p]->setText(hasLine ? QString::fromStdString(PaneText(*lines[p], degreeSign)) : QString());
    }
}

void frmGraph::RelabelParts(int partNumForm)
{
    const auto partNums = PartNums(partNumForm);
    const std::size_t shown = std::min<std::size_t>(partNums.size(), MaximumLines);
    for (std::size_t p = 0; p < shown && !lblStatus[p]->text().isEmpty(); ++p)
    {
        lblStatus[p]->setText(partNums[p]);
    }
    ShowInView();
}

void frmGraph::ClearReadOut()
{
    MouseX = 0;
    MouseY = 0;
    for (QLabel* panel : panels)
    {
        panel->clear();
    }
}

// ---- The window's size and end ----

void frmGraph::Form_Resize()
{
    if (isMinimized())
    {
        picGraph_MouseLeave();
    }
    else if (isMaximized() || isFullScreen())
    {
        showNormal();
    }
    else if (size() != QSize(WindowWidth, WindowHeight))
    {
        resize(WindowWidth, WindowHeight);
    }
}

void frmGraph::resizeEvent(QResizeEvent* event)
{
    QMdiSubWindow::resizeEvent(event);
    ui->sbr1->setFixedHeight(std::max(contentsRect().height() - PanesBottom, 1));
    Form_Resize();
}

void frmGraph::changeEvent(QEvent* event)
{
    QMdiSubWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
    {
        Form_Resize();
    }
}

/// Takes the window's lines out of the store, once.
void frmGraph::Form_Unload()
{
    if (std::exchange(unloaded, true))
    {
        return;
    }
    mdlPublic.Charts.RemoveChart(key);
    if (chartView != nullptr)
    {
        chartView->close();
    }
    host.ChartUnloaded(this);
}

/// A chart closes without a question, whatever asks it to.
void frmGraph::Form_QueryUnload(QCloseEvent& close)
{
    close.accept();
}

void frmGraph::closeEvent(QCloseEvent* event)
{
    Form_QueryUnload(*event);
    Form_Unload();
    QMdiSubWindow::closeEvent(event);
}
