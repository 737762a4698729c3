#include "simulation/LossData.h"

#include "calc/Bounds.h"
#include "calc/PowerModel.h"
#include "partdata/Availability.h"

#include <cmath>

static constexpr int temperatures = 11;
static constexpr int frequencies = 21;

/// True when there is a resistance at all frequencies.
static bool HasResistance(const PowerModel& model)
{
    for (int i = 0; i < frequencies; ++i)
    {
        const double hertz = LowestFrequencyHz *
                             std::pow(HighestFrequencyHz / LowestFrequencyHz, double(i) / (frequencies - 1));
        if (!model.LossResistance(hertz))
        {
            return false;
        }
    }
    return true;
}

LossData LossDataOf(const PartRecord& part)
{
    if (!HasData(part, Values::OfPower))
    {
        return LossData::Missing;
    }
    const float highestC = part.Data[Value::UpperTemperature];
    const float heatResistance = part.Data[Value::HeatResistance];
    if (!(heatResistance > 0) || !(highestC >= LowestHeatingAmbientC))
    {
        return LossData::Unusable;
    }
    for (int i = 0; i < temperatures; ++i)
    {
        const float celsius = LowestHeatingAmbientC +
                              (highestC - LowestHeatingAmbientC) * static_cast<float>(i) / (temperatures - 1);
        if (!HasResistance(PowerModelOf(part, 0, celsius, heatResistance)))
        {
            return LossData::Unusable;
        }
    }
    return LossData::Present;
}
