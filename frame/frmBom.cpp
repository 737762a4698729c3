#include "frame/frmBom.h"

#include "calc/ChartKinds.h"
#include "formkit/ClosesWith.h"
#include "formkit/RunCommand.h"
#include "formkit/Texts.h"
#include "frame/BomNetRows.h"
#include "frame/BomRows.h"
#include "frame/StartPlace.h"
#include "ui_frmBom.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>

/// The chart that tells what a bias leaves: capacitance over DC voltage.
static constexpr int FirstChartType = 3;
static constexpr QSize LeastSize(600, 400);
/// Room for the frame of a window, which is not known before it is shown.
static constexpr QSize FrameRoom(8, 40);
/// How the room of the first size is shared.
static constexpr int FirstRowsHeight = 300;
static constexpr int FirstNetsHeight = 160;
/// Reading that takes no longer than this is not worth a sign.
static constexpr int ProgressMilliSeconds = 300;

frmBom::frmBom(FindHost& mainWindow)
    : ui(std::make_unique<Ui::frmBom>())
    , host(mainWindow)
    , rows(new BomRows(this))
    , nets(new BomNetRows(this))
{
    ui->setupUi(this);
    // The program ends with its main window, also while this one is open.
    setAttribute(Qt::WA_QuitOnClose, false);
    new ClosesWith(*this, *host.MainWindow());
    setMinimumSize(LeastSize.boundedTo(screen()->availableSize() - FrameRoom));
    new StartPlace(this, size());
    ui->prgBom->hide();
    progressDelay.setSingleShot(true);
    progressDelay.setInterval(ProgressMilliSeconds);
    for (const ChartKind& kind : FormChartKinds())
    {
        ui->cmbBomChartType->addItem(FromAnsi(kind.Caption));
    }
    ui->cmbBomChartType->setCurrentIndex(FirstChartType);
    ui->tblBom->setModel(rows);
    ui->tblBomNets->setModel(nets);
    SetUpTable(ui->tblBom);
    SetUpTable(ui->tblBomNets);
    ui->splBomRows->setStretchFactor(0, 1);
    ui->splBomRows->setSizes({FirstRowsHeight, FirstNetsHeight});
    ui->splBomNets->setStretchFactor(0, 3);
    ui->splBomNets->setStretchFactor(1, 2);
    Connect();
    ConnectCommands();
    Read();
    ui->txtBomFile->setFocus();
}

frmBom::~frmBom() = default;

void frmBom::ComeToFront()
{
    if (isMinimized())
    {
        showNormal();
    }
    show();
    raise();
    activateWindow();
}

void frmBom::ShowNaming()
{
    Read();
}

void frmBom::SetUpTable(QTableView* shownTable) const
{
    QHeaderView* const lines = shownTable->verticalHeader();
    lines->hide();
    lines->setSectionResizeMode(QHeaderView::Fixed);
    lines->setDefaultSectionSize(shownTable->fontMetrics().height() + 8);
    QHeaderView* const heads = shownTable->horizontalHeader();
    heads->setHighlightSections(false);
}

std::vector<frmBom::DefaultBox> frmBom::DefaultBoxes() const
{
    return {{BomField::Ambient, ui->txtBomAmbient},
            {BomField::Tolerance, ui->txtBomTolerance},
            {BomField::MinLeft, ui->txtBomMinLeft},
            {BomField::MaxBias, ui->txtBomMaxBias},
            {BomField::MaxRise, ui->txtBomMaxRise}};
}

std::vector<frmBom::ColumnLine> frmBom::ColumnLines() const
{
    return {{BomField::Part, ui->lblBomColumnPart, ui->cmbBomColumnPart},
            {BomField::Reference, ui->lblBomColumnReference, ui->cmbBomColumnReference},
            {BomField::DCBias, ui->lblBomColumnBias, ui->cmbBomColumnBias}};
}

void frmBom::Connect()
{
    for (QLineEdit* const box : {ui->txtBomFile, ui->txtBomConditions})
    {
        // A dropped file is opened, not typed.
        box->setAcceptDrops(false);
        connect(box, &QLineEdit::editingFinished, this, &frmBom::txtBomFile_Edited);
    }
    for (const DefaultBox& entry : DefaultBoxes())
    {
        connect(entry.Box, &QLineEdit::textChanged, this, &frmBom::Read);
    }
    for (const ColumnLine& line : ColumnLines())
    {
        connect(line.List, &QComboBox::activated, this, [this, line] { ChooseColumn(line); });
    }
    for (QLineEdit* const box : ui->fraBomEntries->findChildren<QLineEdit*>())
    {
        box->installEventFilter(this);
    }
    connect(&watch, &FileWatch::Changed, this, &frmBom::Read);
    connect(&work, &SideWork::BusyChanged, this, &frmBom::ShowBusy);
    connect(&progressDelay, &QTimer::timeout, ui->prgBom, &QWidget::show);
    // Before the table itself hears of a new answer, and forgets what was chosen.
    connect(rows, &QAbstractItemModel::modelAboutToBeReset, this, &frmBom::KeepChosen);
    connect(rows, &QAbstractItemModel::modelReset, this, &frmBom::ChooseAgain);
    connect(ui->tblBom->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmBom::ShowPicture);
}

// ---- The files ----

static const QString BillFilter =
    QStringLiteral("Bills of Materials (*.csv;*.tsv;*.txt)|*.csv;*.tsv;*.txt|All Files (*.*)|*.*|");

void frmBom::cmdBomOpen_Click()
{
    RunCommand(this,
               [this]
               {
                   const auto path = host.AskForFileToOpen(
                       this, {.Dialog = QStringLiteral("bills"), .Filter = BillFilter, .ProposedName = {}});
                   if (path)
                   {
                       Open(*path, ui->txtBomFile);
                   }
               });
}

void frmBom::cmdBomConditions_Click()
{
    RunCommand(this,
               [this]
               {
                   const auto path = host.AskForFileToOpen(
                       this, {.Dialog = QStringLiteral("bills"), .Filter = BillFilter, .ProposedName = {}});
                   if (path)
                   {
                       Open(*path, ui->txtBomConditions);
                   }
               });
}

void frmBom::Open(const QString& path, QLineEdit* box)
{
    box->setText(QDir::toNativeSeparators(path));
    Read();
}

/// Leaving a box that is as it was reads nothing anew.
void frmBom::txtBomFile_Edited()
{
    if (ui->txtBomFile->text().trimmed().toStdString() != files.Bill ||
        ui->txtBomConditions->text().trimmed().toStdString() != files.Conditions)
    {
        Read();
    }
}

static QString FileOf(const QDropEvent& event)
{
    const auto urls = event.mimeData()->urls();
    return urls.isEmpty() ? QString() : urls.front().toLocalFile();
}

void frmBom::dragEnterEvent(QDragEnterEvent* event)
{
    if (!FileOf(*event).isEmpty())
    {
        event->acceptProposedAction();
    }
}

/// A file dropped beside the conditions is taken as these, and anywhere else as the bill.
void frmBom::dropEvent(QDropEvent* event)
{
    const QWidget* const at = childAt(event->position().toPoint());
    const bool isOfConditions =
        at == ui->txtBomConditions || at == ui->cmdBomConditions || at == ui->lblBomConditions;
    event->acceptProposedAction();
    Open(FileOf(*event), isOfConditions ? ui->txtBomConditions : ui->txtBomFile);
}

// ---- Keys ----

/// An entry that gets the focus is scrolled into sight. Down leads from a box into the table.
bool frmBom::eventFilter(QObject* watched, QEvent* event)
{
    auto* const box = qobject_cast<QLineEdit*>(watched);
    if (box != nullptr && event->type() == QEvent::FocusIn)
    {
        ui->scrBomEntries->ShowWhole(*box);
    }
    if (box != nullptr && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down)
    {
        ui->tblBom->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void frmBom::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers().testFlag(Qt::ControlModifier))
    {
        ui->cmdBomPlot->click();
    }
    else if (isEnter && ui->tblBom->hasFocus())
    {
        OpenInFind();
    }
    else if (event->key() == Qt::Key_Escape)
    {
        close();
    }
    else
    {
        QWidget::keyPressEvent(event);
    }
}
