#include "requests/RangeSigns.h"

#include <algorithm>

bool IsTypedAsRange(std::string_view typed)
{
    const auto isIn = [typed](std::string_view sign) { return typed.find(sign) != std::string_view::npos; };
    return isIn(EndsSign) || std::ranges::any_of(SpreadSigns, isIn);
}
