#include "tests/terminal/PseudoTerminal.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

static int Checked(int result)
{
    if (result < 0)
    {
        throw std::system_error(errno, std::generic_category());
    }
    return result;
}

PseudoTerminal::PseudoTerminal()
    : screen(Checked(posix_openpt(O_RDWR | O_NOCTTY)))
{
    Checked(grantpt(screen));
    Checked(unlockpt(screen));
    line = Checked(open(Name().c_str(), O_RDWR | O_NOCTTY));
}

PseudoTerminal::~PseudoTerminal()
{
    close(line);
    close(screen);
}

std::string PseudoTerminal::Name() const
{
    return ptsname(screen);
}

std::string PseudoTerminal::Shown() const
{
    std::string shown;
    std::array<char, 4096> buffer;
    pollfd waiting{.fd = screen, .events = POLLIN, .revents = 0};
    while (poll(&waiting, 1, 50) > 0)
    {
        const auto got = read(screen, buffer.data(), buffer.size());
        if (got <= 0)
        {
            break;
        }
        shown.append(buffer.data(), static_cast<std::size_t>(got));
    }
    return shown;
}
