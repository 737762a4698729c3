#pragma once

/// The languages that the program's help is written in.

#include "partdata/PartRecord.h"

#include <array>
#include <cstdint>
#include <string_view>

/// A language of help: its number in `mdlPublic.HelpLanguage`, its book in the program folder, and the naming
/// that a program which has this book starts in.
struct HelpLanguageRow
{
    std::int16_t Number;
    std::string_view Book;
    CodeView StartView;
};

/// The book that lies first in this order in the program folder settles the language; English needs none.
inline constexpr std::array<HelpLanguageRow, 2> HelpLanguages = {{
    {1, "tavikj.hlp", CodeView::Jis},
    {2, "tavike.hlp", CodeView::Eia},
}};

/// The language of a number; the first one for a number that no language has.
constexpr const HelpLanguageRow& HelpLanguageOf(std::int16_t number)
{
    for (const HelpLanguageRow& language : HelpLanguages)
    {
        if (language.Number == number)
        {
            return language;
        }
    }
    return HelpLanguages.front();
}
