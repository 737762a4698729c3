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

/// Throws UsageError for what is no number, Failure for one that is not whole or not from 1 to `most`.
int WholeNumber(const std::string& option, const std::string& typed, int most);

/// The measures of a size by its name. Throws Failure that lists the names for a size that no part has.
PartSize SizeOrFail(const PartTable& parts, const std::string& name, CodeView code);

/// Adds --limit.
void AddLimitOption(CLI::App& command, std::size_t& limit, const std::string& group = "");

/// Adds --size, --characteristic, --capacitance and --rated-voltage.
void AddRatingOptions(CLI::App& command, PartFilter& filter);

/// Adds the piece of a part number, --size, --characteristic, --capacitance and --rated-voltage.
void AddFilterOptions(CLI::App& command, PartFilter& filter);
