#include "chart/frmChartView.h"

#include "app/mdlPublic.h"
#include "chart/ChartAccessible.h"
#include "chart/LineTable.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/layout/ChartDrawing.h"
#include "chart/layout/FittingText.h"
#include "formkit/ClosesWith.h"
#include "ui_frmChartView.h"

#include <QHeaderView>
#include <QScreen>

#include <cmath>
#include <utility>

/// Share of the screen that a view takes at first, and how small it may be then.
static constexpr double ScreenShare = 0.7;
static constexpr QSize SmallestStart(900, 600);
/// Room for the frame of a window, which is not known before it is shown.
static constexpr QSize FrameRoom(8, 40);

/// A screen reader is told of a moving cursor four times a second at most.
static constexpr int MilliSecondsBetweenTellings = 250;

namespace Kept
{
static const QString Geometry = QStringLiteral("place of the chart view");
static const QString Dashes = QStringLiteral("dashes of the chart view");
static const QString TextScale = QStringLiteral("text size of the chart view");
} // namespace Kept

frmChartView::frmChartView(ViewedChart& viewedChart)
    : ui(std::make_unique<Ui::frmChartView>())
    , chart(viewedChart)
    , table(new LineTable(this))
{
    ui->setupUi(this);
    // The program ends with its main window, also while a view is open.
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    new ClosesWith(*this, *chart.Host().MainWindow());
    const QVariant keptScale = chart.Host().Kept(Kept::TextScale);
    textScale = keptScale.isValid() ? keptScale.toDouble() : 1;
    scene.Marks.Dashed = chart.Host().Kept(Kept::Dashes).toBool();
    ui->mnuDashes->setChecked(scene.Marks.Dashed);
    ui->picChartView->SetScene(&scene);
    static const bool installed = (ChartAccessible::Install(), true);
    Q_UNUSED(installed);
    SetUpTable();
    Connect();
    ConnectCommands();
    ConnectLoss();
    ConnectCanvas();
    Place();
    ShowLines();
    ui->picChartView->setFocus();
}

frmChartView::~frmChartView() = default;

void frmChartView::Connect()
{
    telling.setSingleShot(true);
    telling.setInterval(MilliSecondsBetweenTellings);
    connect(&telling, &QTimer::timeout, this,
            [this]
            {
                if (isChangeUntold)
                {
                    TellReader();
                }
            });
    connect(ui->txtCursorX, &QLineEdit::returnPressed, this, &frmChartView::EnterX);
    connect(ui->tblLines->horizontalHeader(), &QHeaderView::sectionClicked, table, &LineTable::SortNextWay);
    connect(table, &LineTable::RowsMoved, this, &frmChartView::ShowChosenRow);
    connect(ui->tblLines->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmChartView::tblLines_Select);
    connect(ui->tblLines, &QAbstractItemView::entered, this,
            [this](const QModelIndex& cell) { Hover(table->LineOf(cell.row())); });
    connect(ui->tblLines, &QAbstractItemView::viewportEntered, this, [this] { Hover({}); });
    for (QObject* watched :
         std::initializer_list<QObject*>{ui->picChartView, ui->txtCursorX, ui->tblLines->viewport()})
    {
        watched->installEventFilter(this);
    }
    SetTabOrder();
}

/// Tab goes from the chart down to the table, then through the tool bar.
void frmChartView::SetTabOrder()
{
    QList<QWidget*> order = {ui->picChartView, ui->txtCursorX, ui->tblLines};
    for (QAction* command : ui->tbrChartView->actions())
    {
        QWidget* const button = ui->tbrChartView->widgetForAction(command);
        if (!command->isSeparator())
        {
            button->setFocusPolicy(Qt::TabFocus);
            order << button;
        }
    }
    for (qsizetype i = 1; i < order.size(); ++i)
    {
        setTabOrder(order[i - 1], order[i]);
    }
}

void frmChartView::ConnectCanvas()
{
    const ChartCanvas* const canvas = ui->picChartView;
    connect(canvas, &ChartCanvas::PointerMoved, this,
            [this](double x)
            {
                scene.Cursors.Follow(x);
                ShowCursors();
            });
    connect(canvas, &ChartCanvas::XAskedFor, this,
            [this](double x)
            {
                scene.Cursors.MoveTo(x);
                ShowCursors();
            });
    connect(canvas, &ChartCanvas::LineHovered, this, &frmChartView::Hover);
    connect(canvas, &ChartCanvas::Clicked, this, &frmChartView::PinCursor);
    connect(canvas, &ChartCanvas::DoubleClicked, this,
            [this]
            {
                scene.Cursors.TakePinBack();
                mnuDefaultRange_Click();
            });
    connect(canvas, &ChartCanvas::DragStarted, this, &frmChartView::StartDrag);
    connect(canvas, &ChartCanvas::Dragged, this, &frmChartView::Drag);
    connect(canvas, &ChartCanvas::RectangleDrawn, this,
            [this](double fromX, double fromY, double toX, double toY)
            {
                zoom.ZoomTo(fromX, fromY, toX, toY);
                ChangeRange();
            });
    connect(canvas, &ChartCanvas::WheelTurned, this, &frmChartView::ZoomAbout);
}

// ---- The lines ----

AxisRange frmChartView::DefaultOfLines() const
{
    std::vector<ChartRecord> records;
    records.reserve(scene.Lines.size());
    for (const ViewedLine& line : scene.Lines)
    {
        records.push_back(line.Line);
    }
    return DefaultRange(KeyOf(records.front()), records);
}

void frmChartView::ShowLines()
{
    const ChartView shown = TakeLines();
    const bool rangeChanged = shown.Range != chartShown.Range;
    const bool follows = rangeChanged && (shown.Rescaled || !hasOwnRange);
    const AxisRange range = follows ? shown.Range : zoom.Range();
    hasOwnRange = hasOwnRange && !follows;
    chartShown = shown;
    scene.View = shown;
    defaults = DefaultOfLines();
    zoom = ZoomRange(shown.Chart, defaults);
    zoom.Set(range);
    scene.View.Range = zoom.Range();
    if (scene.Chosen && *scene.Chosen >= static_cast<int>(scene.Lines.size()))
    {
        scene.Chosen.reset();
    }
    scene.Hovered.reset();
    OfferModel();
    NoteUnseenLines();
    ForgetWidths();
    ShowTable();
    ShowTextSize();
    ShowCursorTexts();
}

// ---- The window ----

void frmChartView::Place()
{
    const QByteArray kept = chart.Host().Kept(Kept::Geometry).toByteArray();
    if (!kept.isEmpty() && restoreGeometry(kept))
    {
        return;
    }
    const QScreen* const on = chart.Host().MainWindow()->screen();
    const QSize room = on->availableSize() - FrameRoom;
    const QSize wanted = (QSizeF(on->availableSize()) * ScreenShare).toSize().expandedTo(SmallestStart);
    resize(wanted.boundedTo(room));
}

void frmChartView::KeepPlace()
{
    if (isVisible() && !isMinimized())
    {
        chart.Host().Keep(Kept::Geometry, saveGeometry());
    }
}

void frmChartView::ComeToFront()
{
    if (isMinimized())
    {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    show();
    raise();
    activateWindow();
}

void frmChartView::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    ShowTextSize();
    KeepPlace();
}

/// A stands where it begins once the size is known, which decides where the ticks stand.
void frmChartView::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    ShowTextSize();
    if (!std::exchange(hasCursor, true))
    {
        StartCursor();
    }
}

void frmChartView::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    KeepPlace();
}

void frmChartView::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
    {
        ui->mnuFullScreen->setChecked(isFullScreen());
    }
}

/// The desktop's font, enlarged to a size in device-independent pixels.
static QFont AtLeast(const QFont& desktop, double size)
{
    QFont font = desktop;
    font.setPixelSize(std::max(QFontInfo(desktop).pixelSize(), static_cast<int>(std::lround(size))));
    return font;
}

/// Sets all texts in the size that the window has room for: texts that the user has enlarged leave the plot
/// half of the chart's width and height at least.
void frmChartView::ShowTextSize()
{
    const double usual = FittingTextSize(width(), height(), 1);
    double size = FittingTextSize(width(), height(), textScale);
    SetTextSize(size);
    while (size > usual && !HasRoomyPlot())
    {
        size = std::max(usual, size - 1);
        SetTextSize(size);
    }
}

bool frmChartView::HasRoomyPlot() const
{
    const QSizeF whole = ui->picChartView->size();
    const QSizeF plot = ui->picChartView->PlotShowing(scene.View.Range).size();
    return 2 * plot.width() >= whole.width() && 2 * plot.height() >= whole.height();
}

void frmChartView::SetTextSize(double size)
{
    scene.Marks.TextSize = size;
    const QFont texts = ChartFont(scene.Marks.TextSize / chartFontSize);
    if (ui->grpValues->font().pixelSize() != texts.pixelSize())
    {
        ForgetWidths();
        ui->grpValues->setFont(texts);
        ui->tbrChartView->setFont(AtLeast(font(), scene.Marks.TextSize));
        ui->txtCursorX->setFixedWidth(ui->txtCursorX->fontMetrics().averageCharWidth() * 12);
    }
    FitTable();
    FitTableHeight();
    ui->picChartView->Redraw();
}

void frmChartView::ScaleText(double factor)
{
    static constexpr double Smallest = 0.5;
    static constexpr double Largest = 3;
    const double former = std::exchange(textScale, std::clamp(textScale * factor, Smallest, Largest));
    const double formerSize = scene.Marks.TextSize;
    ShowTextSize();
    if (factor > 1 && scene.Marks.TextSize <= formerSize)
    {
        // Growing on unseen, it would take as many steps back before a text is smaller again.
        textScale = former;
    }
    chart.Host().Keep(Kept::TextScale, textScale);
}

void frmChartView::mnuDashes_Click(bool dashed)
{
    scene.Marks.Dashed = dashed;
    chart.Host().Keep(Kept::Dashes, dashed);
    ui->tblLines->viewport()->update();
    ui->picChartView->Redraw();
}

void frmChartView::mnuFullScreen_Click(bool full)
{
    full ? showFullScreen() : showNormal();
}
