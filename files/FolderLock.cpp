#include "files/FolderLock.h"

#include "files/FileState.h"
#include "files/SystemFault.h"
#include "partdata/RunTimeError.h"

#include <cerrno>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace fs = std::filesystem;

static constexpr std::chrono::milliseconds Pause{10};

/// The process that holds a lock on the folder, as the system lists it: "1: FLOCK ADVISORY WRITE 1234
/// 08:01:131 0 EOF". Empty where it is not listed.
static std::string HolderOf(int folder)
{
    const auto state = StateOf(folder);
    const auto node = ":" + std::to_string(state ? state->File.Node : 0);
    std::ifstream locks("/proc/locks");
    for (std::string line; std::getline(locks, line);)
    {
        std::istringstream words(line);
        std::string number;
        std::string kind;
        std::string manner;
        std::string access;
        std::string process;
        std::string file;
        words >> number >> kind >> manner >> access >> process >> file;
        if (kind == "FLOCK" && access == "WRITE" && file.ends_with(node))
        {
            return process;
        }
    }
    return {};
}

/// "process 1234 (tavik-cli)", as far as it is known.
static std::string WordsOf(const std::string& process)
{
    if (process.empty())
    {
        return "another program";
    }
    std::ifstream nameFile("/proc/" + process + "/comm");
    std::string name;
    std::getline(nameFile, name);
    return "process " + process + (name.empty() ? "" : " (" + name + ")");
}

/// Closes the folder and throws for the fault.
[[noreturn]] static void Fail(int fault, int folder, const fs::path& name)
{
    const auto holder = fault == EWOULDBLOCK ? HolderOf(folder) : "";
    close(folder);
    if (fault != EWOULDBLOCK)
    {
        FailWith(fault, name);
    }
    throw RunTimeError(RunTimeErrorNumber::PermissionDenied, WordsOf(holder) + " is writing there")
        .At(name.string());
}

FolderLock::FolderLock(const fs::path& folder, std::chrono::milliseconds patience)
    : handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (handle < 0)
    {
        FailWith(errno, folder);
    }
    const auto end = std::chrono::steady_clock::now() + patience;
    while (flock(handle, LOCK_EX | LOCK_NB) != 0)
    {
        const int fault = errno;
        if (fault != EWOULDBLOCK || std::chrono::steady_clock::now() >= end)
        {
            Fail(fault, handle, folder);
        }
        std::this_thread::sleep_for(Pause);
    }
}

FolderLock::~FolderLock()
{
    close(handle);
}

void FolderLock::Sync() const
{
    fsync(handle);
}
