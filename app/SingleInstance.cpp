#include "app/SingleInstance.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <QCoreApplication>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <set>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#endif

#ifdef _WIN32

std::string SingleInstanceName(std::size_t number)
{
    // The Local namespace belongs to one login session.
    return "Local\\tavik-" + std::to_string(number);
}

bool ClaimSingleInstance()
{
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, SingleInstanceName(0).c_str());
    return mutex != nullptr && GetLastError() != ERROR_ALREADY_EXISTS;
}

#else

std::string SingleInstanceName(std::size_t number)
{
    // The number stands before what may be cut off.
    const char* session = std::getenv("XDG_SESSION_ID");
    return "tavik-" + std::to_string(getuid()) + '-' + std::to_string(number) + '-' +
           (session != nullptr ? session : "");
}

namespace
{
/// How long a name may be held without an answer before its holder counts as a stranger: an instance of ours
/// listens at once, unless the machine is very busy.
constexpr std::chrono::milliseconds Patience(200);
constexpr std::chrono::milliseconds Pause(5);
/// More than any honest crowd needs; a stranger who takes and leaves names all the time is not waited for.
constexpr int MostRounds = 100;

/// The address of one of the names. It begins with a zero character, so it lives in the kernel only: no file,
/// and it vanishes with the process that holds it.
struct Address
{
    explicit Address(std::size_t number)
    {
        const std::string name = SingleInstanceName(number);
        const auto length = std::min(name.size(), sizeof Place.sun_path - 1);
        std::memcpy(Place.sun_path + 1, name.data(), length);
        Size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    }
    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&Place); }

    sockaddr_un Place = {.sun_family = AF_UNIX, .sun_path = {}};
    socklen_t Size = 0;
};

/// A socket that never makes anybody wait.
class Socket
{
public:
    Socket()
        : descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
    }
    ~Socket() { close(descriptor); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    int Get() const { return descriptor; }

private:
    int descriptor;
};

/// Who listens under a name.
enum class Listener
{
    /// Nobody, whether the name is held or not; or one that takes no more callers.
    None,
    ThisUser,
    Stranger,
};

/// What became of the attempt to hold a name.
enum class Hold
{
    Succeeded,
    NameIsTaken,
    /// The system has no such names to give.
    Impossible,
};
} // namespace

static Listener ListenerOf(std::size_t number)
{
    const Address address(number);
    const Socket caller;
    if (connect(caller.Get(), address.Get(), address.Size) != 0)
    {
        return Listener::None;
    }
    ucred peer = {};
    socklen_t size = sizeof peer;
    const bool known = getsockopt(caller.Get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    return known && peer.uid == geteuid() ? Listener::ThisUser : Listener::Stranger;
}

/// Asks a held name again until somebody listens. False where nobody does.
static bool ListensInTime(std::size_t number)
{
    const auto end = std::chrono::steady_clock::now() + Patience;
    while (ListenerOf(number) == Listener::None)
    {
        if (std::chrono::steady_clock::now() > end)
        {
            return false;
        }
        std::this_thread::sleep_for(Pause);
    }
    return true;
}

/// Lets callers go, who have learnt all they want to know by then: a full queue would keep the next one out.
static void DismissCallers(int listener)
{
    auto* caller = new QSocketNotifier(listener, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(caller, &QSocketNotifier::activated, caller,
                     [listener] { close(accept4(listener, nullptr, nullptr, SOCK_CLOEXEC)); });
}

static Hold HoldName(std::size_t number)
{
    const Address address(number);
    const int holder = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (holder < 0 || bind(holder, address.Get(), address.Size) != 0 || listen(holder, SOMAXCONN) != 0)
    {
        const bool taken = errno == EADDRINUSE;
        close(holder);
        return taken ? Hold::NameIsTaken : Hold::Impossible;
    }
    // It stays open as long as the process lives.
    DismissCallers(holder);
    return Hold::Succeeded;
}

namespace
{
/// What the names tell when all of them are asked.
struct Round
{
    /// Somebody of this user listens.
    bool IsRunning = false;
    /// The first name under which nobody listens, silent ones left out.
    std::optional<std::size_t> Free;
};
} // namespace

static Round AskAll(const std::set<std::size_t>& silent)
{
    Round round;
    for (std::size_t number = 0; number < InstanceNames; ++number)
    {
        const Listener listener = ListenerOf(number);
        round.IsRunning = round.IsRunning || listener == Listener::ThisUser;
        if (listener == Listener::None && !round.Free && !silent.contains(number))
        {
            round.Free = number;
        }
    }
    return round;
}

bool ClaimSingleInstance()
{
    // Names that strangers hold without listening.
    std::set<std::size_t> silent;
    for (int rounds = 0; rounds < MostRounds; ++rounds)
    {
        const Round round = AskAll(silent);
        if (round.IsRunning)
        {
            return false;
        }
        if (!round.Free || HoldName(*round.Free) != Hold::NameIsTaken)
        {
            return true;
        }
        // Another start was faster and will listen in a moment, or a stranger holds the name.
        if (!ListensInTime(*round.Free))
        {
            silent.insert(*round.Free);
        }
    }
    return true;
}

#endif
