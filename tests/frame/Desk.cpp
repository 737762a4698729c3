#include "tests/frame/Desk.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "files/PartLoading.h"
#include "frame/ProgramIcon.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionTitleBar>
#include <QTest>

// ---- What the environment says of the desk ----

bool IsJapaneseDesk()
{
    return qEnvironmentVariable("DESK_CODE") == QStringLiteral("jis");
}

QPalette PaletteOf(const QColor& ground, const QColor& text)
{
    QPalette palette(ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Base, ground);
    return palette;
}

/// The colours that `DESK_PALETTE` names, for the whole of the test program; the desktop's where it is not
/// set.
static void SetDeskPalette()
{
    const QString name = qEnvironmentVariable("DESK_PALETTE");
    if (name == QStringLiteral("dark"))
    {
        QApplication::setPalette(PaletteOf(QColor(53, 53, 53), Qt::white));
    }
    else if (name == QStringLiteral("contrast"))
    {
        QApplication::setPalette(PaletteOf(Qt::black, Qt::yellow));
    }
}

// ---- The desk ----

Desk::Desk(const std::string& partFolder, int helpLanguage)
{
    mdlPublic.Parts = LoadPartData(partFolder);
    mdlPublic.Charts = ChartStore{};
    mdlPublic.Updating = false;
    mdlPublic.HelpLanguage = static_cast<std::int16_t>(IsJapaneseDesk() ? 1 : helpLanguage);
    mdlPublic.DegreeSign = "\xB0";
    SetDeskPalette();
    // As the program does: a window without an icon is given a new one with every painting of its title.
    QApplication::setWindowIcon(ProgramIcon());
    answering.setInterval(1);
    QObject::connect(&answering, &QTimer::timeout, &answering, [this] { AnswerBox(); });
    answering.start();
    main = std::make_unique<frmMain>();
    main->show();
    QApplication::setActiveWindow(main.get());
    Settle();
}

Desk::~Desk()
{
    answering.stop();
    main.reset();
    Settle();
}

void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Desk::AnswerBox()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr && box->isVisible())
    {
        boxes.push_back({box->icon(), box->windowTitle(), box->text()});
        QAbstractButton* button = box->button(answer);
        button != nullptr ? button->click() : QTest::keyClick(box, Qt::Key_Return);
    }
}

std::vector<Said> Desk::TakeBoxes()
{
    return std::exchange(boxes, {});
}

QString Desk::TakeText()
{
    const auto taken = TakeBoxes();
    return taken.size() == 1 ? taken.front().text : QStringLiteral("%1 boxes").arg(taken.size());
}

// ---- The selection form ----

void Desk::ClickChartType(int index)
{
    auto* button = Find<QRadioButton>(QStringLiteral("optChartType_%1").arg(index));
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

static void Pick(QComboBox* box, const QString& name)
{
    const int index = box->findText(name);
    QVERIFY2(index >= 0, qPrintable(name));
    box->setCurrentIndex(index);
    Q_EMIT box->activated(index);
}

void Desk::PickXAxis(const QString& name)
{
    Pick(Find<QComboBox>("cmbXaxis"), name);
}

void Desk::PickYAxis(const QString& name)
{
    Pick(Find<QComboBox>("cmbYaxis"), name);
}

void Desk::ClickParameter(int index)
{
    auto* button = Find<QRadioButton>(QStringLiteral("optParameter_%1").arg(index));
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

static void TypeInto(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void Desk::TypePart(const QString& partNum)
{
    TypeInto(Find<QComboBox>("cmbPartNum")->lineEdit(), partNum);
}

void Desk::Type(const QString& box, const QString& text)
{
    TypeInto(Find<QLineEdit>(box), text);
}

void Desk::ClickPlot()
{
    QTest::mouseClick(Find<QPushButton>("cmdPlot"), Qt::LeftButton);
    Settle();
}

bool Desk::CanPlot() const
{
    return Find<QPushButton>("cmdPlot")->isEnabled();
}

QString Desk::Text(const QString& box) const
{
    return Find<QLineEdit>(box)->text();
}

QString NumberOnDisplay(const QString& partNum)
{
    const auto* const part = mdlPublic.Parts.PartIndex[0].Find(partNum.toStdString());
    return part == nullptr ? partNum : PartNumText(*part, GetPartNumForm());
}

void Desk::PlotCapacitance(const QString& partNum, const QString& biasVolts, const QString& yAxis)
{
    ClickChartType(2);
    PickYAxis(yAxis);
    TypePart(NumberOnDisplay(partNum));
    Type("txtDCBiasVol", biasVolts);
    ClickPlot();
}

void Desk::PlotRise(int row, const QString& ambient, const QString& xAxis)
{
    ClickChartType(0);
    PickXAxis(xAxis);
    TypePart(ListedPart(*this, row));
    Type("txtDCBiasVol", "0");
    Type("txtAmbientTemp", ambient);
    Type(xAxis == "Frequency" ? "txtParameter" : "txtFrequency", xAxis == "Frequency" ? "0.001" : "100");
    ClickPlot();
}

QString ListedPart(const Desk& desk, int row)
{
    return desk.Find<QComboBox>("cmbPartNum")->itemText(row);
}

// ---- Chart windows ----

QMdiArea* Desk::Area() const
{
    return Find<QMdiArea>("mdiArea");
}

bool Desk::HasFocus(const QString& control) const
{
    return main->focusWidget() != nullptr && main->focusWidget()->objectName() == control;
}

std::vector<frmGraph*> Desk::Charts() const
{
    std::vector<frmGraph*> charts;
    for (QMdiSubWindow* window : Area()->subWindowList(QMdiArea::CreationOrder))
    {
        if (auto* chart = qobject_cast<frmGraph*>(window))
        {
            charts.push_back(chart);
        }
    }
    return charts;
}

frmGraph* Desk::Chart(const QString& caption) const
{
    for (frmGraph* chart : Charts())
    {
        if (chart->windowTitle() == caption)
        {
            return chart;
        }
    }
    return nullptr;
}

void MoveMouse(QWidget* widget, const QPoint& to, Qt::MouseButtons pressed)
{
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, pressed, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

void Desk::ClickCloseBox(frmGraph* chart)
{
    QStyleOptionTitleBar bar;
    bar.initFrom(chart);
    bar.subControls = QStyle::SC_All;
    bar.titleBarFlags = chart->windowFlags();
    bar.titleBarState = static_cast<int>(chart->windowState()) | QStyle::State_Active;
    bar.rect =
        QRect(0, 0, chart->width(), chart->style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, chart));
    const QRect box =
        chart->style()->subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarCloseButton, chart);
    MoveMouse(chart, box.center());
    QTest::mouseClick(chart, Qt::LeftButton, {}, box.center());
    Settle();
}

// ---- Menus ----

QStringList Desk::MenuTitles() const
{
    QStringList titles;
    for (const QAction* action : main->menuBar()->actions())
    {
        titles << action->text();
    }
    return titles;
}

static QAction* EntryIn(const QMenu* menu, const QString& name)
{
    for (QAction* action : menu->actions())
    {
        if (action->objectName() == name ||
            (action->menu() != nullptr && action->menu()->objectName() == name))
        {
            return action;
        }
        QAction* inner = action->menu() != nullptr ? EntryIn(action->menu(), name) : nullptr;
        if (inner != nullptr)
        {
            return inner;
        }
    }
    return nullptr;
}

QAction* Desk::Entry(const QString& name) const
{
    for (const QAction* title : main->menuBar()->actions())
    {
        if (QAction* entry = EntryIn(title->menu(), name))
        {
            return entry;
        }
    }
    return nullptr;
}

QMenu* Desk::OpenMenuOf(const QString& name)
{
    QMenuBar* bar = main->menuBar();
    for (QAction* title : bar->actions())
    {
        if (EntryIn(title->menu(), name) != nullptr)
        {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(title).center());
            return title->menu();
        }
    }
    return nullptr;
}

void Desk::Choose(const QString& name)
{
    QMenu* menu = OpenMenuOf(name);
    QVERIFY2(menu != nullptr && menu->isVisible(), qPrintable(name));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(EntryIn(menu, name)).center());
    Settle();
}

// ---- Saving ----

std::pair<QString, QString> Desk::SaveAs(const QString& path)
{
    std::pair<QString, QString> offered;
    bool named = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look,
                     [&]
                     {
                         auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                         if (dialog == nullptr || !dialog->isVisible())
                         {
                             return;
                         }
                         auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
                         if (std::exchange(named, true) || path.isEmpty())
                         {
                             offered = path.isEmpty() ? std::pair(dialog->directory().path(), name->text())
                                                      : offered;
                             QTest::keyClick(dialog, Qt::Key_Escape);
                             return;
                         }
                         offered = {dialog->directory().path(), name->text()};
                         name->setText(path);
                         QTest::keyClick(name, Qt::Key_Return);
                     });
    look.start(5);
    QApplication::setActiveWindow(main.get());
    QTest::keyClick(main.get(), Qt::Key_S, Qt::ControlModifier);
    Settle();
    return offered;
}

// ---- What must hold whenever nothing is under way ----

bool StoreIsWhole()
{
    const ChartStore& store = mdlPublic.Charts;
    const auto lines = static_cast<std::size_t>(store.CurrentChart());
    if (lines > 0 && store.ChartData().size() == lines)
    {
        return true;
    }
    // Behind the lines stands the working record of the last command, empty.
    const ChartRecord& working = store.ChartData().back();
    return store.ChartData().size() == lines + 1 && working.ChartType == 0 && working.XAxisName.empty() &&
           working.YAxisName.empty();
}

bool IsAtRest()
{
    return !mdlPublic.Updating && QGuiApplication::overrideCursor() == nullptr;
}
