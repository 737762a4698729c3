#pragma once

/// The options of commands that list parts.

#include "find/PartFilter.h"

#include <functional>
#include <string>
#include <string_view>

namespace CLI
{
class App;
}

/// What an option is called, and what the help tells of it.
struct ReadOption
{
    std::string Name;
    std::string Type;
    std::string Text;
    std::string Group = "Filter";
};

/// An option that is read as soon as it is met, so that a wrong one is a wrong command line: a RequestError
/// that `take` throws ends as a UsageError that names the option.
void AddReadOption(CLI::App& command, const ReadOption& option,
                   const std::function<void(const std::string& value)>& take);

/// The value of an option that is a whole number from 1 on. Throws UsageError for what is no number, Failure
/// for one that is not whole or not in the range.
int WholeNumber(const std::string& option, const std::string& typed, int most);

/// Adds the piece of a part number, --size, --characteristic, --capacitance and --rated-voltage.
void AddFilterOptions(CLI::App& command, PartFilter& filter);
