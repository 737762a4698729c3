#include "simulation/ModelName.h"

#include <algorithm>

static bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

static bool StandsInName(char c)
{
    return IsLetter(c) || (c >= '0' && c <= '9') || c == '_';
}

std::string ModelName(std::string_view partNum)
{
    std::string name(partNum);
    std::ranges::replace_if(
        name, [](char c) { return !StandsInName(c); }, '_');
    return name.empty() || !IsLetter(name.front()) ? "C_" + name : name;
}
