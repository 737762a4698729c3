#include "calc/ParameterLimit.h"

#include "calc/CheckedMath.h"
#include "calc/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

std::optional<ParameterRefusal> RefuseLoad(float parameter, double limit)
{
    const float storedLimit = StoredSingle(limit);
    if (parameter >= 0 && parameter <= storedLimit)
    {
        return std::nullopt;
    }
    const float shown = CutToFourDigits(storedLimit);
    return ParameterRefusal{.Limit = limit,
                            .Shown = shown,
                            .Message = "Parameter is invalid!\r\nPlease enter a Number from 0 to " +
                                       NumberText(shown)};
}

float CutToFourDigits(float number)
{
    // The shortest decimal, so that a limit of 0.3 is not cut to 0.2999; "d.ddd" are its first five
    // characters.
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific).ptr;
    const std::string_view digits(text.data(), end);
    const auto exponentAt = digits.find('e');
    const std::string cut =
        std::string(digits.substr(0, std::min<std::size_t>(exponentAt, 5))).append(digits.substr(exponentAt));
    float result = 0;
    std::from_chars(cut.data(), cut.data() + cut.size(), result);
    return result;
}
