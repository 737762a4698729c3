#include "simulation/ProductNetlist.h"

#include "calc/Bounds.h"
#include "simulation/HornerText.h"
#include "simulation/NetlistLine.h"

std::string ProductParameters(const ModelNumbers& numbers)
{
    return NetlistLine(".PARAM XT={TX-" + NetlistNumber(EiaReferenceC) + "}") +
           NetlistLine(".PARAM KT={1+XT/100*(" + HornerText(numbers, Values::TemperaturePolynomial, "XT") +
                       ")}") +
           NetlistLine(".PARAM CE={KT*(1+VR/100*(" + HornerText(numbers, Values::BiasPolynomial, "VR") +
                       "))}");
}

std::string ProductSources(const ModelNumbers& numbers, std::string_view inner)
{
    return NetlistLine("EU U 0 VALUE={MIN(ABS(V(" + std::string(inner) + ",2)),VR)}") +
           NetlistLine("EM M 0 VALUE={KT*(1+V(U)/100*(" +
                       MeanHornerText(numbers, Values::BiasPolynomial, "V(U)") + "))}");
}
