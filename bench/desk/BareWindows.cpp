#include "bench/desk/BareWindows.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolBar>
#include <QVBoxLayout>

// ---- The selection form ----

/// A titled frame of rows of labels with a control each.
template <class Control>
static QGroupBox* MakeGroup(const char* title, int rows, std::vector<Control*>* controls = nullptr)
{
    auto* group = new QGroupBox(QString::fromLatin1(title));
    auto* grid = new QGridLayout(group);
    for (int row = 0; row < rows; ++row)
    {
        auto* control = new Control;
        grid->addWidget(new QLabel(QStringLiteral("Rated Voltage[V]")), row, 0);
        grid->addWidget(control, row, 1);
        if (controls != nullptr)
        {
            controls->push_back(control);
        }
    }
    return group;
}

static QGroupBox* MakeOptions(const char* title, std::vector<QRadioButton*>* options = nullptr)
{
    auto* group = new QGroupBox(QString::fromLatin1(title));
    auto* column = new QVBoxLayout(group);
    for (int row = 0; row < 4; ++row)
    {
        auto* option = new QRadioButton(QStringLiteral("Effective Power"));
        column->addWidget(option);
        if (options != nullptr)
        {
            options->push_back(option);
        }
    }
    return group;
}

BareDesk::BareDesk()
    : area(new QMdiArea)
{
    for (const char* title : {"&File", "&View", "&Window", "&Help"})
    {
        QMenu* menu = window.menuBar()->addMenu(QString::fromLatin1(title));
        menu->addAction(QStringLiteral("&Reset Selection"));
        menu->addAction(QStringLiteral("&Save Data To File..."));
        menu->addAction(QStringLiteral("E&xit"));
    }
    window.statusBar();
    window.setCentralWidget(area);

    auto* form = new QWidget;
    form->setFont(QFont(QStringLiteral("Arial"), 8));
    auto* column = new QVBoxLayout(form);
    column->addWidget(MakeOptions("Chart Type", &chartTypes));
    column->addWidget(MakeGroup<QComboBox>("Part", 5, &lists));
    column->addWidget(MakeGroup<QComboBox>("Axes", 2, &lists));
    column->addWidget(MakeGroup<QLineEdit>("Condition", 5));
    column->addWidget(MakeOptions("Parameter"));
    column->addWidget(new QPushButton(QStringLiteral("Plot")));
    QMdiSubWindow* child = area->addSubWindow(form, Qt::FramelessWindowHint);
    child->setFixedWidth(200);
    child->show();
    window.resize(QSize(1010, 700).boundedTo(window.screen()->availableSize()));
}

// ---- A chart window ----

namespace
{

class Surface : public QWidget
{
public:
    Surface(const PaintSurface& paintSurface, QWidget* parent)
        : QWidget(parent)
        , paint(paintSurface)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (paint)
        {
            paint(painter);
        }
    }

private:
    PaintSurface paint;
};

} // namespace

/// A status pane: a frame with the texts of a part and of its conditions.
static void AddPane(QWidget* contents, int row)
{
    auto* pane = new QGroupBox(QStringLiteral("No.%1").arg(row + 1), contents);
    pane->setGeometry(377, 41 * row, 333, 41);
    auto* part = new QLabel(QStringLiteral("KTS31NR71E475KA01"), pane);
    part->setGeometry(8, 16, 143, 17);
    auto* conditions = new QLabel(QStringLiteral("12V,1500cm^2"), pane);
    conditions->setGeometry(152, 16, 177, 17);
}

QMdiSubWindow* AddBareChart(QMdiArea& area, const PaintSurface& paint)
{
    auto* chart = new QMainWindow;
    for (const char* title : {"&File", "&View", "&Chart", "&Window", "&Help"})
    {
        QMenu* menu = chart->menuBar()->addMenu(QString::fromLatin1(title));
        menu->addAction(QStringLiteral("&Reset Selection"));
        menu->addAction(QStringLiteral("&Save Data To File..."));
        menu->addAction(QStringLiteral("E&xit"));
    }
    chart->menuBar()->hide();
    auto* contents = new QWidget;
    contents->setFont(QFont(QStringLiteral("Arial"), 8));
    auto* surface = new Surface(paint, contents);
    surface->setGeometry(0, 4, 373, 243);
    for (int row = 0; row < 6; ++row)
    {
        AddPane(contents, row);
    }
    chart->setCentralWidget(contents);
    chart->statusBar()->addWidget(new QLabel, 1);
    chart->statusBar()->addWidget(new QLabel, 1);

    auto* window = new QMdiSubWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWidget(chart);
    area.addSubWindow(window);
    window->setWindowTitle(QStringLiteral("Capacitance-DC Bias Voltage"));
    window->setGeometry(200, 0, 733, 295);
    return window;
}

static QTableWidget* BareTable(int rows, int columns)
{
    auto* table = new QTableWidget(rows, columns);
    for (int row = 0; row < table->rowCount(); ++row)
    {
        for (int column = 0; column < table->columnCount(); ++column)
        {
            table->setItem(row, column, new QTableWidgetItem(QStringLiteral("4.372 \u00B5F")));
        }
    }
    return table;
}

BareFind::BareFind()
    : box(nullptr)
    , table(BareTable(40, 14))
{
    std::vector<QLineEdit*> boxes;
    auto* groups = new QHBoxLayout;
    for (const char* title : {"Parts", "Operating point", "Wanted"})
    {
        groups->addWidget(MakeGroup(title, 5, &boxes));
    }
    box = boxes.front();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(groups);
    layout->addWidget(table);
    connect(box, &QLineEdit::textChanged, table->viewport(), qOverload<>(&QWidget::update));
}

BareView::BareView()
{
    auto* tools = addToolBar(QStringLiteral("Tools"));
    for (const char* text : {"Default Range", "Range", "To Chart Window", "Dashes", "Save Picture",
                             "Save Data", "Copy", "Print", "Use These Conditions"})
    {
        tools->addAction(QString::fromLatin1(text));
    }
    auto* values = new QWidget;
    auto* layout = new QVBoxLayout(values);
    layout->addWidget(new QLineEdit(QStringLiteral("300")));
    layout->addWidget(BareTable(6, 8));
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(new Surface([](QPainter&) {}, splitter));
    splitter->addWidget(values);
    splitter->setStretchFactor(0, 1);
    setCentralWidget(splitter);
}
