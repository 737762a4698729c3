#include "cli/RequestOptions.h"

#include "cli/Command.h"

#include <CLI/CLI.hpp>

/// An option whose text goes into a request as it stands.
static void AddText(CLI::App& command, const std::string& name, std::optional<std::string>& target,
                    const std::string& type, const std::string& help)
{
    command
        .add_option_function<std::string>(
            name, [&target](const std::string& text) { target = text; }, help)
        ->type_name(type)
        ->group("Curve");
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

void AddRequestOptions(CLI::App& command, CurveRequest& request)
{
    command
        .add_option("--chart", request.Chart,
                    "temperature-rise, allowable-power, capacitance-temperature or capacitance-dc-voltage")
        ->type_name("CHART")
        ->group("Curve");
    AddText(command, "--x", request.X, "NAME", "X axis, for example \"Apparent Power\"");
    AddText(command, "--y", request.Y, "NAME", "Y axis, for example \"Capacitance Change\"");
    AddText(command, "--dc-bias", request.Conditions[Condition::DCBias], "V", "DC bias voltage");
    AddText(command, "--frequency", request.Conditions[Condition::Frequency], "kHz",
            "Frequency, 10 to 1000 kHz");
    AddText(command, "--heat-resistance", request.Conditions[Condition::HeatResistance], "C/W",
            "Heat resistance (left out: the part's own)");
    AddText(command, "--ambient", request.Conditions[Condition::AmbientTemperature], "C",
            "Ambient temperature (left out: 25 in EIA, 20 in JIS code)");
    command
        .add_option_function<std::string>(
            "--parameter", [&request](const std::string& text) { TakeParameter(request, text); },
            "Fixed load of a temperature rise over frequency: current, voltage, effective-power or "
            "apparent-power")
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
    command.add_option("--output", file, "File to write (left out, or -: standard output)")
        ->type_name("FILE");
}
