#include "cli/Terminal.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

bool IsTerminal(Stream stream)
{
#ifdef _WIN32
    return _isatty(static_cast<int>(stream)) != 0;
#else
    return isatty(static_cast<int>(stream)) != 0;
#endif
}
