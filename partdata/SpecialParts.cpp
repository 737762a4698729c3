#include "partdata/SpecialParts.h"

#include <algorithm>
#include <array>

static constexpr std::array<std::string_view, 9> SpecialParts = {
    "KTU155F51H222ZA01", "KTU155F51H332ZA01", "KTU155F51H472ZA01", "KTU155F51H682ZA01", "KTU155F51H103ZA01",
    "KTS188F51H102ZA01", "KTS188F51H332ZA01", "KTS216F51H102ZA01", "KTS32RF51H105ZA01",
};

bool IsSpecialPart(std::string_view partNum)
{
    return std::ranges::find(SpecialParts, partNum) != SpecialParts.end();
}
