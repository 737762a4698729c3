/// Sets the clock of the program that loads it to the second of SET_CLOCK since 1970.

#include <cstdlib>
#include <ctime>

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

static time_t Second()
{
    const char* text = std::getenv("SET_CLOCK");
    return text != nullptr ? static_cast<time_t>(std::atoll(text)) : 0;
}

extern "C" int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    if (clock != CLOCK_REALTIME && clock != CLOCK_REALTIME_COARSE)
    {
        return static_cast<int>(syscall(SYS_clock_gettime, clock, now));
    }
    *now = {Second(), 0};
    return 0;
}

extern "C" int gettimeofday(timeval* now, void* /*zone*/) noexcept
{
    *now = {Second(), 0};
    return 0;
}

extern "C" time_t time(time_t* now) noexcept
{
    if (now != nullptr)
    {
        *now = Second();
    }
    return Second();
}
