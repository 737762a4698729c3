#include "frame/frmPrinting.h"

#include "formkit/Messages.h"
#include "ui_frmPrinting.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLayout>
#include <QWindow>

static constexpr int LongestWaitMs = 500;

frmPrinting::frmPrinting(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , ui(std::make_unique<Ui::frmPrinting>())
{
    ui->setupUi(this);
    setWindowTitle(ProgramTitle());
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    show();
    PaintNow();
}

frmPrinting::~frmPrinting() = default;

/// Printing keeps the event loop from painting, so the notice waits for its place on the screen here.
void frmPrinting::PaintNow()
{
    QElapsedTimer waited;
    waited.start();
    while (!windowHandle()->isExposed() && waited.elapsed() < LongestWaitMs)
    {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    }
    repaint();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
