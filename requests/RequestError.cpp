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
