#include "partdata/FieldNames.h"

PartNames NamesOf(const PartRecord& part)
{
    return {part.PartNum[0],  part.PartNum[1],  part.PartNum[2], part.PartNum[3],
            part.SizeCode[0], part.SizeCode[1], part.Tcc[0],     part.Tcc[1]};
}

static std::string Indexed(std::string_view name, std::size_t index)
{
    return std::string(name) + "(" + std::to_string(index) + ")";
}

std::string FieldName(std::size_t field)
{
    if (field < FirstSizeCodeField)
    {
        return Indexed("PartNum", field);
    }
    if (field < FirstTccField)
    {
        return Indexed("SizeCode", field - FirstSizeCodeField);
    }
    return Indexed("Tcc", field - FirstTccField);
}

std::string_view NameHeading(std::size_t field)
{
    static constexpr std::array<std::string_view, NameFields> headings = {
        "global part number EIA",   "global part number JIS", "previous part number EIA",
        "previous part number JIS", "size code EIA",          "size code JIS",
        "characteristic EIA",       "characteristic JIS",
    };
    static_assert(!headings.back().empty());
    return headings.at(field);
}

std::string DataName(std::size_t index)
{
    return Indexed("Data", index);
}

std::string DataNames(ValueGroup group)
{
    return DataName(group.First) + " to " + DataName(group.Last);
}
