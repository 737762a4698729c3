#pragma once

/// What each chart type is: its names, the data it needs, its axes, the conditions it is computed under, how
/// its axes are divided, and the law behind its curves. Whoever must know anything of a chart type asks here.

#include "calc/ChartRecord.h"
#include "calc/Conditions.h"
#include "calc/Curve.h"
#include "calc/ParameterLimit.h"
#include "calc/Quantities.h"
#include "partdata/PartRecord.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

/// Finest grid of a linear axis; far closer lines than this would be one grey field.
inline constexpr int mostDivisions = 1000;

/// How an axis is divided.
enum class AxisKind
{
    Linear,
    Logarithmic,
};

/// The fixed loads of a temperature rise over frequency, by the numbers of their buttons. Mind the order:
/// axis lists name apparent before effective power.
inline constexpr std::array<Quantity, 4> Parameters = {
    Quantity::Current,
    Quantity::RmsVoltage,
    Quantity::EffectivePower,
    Quantity::ApparentPower,
};

/// A curve, or why the parameter of its record is refused.
using CurveResult = std::variant<Curve, ParameterRefusal>;

/// What a curve is computed from.
struct CurveInput
{
    const PartRecord& Part;
    /// The conditions.
    const ChartRecord& Line;
    Quantity X;
    Quantity Y;
    CodeView View;
};

/// A condition that a curve depends on, and how entries for it are judged.
struct ConditionUse
{
    Condition Id;
    ConditionRule Refuse;
};

/// One way through a chart type: the X axes that share a law, conditions and divisions.
struct ChartSweep
{
    std::span<const Quantity> XAxes;
    /// In the order in which files, pages and panes tell them.
    std::span<const ConditionUse> Conditions;
    AxisKind XKind = AxisKind::Linear;
    AxisKind YKind = AxisKind::Linear;
    /// Divisions of the linear axes by the width of their range; 0 on a logarithmic axis.
    int (*XDivisions)(double span);
    int (*YDivisions)(Quantity y, double span);
    /// Throws RunTimeError 5, 6 or 11 at the step that goes wrong.
    CurveResult (*CurveOf)(const CurveInput& input);
    /// The law at one X in the unit of records, unbounded; nothing for a part without a model. Throws as
    /// `CurveOf`.
    std::optional<double> (*LawAt)(const CurveInput& input, double x);

    bool Uses(Condition condition) const;
};

/// All that is known of one chart type.
struct ChartKind
{
    /// Caption of the chart type button: "Temperature Rise Characteristics".
    std::string_view Caption;
    /// What commands and requests call it: "temperature-rise".
    std::string_view CommandName;
    /// The data without which a part is not offered for it.
    ValueGroup Needs;
    /// The quantities of the Y axis, the one shown first foremost.
    std::span<const Quantity> YAxes;
    std::span<const ChartSweep> Sweeps;
    /// The pane of a line begins with the largest value of its curve.
    bool TellsLargestValue = false;
    /// The chart bears a note on the temperature rise that is recommended.
    bool RecommendsRise = false;
    /// The form has a button for it, and the data file a name.
    bool IsOnForm = true;
};

/// All chart types by their numbers, those of the form's buttons first.
std::span<const ChartKind> ChartKinds();

/// The chart type of a number, or null.
const ChartKind* FindChartKind(int number);

/// The chart type of a number. Throws RunTimeError 5 that tells the number when there is none.
const ChartKind& ChartKindOf(int number);

/// The chart types that the form has buttons for.
std::span<const ChartKind> FormChartKinds();

/// The number of a chart type, which records and buttons bear: its place in `ChartKinds`.
std::int16_t NumberOf(const ChartKind& kind);

/// The quantities of the X axis, the one shown first foremost.
std::vector<Quantity> XAxesOf(const ChartKind& kind);

/// The sweep over an X axis, or null when the chart type has no such axis.
const ChartSweep* FindSweep(const ChartKind& kind, Quantity x);

/// As above, by number and name; null as well for a number or name that does not exist.
const ChartSweep* FindSweep(int chartNumber, std::string_view xAxisName);

/// The sweep of a chart type over the X axis of a name. Throws RunTimeError 5 for a number, a name or a pair
/// of them that does not exist.
const ChartSweep& SweepOf(int chartNumber, std::string_view xAxisName);

/// True when the part holds data for the chart type, and its listed capacitance and rated voltage are finite
/// numbers that lists can show. False for a number that is no chart type.
bool IsAvailable(const PartRecord& part, int chartNumber);

/// How a chart type judges entries for a condition; a condition that it does not use is judged as most are.
ConditionRule RuleOf(const ChartKind& kind, Condition condition);
