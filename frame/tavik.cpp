/// The program: the desktop application around the start-up order.

#include "app/Main.h"
#include "app/StartOptions.h"
#include "files/PartFolder.h"
#include "formkit/EdgedStyle.h"
#include "formkit/Fonts.h"
#include "formkit/Messages.h"
#include "frame/ProgramIcon.h"
#include "frame/frmMain.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QStringList>
#include <QStyleFactory>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <utility>

namespace
{
/// Whether somebody can see a box and answer it.
bool HasDisplay()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QStringLiteral("offscreen") && platform != QStringLiteral("minimal");
}

/// Ends the program in one line where no window can be shown, above all without a display: left to itself the
/// toolkit ends in a crash and asks for its own reinstallation.
class WindowSystemGuard
{
public:
    WindowSystemGuard() { qInstallMessageHandler(&Take); }
    ~WindowSystemGuard()
    {
        qInstallMessageHandler(nullptr);
        for (const QString& text : std::exchange(remarks, {}))
        {
            qWarning().noquote() << text;
        }
    }
    WindowSystemGuard(const WindowSystemGuard&) = delete;
    WindowSystemGuard& operator=(const WindowSystemGuard&) = delete;

private:
    static void Take(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
    {
        if (type != QtFatalMsg)
        {
            remarks << text;
            return;
        }
        // What was remarked first is the cause of all that follows.
        const QString cause = remarks.isEmpty() ? text : remarks.front();
        std::cerr << "tavik: no window can be shown: " << cause.simplified().toLocal8Bit().constData()
                  << '\n';
        std::_Exit(1);
    }

    inline static QStringList remarks;
};

std::unique_ptr<QApplication> StartWindowSystem(int& argc, char** argv)
{
    const WindowSystemGuard guard;
    return std::make_unique<QApplication>(argc, argv);
}

/// Ends the program with a text on standard output.
int Tell(const std::string& text)
{
    if (std::cout << text << std::flush)
    {
        return 0;
    }
    std::cerr << "tavik: standard output: cannot be written\n";
    return 1;
}

/// The start-up order. No window comes of it where another instance runs already.
std::unique_ptr<frmMain> Start(const StartOptions& options)
{
    const auto partFolder = NamedPartFolder(options.DataFolder);
    std::unique_ptr<frmMain> mainWindow;
    const auto showMainWindow = [&]
    {
        mainWindow = std::make_unique<frmMain>();
        if (partFolder)
        {
            mainWindow->ShowPartFolder(QFile::decodeName(partFolder->c_str()));
        }
        mainWindow->show();
    };
    const auto folder = QApplication::applicationDirPath().toStdString();
    Main(folder, showMainWindow, partFolder);
    return mainWindow;
}

/// Ends the program with an error, told on standard error and to whoever sits at the display.
int EndByError(const std::exception& error)
{
    std::cerr << error.what() << '\n';
    if (HasDisplay())
    {
        ShowCritical(nullptr, QString::fromLocal8Bit(error.what()));
    }
    return 1;
}
} // namespace

int main(int argc, char* argv[])
{
    if (const auto text = TextAskedFor(ArgumentsOf(argc, argv), TAVIK_VERSION))
    {
        return Tell(*text);
    }
    const auto application = StartWindowSystem(argc, argv);
    QApplication::setApplicationName("tavik");
    QApplication::setApplicationVersion(TAVIK_VERSION);
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setStyle(new EdgedStyle(QStyleFactory::create(QApplication::style()->name())));
    if (!HasFonts())
    {
        // No box could say so.
        std::cerr << "tavik: no font is installed, so no text can be shown\n";
        return 1;
    }
    std::unique_ptr<frmMain> mainWindow;
    try
    {
        mainWindow = Start(ReadStartOptions(ArgumentsOf(argc, argv)));
    }
    catch (const WrongCommandLine& error)
    {
        std::cerr << "tavik: " << error.what() << '\n';
        return 2;
    }
    catch (const std::exception& error)
    {
        // A RunTimeError, or memory has run out.
        return EndByError(error);
    }
    return mainWindow != nullptr ? QApplication::exec() : 0;
}
