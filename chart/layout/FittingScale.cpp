#include "chart/layout/FittingScale.h"

#include "calc/EngineeringText.h"
#include "calc/NumberText.h"

#include <algorithm>
#include <cmath>

double FittingScale::PositionOf(double value) const
{
    const double share = Kind == AxisKind::Linear ? (value - Low) / (High - Low)
                                                  : std::log(value / Low) / std::log(High / Low);
    return std::clamp(100 * share, 0.0, 100.0);
}

double FittingScale::PixelsBetween(double a, double b) const
{
    return (PositionOf(b) - PositionOf(a)) * Length / 100;
}

double FittingScale::RoomOf(const std::string& label) const
{
    return Ruler != nullptr ? std::max(TickDistance, Ruler->WidthOf(label) + LabelGap) : TickDistance;
}

double FittingScale::Decades() const
{
    return std::log10(High / Low);
}

std::string FittingLabel(double value, int decimals)
{
    return WithMinusSign(FixedNumber(value, decimals));
}
