#pragma once

/// The check of the parameter of a temperature rise over frequency against its largest permitted value.

#include <optional>
#include <string>

/// Why a parameter of the temperature rise over frequency is refused.
struct ParameterRefusal
{
    /// Largest permitted parameter, as computed.
    double Limit;
    /// The limit rounded down to four significant digits, as the message shows it; itself permitted.
    float Shown;
    /// "Parameter is invalid!", a line break and the permitted range.
    std::string Message;
};

/// Why a parameter is refused, or nothing when it lies from 0 to the limit.
///
/// The parameter is a single, so it is compared with the limit as a single; the number in the message is cut
/// to four significant digits and is therefore permitted itself.
///
///     RefuseLoad(15.49F, 9.9315671)   // "... from 0 to 9.931"
std::optional<ParameterRefusal> RefuseLoad(float parameter, double limit);

/// The number cut to four significant digits: never above the number. Finite and not negative.
float CutToFourDigits(float number);
