#pragma once

/// The options of `tavik-cli find`.

#include "find/PartFilter.h"
#include "find/Wants.h"
#include "requests/CurveRequest.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace CLI
{
class App;
}

/// What is typed.
struct FindOptions
{
    /// The key that names an option in messages, and its value.
    using Typed = std::pair<std::string, std::string>;

    PartFilter Filter;
    std::optional<std::string> MaxSize;
    std::optional<float> MinRatedVoltage;
    FindQuestion Question;
    std::optional<ConditionRange> Ambient;
    CurveSettings Settings;
    std::optional<std::string> Sort;
    std::size_t Limit = MostParts;
    std::string Format;
    std::string DataFolder;
    std::string OutputFile;
    /// By the keys of rules.
    std::map<std::string, Typed, std::less<>> TypedValues;

    /// What was typed for the key of a rule; the key alone where nothing was.
    Typed TypedFor(std::string_view key) const;
};

/// Adds all options of the command.
void AddFindOptions(CLI::App& command, FindOptions& options);

/// Puts in what follows from several options, once all are read.
void FinishQuestion(FindOptions& options);
