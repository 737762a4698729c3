#include "partfiles/SizeNames.h"

#include <algorithm>

struct SizeNames
{
    std::string_view Eia;
    std::string_view Jis;
};

/// Inches by hundredths in EIA, millimetres by tenths in JIS names; the smallest have a digit more.
static constexpr SizeNames KnownSizes[] = {
    {"008004", "0201"}, {"01005", "0402"}, {"015008", "0503"}, {"0201", "0603"}, {"0202", "0505"},
    {"0204", "0510"},   {"0303", "0808"},  {"0306", "0816"},   {"0402", "1005"}, {"0404", "1010"},
    {"0504", "1210"},   {"0505", "1313"},  {"0508", "1220"},   {"0603", "1608"}, {"0606", "1616"},
    {"0612", "1632"},   {"0805", "2012"},  {"1111", "2828"},   {"1206", "3216"}, {"1210", "3225"},
    {"1218", "3245"},   {"1808", "4520"},  {"1812", "4532"},   {"1825", "4564"}, {"2010", "5025"},
    {"2211", "5728"},   {"2220", "5750"},  {"2225", "5763"},   {"3640", "9210"},
};

std::optional<std::string_view> JisSizeOf(std::string_view eia)
{
    const auto* const size = std::ranges::find(KnownSizes, eia, &SizeNames::Eia);
    return size == std::end(KnownSizes) ? std::nullopt : std::optional(size->Jis);
}

std::optional<std::string_view> EiaSizeOf(std::string_view jis)
{
    const auto* const size = std::ranges::find(KnownSizes, jis, &SizeNames::Jis);
    return size == std::end(KnownSizes) ? std::nullopt : std::optional(size->Eia);
}
