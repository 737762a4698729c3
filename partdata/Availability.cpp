#include "partdata/Availability.h"

#include <algorithm>
#include <cmath>

static bool AnyData(const PartRecord& part, std::size_t first, std::size_t last)
{
    return std::any_of(part.Data.begin() + first, part.Data.begin() + last + 1,
                       [](float value) { return value != 0; });
}

bool IsAvailable(const PartRecord& part, int chartType)
{
    if (!std::isfinite(part.Data[0]) || !std::isfinite(part.Data[2]))
    {
        return false;
    }
    switch (chartType)
    {
    case 0:
    case 1:
        return AnyData(part, 28, 65);
    case 2:
    case 3:
        return AnyData(part, 3, 27);
    default:
        return false;
    }
}
