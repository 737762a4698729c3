#include "find/LeftOut.h"

#include <algorithm>
#include <numeric>

static constexpr std::array<std::string_view, LeftOutReasons> texts = {
    "no capacitance data", "no heating data",       "bias too high",        "temperature out of range",
    "no permitted rise",   "size without measures", "cannot be calculated",
};

std::size_t LeftOutCounts::Total() const
{
    return std::accumulate(counts.begin(), counts.end(), std::size_t{0});
}

std::optional<LeftOutReason> LeftOutCounts::First() const
{
    const auto* const found = std::ranges::find_if(counts, [](std::size_t count) { return count > 0; });
    return found == counts.end() ? std::nullopt : std::optional(LeftOutReason(found - counts.begin()));
}

std::string_view TextOf(LeftOutReason reason)
{
    return texts.at(static_cast<std::size_t>(reason));
}

std::string FittingText(std::size_t fitting)
{
    switch (fitting)
    {
    case 0:
        return "no part fits";
    case 1:
        return "1 part fits";
    default:
        return std::to_string(fitting) + " parts fit";
    }
}

std::string FitText(std::size_t fitting, const LeftOutCounts& leftOut)
{
    std::string text = FittingText(fitting);
    std::string separator = "; left out: ";
    for (std::size_t i = 0; i < LeftOutReasons; ++i)
    {
        const auto reason = static_cast<LeftOutReason>(i);
        if (leftOut[reason] > 0)
        {
            text.append(separator).append(std::to_string(leftOut[reason])).append(" ").append(TextOf(reason));
            separator = ", ";
        }
    }
    return text;
}

std::string_view NoteOnHeating(const OperatingPoint& at)
{
    const bool isCut = at.Kilohertz && at.HeatingAmbientC() != at.AmbientC;
    return isCut ? "rise and loads judged from 20 C up, where the heating data begins" : "";
}
