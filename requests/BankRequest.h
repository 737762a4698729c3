#pragma once

/// A bank of parts that is asked for by name and unit, and how it is judged and worked out.

#include "partdata/PartTable.h"
#include "requests/CurveRequest.h"
#include "simulation/BankRanges.h"
#include "simulation/BankWarnings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Equal pieces as typed.
struct PieceText
{
    std::string Part;
    int Count = 1;
    /// Where it is left out, that of the request.
    std::optional<CapacitanceTolerance> Tolerance = {};
};

/// The pieces of "PART [xN] [tolerance=PERCENT]", words between blanks; letter case does not count. A part
/// number with blanks in it stands in quotes, double or single.
///
///     PieceOf("KTS31NR71A226KA01 x2 tolerance=10")   // two of them, ±10 %
///     PieceOf("'MY PART' tolerance=-20/+80")
///
/// Throws RequestError for words that are none of these or stand there twice, for a quote that does not end,
/// and for a count that is not from 1 to `MostInParallel` or a tolerance that is not permitted.
PieceText PieceOf(std::string_view typed);

/// A ripple current as typed. Without a frequency, that of the conditions counts.
struct RippleText
{
    std::optional<float> Kilohertz;
    float Arms = 0;
};

/// The ripple currents of "4Arms", or of "300kHz=4 600kHz=1.2", words between blanks. Throws RequestError
/// with the key "current" for what is neither, and for a frequency that stands there twice.
std::vector<RippleText> RippleOf(std::string_view typed);

/// What is asked for. Texts are as typed, in UTF-8; what is left out is 0 V, 25 °C in the EIA code and 20 °C
/// in the JIS code, and each part's own heat resistance. Bias, ambient temperature and frequency may be
/// ranges.
struct BankRequest
{
    std::vector<PieceText> Pieces;
    /// The parameter does not count.
    ConditionTexts Conditions = {};
    /// As `RippleOf` takes it.
    std::string Current;
    /// Of the pieces that name none, as `ToleranceOf` takes it.
    std::optional<std::string> Tolerance = {};
    CodeView Code = CodeView::Eia;
};

/// A question with its answer.
struct RequestedBank
{
    BankQuestion Question;
    BankAnswer Answer;
    std::vector<BankWarning> Warnings;
};

/// The bank of a request.
///
/// Throws RequestError for a unit that does not fit, a text that is no number, an unknown part, and a
/// frequency beside those of the ripple currents; in the words of the form for conditions that are refused,
/// and with the part for the first piece that cannot be judged. RunTimeError comes from the calculation.
RequestedBank BankOf(const BankRequest& request, const PartTable& parts, const CurveSettings& settings);
