/// The program: the desktop application around the start-up order.

#include "app/Main.h"
#include "app/Messages.h"
#include "frame/ProgramIcon.h"
#include "frame/frmMain.h"

#include <QApplication>

#include <exception>
#include <iostream>

/// Whether somebody can see a box and answer it.
static bool HasDisplay()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QStringLiteral("offscreen") && platform != QStringLiteral("minimal");
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("tavik");
    QApplication::setApplicationVersion(TAVIK_VERSION);
    QApplication::setWindowIcon(ProgramIcon());

    std::unique_ptr<frmMain> mainWindow;
    try
    {
        const auto folder = QApplication::applicationDirPath().toStdString();
        const auto showMainWindow = [&]
        {
            mainWindow = std::make_unique<frmMain>();
            mainWindow->show();
        };
        if (!Main(folder, showMainWindow))
        {
            return 0;
        }
    }
    catch (const std::exception& error)
    {
        // A RunTimeError, or memory has run out.
        std::cerr << error.what() << '\n';
        if (HasDisplay())
        {
            ShowCritical(nullptr, QString::fromLocal8Bit(error.what()));
        }
        return 1;
    }
    return QApplication::exec();
}
