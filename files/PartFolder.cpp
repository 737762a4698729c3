#include "files/PartFolder.h"

#include <cstdlib>
#include <string_view>

std::optional<std::string> NamedPartFolder(const std::string& option)
{
    if (!option.empty())
    {
        return option;
    }
    const char* variable = std::getenv("TAVIK_DATA");
    if (variable == nullptr || std::string_view(variable).empty())
    {
        return std::nullopt;
    }
    return variable;
}
