#include "board/BomFormats.h"

#include "board/BomCsv.h"
#include "board/BomText.h"

#include <array>

std::span<const BomFormat> BomFormats()
{
    static constexpr std::array<BomFormat, 2> formats = {{
        {{"table", "if left out"},
         [](const JudgedBom& bom, const BomTable& /*bill*/, const BomSettings& settings)
         { return BomText(bom, settings); }},
        {{"csv", ""}, BomCsv},
    }};
    return formats;
}
