/// `tavik-cli find`: which parts do what a circuit needs.

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/FilterOptions.h"
#include "cli/FindOptions.h"
#include "cli/Output.h"
#include "find/QuestionRules.h"
#include "requests/FoundList.h"
#include "requests/Names.h"
#include "requests/RequestError.h"
#include "terminal/HelpText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

static constexpr const char* examples = R"(Examples:
  tavik-cli find --dc-bias 12V --ambient 85C --min-capacitance 6uF --max-size 1206
  tavik-cli find --capacitance 10uF --dc-bias 12V --frequency 300kHz --current 1.5Arms --max-rise 20C
  tavik-cli find KTS31NB51E106MA01 --frequency 400kHz --max-rise 20C
  tavik-cli find --parallel auto --min-capacitance 22uF --dc-bias 12V --ambient 85C --max-size 1206
  tavik-cli find --parallel auto --min-capacitance 10uF --dc-bias 12V --ambient 70C --frequency 500kHz \
      --current 4Arms
  tavik-cli find --dc-bias 10.8..13.2V --ambient -20..85C --tolerance 10 --min-capacitance 4uF \
      --max-size 1206
  tavik-cli find --dc-bias 5V --ambient -20C --min-left 75 --min-capacitance 0.7uF --max-size 0603 \
      --sort -effective-capacitance

)";

static std::string Help()
{
    return examples +
           Wrapped(
               "All values are those of the charts at the operating point, judged as the form judges "
               "conditions. Over ranges of conditions they are the worst of every combination, told with the "
               "place where each occurs, so that what is wanted holds everywhere. Heating and the loads that "
               "are allowed are told with --frequency, rise, body "
               "temperature and ripple with a load. The heating by a current does not depend on the bias, "
               "which only decides whether a part may be used. A part is left out where a wanted limit or "
               "the load needs a value that it does not have; standard error tells how many, and why. The "
               "order "
               "that is left out is area,count: the least board first.");
}

/// The parts that the filters let through. Throws Failure for a size that no part has.
static std::vector<const PartRecord*> CandidatesOf(const FindOptions& options, const PartTable& parts)
{
    auto filter = options.Filter;
    filter.Code = options.Question.At.View;
    filter.TakesPartsWithoutData = true;
    if (options.MaxSize)
    {
        filter.LargestSize = SizeOrFail(parts, *options.MaxSize, filter.Code);
    }
    return FilterParts(parts, filter);
}

static float LargestRatingOf(const std::vector<const PartRecord*>& parts)
{
    float largest = 0;
    for (const PartRecord* part : parts)
    {
        largest = std::max(largest, part->Data[Value::RatedVoltage]);
    }
    return largest;
}

/// Throws RequestError in the words of the form.
static void CheckQuestion(const FindOptions& options, float largestRating)
{
    if (const auto refusal = RefuseQuestion(options.Question, largestRating))
    {
        const auto& [option, text] = options.TypedFor(refusal->Key);
        throw RequestError(RequestErrorKind::Condition, option, refusal->Message)
            .Of(refusal->IsMissing ? "" : text);
    }
}

static FoundParts Find(const FindOptions& options, const PartTable& parts)
{
    const auto candidates = CandidatesOf(options, parts);
    CheckQuestion(options, LargestRatingOf(candidates));
    auto found = FindParts(candidates, options.Question);
    const auto order = options.Sort ? FoundKeysOf(*options.Sort, options.Question) : LeastBoard();
    SortFound(found.Parts, parts, order, options.Question.At.View);
    return found;
}

/// What people read beside the list: how many parts fit, and which could not be judged.
static void TellFitting(const FindOptions& options, const FoundParts& found)
{
    const auto note = NoteOnHeating(options.Question.At);
    if (found.Parts.empty() || found.LeftOut.Total() > 0 || !note.empty())
    {
        std::cerr << "tavik-cli: " << FitText(found.Parts.size(), found.LeftOut) << (note.empty() ? "" : "; ")
                  << note << '\n';
    }
}

static void ListFound(const FindOptions& options)
{
    if (options.Sort)
    {
        // A wrong order is told before parts are looked for.
        FoundKeysOf(*options.Sort, options.Question);
    }
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    const auto found = Find(options, parts);
    const auto told = std::span(found.Parts).first(std::min(found.Parts.size(), options.Limit));
    Output output(options.OutputFile);
    output.Write(
        FormatNamed(FoundListFormats(), options.Format).Write(told, options.Question, options.Settings));
    output.Finish();
    TellFitting(options, found);
}

void AddFindCommand(CLI::App& app)
{
    const auto options = std::make_shared<FindOptions>();
    auto& command = *app.add_subcommand("find", "Finds the parts that do what is needed");
    command.footer(Help());
    AddFindOptions(command, *options);
    command.callback(
        [options]
        {
            FinishQuestion(*options);
            ListFound(*options);
        });
}
