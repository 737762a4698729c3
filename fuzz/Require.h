#pragma once

/// What holds for every input of a fuzz target.

#include <cstdlib>
#include <iostream>

/// Ends the process when a promise is broken, in every kind of build.
inline void Require(bool holds, const char* promise)
{
    if (!holds)
    {
        std::cerr << "broken: " << promise << '\n';
        std::abort();
    }
}
