#include "board/BomFormats.h"

#include "board/BomCsv.h"
#include "board/BomJson.h"
#include "board/BomReport.h"
#include "board/BomText.h"

#include <array>

std::span<const BomFormat> BomFormats()
{
    static constexpr std::array<BomFormat, 4> formats = {{
        {{"table", "if left out"},
         [](const CheckedBom& bom, const BomSettings& settings, const BomNames& /*names*/)
         { return BomText(bom.Judged, settings); }},
        {{"csv", ""},
         [](const CheckedBom& bom, const BomSettings& settings, const BomNames& /*names*/)
         { return BomCsv(bom, settings); }},
        {{"json", ""}, BomJson},
        {{"html", ""},
         [](const CheckedBom& bom, const BomSettings& settings, const BomNames& /*names*/)
         { return BomReport(bom, settings); }},
    }};
    return formats;
}
