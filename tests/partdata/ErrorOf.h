#pragma once

/// Errors that a test waits for.

#include "partdata/RunTimeError.h"

#include <functional>
#include <optional>

/// The error that a call ends with, if any.
inline std::optional<RunTimeError> ErrorOf(const std::function<void()>& call)
{
    try
    {
        call();
    }
    catch (const RunTimeError& error)
    {
        return error;
    }
    return std::nullopt;
}

/// The number of the error that a call ends with, 0 if none.
inline int ErrorNumberOf(const std::function<void()>& call)
{
    const auto error = ErrorOf(call);
    return error ? error->Number() : 0;
}
