#include "cli/FilterOptions.h"

#include "calc/NumberText.h"
#include "cli/Command.h"
#include "requests/Names.h"
#include "requests/PartList.h"
#include "requests/RequestWords.h"

#include <CLI/CLI.hpp>

#include <cmath>

void AddReadOption(CLI::App& command, const ReadOption& option,
                   const std::function<void(const std::string& value)>& take)
{
    const auto read = [take, name = option.Name](const std::string& value)
    {
        try
        {
            take(value);
        }
        catch (const RequestError& error)
        {
            if (!IsMistaken(error.Kind()))
            {
                throw;
            }
            throw UsageError(FollowsKey(error.Kind()) ? name + ' ' + error.Message() : WordsOf(error));
        }
    };
    command.add_option_function<std::string>(option.Name, read, option.Text)
        ->type_name(option.Type)
        ->group(option.Group);
}

int WholeNumber(const std::string& option, const std::string& typed, int most)
{
    const auto value = ReadEntry(typed);
    if (!value)
    {
        throw UsageError(option + " \"" + typed + "\" is not a whole number");
    }
    if (*value < 1 || *value > static_cast<float>(most) || *value != std::trunc(*value))
    {
        throw Failure(option + ' ' + typed + ": Please enter a whole Number from 1 to " +
                      std::to_string(most));
    }
    return static_cast<int>(*value);
}

PartSize SizeOrFail(const PartTable& parts, const std::string& name, CodeView code)
{
    const auto size = SizeNamed(parts, name, code);
    if (!size)
    {
        throw Failure("no size \"" + name + "\"; there are " + ListOf(SizeNames(parts, code)));
    }
    return *size;
}

void AddLimitOption(CLI::App& command, std::size_t& limit, const std::string& group)
{
    AddReadOption(command, {"--limit", "N", "So many parts at most", group},
                  [&limit](const std::string& value)
                  {
                      constexpr int most = 1'000'000'000;
                      limit = static_cast<std::size_t>(WholeNumber("--limit", value, most));
                  });
}

void AddFilterOptions(CLI::App& command, PartFilter& filter)
{
    command.add_option("text", filter.Text, "Part of a part number, in any form and letter case")
        ->type_name("TEXT");
    AddRatingOptions(command, filter);
}

void AddRatingOptions(CLI::App& command, PartFilter& filter)
{
    AddReadOption(command, {"--size", "SIZE", "Size code, such as 1206 or 3216"},
                  [&filter](const std::string& value) { filter.SizeCode = value; });
    AddReadOption(command, {"--characteristic", "TCC", "Temperature characteristic, such as X7R or R"},
                  [&filter](const std::string& value) { filter.Tcc = value; });
    AddReadOption(command, {"--capacitance", "pF", "Nominal capacitance, such as 4.7uF or 1uF..10uF"},
                  [&filter](const std::string& value)
                  { filter.Capacitance = RangeInUnit(value, Quantity::Capacitance); });
    AddReadOption(command, {"--rated-voltage", "V", "Rated voltage, such as 25V or 16V.."},
                  [&filter](const std::string& value)
                  { filter.RatedVoltage = RangeInUnit(value, Quantity::DCVoltage); });
}
