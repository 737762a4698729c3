/// The program's own start, up to its first painted window.

#include "app/Main.h"
#include "bench/start/QuitAfterPaint.h"
#include "frame/ProgramIcon.h"
#include "frame/frmMain.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(ProgramIcon());
    const QuitAfterPaint quitter(application);
    std::unique_ptr<frmMain> mainWindow;
    const auto showMainWindow = [&]
    {
        mainWindow = std::make_unique<frmMain>();
        mainWindow->show();
    };
    const bool started = Main(QApplication::applicationDirPath().toStdString(), showMainWindow);
    return started ? QApplication::exec() : 1;
}
