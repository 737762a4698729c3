#include "simulation/ModelFile.h"

#include "partdata/KeyedCollection.h"
#include "simulation/ModelName.h"
#include "simulation/SimulationModel.h"

std::optional<ModelRefusal> ModelFile::Add(const PartRecord& part)
{
    const auto refusal = TryToAdd(part);
    if (refusal)
    {
        ++leftOut.at(static_cast<std::size_t>(*refusal));
    }
    return refusal;
}

std::optional<ModelRefusal> ModelFile::TryToAdd(const PartRecord& part)
{
    const auto model = SimulationModel(part, shownForm);
    if (const auto* const refusal = std::get_if<ModelRefusal>(&model))
    {
        return *refusal;
    }
    if (!names.insert(FoldedKey(ModelName(part.PartNum.at(shownForm)))).second)
    {
        return ModelRefusal::NameTaken;
    }
    text.append(text.empty() ? "" : "\n").append(std::get<std::string>(model));
    return std::nullopt;
}

static std::string CountText(std::size_t models)
{
    switch (models)
    {
    case 0:
        return "no model";
    case 1:
        return "1 model";
    default:
        return std::to_string(models) + " models";
    }
}

std::string ModelFile::Summary() const
{
    auto summary = CountText(names.size());
    std::string separator = "; left out: ";
    for (std::size_t i = 0; i < ModelRefusals; ++i)
    {
        if (leftOut[i] > 0)
        {
            summary.append(separator).append(std::to_string(leftOut[i])).append(" ");
            summary.append(TextOf(static_cast<ModelRefusal>(i)));
            separator = ", ";
        }
    }
    return summary;
}
