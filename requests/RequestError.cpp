#include "requests/RequestError.h"

#include <utility>

bool IsMistaken(RequestErrorKind kind)
{
    return kind <= RequestErrorKind::NotANumber;
}

bool FollowsKey(RequestErrorKind kind)
{
    return kind == RequestErrorKind::Syntax || kind == RequestErrorKind::MissingKey ||
           kind == RequestErrorKind::Unit || kind == RequestErrorKind::NotANumber;
}

RequestError::RequestError(RequestErrorKind errorKind, std::string errorKey, std::string errorMessage)
    : kind(errorKind)
    , key(std::move(errorKey))
    , message(std::move(errorMessage))
{
}

RequestError RequestError::Of(std::string refusedEntry) const
{
    RequestError error = *this;
    error.entry = std::move(refusedEntry);
    return error;
}

RequestError RequestError::Within(double largest) const
{
    RequestError error = *this;
    error.limit = largest;
    return error;
}

RequestError RequestError::OfPart(std::string askedFor) const
{
    RequestError error = *this;
    error.part = std::move(askedFor);
    return error;
}

RequestError RequestError::InLine(std::size_t number) const
{
    RequestError error = *this;
    error.line = number;
    return error;
}

RequestError RequestError::AtByte(std::size_t place) const
{
    RequestError error = *this;
    error.position = place;
    return error;
}

RequestError RequestError::Meaning(const std::optional<std::string>& meant) const
{
    RequestError error = *this;
    error.hint = meant.value_or("");
    return error;
}

/// A chart type or axis is told apart from the other names.
static std::string_view CodeOfUnknown(std::string_view key)
{
    if (key == "chart")
    {
        return "unknown-chart";
    }
    return key == "x" || key == "y" ? "unknown-axis" : "unknown-value";
}

std::string_view CodeOf(const RequestError& error)
{
    switch (error.Kind())
    {
    case RequestErrorKind::BlankLine:
        return "blank-line";
    case RequestErrorKind::Syntax:
        return "syntax";
    case RequestErrorKind::UnknownKey:
        return "unknown-key";
    case RequestErrorKind::MissingKey:
        return "missing-key";
    case RequestErrorKind::UnknownValue:
        return CodeOfUnknown(error.Key());
    case RequestErrorKind::Unit:
        return "unit";
    case RequestErrorKind::NotANumber:
        return "not-a-number";
    case RequestErrorKind::UnknownPart:
        return "unknown-part";
    case RequestErrorKind::NoData:
        return "no-data";
    case RequestErrorKind::Condition:
        return error.Entry().empty() ? "missing-key" : "range";
    case RequestErrorKind::AxisRange:
    case RequestErrorKind::Line:
        break;
    }
    return "range";
}
