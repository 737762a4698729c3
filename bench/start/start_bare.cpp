/// The yardstick of the start: an empty MDI window with the same controls and menus, and nothing behind them.

#include "bench/desk/BareWindows.h"
#include "bench/start/QuitAfterPaint.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QuitAfterPaint quitter(application);
    BareDesk desk;
    desk.window.show();
    return QApplication::exec();
}
