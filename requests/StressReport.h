#pragma once

/// What currents of any shape do to parts that are asked for by name and unit.

#include "partdata/PartTable.h"
#include "requests/CurveRequest.h"
#include "stress/PartStress.h"

#include <optional>
#include <string>
#include <vector>

/// What is asked for. Texts are as typed, in UTF-8; what is left out is 0 V, 25 °C in the EIA code and 20 °C
/// in the JIS code, and each part's own heat resistance.
struct StressRequest
{
    std::vector<std::string> Parts;
    /// Frequency and parameter do not count.
    ConditionTexts Conditions = {};
    /// The column whose mean is the DC bias among them; empty for one that was typed.
    std::string BiasColumn = {};
    /// In °C; the recommended rise where it is left out.
    std::optional<float> MostRise = {};
    /// Equal parts that share the current.
    int Parallel = 1;
    std::size_t MostLines = 10;
    CodeView Code = CodeView::Eia;
};

/// A part with what it bears.
struct StressedPart
{
    const PartRecord* Part;
    PartStress Stress;
};

/// Which side of which converter a current is of.
struct ConverterSource
{
    Converter Data;
    ConverterSide Side;
};

/// A current, and what it does.
struct StressReport
{
    /// What the current is called: a column of a record.
    std::string Name;
    /// Nothing for a record.
    std::optional<ConverterSource> Source = {};
    CurrentLoad Load;
    std::vector<StressedPart> Parts = {};

    /// "buck input", or the name of the column.
    std::string Title() const;
    /// By which share a record's rise changes without every second row: the most of all parts.
    std::optional<double> StepError() const;
};

/// Judges the conditions for each part as the form judges its boxes for the heating charts, and works out
/// what the part bears. Throws RequestError for a part that is unknown or has no heating data and for a
/// refused condition, and RunTimeError from the calculation; each with the part asked for.
std::vector<StressedPart> StressedPartsOf(const StressRequest& request, const CurrentLoad& load,
                                          const PartTable& parts, const CurveSettings& settings);

/// The lines of the whole current within 10 kHz to 1 MHz, as a bank's ripple is typed: "500kHz=0.8896
/// 1000kHz=0.5672". Lines that carry less than a millionth of the square are left out.
std::string BankCurrentOf(const CurrentLoad& load);

/// What makes the answer less sure, or the part less safe, a line each; with the part before it where there
/// are several.
std::vector<std::string> WarningsOf(const StressReport& report, CodeView code, const CurveSettings& settings);
