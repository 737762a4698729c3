/// `tavik-cli like`: which parts may stand for a part.

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/FilterOptions.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "find/LikenessRules.h"
#include "requests/LikeList.h"
#include "requests/Names.h"
#include "requests/RangeEntry.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"
#include "terminal/HelpText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <map>

namespace
{
struct LikeOptions
{
    std::string Part;
    PartFilter Filter;
    std::optional<std::string> MaxSize;
    LikeQuestion Question;
    CurveSettings Settings;
    std::vector<LikeKey> Order;
    std::size_t Limit = MostParts;
    std::string Format;
    std::string DataFolder;
    std::string OutputFile;
    /// By the keys of rules.
    std::map<std::string, std::string, std::less<>> Typed;
};
} // namespace

static constexpr const char* examples = R"(Examples:
  tavik-cli like KTS188B51A475MA01
  tavik-cli like KTS32XR71E106KA01 --dc-bias 10.8..13.2V --ambient -10..65C
  tavik-cli like KTS32XR71E106KA01 --max-size 1812 --most 30

)";

static std::string Help()
{
    return examples +
           Wrapped(
               "A part may stand for another one whose size, rated voltage and permitted rise it keeps, "
               "where it "
               "has no less capacitance and heats no more, but for --worse, anywhere in the ranges: those "
               "left "
               "out are all that the other one permits. Ratios are in percent against it, with the place "
               "where "
               "each occurs. The order that is left out is the one that changes least. Where none fits, the "
               "nearest are listed and marked short. A part that is not in the range has no curves to "
               "compare: "
               "put its points into a folder of part files first, or ask find for what is needed.");
}

/// Throws RequestError for a part that does not exist and for what the rules refuse.
static LikeParts Find(LikeOptions& options, const PartTable& parts)
{
    auto& question = options.Question;
    const auto shownForm = static_cast<std::size_t>(question.View) + options.Settings.NumberingOffset;
    question.Original = &parts.PartData[FindPart(parts, options.Part, shownForm)];
    if (options.MaxSize)
    {
        question.LargestSize = SizeOrFail(parts, *options.MaxSize, question.View);
    }
    if (const auto refusal = RefuseLikeQuestion(question))
    {
        const auto typed = options.Typed.find(refusal->Key);
        const bool isOfPart = typed == options.Typed.end();
        throw isOfPart
            ? RequestError(RequestErrorKind::NoData, "part", refusal->Message).OfPart(options.Part)
            : RequestError(RequestErrorKind::Condition, typed->first, refusal->Message).Of(typed->second);
    }
    auto filter = options.Filter;
    filter.Code = question.View;
    filter.TakesPartsWithoutData = true;
    auto found = FindLike(FilterParts(parts, filter), question);
    SortLike(found.Parts, parts, options.Order, question.View);
    return found;
}

static void ListLike(LikeOptions& options)
{
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    auto found = Find(options, parts);
    const auto note = LikeText(found, options.Question);
    found.Parts.resize(std::min(found.Parts.size(), options.Limit));
    Output output(options.OutputFile);
    const auto& format = FormatNamed(LikeListFormats(), options.Format);
    output.Write(format.Write(found, options.Question, options.Settings));
    output.Finish();
    std::cerr << "tavik-cli: " << note << '\n';
}

/// Hands what is read to the question, and keeps what was typed for messages.
template <class Read>
static void AddKept(CLI::App& command, LikeOptions& options, const std::string& key, const ReadOption& option,
                    const Read& read)
{
    AddReadOption(command, option,
                  [read, key, &options](const std::string& typed)
                  {
                      read(options.Question, typed);
                      options.Typed[key] = typed;
                  });
}

static void AddQuestion(CLI::App& command, LikeOptions& options)
{
    const char* const group = "Conditions";
    AddKept(
        command, options, "dcBias",
        {"--dc-bias", "V", "DC bias voltage, or its range (left out: 0 to the part's rated voltage)", group},
        [](LikeQuestion& question, const std::string& typed)
        { question.BiasVolts = ConditionRangeOf(typed, Quantity::DCVoltage, "dcBias"); });
    AddKept(
        command, options, "ambient",
        {"--ambient", "C", "Ambient temperature, or its range (left out: that of the characteristic)", group},
        [](LikeQuestion& question, const std::string& typed)
        { question.AmbientC = ConditionRangeOf(typed, Quantity::Temperature, "ambient"); });
    AddKept(command, options, "heatResistance",
            {"--heat-resistance", "C/W", "Heat resistance of either part (left out: each part's own)", group},
            [](LikeQuestion& question, const std::string& typed)
            { question.HeatResistance = ValueInUnit(typed, Quantity::HeatResistance); });
    AddKept(command, options, "worse",
            {"--worse", "%", "So much less capacitance, and more heating, will do (left out: 5)", group},
            [](LikeQuestion& question, const std::string& typed)
            { question.Worse = ValueInUnit(typed, Quantity::CapacitanceChange); });
    AddKept(command, options, "most",
            {"--most", "%", "No more capacitance than so much above the part's", group},
            [](LikeQuestion& question, const std::string& typed)
            { question.Most = ValueInUnit(typed, Quantity::CapacitanceChange); });
}

static void AddFilters(CLI::App& command, LikeOptions& options)
{
    AddRatingOptions(command, options.Filter);
    AddReadOption(command, {"--max-size", "SIZE", "This size or smaller (left out: the part's own)"},
                  [&options](const std::string& value) { options.MaxSize = value; });
}

void AddLikeCommand(CLI::App& app)
{
    const auto options = std::make_shared<LikeOptions>();
    auto& command = *app.add_subcommand("like", "Finds the parts that may stand for a part");
    command.footer(Help());
    command.add_option("part", options->Part, "Part number in any of its forms, any letter case")
        ->type_name("PART")
        ->required();
    AddFilters(command, *options);
    AddQuestion(command, *options);
    const auto names = LikeColumnNames();
    AddReadOption(
        command,
        {"--sort", "KEY[,KEY...]",
         "Order by " + ChoiceOf({names.begin(), names.end()}) + "; downwards with a hyphen before the key"},
        [options](const std::string& value) { options->Order = LikeKeysOf(value); });
    AddLimitOption(command, options->Limit);
    AddCodeOption(command, options->Question.View);
    AddNumberingOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    AddFormatOption(command, options->Format, {LikeListFormats().begin(), LikeListFormats().end()});
    AddOutputOption(command, options->OutputFile);
    command.callback([options] { ListLike(*options); });
}
