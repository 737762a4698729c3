#include "tests/simulation/ProvenParts.h"

#include "partdata/SpecialParts.h"
#include "simulation/LossData.h"
#include "simulation/SimulationModel.h"
#include "tests/simulation/ModelParts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <utility>

namespace
{
std::string KindOf(const PartRecord& part)
{
    if (LossDataOf(part) != LossData::Present)
    {
        return "no loss";
    }
    return IsSpecialPart(part.PartNum[0]) ? "special" : std::string(part.Tcc[0]);
}

/// Parts with a model by their kinds, in the order of the range.
std::map<std::string, std::vector<const PartRecord*>> PartsByKind()
{
    std::map<std::string, std::vector<const PartRecord*>> kinds;
    for (const auto& part : SampleParts().PartData)
    {
        if (std::holds_alternative<std::string>(SimulationModel(part, 0)))
        {
            kinds[KindOf(part)].push_back(&part);
        }
    }
    return kinds;
}

/// So many, evenly over the range, of each kind.
std::vector<ProvenPart> Spread(std::size_t count)
{
    std::vector<ProvenPart> spread;
    for (const auto& [kind, parts] : PartsByKind())
    {
        const auto taken = std::min(count, parts.size());
        for (std::size_t i = 0; i < taken; ++i)
        {
            spread.push_back({.Kind = kind, .Part = parts[(2 * i + 1) * parts.size() / (2 * taken)]});
        }
    }
    return spread;
}

/// The worst of each check and kind.
class ProofSummary : public testing::Environment
{
public:
    void Take(const std::string& check, const std::string& kind, double value)
    {
        auto& [most, count] = worst[{check, kind}];
        most = std::max(most, value);
        ++count;
    }

    void TearDown() override
    {
        for (const auto& [what, found] : worst)
        {
            std::printf("worst   %-44s %-8s %9.1e of %d\n", what.first.c_str(), what.second.c_str(),
                        found.first, found.second);
        }
    }

private:
    std::map<std::pair<std::string, std::string>, std::pair<double, int>> worst;
};

ProofSummary& Summary()
{
    static auto* const summary = new ProofSummary;
    [[maybe_unused]] static const auto* const registered = testing::AddGlobalTestEnvironment(summary);
    return *summary;
}
} // namespace

bool IsWholeProof()
{
    return std::getenv("TAVIK_PROVE_MODELS") != nullptr;
}

std::string ProvenPart::Model() const
{
    return std::get<std::string>(SimulationModel(*Part, 0));
}

std::vector<ProvenPart> ProvenParts()
{
    if (IsWholeProof())
    {
        Summary();
        return Spread(6);
    }
    return {{.Kind = "X7R", .Part = &SamplePart("KTS31NR71A226KA01")},
            {.Kind = "X5R", .Part = &SamplePart("KTS31NB51A476MA01")},
            {.Kind = "Y5V", .Part = &SamplePart("KTS216F51E224ZA01")},
            {.Kind = "special", .Part = &SamplePart("KTU155F51H222ZA01")}};
}

std::vector<ProvenPart> ProvenPartsWithLoss()
{
    auto parts = ProvenParts();
    std::erase_if(parts, [](const ProvenPart& part) { return part.Kind == "no loss"; });
    return parts;
}

void TellWorst(const std::string& check, const ProvenPart& part, double worst, double seconds)
{
    if (IsWholeProof())
    {
        std::printf("proof   %-44s %-8s %-18s %9.1e %6.2f s\n", check.c_str(), part.Kind.c_str(),
                    part.Name().c_str(), worst, seconds);
        Summary().Take(check, part.Kind, worst);
    }
}
