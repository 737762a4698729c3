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

bool PartSelection::HasData(std::int16_t part) const
{
    return chartType && IsAvailable(Part(part), *chartType);
}

bool PartSelection::Agrees(const PartRecord& part, const PartChoice& with) const
{
    return (!with.SizeCode || SizeCodeOf(part) == *with.SizeCode) &&
           (!with.Tcc || TccOf(part) == *with.Tcc) &&
           (!with.Capacitance || part.Data[Value::Capacitance] == *with.Capacitance) &&
           (!with.RatedVoltage || part.Data[Value::RatedVoltage] == *with.RatedVoltage) && chartType &&
           IsAvailable(part, *chartType);
}

const PartRecord& PartSelection::Part(std::int16_t index) const
{
    return parts.PartData[static_cast<std::size_t>(index)];
}

/// Adds an item of every part that has data for the chart type and agrees with a choice, in table order.
void PartSelection::ForEachPart(const PartChoice& agreeing, AddItem addItem)
{
    if (!chartType)
    {
        return;
    }
    for (int i = 0; i <= parts.PartMax; ++i)
    {
        const auto index = static_cast<std::int16_t>(i);
        if (Agrees(Part(index), agreeing))
        {
            (this->*addItem)(index);
        }
    }
}

void PartSelection::AddPartNumItem(std::int16_t part)
{
    partNums.push_back(part);
}

void PartSelection::AddSizeCodeItem(std::int16_t part)
{
    AddTextIfAbsent(sizeCodes, SizeCodeOf(Part(part)));
}

void PartSelection::AddPartAndSizeCode(std::int16_t part)
{
    AddPartNumItem(part);
    AddSizeCodeItem(part);
}

void PartSelection::AddTccItem(std::int16_t part)
{
    AddTextIfAbsent(tccs, TccOf(Part(part)));
}

void PartSelection::AddCapacitanceItem(std::int16_t part)
{
    AddIfAbsent(capacitances, Part(part).Data[Value::Capacitance]);
}

void PartSelection::AddRatedVoltageItem(std::int16_t part)
{
    AddIfAbsent(ratedVoltages, Part(part).Data[Value::RatedVoltage]);
}

void PartSelection::FillSizeCodes()
{
    sizeCodes.clear();
    ForEachPart({}, &PartSelection::AddSizeCodeItem);
}

void PartSelection::FillTccs()
{
    tccs.clear();
    ForEachPart({.SizeCode = choice.SizeCode}, &PartSelection::AddTccItem);
}

void PartSelection::FillCapacitances()
{
    capacitances.clear();
    ForEachPart({.SizeCode = choice.SizeCode, .Tcc = choice.Tcc}, &PartSelection::AddCapacitanceItem);
}

void PartSelection::FillRatedVoltages()
{
    ratedVoltages.clear();
    ForEachPart({.SizeCode = choice.SizeCode, .Tcc = choice.Tcc, .Capacitance = choice.Capacitance},
                &PartSelection::AddRatedVoltageItem);
}

void PartSelection::FillPartNums()
{
    partNums.clear();
    ForEachPart(choice, &PartSelection::AddPartNumItem);
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
    ForEachPart({}, &PartSelection::AddPartAndSizeCode);
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
    const PartRecord& part = Part(index);
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
        const PartRecord& part = Part(*completePart);
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
