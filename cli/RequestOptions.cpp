#include "cli/RequestOptions.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "cli/Command.h"
#include "cli/FileArguments.h"
#include "requests/Names.h"
#include "requests/RequestWords.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>

/// An option whose text goes into a request as it stands.
static void AddText(CLI::App& command, const std::string& name, std::optional<std::string>& target,
                    const std::string& type, const std::string& help, const std::string& group = "Curve")
{
    command
        .add_option_function<std::string>(
            name, [&target](const std::string& text) { target = text; }, help)
        ->type_name(type)
        ->group(group);
}

/// "DC bias voltage" of "DC Bias Voltage": small letters but for the first and for words of capitals.
static std::string SentenceOf(std::string_view name)
{
    std::string sentence(name);
    for (std::size_t i = 1; i + 1 < sentence.size(); ++i)
    {
        const bool beginsWord = sentence[i - 1] == ' ';
        const bool isSmall = sentence[i + 1] == LowerCase(sentence[i + 1]);
        sentence[i] = beginsWord && isSmall ? LowerCase(sentence[i]) : sentence[i];
    }
    return sentence;
}

/// What the help adds on the entries for a condition.
static std::string NoteOn(Condition condition)
{
    switch (condition)
    {
    case Condition::Frequency:
        return ", " + NumberText(ShownValue(Quantity::Frequency, LowestFrequencyHz)) + " to " +
               NumberText(ShownValue(Quantity::Frequency, HighestFrequencyHz)) + " kHz";
    case Condition::HeatResistance:
        return " (left out: the part's own)";
    case Condition::AmbientTemperature:
        return " (left out: " + NumberText(ReferenceC(CodeView::Eia)) + " in EIA, " +
               NumberText(ReferenceC(CodeView::Jis)) + " in JIS code)";
    default:
        return {};
    }
}

void TakeParameter(CurveRequest& request, const std::string& text)
{
    const auto equals = text.find('=');
    if (equals == std::string::npos)
    {
        throw UsageError("--parameter \"" + text + "\": wants NAME=VALUE, for example current=1.5");
    }
    request.Parameter = text.substr(0, equals);
    request.Conditions[Condition::Parameter] = text.substr(equals + 1);
}

void AddConditionOptions(CLI::App& command, ConditionTexts& conditions, const std::string& group)
{
    for (const ConditionKind& kind : ConditionKinds())
    {
        if (kind.Measures)
        {
            AddText(command, "--" + OptionNameOf(kind.Key), conditions[kind.Id],
                    std::string(KindOf(*kind.Measures).Unit), SentenceOf(kind.Name) + NoteOn(kind.Id), group);
        }
    }
}

void AddRequestOptions(CLI::App& command, CurveRequest& request)
{
    command.add_option("--chart", request.Chart, ChoiceOf(ChartRequestNames()))
        ->type_name("CHART")
        ->group("Curve");
    AddText(command, "--x", request.X, "NAME", "X axis, for example \"Apparent Power\"");
    AddText(command, "--y", request.Y, "NAME", "Y axis, for example \"Capacitance Change\"");
    AddConditionOptions(command, request.Conditions, "Curve");
    command
        .add_option_function<std::string>(
            "--parameter", [&request](const std::string& text) { TakeParameter(request, text); },
            "Fixed load of a temperature rise over frequency: " + ChoiceOf(ParameterRequestNames()))
        ->type_name("NAME=VALUE")
        ->group("Curve");
    AddCodeOption(command, request.Code);
}

void AddCodeOption(CLI::App& command, CodeView& code)
{
    command
        .add_option_function<std::string>(
            "--code", [&code](const std::string& name) { code = CodeViewOf(name); },
            "Code system: eia (if left out) or jis")
        ->type_name("CODE");
}

void AddNumberingOption(CLI::App& command, CurveSettings& settings)
{
    command
        .add_option_function<std::string>(
            "--numbering",
            [&settings](const std::string& name) { settings.NumberingOffset = NumberingOffsetOf(name); },
            "Part numbers shown: global (if left out) or previous")
        ->type_name("NUMBERING");
}

void AddUncheckedOption(CLI::App& command, CurveSettings& settings)
{
    command.add_flag("--unchecked", settings.Unchecked,
                     "Hand the conditions to the calculation without judging them");
}

void AddOutputOption(CLI::App& command, std::string& file)
{
    TakeOutputFile(*command.add_option("--output", file, "File to write (left out, or -: standard output)")
                        ->type_name("FILE"));
}

static std::string WithNote(const FormatName& format)
{
    const std::string note(format.Note);
    return std::string(format.Name) + (note.empty() ? "" : " (" + note + ')');
}

void AddFormatOption(CLI::App& command, std::string& format, const std::vector<FormatName>& formats,
                     const std::string& note)
{
    std::vector<std::string> names;
    std::vector<std::string> notedNames;
    for (const auto& known : formats)
    {
        names.emplace_back(known.Name);
        notedNames.push_back(WithNote(known));
    }
    command.add_option("--format", format, ChoiceOf(notedNames) + note)
        ->type_name("FORMAT")
        ->check(CLI::IsMember(names));
}

void TellUnused(const RequestedCurve& curve, std::string_view partNum)
{
    if (const auto note = NoteOnUnused(curve, partNum); !note.empty())
    {
        TellLine("tavik-cli: " + note);
    }
}
