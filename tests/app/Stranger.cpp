#include "tests/app/Stranger.h"

#include <csignal>
#include <cstddef>
#include <cstring>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

static bool Take(const std::string& name, Manner manner)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.size() >= sizeof address.sun_path)
    {
        return false;
    }
    std::memcpy(address.sun_path + 1, name.data(), name.size());
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    const int holder = socket(AF_UNIX, SOCK_STREAM, 0);
    return bind(holder, reinterpret_cast<const sockaddr*>(&address), size) == 0 &&
           (manner == Manner::IsSilent || listen(holder, 1) == 0);
}

/// The life of the stranger; tells through a pipe whether it holds all names.
[[noreturn]] static void Live(const std::vector<std::string>& names, uid_t user, Manner manner, int told)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    bool holds = user == getuid() || setuid(user) == 0;
    for (const std::string& name : names)
    {
        holds = holds && Take(name, manner);
    }
    const char answer = holds ? 'y' : 'n';
    if (write(told, &answer, 1) == 1)
    {
        pause();
    }
    _exit(1);
}

Stranger::Stranger(const std::vector<std::string>& names, uid_t user, Manner manner)
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
    {
        return;
    }
    process = fork();
    if (process == 0)
    {
        Live(names, user, manner, ends[1]);
    }
    char answer = 'n';
    holds = process > 0 && read(ends[0], &answer, 1) == 1 && answer == 'y';
    close(ends[0]);
    close(ends[1]);
}

Stranger::~Stranger()
{
    if (process > 0)
    {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
}
