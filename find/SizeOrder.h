#pragma once

/// Sizes of parts by their measures: which is the smaller, and which board they take.

#include "partdata/PartTable.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The sides of a part in tenths of a millimetre.
struct PartSize
{
    int Length = 0;
    int Width = 0;

    bool operator==(const PartSize&) const = default;

    /// True when neither the longer nor the shorter side is above that of the largest.
    bool IsWithin(const PartSize& largest) const;
    /// In mm².
    double Area() const { return Length * Width / 100.0; }
};

/// The measures that the four digits of a JIS size code tell, 3.2 mm by 1.6 mm of "3216"; nothing for another
/// code.
std::optional<PartSize> SizeOf(std::string_view jisCode);

/// The measures of a part.
inline std::optional<PartSize> SizeOf(const PartRecord& part)
{
    return SizeOf(part.SizeCode[static_cast<std::size_t>(CodeView::Jis)]);
}

/// The measures of a size that a part of the table bears, looked up in one code, and in the other if it
/// stands nowhere there; letter case does not count. The name is in UTF-8. Nothing for a name that no part
/// with measures bears.
std::optional<PartSize> SizeNamed(const PartTable& parts, std::string_view name, CodeView code);

/// The names of all sizes with measures in a code, the smallest first.
std::vector<std::string_view> SizeNames(const PartTable& parts, CodeView code);
