#pragma once

/// What is wrong with a pair of part files, as a value, and how it is told.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// An error: the program refuses the pair, or a part is lost or cannot be charted as it is. A warning:
/// everything works, but looks like a mistake.
enum class Severity
{
    Error,
    Warning,
};

/// One thing that is wrong. All texts are UTF-8.
struct Finding
{
    Severity Level = Severity::Error;
    /// Short name of the broken rule, such as "rated-voltage".
    std::string Rule = {};
    /// The file's name without its folder.
    std::string File = {};
    /// Counted from 1; 0 when the finding is about the whole file.
    std::size_t Record = 0;
    /// The part's global EIA number, where known.
    std::string PartNumber = {};
    /// "Data(2)", "PartNum(0)"; empty where no single field is to blame.
    std::string Field = {};
    /// The value of the field, or the one that was worked out.
    std::string Value = {};
    std::string Message = {};
};

/// All that was found in one pair.
struct PairReport
{
    std::string IndexFile;
    std::string DataFile;
    std::size_t Parts = 0;
    std::vector<Finding> Findings;
    /// Findings that were dropped, of a pair that is wrong all over.
    std::size_t DroppedErrors = 0;
    std::size_t DroppedWarnings = 0;

    /// All findings of a level, dropped ones included.
    std::size_t Count(Severity level) const;
    /// Once there are more than `MostFindings`, drops the last of them, warnings before errors.
    void DropSurplus();
};

/// Findings of one pair that are told; nobody reads more.
inline constexpr std::size_t MostFindings = 10'000;

/// "1 error", "2 errors".
std::string Counted(std::size_t count, std::string_view noun);

/// One line a finding, one that tells how many are left out, and a summary line:
///
///     halvex.dat: record 17: KTU033R71E101KA01: error: Data(2) = 0: rated voltage is not positive
///     [rated-voltage] 1179 parts, 1 error, 0 warnings
std::string TextOf(const PairReport& report);

/// The same as one JSON object, with the members `indexFile`, `dataFile`, `parts`, `errors`, `warnings` and
/// `findings`, and with `dropped` where findings are left out. Members of a finding that say nothing are left
/// out.
std::string JsonOf(const PairReport& report);
