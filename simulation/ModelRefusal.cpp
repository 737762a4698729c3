#include "simulation/ModelRefusal.h"

#include <array>

static constexpr std::array<std::string_view, ModelRefusals> texts = {
    "no capacitance data",
    "no law for the temperature characteristic",
    "nominal capacitance or rated voltage not above 0",
    "capacitance not above 0 within its conditions",
    "charge deviates from capacitance",
    "cannot be calculated",
    "name already taken",
};

std::string_view TextOf(ModelRefusal refusal)
{
    return texts.at(static_cast<std::size_t>(refusal));
}
