#include "simulation/NetlistLine.h"

/// Where a line that is too long is broken; npos where it cannot be.
static std::size_t BreakOf(std::string_view line, std::size_t room)
{
    // A line may begin with the sign that the one before it was broken at.
    constexpr std::size_t first = 1;
    const auto last = line.rfind('*', room);
    return last != std::string_view::npos && last >= first ? last : line.find('*', first);
}

std::string NetlistLine(std::string_view line)
{
    std::string wrapped;
    std::string_view start;
    while (start.size() + line.size() > LongestNetlistLine)
    {
        const auto end = BreakOf(line, LongestNetlistLine - start.size());
        if (end == std::string_view::npos)
        {
            break;
        }
        wrapped.append(start).append(line.substr(0, end)).append("\n");
        line.remove_prefix(end);
        start = "+ ";
    }
    return wrapped.append(start).append(line).append("\n");
}
