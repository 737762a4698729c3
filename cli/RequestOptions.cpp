#include "cli/RequestOptions.h"

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
    request.ParameterValue = text.substr(equals + 1);
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
    AddText(command, "--dc-bias", request.DCBias, "V", "DC bias voltage");
    AddText(command, "--frequency", request.Frequency, "kHz", "Frequency, 10 to 1000 kHz");
    AddText(command, "--heat-resistance", request.HeatResistance, "C/W",
            "Heat resistance (left out: the part's own)");
    AddText(command, "--ambient", request.Ambient, "C",
            "Ambient temperature (left out: 25 in EIA, 20 in JIS code)");
    command
        .add_option_function<std::string>(
            "--parameter", [&request](const std::string& text) { TakeParameter(request, text); },
            "Fixed load of a temperature rise over frequency: current, voltage, effective-power or "
            "apparent-power")
        ->type_name("NAME=VALUE")
        ->group("Curve");
    command
        .add_option_function<std::string>(
            "--code", [&request](const std::string& name) { request.Code = CodeViewOf(name); },
            "Code system: eia or jis")
        ->type_name("CODE")
        ->group("Curve");
}

void AddSettingsOptions(CLI::App& command, CurveSettings& settings)
{
    command
        .add_option_function<std::string>(
            "--numbering",
            [&settings](const std::string& name)
            {
                if (name != "global" && name != "previous")
                {
                    throw UsageError("numbering \"" + name + "\" is none of: global, previous");
                }
                settings.NumberingOffset = name == "global" ? 0 : 2;
            },
            "Part numbers shown: global or previous")
        ->type_name("NUMBERING");
    command.add_flag("--unchecked", settings.Unchecked,
                     "Hand the conditions to the calculation without judging them");
}
