#include "calc/LossResistance.h"

#include "calc/CheckedMath.h"
#include "calc/DefaultAxes.h"
#include "calc/Sweep.h"

#include <algorithm>
#include <limits>

Curve LossResistanceOverFrequency(const PowerModel& model)
{
    const FrequencySweep& sweep = LogFrequencySweep();
    Curve curve{.HasPoints = true, .XData = sweep.XData};
    curve.YData.fill(NoValue);
    float largest = 0;
    float smallest = std::numeric_limits<float>::max();
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        if (const auto milliohms = model.LossResistance(sweep.Hz[i]))
        {
            curve.YData[i] = StoredSingle(*milliohms);
            largest = std::max(largest, curve.YData[i]);
            smallest = std::min(smallest, curve.YData[i]);
        }
    }
    curve.Limits = LogarithmicAxes(largest, std::min(largest, smallest));
    return curve;
}
