/// The yardstick of the start: an empty MDI window with the same controls and menus, and nothing behind them.

#include "bench/start/QuitAfterPaint.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QVBoxLayout>

/// A titled frame of rows of labels with a control each.
template <class Control> static QGroupBox* MakeGroup(const char* title, int rows)
{
    auto* group = new QGroupBox(QString::fromLatin1(title));
    auto* grid = new QGridLayout(group);
    for (int row = 0; row < rows; ++row)
    {
        grid->addWidget(new QLabel(QStringLiteral("Rated Voltage[V]")), row, 0);
        grid->addWidget(new Control, row, 1);
    }
    return group;
}

static QGroupBox* MakeOptions(const char* title)
{
    auto* group = new QGroupBox(QString::fromLatin1(title));
    auto* column = new QVBoxLayout(group);
    for (int row = 0; row < 4; ++row)
    {
        column->addWidget(new QRadioButton(QStringLiteral("Effective Power")));
    }
    return group;
}

static QWidget* MakeForm()
{
    auto* form = new QWidget;
    form->setFont(QFont(QStringLiteral("Arial"), 8));
    auto* column = new QVBoxLayout(form);
    column->addWidget(MakeOptions("Chart Type"));
    column->addWidget(MakeGroup<QComboBox>("Part", 5));
    column->addWidget(MakeGroup<QComboBox>("Axes", 2));
    column->addWidget(MakeGroup<QLineEdit>("Condition", 5));
    column->addWidget(MakeOptions("Parameter"));
    column->addWidget(new QPushButton(QStringLiteral("Plot")));
    return form;
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QuitAfterPaint quitter(application);
    QMainWindow window;
    for (const char* title : {"&File", "&View", "&Window", "&Help"})
    {
        QMenu* menu = window.menuBar()->addMenu(QString::fromLatin1(title));
        menu->addAction(QStringLiteral("&Reset Selection"));
        menu->addAction(QStringLiteral("&Save Data To File..."));
        menu->addAction(QStringLiteral("E&xit"));
    }
    window.statusBar();
    auto* area = new QMdiArea;
    window.setCentralWidget(area);
    QMdiSubWindow* child = area->addSubWindow(MakeForm(), Qt::FramelessWindowHint);
    child->setFixedWidth(200);
    child->show();
    window.resize(1010, 700);
    window.show();
    return QApplication::exec();
}
