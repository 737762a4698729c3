#pragma once

/// A current of any shape that is asked for by texts: which record or converter, and what bears it.

#include "requests/StressReport.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What may be asked by a text.
struct RippleKey
{
    /// "maxRise".
    std::string_view Key;
    /// What its text is: a unit, or what it names.
    std::string_view Unit;
    /// What it is for, with what holds where it is left out.
    std::string_view Text;
    /// Keys that are told together.
    std::string_view Group;
};

/// All keys, in the order in which help tells them.
std::span<const RippleKey> RippleKeys();

/// What is typed.
struct RippleTexts
{
    /// By the keys of `RippleKeys`; those that are left out missing.
    std::map<std::string, std::string, std::less<>> Values;
    /// All that is looked at of a record is one period.
    bool IsWhole = false;
    bool HasRecord = false;
    std::vector<std::string> Parts;
    CodeView Code = CodeView::Eia;
};

/// What is asked for.
struct RippleRequest
{
    /// Nothing for a record.
    std::optional<Converter> Source;
    std::optional<ConverterSide> Side;
    std::optional<std::string> Column;
    std::optional<std::string> Voltage;
    StretchWishes Wishes;
    StressRequest Stress;
};

/// The request of its texts. Throws RequestError, whose key is empty where several options do not go
/// together.
RippleRequest RippleRequestOf(const RippleTexts& typed);

/// The current of a record, in the bytes of its file. A voltage column gives the request its bias. Throws
/// WaveformError.
StressReport ReportOfRecord(std::string bytes, RippleRequest& request);

/// The current of the side that is asked for, whose voltage is the bias if none is given; those of both sides
/// where neither a part nor a side is.
std::vector<StressReport> ReportsOfConverter(RippleRequest& request);
