#include "partfiles/Columns.h"

// Temperatures x are counted from 25 °C, t from 20 °C; V is the bias, r the bias over the rated voltage and
// f the frequency in Hz.
static constexpr std::array<std::string_view, TableColumns> Headings = {
    "global part number EIA",
    "global part number JIS",
    "previous part number EIA",
    "previous part number JIS",
    "size code EIA",
    "size code JIS",
    "characteristic EIA",
    "characteristic JIS",
    "capacitance [pF]",
    "nominal capacitance [pF]",
    "rated voltage [V]",
    "bias V^6 [%/V^6]",
    "bias V^5 [%/V^5]",
    "bias V^4 [%/V^4]",
    "bias V^3 [%/V^3]",
    "bias V^2 [%/V^2]",
    "bias V [%/V]",
    "temperature x^6 [%/°C^6]",
    "temperature x^5 [%/°C^5]",
    "temperature x^4 [%/°C^4]",
    "temperature x^3 [%/°C^3]",
    "temperature x^2 [%/°C^2]",
    "temperature x [%/°C]",
    "peak amplitude [%]",
    "peak offset [%]",
    "peak temperature V^2 [°C/V^2]",
    "peak temperature V [°C/V]",
    "peak temperature [°C]",
    "decay below V^2 [1/(°C^n V^2)]",
    "decay below V [1/(°C^n V)]",
    "decay below [1/°C^n]",
    "decay above V^2 [1/(°C^n V^2)]",
    "decay above V [1/(°C^n V)]",
    "decay above [1/°C^n]",
    "exponent n below",
    "exponent n above",
    "current heating 1/f [°C Hz/A^2]",
    "current heating [°C/A^2]",
    "current heating f [°C/(A^2 Hz)]",
    "heat resistance [°C/W]",
    "current heating t/f [Hz/A^2]",
    "current heating t^2/f [Hz/(A^2 °C)]",
    "current heating t [1/A^2]",
    "current heating t^2 [1/(A^2 °C)]",
    "current heating t f [1/(A^2 Hz)]",
    "current heating t^2 f [1/(A^2 °C Hz)]",
    "voltage heating S1 t^2 r^2 [1/°C^2]",
    "voltage heating S1 t^2 r [1/°C^2]",
    "voltage heating S1 t^2 [1/°C^2]",
    "voltage heating S1 t r^2 [1/°C]",
    "voltage heating S1 t r [1/°C]",
    "voltage heating S1 t [1/°C]",
    "voltage heating S1 r^2",
    "voltage heating S1 r",
    "voltage heating S1",
    "voltage heating S2 t^2 r^2 [1/°C^2]",
    "voltage heating S2 t^2 r [1/°C^2]",
    "voltage heating S2 t^2 [1/°C^2]",
    "voltage heating S2 t r^2 [1/°C]",
    "voltage heating S2 t r [1/°C]",
    "voltage heating S2 t [1/°C]",
    "voltage heating S2 r^2",
    "voltage heating S2 r",
    "voltage heating S2",
    "voltage heating S3 t^2 r^2 [1/°C^2]",
    "voltage heating S3 t^2 r [1/°C^2]",
    "voltage heating S3 t^2 [1/°C^2]",
    "voltage heating S3 t r^2 [1/°C]",
    "voltage heating S3 t r [1/°C]",
    "voltage heating S3 t [1/°C]",
    "voltage heating S3 r^2",
    "voltage heating S3 r",
    "voltage heating S3",
    "upper temperature [°C]",
};
static_assert(!Headings.back().empty());

std::string_view ColumnHeading(std::size_t column)
{
    return Headings.at(column);
}

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
    if (field < PartNumForms)
    {
        return Indexed("PartNum", field);
    }
    if (field < PartNumForms + CodeForms)
    {
        return Indexed("SizeCode", field - PartNumForms);
    }
    return Indexed("Tcc", field - PartNumForms - CodeForms);
}

std::string DataName(std::size_t index)
{
    return Indexed("Data", index);
}
