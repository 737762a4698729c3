#pragma once

/// Tells a table that a spreadsheet has saved in another form than comma-separated UTF-8.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What is wrong with a text as a whole, and on which line, counted from 1, it shows first.
struct FormFault
{
    std::size_t Line = 1;
    std::string Message;
};

/// Why a text is no comma-separated table in UTF-8; nothing for one that may be. Its columns are not judged.
///
///     FaultOfForm("size code EIA;size code JIS\n")   // line 1: semicolons stand between the cells; ...
std::optional<FormFault> FaultOfForm(std::string_view text);
