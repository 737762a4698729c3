#pragma once

/// Formats that results are written in, by the names that users call them.

#include <algorithm>
#include <span>
#include <string_view>

/// What users know of a format.
struct FormatName
{
    /// "csv".
    std::string_view Name;
    /// Stands behind the name in lists of formats: "if left out".
    std::string_view Note;
};

/// A format and the function that writes it.
template <class Writer> struct OutputFormat : FormatName
{
    Writer Write;
};

/// The format of a name; the first one where no name is given.
template <class Format> const Format& FormatNamed(std::span<const Format> formats, std::string_view name)
{
    const auto found = std::ranges::find(formats, name, &Format::Name);
    return found == formats.end() ? formats.front() : *found;
}
