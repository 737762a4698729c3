#pragma once

/// One capacitor of the range, as the part files describe it.

#include "partdata/ValueNames.h"

#include <array>
#include <cstddef>
#include <string_view>

inline constexpr std::size_t PartNumForms = 4;
inline constexpr std::size_t CodeForms = 2;

/// The two namings of sizes and temperature characteristics; the value is the index into
/// `SizeCode` and `Tcc`, and what `GetCodeForm` returns.
enum class CodeView
{
    Eia = 0,
    Jis = 1,
};

/// One part: its names in every naming, and its coefficients and ratings.
///
/// The texts are views into the index file's text, which the `PartTable` holds.
struct PartRecord
{
    /// Global EIA, global JIS, previous EIA, previous JIS part number.
    std::array<std::string_view, PartNumForms> PartNum;
    /// Size code in EIA and in JIS code ("0805", "2012").
    std::array<std::string_view, CodeForms> SizeCode;
    /// Temperature characteristic in EIA and in JIS code ("X7R", "R").
    std::array<std::string_view, CodeForms> Tcc;
    /// Coefficients and ratings in data-file order, reached by the names of `Value`.
    std::array<float, DataValues> Data{};
};
