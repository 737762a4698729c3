#pragma once

/// The JSON texts of X axes, kept for the curves to come.

#include "calc/ChartRecord.h"

#include <array>
#include <string>
#include <string_view>

/// What JSON has for a point without a value.
inline constexpr std::string_view NoNumber = "null";

/// Appends the values as a JSON array, each as the shortest text of its single, null for `NoValue`. All
/// others must be finite.
void AppendValues(std::string& text, const CurveValues& values);

/// Texts of the X axes met last. The parts of a range share most of theirs, and writing a curve's numbers is
/// most of what an answer costs.
class AxisTexts
{
public:
    /// The values as a JSON array; valid until the next call.
    const std::string& Of(const CurveValues& values);

private:
    struct Kept
    {
        CurveValues Values{};
        std::string Text;
    };
    /// Each axis has one place that its ends lead to.
    std::array<Kept, 16> kept;
};
