#include "selection/PartSelection.h"

#include "calc/ChartKinds.h"

#include <algorithm>

template <class Item> static void AddIfAbsent(std::vector<Item>& list, const Item& item)
{
    if (std::find(list.begin(), list.end(), item) == list.end())
    {
        list.push_back(item);
    }
}

/// No list offers an empty text: nobody could pick it.
static void AddTextIfAbsent(std::vector<std::string_view>& list, std::string_view text)
{
    if (!text.empty())
    {
        AddIfAbsent(list, text);
    }
}

/// The other name of a size code or characteristic; a name without one stays.
static std::optional<std::string_view> Translated(const std::optional<std::string_view>& name,
                                                  const KeyedCollection<std::string_view>& names)
{
    const auto* other = name ? names.Find(*name) : nullptr;
    return other != nullptr ? *other : name;
}

PartSelection::PartSelection(const PartTable& table)
    : parts(table)
{
}

std::string_view PartSelection::SizeCodeOf(const PartRecord& part) const
{
    return part.SizeCode[static_cast<std::size_t>(view)];
}

std::string_view PartSelection::TccOf(const PartRecord& part) const
{
    return part.Tcc[static_cast<std::size_t>(view)];
}

bool PartSelection::Agrees(const PartRecord& part, const PartChoice& with) const
{
    return (!with.SizeCode || SizeCodeOf(part) == *with.SizeCode) &&
           (!with.Tcc || TccOf(part) == *with.Tcc) &&
           (!with.Capacitance || part.Data[Value::Capacitance] == *with.Capacitance) &&
           (!with.RatedVoltage || part.Data[Value::RatedVoltage] == *with.RatedVoltage) &&
           IsAvailable(part, *chartType);
}

/// Calls `addItem` with the index and record of every part that has data for the chart type and agrees with
/// a choice, in table order.
template <class AddItem> void PartSelection::ForEachPart(const PartChoice& agreeing, AddItem addItem) const
{
    if (!chartType)
    {
        return;
    }
    for (int i = 0; i <= parts.PartMax; ++i)
    {
        const PartRecord& part = parts.PartData[static_cast<std::size_t>(i)];
        if (Agrees(part, agreeing))
        {
            addItem(static_cast<std::int16_t>(i), part);
        }
    }
}

void PartSelection::FillSizeCodes()
{
    sizeCodes.clear();
    ForEachPart({}, [this](auto, const auto& part) { AddTextIfAbsent(sizeCodes, SizeCodeOf(part)); });
}

void PartSelection::FillTccs()
{
    tccs.clear();
    ForEachPart({.SizeCode = choice.SizeCode},
                [this](auto, const auto& part) { AddTextIfAbsent(tccs, TccOf(part)); });
}

void PartSelection::FillCapacitances()
{
    capacitances.clear();
    ForEachPart({.SizeCode = choice.SizeCode, .Tcc = choice.Tcc},
                [this](auto, const auto& part) { AddIfAbsent(capacitances, part.Data[Value::Capacitance]); });
}

void PartSelection::FillRatedVoltages()
{
    ratedVoltages.clear();
    ForEachPart({.SizeCode = choice.SizeCode, .Tcc = choice.Tcc, .Capacitance = choice.Capacitance},
                [this](auto, const auto& part)
                { AddIfAbsent(ratedVoltages, part.Data[Value::RatedVoltage]); });
}

void PartSelection::FillPartNums()
{
    partNums.clear();
    ForEachPart(choice, [this](auto index, const auto&) { partNums.push_back(index); });
}

void PartSelection::ForgetPart()
{
    completePart.reset();
    partChosen = false;
    chosenByNumber = false;
}

void PartSelection::AllClear()
{
    chartType.reset();
    ForgetPart();
    ownLists = 0;
    choice = {};
    sizeCodes.clear();
    tccs.clear();
    capacitances.clear();
    ratedVoltages.clear();
    partNums.clear();
}

void PartSelection::AddPartNum(std::int16_t type, CodeView codeView)
{
    AllClear();
    chartType = type;
    view = codeView;
    FillSizeCodes();
    FillPartNums();
}

void PartSelection::FillTccList(std::string_view chosen)
{
    ForgetPart();
    ownLists = 0;
    choice = {.SizeCode = chosen};
    FillTccs();
    capacitances.clear();
    ratedVoltages.clear();
    FillPartNums();
}

void PartSelection::FillCapList(std::string_view chosen)
{
    ForgetPart();
    ownLists = std::min(ownLists, 1);
    choice = {.SizeCode = choice.SizeCode, .Tcc = chosen};
    FillCapacitances();
    ratedVoltages.clear();
    FillPartNums();
}

void PartSelection::FillRatedVolList(float chosen)
{
    ForgetPart();
    ownLists = std::min(ownLists, 2);
    choice.Capacitance = chosen;
    choice.RatedVoltage.reset();
    FillRatedVoltages();
    FillPartNums();
}

void PartSelection::FillPartNumList(float chosen)
{
    ForgetPart();
    choice.RatedVoltage = chosen;
    FillPartNums();
    if (!partNums.empty())
    {
        completePart = partNums.back();
        partChosen = true;
    }
}

void PartSelection::ShowPart(std::int16_t index)
{
    const PartRecord& part = parts.PartData[static_cast<std::size_t>(index)];
    completePart = index;
    partChosen = true;
    chosenByNumber = true;
    ownLists = 3;
    choice = {SizeCodeOf(part), TccOf(part), part.Data[Value::Capacitance], part.Data[Value::RatedVoltage]};
    tccs = {TccOf(part)};
    capacitances = {part.Data[Value::Capacitance]};
    ratedVoltages = {part.Data[Value::RatedVoltage]};
}

void PartSelection::ChangeNaming(CodeView codeView)
{
    if (codeView == view)
    {
        return;
    }
    view = codeView;
    FillSizeCodes();
    if (completePart)
    {
        const PartRecord& part = parts.PartData[static_cast<std::size_t>(*completePart)];
        choice.SizeCode = SizeCodeOf(part);
        choice.Tcc = TccOf(part);
    }
    else
    {
        const auto j = static_cast<std::size_t>(view);
        choice.SizeCode = Translated(choice.SizeCode, parts.SizeCodeMap[j]);
        choice.Tcc = Translated(choice.Tcc, parts.TccMap[j]);
    }
    RefillLists();
}

/// Lists for the choices as they stand, except those that a part chosen by number has for itself.
void PartSelection::RefillLists()
{
    // Where names of the two codes do not pair off one to one, the lists below hold other parts than before.
    if (ownLists >= 1)
    {
        tccs = {choice.Tcc.value_or("")};
    }
    else if (choice.SizeCode)
    {
        FillTccs();
    }
    if (ownLists < 2 && choice.Tcc)
    {
        FillCapacitances();
    }
    if (ownLists < 3 && choice.Capacitance)
    {
        FillRatedVoltages();
    }
    if (!chosenByNumber)
    {
        FillPartNums();
    }
}
