#include "app/SingleInstance.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#endif

#ifdef _WIN32

std::string SingleInstanceName()
{
    // The Local namespace belongs to one login session.
    return "Local\\tavik";
}

bool ClaimSingleInstance()
{
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, SingleInstanceName().c_str());
    return mutex != nullptr && GetLastError() != ERROR_ALREADY_EXISTS;
}

#else

std::string SingleInstanceName()
{
    const char* session = std::getenv("XDG_SESSION_ID");
    return "tavik-" + std::to_string(getuid()) + "-" + (session != nullptr ? session : "");
}

bool ClaimSingleInstance()
{
    // A name that begins with a zero character lives in the kernel only: no file, and it vanishes with the
    // process. The socket stays open on purpose.
    const std::string name = SingleInstanceName();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto length = std::min(name.size(), sizeof address.sun_path - 1);
    std::memcpy(address.sun_path + 1, name.data(), length);
    const int holder = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    const bool taken =
        bind(holder, reinterpret_cast<const sockaddr*>(&address), size) != 0 && errno == EADDRINUSE;
    if (taken)
    {
        close(holder);
    }
    return !taken;
}

#endif
