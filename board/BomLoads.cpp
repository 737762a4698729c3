#include "board/BomLoads.h"

#include "requests/ConverterEntry.h"
#include "requests/Names.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

static CurrentLoad LoadOfConverterText(const std::string& text)
{
    const auto blank = std::min(text.find(' '), text.size());
    std::vector<std::string_view> names;
    std::ranges::transform(ConverterNames, std::back_inserter(names), &ConverterName::Name);
    const auto& name = ConverterNames.at(IndexOfName(text.substr(0, blank), names, "converter", "converter"));
    constexpr std::string_view sideWord = "side=";
    auto data = text.substr(blank);
    auto side = name.PulsedSide;
    if (const auto place = data.find(sideWord); place != std::string::npos)
    {
        const auto end = std::min(data.find(' ', place), data.size());
        side = ConverterSideOf(data.substr(place + sideWord.size(), end - place - sideWord.size()));
        data.erase(place, end - place);
    }
    return LoadOfConverter(ConverterOf(name.Id, data), side);
}

BomLoads::Load BomLoads::OfConverter(const std::string& text)
{
    Load& load = byConverter[text];
    load = load ? load : std::make_shared<const CurrentLoad>(LoadOfConverterText(text));
    return load;
}

BomLoads::Load BomLoads::OfWaveform(const std::string& text, bool isOfConditions)
{
    Load& load = byWaveform[{text, isOfConditions}];
    if (!load)
    {
        const auto colon = text.find(':');
        const auto column = colon == std::string::npos ? std::nullopt : std::optional(text.substr(colon + 1));
        const auto table = waveforms(text.substr(0, colon), isOfConditions);
        load =
            std::make_shared<const CurrentLoad>(LoadOfRecord(table.WaveformOf(ColumnOf(table, column)), {}));
    }
    return load;
}
