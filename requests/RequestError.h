#pragma once

/// Why a request has no answer.

#include <cstddef>
#include <exception>
#include <optional>
#include <string>
#include <string_view>

/// What is wrong with a request.
enum class RequestErrorKind
{
    BlankLine,    ///< nothing is written
    Syntax,       ///< what is written is no request, or no value
    UnknownKey,   ///< no request has such a key
    MissingKey,   ///< a key that every request has is left out
    UnknownValue, ///< a chart type, axis, parameter, code or numbering is called otherwise
    Unit,         ///< the unit is not that of the quantity
    NotANumber,   ///< a number was wanted
    UnknownPart,  ///< no part has the number
    NoData,       ///< the part has no data for the chart type
    Condition,    ///< a condition is refused by its rule
    AxisRange,    ///< an axis may not be set so
    Line,         ///< the chart takes no such line, the bank no such piece
};

/// True when the request itself makes no sense, whatever the parts of the range are.
bool IsMistaken(RequestErrorKind kind);

/// True when the message goes on behind the name of the key, where there is one: "dcBias" and then `"5A": "A"
/// is not the unit of a voltage`. Any other message stands by itself.
bool FollowsKey(RequestErrorKind kind);

/// A request that is refused. It bears no words of the surface that the request came through: options and
/// JSON keys are put in by whoever tells it.
class RequestError : public std::exception
{
public:
    /// @param key the key of requests that the error lies in, such as "dcBias"; empty where it is in none
    /// @param message what is wrong, on one line
    RequestError(RequestErrorKind kind, std::string key, std::string message);

    /// The same error with the entry that is refused, in the unit of the form.
    RequestError Of(std::string entry) const;
    /// The same error with the largest permitted value.
    RequestError Within(double limit) const;
    /// The same error with the place that cannot be read, in bytes from 1.
    RequestError AtByte(std::size_t position) const;
    /// The same error with what was probably meant; as it is where that is not known.
    RequestError Meaning(const std::optional<std::string>& meant) const;
    /// The same error with the part number that was asked for.
    RequestError OfPart(std::string part) const;
    /// The same error with the line of the chart, from 1.
    RequestError InLine(std::size_t line) const;

    RequestErrorKind Kind() const { return kind; }
    const std::string& Key() const { return key; }
    const std::string& Message() const { return message; }
    /// Of a condition: what was entered, empty when nothing was.
    const std::string& Entry() const { return entry; }
    /// Of a parameter that is too large: the largest permitted one.
    std::optional<double> Limit() const { return limit; }
    /// Of what cannot be read: the place in bytes from 1.
    std::optional<std::size_t> Position() const { return position; }
    /// What was probably meant; empty where that is not known.
    const std::string& Hint() const { return hint; }
    /// The part number that was asked for; empty where the error is in no part's curve.
    const std::string& Part() const { return part; }
    /// The line of the chart that the part is asked for in; 0 where there is but one.
    std::size_t Line() const { return line; }

    const char* what() const noexcept override { return message.c_str(); }

private:
    RequestErrorKind kind;
    std::string key;
    std::string message;
    std::string entry;
    std::optional<double> limit;
    std::optional<std::size_t> position;
    std::string hint;
    std::string part;
    std::size_t line = 0;
};

/// What scripts know the error by: "unknown-chart", "range", "missing-key".
std::string_view CodeOf(const RequestError& error);
