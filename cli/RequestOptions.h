#pragma once

/// The options that commands on curves share: chart, axes, conditions, namings; and what is told of those
/// given in vain.

#include "requests/CurveRequest.h"
#include "requests/OutputFormat.h"

#include <string_view>
#include <vector>

namespace CLI
{
class App;
}

/// Adds --chart, --x, --y, the conditions and --code; they are taken into `request` when the command line is
/// parsed.
void AddRequestOptions(CLI::App& command, CurveRequest& request);

/// Adds the conditions but for the parameter.
void AddConditionOptions(CLI::App& command, ConditionTexts& conditions, const std::string& group);

/// Adds --code.
void AddCodeOption(CLI::App& command, CodeView& code);
/// Adds --numbering.
void AddNumberingOption(CLI::App& command, CurveSettings& settings);
/// Adds --unchecked.
void AddUncheckedOption(CLI::App& command, CurveSettings& settings);
/// Adds --output; the name is what `Output` wants.
void AddOutputOption(CLI::App& command, std::string& file);

/// Adds --format with the names of the formats, which the help lists before the note.
void AddFormatOption(CLI::App& command, std::string& format, const std::vector<FormatName>& formats,
                     const std::string& note = {});

/// Takes "effective-power=1.5W" into a request. Throws UsageError without an equals sign.
void TakeParameter(CurveRequest& request, const std::string& text);

/// Tells on standard error which options the chart type does not use, where there are any.
void TellUnused(const RequestedCurve& curve, std::string_view partNum);
