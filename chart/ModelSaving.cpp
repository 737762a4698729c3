#include "chart/ModelSaving.h"

#include "app/mdlPublic.h"
#include "files/WholeFile.h"
#include "formkit/HourglassScope.h"
#include "formkit/Messages.h"
#include "formkit/Texts.h"
#include "partdata/Availability.h"
#include "simulation/ModelFile.h"
#include "simulation/ModelName.h"

#include <algorithm>
#include <set>
#include <variant>

namespace
{
const PartRecord& PartAt(std::int32_t index)
{
    return mdlPublic.Parts.PartData.at(static_cast<std::size_t>(index));
}

/// Each part where it comes first.
PartIndices Firsts(const PartIndices& parts)
{
    PartIndices firsts;
    std::set<std::int32_t> seen;
    std::ranges::copy_if(parts, std::back_inserter(firsts),
                         [&](std::int32_t part) { return seen.insert(part).second; });
    return firsts;
}

std::string_view ShownNumber(std::int32_t part)
{
    return PartAt(part).PartNum.at(static_cast<std::size_t>(GetPartNumForm()));
}

/// The text of the models, or the message that refuses them.
std::variant<std::string, QString> ModelsOf(const PartIndices& parts)
{
    const HourglassScope hourglass;
    ModelFile models(static_cast<std::size_t>(GetPartNumForm()));
    for (const std::int32_t part : parts)
    {
        if (const auto refusal = models.Add(PartAt(part)))
        {
            return QStringLiteral("%1: %2, so there is no simulation model.")
                .arg(FromAnsi(ShownNumber(part)), FromAnsi(TextOf(*refusal)));
        }
    }
    return models.Text();
}

QString ProposedName(const PartIndices& parts)
{
    const auto name = parts.size() == 1 ? ModelName(ShownNumber(parts.front())) : "models";
    return QString::fromStdString(name) + QStringLiteral(".lib");
}
} // namespace

bool CanHaveModel(const PartIndices& parts)
{
    return std::ranges::any_of(parts, [](std::int32_t part)
                               { return HasData(PartAt(part), Values::OfCapacitance); });
}

std::optional<QString> SaveModels(QWidget* window, const PartIndices& parts,
                                  const std::function<std::optional<QString>(const FileQuestion&)>& ask)
{
    const auto asked = Firsts(parts);
    const auto models = ModelsOf(asked);
    if (const auto* const refusal = std::get_if<QString>(&models))
    {
        ShowExclamation(window, *refusal);
        return std::nullopt;
    }
    auto path = ask({.Dialog = QStringLiteral("models"),
                     .Filter = QStringLiteral("Simulation Models (*.lib)|*.lib|All Files (*.*)|*.*|"),
                     .ProposedName = ProposedName(asked)});
    if (path)
    {
        WriteWholeFile(path->toStdString(), std::get<std::string>(models));
    }
    return path;
}
