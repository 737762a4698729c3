#pragma once

/// Values as engineers read them: "89.96 µF", with a prefix before the unit and no more digits than tell.

#include "calc/Quantities.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Stands where there is no value.
inline constexpr std::string_view NoValueText = "\u2013";
/// The sign of negative numbers where texts are set, not typed.
inline constexpr std::string_view MinusSign = "\u2212";

/// A text of ours with the sign that is set, where it has one.
std::string WithMinusSign(const std::string& number);

/// How texts that stand together read: in one unit, with one number of decimals.
struct EngineeringForm
{
    /// "µF", "°C".
    std::string Unit;
    /// What is told is a kept value times ten to this power.
    int Shift = 0;
    int Decimals = 0;
    /// Percentages and ratios of such values make sense.
    bool HasRatios = true;
};

/// The form of one value: four digits, at most three decimals. Prefixes go from p to M and stand before F,
/// Hz, V, W, VA, Arms and Vrms, chosen after rounding: 999.96 nF reads "1.000 µF".
EngineeringForm FormOf(Quantity quantity, double value, std::string_view degreeSign = defaultDegreeSign);

/// The form that values and their differences share, so that they can be compared by eye: the prefix of the
/// largest, and as many decimals as give it four digits and the smallest above a hundredth of it three, at
/// most three. What is not finite does not count.
EngineeringForm FormOf(Quantity quantity, std::span<const double> values,
                       std::string_view degreeSign = defaultDegreeSign);

/// True when the value rounds to nothing in the form.
bool ReadsZero(const EngineeringForm& form, double value);

/// The number with its unit: "4.372 µF", "−12.50 %"; "0 µF" for what rounds to nothing; "–" for no value.
std::string ValueText(const EngineeringForm& form, std::optional<double> value);

/// The same with a sign before what is positive: "+0.305 µF", "−0.305 µF", "0 µF".
std::string DifferenceText(const EngineeringForm& form, std::optional<double> difference);

/// The difference of a value to a reference, with its percentage where there is one: "−0.724 °C (−35.7 %)".
/// None of a change in percent, and none of a reference that reads 0.
std::string DifferenceToText(const EngineeringForm& form, std::optional<double> value,
                             std::optional<double> reference);

/// A value divided by a reference, four digits: "0.1100", "15.00". "–" for a change in percent, for a
/// reference that reads 0 and where a value is missing.
std::string RatioText(const EngineeringForm& form, std::optional<double> value,
                      std::optional<double> reference);

/// The ratio of any two numbers, four digits; "–" for a reference of 0.
std::string RatioText(double value, double reference);

/// One value in its own form: `EngineeringText(Quantity::Capacitance, 89960000)` is "89.96 µF".
std::string EngineeringText(Quantity quantity, double value, std::string_view degreeSign = defaultDegreeSign);

/// A kept value of an axis as it is typed, six digits, in the unit that the axis is entered in: "300 kHz",
/// "1.5 Arms", "−55 °C".
std::string AxisValueText(Quantity quantity, double kept, std::string_view degreeSign = defaultDegreeSign);

/// The same for the difference of two: "+280 kHz", "0 kHz".
std::string AxisDifferenceText(Quantity quantity, double kept,
                               std::string_view degreeSign = defaultDegreeSign);
