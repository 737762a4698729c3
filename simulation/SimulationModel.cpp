#include "simulation/SimulationModel.h"

#include "calc/Bounds.h"
#include "partdata/Characteristic.h"
#include "partdata/RunTimeError.h"
#include "simulation/HornerText.h"
#include "simulation/ModelCharge.h"
#include "simulation/ModelCheck.h"
#include "simulation/ModelHeader.h"
#include "simulation/ModelName.h"
#include "simulation/NetlistLine.h"
#include "simulation/PeakedNetlist.h"
#include "simulation/ProductNetlist.h"

namespace
{
/// An entry held within two limits: "{MIN(MAX(TDEG,-55),125)".
std::string Held(const std::string& entry, const std::string& lowest, const std::string& highest)
{
    return "{MIN(MAX(" + entry + "," + lowest + ")," + highest + ")";
}

std::string CommonParameters(const PartRecord& part, const ModelNumbers& numbers)
{
    const auto range = ModelTemperatures(part);
    return NetlistLine(".PARAM VR=" + NetlistNumber(numbers[Value::RatedVoltage])) +
           NetlistLine(".PARAM TX=" + Held("TDEG", NetlistNumber(range.MinC), NetlistNumber(range.MaxC)) +
                       "}") +
           NetlistLine(".PARAM C0={" + NetlistNumber(numbers[Value::NominalCapacitance]) +
                       "*1E-12*(1+TOL/100)}");
}

/// One coefficient of the current law over temperature, in ohms.
std::string LossTerm(const ModelNumbers& numbers, Value::Index constant, Value::Index linear,
                     Value::Index square)
{
    const std::vector texts = {NetlistNumber(numbers.at(constant)), NetlistNumber(numbers.at(linear)),
                               NetlistNumber(numbers.at(square))};
    return "={(" + HornerText(texts, "YT") + ")/" + NetlistNumber(numbers[Value::HeatResistance]) + "}";
}

/// The loss resistance, from node 1 to node A.
std::string LossResistor(const ModelNumbers& numbers)
{
    const auto reference = NetlistNumber(HeatingReferenceC);
    const auto highest = NetlistNumber(numbers[Value::UpperTemperature]);
    return NetlistLine(".PARAM YT=" + Held("TDEG", reference, highest) + "-" + reference + "}") +
           NetlistLine(".PARAM Q1" +
                       LossTerm(numbers, Value::CurrentPerF, Value::CurrentTPerF, Value::CurrentT2PerF)) +
           NetlistLine(".PARAM Q2" + LossTerm(numbers, Value::Current, Value::CurrentT, Value::CurrentT2)) +
           NetlistLine(".PARAM Q3" +
                       LossTerm(numbers, Value::CurrentF, Value::CurrentTF, Value::CurrentT2F)) +
           NetlistLine(".PARAM FX=" + Held("FESR", "10K", "1MEG") + "}") +
           NetlistLine("RS 1 A {Q1/FX+Q2+Q3*FX}");
}

/// A capacitor of C0 that bears Q/C0, and a source in series that takes up the rest of the voltage. The leak
/// gives the current of a resting capacitor a scale that a simulator's tolerances can be held against.
std::string ChargeElements(const std::string& inner)
{
    const auto voltage = "V(" + inner + ",2)";
    const auto held = "MIN(MAX(" + voltage + ",-VR),VR)";
    return NetlistLine("C1 " + inner + " B {C0}") + NetlistLine("RP " + inner + " B {LEAK/C0}") +
           NetlistLine("E1 B 2 VALUE={" + voltage + "-(" + held + "*V(M)+(" + voltage + "-" + held +
                       ")*CE)}");
}

std::string Subcircuit(const ModelFacts& model)
{
    const auto numbers = ModelNumbersOf(model.Part);
    const bool isPeaked = CapacitanceModelOf(model.Part) == CapacitanceModel::Peaked;
    const bool hasLoss = model.Loss == LossData::Present;
    const std::string inner = hasLoss ? "A" : "1";
    return NetlistLine(".SUBCKT " + model.Name + " 1 2" + ModelParameters()) +
           CommonParameters(model.Part, numbers) +
           (isPeaked ? PeakedParameters(numbers) : ProductParameters(numbers)) +
           (hasLoss ? LossResistor(numbers) : "") +
           (isPeaked ? PeakedSources(inner) : ProductSources(numbers, inner)) + ChargeElements(inner) +
           NetlistLine(".ENDS " + model.Name);
}
} // namespace

ModelResult SimulationModel(const PartRecord& part, std::size_t form)
{
    try
    {
        const auto checked = CheckModel(part);
        if (const auto* const refusal = std::get_if<ModelRefusal>(&checked))
        {
            return *refusal;
        }
        const ModelFacts model{.Part = part,
                               .Form = form,
                               .Name = ModelName(part.PartNum.at(form)),
                               .Loss = LossDataOf(part),
                               .Deviation = std::get<double>(checked)};
        return ModelHeader(model) + Subcircuit(model);
    }
    catch (const RunTimeError&)
    {
        return ModelRefusal::CannotBeCalculated;
    }
}
