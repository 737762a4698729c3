#include "files/SystemFault.h"

#include "partdata/RunTimeError.h"

#include <cerrno>

static RunTimeErrorNumber NumberOf(int fault)
{
    switch (fault)
    {
    case ENOENT:
    case ENOTDIR:
        return RunTimeErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return RunTimeErrorNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return RunTimeErrorNumber::DiskFull;
    default:
        return RunTimeErrorNumber::PathFileAccessError;
    }
}

void FailWith(int fault, const std::filesystem::path& file)
{
    throw RunTimeError(NumberOf(fault)).At(file.string());
}
