#pragma once

/// One curve that is asked for by name, and how it is judged and computed.

#include "calc/ChartRecord.h"
#include "calc/Conditions.h"
#include "partdata/PartTable.h"
#include "requests/CurvePoints.h"
#include "requests/CurveWorst.h"

#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What is typed for each condition; nothing where it is left out.
class ConditionTexts
{
public:
    ConditionTexts() = default;
    /// {{Condition::DCBias, "12V"}, {Condition::Frequency, "300kHz"}}
    ConditionTexts(std::initializer_list<std::pair<Condition, std::string>> typed);

    std::optional<std::string>& operator[](Condition condition)
    {
        return texts[static_cast<std::size_t>(condition)];
    }
    const std::optional<std::string>& operator[](Condition condition) const
    {
        return texts[static_cast<std::size_t>(condition)];
    }

private:
    std::array<std::optional<std::string>, ConditionCount> texts;
};

/// What is asked for. Texts are as typed, in UTF-8; values may bear a unit ("12V"). Bias, frequency, ambient
/// temperature and the X of `At` may be ranges ("10.8..13.2V"). What is left out is what
/// the form shows first: the first axes, ambient temperature 25 °C in the EIA code and 20 °C in the JIS code,
/// the part's own heat resistance.
struct CurveRequest
{
    /// Part number in any of its four forms, in any letter case.
    std::string Part;
    /// The command name of a chart type.
    std::string Chart;
    /// Axis texts of the form, in any letter case: "Apparent Power" or "apparent-power".
    std::optional<std::string> X = {};
    std::optional<std::string> Y = {};
    ConditionTexts Conditions = {};
    /// Name of the load that the parameter condition is of, as axis texts are named.
    std::optional<std::string> Parameter = {};
    CodeView Code = CodeView::Eia;
    /// X values to tell the curve at, in place of its 200 points.
    std::optional<std::vector<std::string>> At = {};
    /// Y values to tell every X of, in place of the points.
    std::optional<std::vector<std::string>> Where = {};
};

/// How requests are answered.
struct CurveSettings
{
    /// The conditions are those of the calculation, unjudged; those that are left out are 0 where the form
    /// shows nothing first.
    bool Unchecked = false;
    /// 0 to show global part numbers, 2 to show previous ones.
    std::size_t NumberingOffset = 0;
    /// The date in a data file, in its code page.
    std::string Date = {};
};

/// The answer: a line with its points and limits.
struct RequestedCurve
{
    const PartRecord* Part = nullptr;
    CodeView Code = CodeView::Eia;
    ChartRecord Line;
    /// Keys of conditions that were typed but do not bear on the curve, in the form's order.
    std::vector<std::string> Unused = {};
    /// What was asked for in place of the 200 points.
    std::optional<std::vector<CurvePoint>> Points = {};
    std::optional<std::vector<CurveLevel>> Levels = {};
    /// What it is over ranges, where conditions or points are: `Line` then has their lower ends, `Upper` the
    /// upper ones.
    std::optional<std::vector<WorstPoint>> Worst = {};
    std::optional<ChartRecord> Upper = {};

    /// True when the 200 points are not what was asked for.
    bool HasOwnPoints() const { return Points || Levels || Worst; }
};

/// The index of a part whose number in any form is `partNum`, in UTF-8. Where several parts are meant, letter
/// case decides, then the form on display. Throws RequestError when there is none.
std::size_t FindPart(const PartTable& parts, std::string_view partNum, std::size_t shownForm);

/// The number of a part in the form on display, in UTF-8.
std::string ShownPartNum(const PartRecord& part, CodeView code, const CurveSettings& settings);

/// The chart type of a command's name. Throws RequestError that lists the names.
std::int16_t ChartTypeOf(std::string_view commandName);

/// What requests call the chart types, in the order of their numbers.
std::vector<std::string> ChartRequestNames();

/// What requests call the parameters, in the order of their buttons.
std::vector<std::string> ParameterRequestNames();

/// The code of "eia" or "jis". Throws RequestError that lists the names.
CodeView CodeViewOf(std::string_view name);

/// 0 for "global", 2 for "previous". Throws RequestError that lists the names.
std::size_t NumberingOffsetOf(std::string_view name);

/// The curve of a request. Conditions are judged as the form judges its boxes, in its order; those that the
/// chart type does not use are 0.
///
/// Throws RequestError for a name or unit that does not fit, an unknown part, a part without data for the
/// chart type and for a refused condition, and RunTimeError from the calculation; each with the part asked
/// for.
RequestedCurve CurveOf(const CurveRequest& request, const PartTable& parts, const CurveSettings& settings);
