#include "fit/PlainMath.h"

namespace
{

constexpr double Ln2 = 0.693147180559945309417;
constexpr double Ln10 = 2.302585092994045684018;

} // namespace

double PlainExp(double x)
{
    if (x < 0)
    {
        return 1 / PlainExp(-x);
    }
    double scale = 1;
    while (x > Ln2 / 2)
    {
        x -= Ln2;
        scale *= 2;
    }
    double sum = 1;
    double term = 1;
    for (int k = 1; k <= 20; ++k)
    {
        term *= x / k;
        sum += term;
    }
    return scale * sum;
}

double PlainLog(double value)
{
    double exponent = 0;
    while (value > 1.5)
    {
        value /= 2;
        exponent += 1;
    }
    while (value < 0.75)
    {
        value *= 2;
        exponent -= 1;
    }
    // ln v = 2 artanh((v - 1) / (v + 1)); the argument is at most a fifth.
    const double ratio = (value - 1) / (value + 1);
    const double square = ratio * ratio;
    double sum = 0;
    double power = ratio;
    for (int k = 1; k <= 31; k += 2)
    {
        sum += power / k;
        power *= square;
    }
    return 2 * sum + exponent * Ln2;
}

double PlainLog10(double value)
{
    return PlainLog(value) / Ln10;
}

double PlainPower(double base, double exponent)
{
    return base == 0 ? 0 : PlainExp(exponent * PlainLog(base));
}
