#pragma once

/// Names in the order in which a part table first names them.

#include "partdata/PartTable.h"

#include <array>
#include <cstddef>
#include <map>
#include <string_view>

/// Sizes or characteristics of one code by where they first stand in the table.
class Appearances
{
public:
    /// The names of a part in either code.
    using Names = std::array<std::string_view, CodeForms> PartRecord::*;

    Appearances(const PartTable& parts, Names names, CodeView code);

    /// The place of a part's name, from 0. The part is one of the table.
    std::size_t operator()(const PartRecord& part) const { return places.at((part.*names)[code]); }

private:
    Names names;
    std::size_t code;
    std::map<std::string_view, std::size_t> places;
};
