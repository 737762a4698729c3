#pragma once

/// What currents do to parts, as text.

#include "requests/OutputFormat.h"
#include "requests/StressReport.h"

#include <span>
#include <string>

/// A format of reports: of one current with its parts, or of both sides of a converter without any. UTF-8,
/// lines ended by line feeds. The table is for people; CSV has a row a line of each part's current, of each
/// side's where there are no parts.
using StressFormat = OutputFormat<std::string (*)(std::span<const StressReport> reports, CodeView code,
                                                  const CurveSettings& settings)>;

/// All formats, the one that holds where none is named foremost: a table, CSV and JSON.
std::span<const StressFormat> StressFormats();

/// The whole report in JSON. UTF-8, ended by a line feed.
std::string StressJson(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings);

/// The report as people read it.
std::string StressText(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings);

/// "current 1.1560 Arms, 3.201 A peak to peak, mean -0.0001 A", and the sine that heats alike.
std::string CurrentText(const CurrentLoad& load);

/// Where a current comes from: "614 periods of 2.0000 us (500.00 kHz) from 272 us to 1.5 ms", or a
/// converter's data with what is taken of it on a second line.
std::string OriginText(const StressReport& report);

/// "1.1560 Arms, 3.201 A peak to peak, mean -0.0001 A".
std::string SwingText(const CurrentLoad& load);

/// "1.1560 Arms at 628 kHz".
std::string SineText(const EquivalentSine& sine);

/// True where the parts can be asked about the sine: its frequency is one of the entries.
bool CanBeTyped(const EquivalentSine& sine);
