/// The user's settings file with any bytes: the program starts in a folder that is there, and remembers the
/// next one.

#include "frame/LastFolder.h"
#include "frame/SettingsText.h"
#include "fuzz/Require.h"
#include "tests/partdata/TemporaryFolder.h"

#include <QDir>
#include <QSettings>

#include <chrono>
#include <cstdint>

namespace fs = std::filesystem;

/// Writes the file with a time of its own, so that it is never taken for the one read before.
static void WriteSettings(const TemporaryFolder& folder, std::string_view bytes)
{
    static auto time = fs::file_time_type::clock::now();
    time += std::chrono::seconds(1);
    fs::last_write_time(folder.Write("tavik/tavik.conf", bytes), time);
}

static QString FolderOf(const TemporaryFolder& folder, const char* name)
{
    return QString::fromStdString(folder.Path() + '/' + name);
}

/// With a '+' first the next folder is remembered on top of the settings that follow.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFolder home;
    static const bool prepared = []
    {
        fs::create_directories(home.Path() + "/tavik");
        fs::create_directories(home.Path() + "/saved");
        fs::current_path(home.Path());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QString::fromStdString(home.Path()));
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        return true;
    }();
    const bool remembers = prepared && size > 0 && data[0] == '+';
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    WriteSettings(home, text.substr(remembers ? 1 : 0));

    const auto value = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    Require(TextOfSetting(WrittenSetting(value)) == value, "a text reads back as it was written");
    const auto before = LastFolder();
    Require(!before.isEmpty() && QDir(before).exists(), "the last folder is there");
    Require(LastFolder() == before, "reading changes nothing");
    if (remembers)
    {
        const auto saved = FolderOf(home, "saved");
        RememberFolder(saved + QStringLiteral("/part.tvk"), QStringLiteral("part.tvk"));
        Require(LastFolder() == saved, "a saved file's folder is remembered");
    }
    return 0;
}
