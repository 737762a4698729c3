#include "cli/Drawing.h"

#include "cli/CommandError.h"
#include "formkit/Fonts.h"

#include <QGuiApplication>

#include <optional>

QByteArray Drawn(const std::function<QByteArray()>& draw)
{
    // Drawing needs fonts, but no display; what the platform remarks on its surroundings is no message of
    // ours.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "tavik-cli";
    char* argv[] = {name, nullptr};
    std::optional<QGuiApplication> application;
    if (QCoreApplication::instance() == nullptr)
    {
        application.emplace(argc, argv);
    }
    if (!HasFonts())
    {
        throw Failure("no font is installed, so the chart would have no texts");
    }
    return draw();
}
