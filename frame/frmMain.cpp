#include "frame/frmMain.h"

#include "app/mdlPublic.h"
#include "chart/FittedLabel.h"
#include "chart/frmGraph.h"
#include "formkit/HourglassScope.h"
#include "formkit/Messages.h"
#include "frame/HelpCommand.h"
#include "frame/HelpKey.h"
#include "frame/StartPlace.h"
#include "frame/frmAbout.h"
#include "partdata/OneLine.h"
#include "selection/FormAccessKeys.h"
#include "ui_frmMain.h"

#include <QDir>
#include <QPrinter>
#include <QScrollBar>

#include <algorithm>
#include <array>

/// Room for the selection form and one column of chart windows beside it.
static constexpr QSize FirstSize(1010, 700);
/// Main window and selection form: the forms that stay while the program runs.
static constexpr std::size_t LastingForms = 2;

frmMain::frmMain(QWidget* parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::frmMain>())
{
    ui->setupUi(this);
    setWindowTitle(ProgramTitle());
    new StartPlace(this, FirstSize);
    mainMenus = ui->mnuBar->actions();
    AddFindButton();

    const std::array<QAction*, 2> mnuViewCode = {ui->mnuViewCode_0, ui->mnuViewCode_1};
    const std::array<QAction*, 2> mnuPartNum = {ui->mnuPartNum_0, ui->mnuPartNum_1};
    mdlPublic.Marks.mnuViewCode = [=](int i)
    { return mnuViewCode[static_cast<std::size_t>(i)]->isChecked(); };
    mdlPublic.Marks.mnuPartNum = [=](int i) { return mnuPartNum[static_cast<std::size_t>(i)]->isChecked(); };

    library = new frmLibrary(*this);
    ui->mdiArea->addSubWindow(library);
    forms = {this, library};
    formKeys = new FormAccessKeys(*library, this);
    new HelpKey(*this);
    Connect();
    WatchChildArea();
    PlaceSelectionForm();
    library->show();
    library->Form_Load();
}

frmMain::~frmMain()
{
    // The child area is destroyed after this window's own members, and signals until its last child is gone.
    const std::array<QObject*, 3> tellers = {ui->mdiArea, ui->mdiArea->horizontalScrollBar(),
                                             ui->mdiArea->verticalScrollBar()};
    for (QObject* teller : tellers)
    {
        teller->disconnect(this);
    }
    // The check marks go with the menus.
    mdlPublic.Marks = {};
}

/// The desktop has moved a check mark by the time a command runs; the command itself decides where it stands.
static void UndoToggle(QAction* action)
{
    action->setChecked(!action->isChecked());
}

/// A text in the status bar. A long one is cut rather than the window kept wide.
static QLabel* StatusText(const char* name, QStatusBar* bar)
{
    auto* text = new FittedLabel(bar);
    text->setObjectName(QLatin1String(name));
    text->setTextFormat(Qt::PlainText);
    text->setMinimumWidth(1);
    return text;
}

void frmMain::Connect()
{
    QLabel* lblHint = StatusText("lblHint", ui->sbrMain);
    ui->sbrMain->addWidget(lblHint, 1);
    connect(ui->mnuFile, &QMenu::aboutToShow, this, &frmMain::mnuFile_Click);
    connect(ui->mnuResetSelction, &QAction::triggered, this, &frmMain::mnuResetSelction_Click);
    connect(ui->mnuSaveDataToFile, &QAction::triggered, this, &frmMain::mnuSaveDataToFile_Click);
    connect(ui->mnuPrintData, &QAction::triggered, this, &frmMain::mnuPrintData_Click);
    connect(ui->mnuExit, &QAction::triggered, this, &frmMain::mnuExit_Click);
    connect(ui->mnuCloseAllChartWindows, &QAction::triggered, this, &frmMain::mnuCloseAllChartWindows_Click);
    connect(ui->mnuContents, &QAction::triggered, this, &frmMain::mnuContents_Click);
    connect(ui->mnuAbout, &QAction::triggered, this, &frmMain::mnuAbout_Click);
    connect(library, &frmLibrary::CanPlotChanged, this, &frmMain::EnableOutput);
    connect(library, &frmLibrary::HintChanged, lblHint, &QLabel::setText);
    connect(library, &frmLibrary::ConditionsTaken, this, &frmMain::TellInStatusBar);

    const auto connectMark = [this](QAction* action, int index, void (frmMain::*command)(int))
    {
        connect(action, &QAction::triggered, this,
                [=, this]
                {
                    UndoToggle(action);
                    (this->*command)(index);
                });
    };
    connectMark(ui->mnuViewCode_0, 0, &frmMain::mnuViewCode_Click);
    connectMark(ui->mnuViewCode_1, 1, &frmMain::mnuViewCode_Click);
    connectMark(ui->mnuPartNum_0, 0, &frmMain::mnuPartNum_Click);
    connectMark(ui->mnuPartNum_1, 1, &frmMain::mnuPartNum_Click);

    connect(ui->mdiArea, &QMdiArea::subWindowActivated, this,
            [this](const QMdiSubWindow* active)
            {
                ShowMenusOf(ui->mdiArea->currentSubWindow());
                formKeys->SetEnabled(ui->mdiArea->currentSubWindow() != library);
                if (active == library)
                {
                    library->KeepFocus();
                }
            });
}

bool frmMain::GetPartNewOld() const
{
    return ui->mnuPartNum_0->isChecked();
}

void frmMain::ShowPartFolder(const QString& folder)
{
    const QString whole = QDir::cleanPath(QDir::current().absoluteFilePath(folder));
    QLabel* lblPartFolder = StatusText("lblPartFolder", ui->sbrMain);
    lblPartFolder->setText(QString::fromStdString(WithoutControls(whole.toStdString())));
    ui->sbrMain->addPermanentWidget(lblPartFolder);
}

// ---- Forms ----

int frmMain::OpenForms() const
{
    return static_cast<int>(forms.size());
}

std::vector<frmGraph*> frmMain::Charts() const
{
    std::vector<frmGraph*> charts;
    for (QWidget* form : forms)
    {
        if (auto* chart = qobject_cast<frmGraph*>(form))
        {
            charts.push_back(chart);
        }
    }
    return charts;
}

void frmMain::ShowNewChart()
{
    auto* chart = new frmGraph(*this);
    ui->mdiArea->addSubWindow(chart);
    forms.push_back(chart);
    connect(chart, &frmGraph::windowStateChanged, this, &frmMain::ArrangeIcons, Qt::QueuedConnection);
    chart->EnableOutput(CanPlot());
    try
    {
        chart->Form_Load();
    }
    catch (...)
    {
        // No window is left behind that shows nothing and counts as open.
        std::erase(forms, chart);
        delete chart;
        throw;
    }
    chart->show();
}

bool frmMain::ShowSameChart(const ChartKey& chart)
{
    const auto charts = Charts();
    const auto same = std::ranges::find(charts, chart, &frmGraph::Chart);
    if (same == charts.end())
    {
        return false;
    }
    (*same)->Form_Load();
    ui->mdiArea->setActiveSubWindow(*same);
    (*same)->setFocus();
    return true;
}

void frmMain::ChartUnloaded(QWidget* chart)
{
    std::erase(forms, chart);
    QMetaObject::invokeMethod(this, &frmMain::ArrangeIcons, Qt::QueuedConnection);
}

bool frmMain::CanPlot() const
{
    return library->CanPlot();
}

void frmMain::SwitchCodeView(int index)
{
    mnuViewCode_Click(index);
}

/// The active chart's menus stand in the place of the main window's.
void frmMain::ShowMenusOf(QMdiSubWindow* window)
{
    const auto* chart = qobject_cast<frmGraph*>(window);
    const auto menus = chart != nullptr ? chart->Menus() : mainMenus;
    if (ui->mnuBar->actions() != menus)
    {
        ui->mnuBar->clear();
        ui->mnuBar->addActions(menus);
    }
}

/// The selection form stands at the left edge, as high as what is seen of the child area.
void frmMain::PlaceSelectionForm()
{
    library->setGeometry(0, 0, library->width(), ui->mdiArea->viewport()->height());
}

/// Lines up minimised charts along the bottom edge, row upon row, beside the selection form. The child area
/// itself would put them under the form; so this runs when the area is through with them.
void frmMain::ArrangeIcons()
{
    const QSize area = ui->mdiArea->viewport()->size();
    const int left = library->width();
    QPoint corner(left, area.height());
    for (frmGraph* chart : Charts())
    {
        if (!chart->isMinimized())
        {
            continue;
        }
        if (corner.x() > left && corner.x() + chart->width() > area.width())
        {
            corner = QPoint(left, corner.y() - chart->height());
        }
        chart->move(corner.x(), corner.y() - chart->height());
        corner.rx() += chart->width();
    }
}

/// Keeps the selection form in its place while the child area is resized or scrolled.
void frmMain::WatchChildArea()
{
    QWidget* viewport = ui->mdiArea->viewport();
    viewport->installEventFilter(this);
    for (const QScrollBar* bar : {ui->mdiArea->horizontalScrollBar(), ui->mdiArea->verticalScrollBar()})
    {
        connect(bar, &QScrollBar::valueChanged, this, &frmMain::PlaceSelectionForm);
        connect(bar, &QScrollBar::valueChanged, this, &frmMain::ArrangeIcons, Qt::QueuedConnection);
    }
    // The area reckons its scroll ranges from the places of its children. With the form held back, this
    // mark alone shows how far the rest has been scrolled.
    auto* origin = new QWidget(viewport);
    origin->setAttribute(Qt::WA_TransparentForMouseEvents);
    origin->resize(1, 1);
    origin->show();
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == ui->mdiArea->viewport())
    {
        PlaceSelectionForm();
        QMetaObject::invokeMethod(this, &frmMain::ArrangeIcons, Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(watched, event);
}

// ---- The commands of the menus ----

void frmMain::mnuFile_Click()
{
    ui->mnuOutPut->setEnabled(false);
    ui->mnuOutPut->setEnabled(CanPlot());
}

/// Keeps the output commands in step with Plot, for shortcuts that open no menu.
void frmMain::EnableOutput(bool enabled)
{
    ui->mnuOutPut->setEnabled(enabled);
    for (frmGraph* chart : Charts())
    {
        chart->EnableOutput(enabled);
    }
}

void frmMain::mnuResetSelction_Click()
{
    library->AllClear();
    library->SelectChartType(0);
}

void frmMain::mnuExit_Click()
{
    close();
}

void frmMain::mnuViewCode_Click(int index)
{
    const std::array<QAction*, 2> mnuViewCode = {ui->mnuViewCode_0, ui->mnuViewCode_1};
    if (mnuViewCode[static_cast<std::size_t>(index)]->isChecked())
    {
        return;
    }
    const UpdatingScope updating;
    const HourglassScope hourglass;
    library->ChangePartNum(GetNumberingOffset() + index);
    library->ChangeSize();
    library->ChangeTcc();
    mnuViewCode[0]->setChecked(index == 0);
    mnuViewCode[1]->setChecked(index == 1);
    library->ResetAmbientTemp(index);
    ShowNamingOfFound();
    if (forms.size() > LastingForms)
    {
        // The conditions of open charts were entered under the other reference temperature.
        ShowInformation(this, QStringLiteral("Close all chart windows"));
        mnuCloseAllChartWindows_Click();
    }
}

void frmMain::mnuPartNum_Click(int index)
{
    const std::array<QAction*, 2> mnuPartNum = {ui->mnuPartNum_0, ui->mnuPartNum_1};
    if (mnuPartNum[static_cast<std::size_t>(index)]->isChecked())
    {
        return;
    }
    const UpdatingScope updating;
    const HourglassScope hourglass;
    const int newForm = GetCodeForm() + 2 * index;
    library->ChangePartNum(newForm);
    UpdateChartPartLabels(newForm);
    mnuPartNum[0]->setChecked(index == 0);
    mnuPartNum[1]->setChecked(index == 1);
    ShowNamingOfFound();
}

void frmMain::UpdateChartPartLabels(int newForm)
{
    for (frmGraph* chart : Charts())
    {
        chart->RelabelParts(newForm);
    }
}

void frmMain::mnuCloseAllChartWindows_Click()
{
    while (forms.size() > LastingForms)
    {
        QWidget* last = forms.back();
        last->close();
        std::erase(forms, last);
    }
}

void frmMain::mnuContents_Click()
{
    ShowHelpContents(this);
}

void frmMain::mnuAbout_Click()
{
    frmAbout box(this);
    forms.push_back(&box);
    box.exec();
    std::erase(forms, &box);
}
