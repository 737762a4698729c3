#include "tests/selection/PlainSelection.h"

#include "calc/NumberText.h"

#include <algorithm>
#include <cctype>

// Levels: 0 size code, 1 characteristic, 2 capacitance, 3 rated voltage.

std::string PlainSelection::ValueOf(std::size_t part, int level) const
{
    const auto& record = table->PartData[part];
    switch (level)
    {
    case 0:
        return std::string(record.SizeCode[Code]);
    case 1:
        return std::string(record.Tcc[Code]);
    case 2:
        return NumberText(record.Data[0]);
    default:
        return NumberText(record.Data[2]);
    }
}

const std::string& PlainSelection::Pick(int level) const
{
    return level == 0 ? Size : level == 1 ? Tcc : level == 2 ? Cap : Volt;
}

bool PlainSelection::Offered(std::size_t part) const
{
    if (ChartType < 0 || ChartType > 3)
    {
        return false;
    }
    const std::size_t first = ChartType <= 1 ? 28 : 3;
    const std::size_t last = ChartType <= 1 ? 65 : 27;
    for (std::size_t k = first; k <= last; ++k)
    {
        if (table->PartData[part].Data[k] != 0)
        {
            return true;
        }
    }
    return false;
}

/// True when the part is offered and has what is picked at the first so many levels.
bool PlainSelection::Matches(std::size_t part, int levels) const
{
    if (!Offered(part))
    {
        return false;
    }
    for (int level = 0; level < levels; ++level)
    {
        if (!Pick(level).empty() && ValueOf(part, level) != Pick(level))
        {
            return false;
        }
    }
    return true;
}

Texts PlainSelection::Level(int level) const
{
    if (level > 0 && Alone >= level)
    {
        return {Pick(level)};
    }
    if (level > 0 && Pick(level - 1).empty())
    {
        return {};
    }
    Texts list;
    for (std::size_t part = 0; part < table->PartData.size(); ++part)
    {
        const auto value = ValueOf(part, level);
        if (Matches(part, level) && !value.empty() && std::count(list.begin(), list.end(), value) == 0)
        {
            list.push_back(value);
        }
    }
    return list;
}

Texts PlainSelection::Sizes() const
{
    return Level(0);
}

Texts PlainSelection::Tccs() const
{
    return Level(1);
}

Texts PlainSelection::Caps() const
{
    return Level(2);
}

Texts PlainSelection::Volts() const
{
    return Level(3);
}

/// The part-number list after a choice at one of the upper levels.
void PlainSelection::Fill()
{
    Chosen.reset();
    ByNumber = false;
    Parts.clear();
    for (std::size_t part = 0; part < table->PartData.size(); ++part)
    {
        if (Matches(part, 4))
        {
            Parts.push_back(part);
        }
    }
}

Texts PlainSelection::PartNumbers() const
{
    Texts list;
    for (const auto part : Parts)
    {
        list.push_back(NumberOf(part));
    }
    return list;
}

std::optional<std::size_t> PlainSelection::InList(const std::string& number) const
{
    for (const auto part : Parts)
    {
        if (NumberOf(part) == number)
        {
            return part;
        }
    }
    return std::nullopt;
}

void PlainSelection::ChooseChartType(int chartType)
{
    ChartType = chartType;
    Size = Tcc = Cap = Volt = "";
    Alone = 0;
    Fill();
}

void PlainSelection::PickSize(const std::string& text)
{
    Size = text;
    Tcc = Cap = Volt = "";
    Alone = 0;
    Fill();
}

void PlainSelection::PickTcc(const std::string& text)
{
    Tcc = text;
    Cap = Volt = "";
    Alone = std::min(Alone, 1);
    Fill();
}

void PlainSelection::PickCap(const std::string& text)
{
    Cap = text;
    Volt = "";
    Alone = std::min(Alone, 2);
    Fill();
}

void PlainSelection::PickVolt(const std::string& text)
{
    Volt = text;
    Fill();
    Chosen = Parts.back();
}

void PlainSelection::PickPart(std::size_t part)
{
    Chosen = part;
    ByNumber = true;
    Alone = 3;
    Size = ValueOf(part, 0);
    Tcc = ValueOf(part, 1);
    Cap = ValueOf(part, 2);
    Volt = ValueOf(part, 3);
}

static bool EqualNames(const std::string& a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return std::tolower(x) == std::tolower(y); });
}

/// The name in the code on display of what the other code calls by this name: that of the first part so
/// called.
std::string PlainSelection::OtherName(const std::string& name, int level) const
{
    for (const auto& record : table->PartData)
    {
        const auto& names = level == 0 ? record.SizeCode : record.Tcc;
        if (!name.empty() && EqualNames(name, names[1 - Code]))
        {
            return std::string(names[Code]);
        }
    }
    return name;
}

void PlainSelection::SwitchCode(std::size_t code)
{
    if (code == Code)
    {
        return;
    }
    Code = code;
    if (Chosen)
    {
        Size = ValueOf(*Chosen, 0);
        Tcc = ValueOf(*Chosen, 1);
    }
    else
    {
        Size = OtherName(Size, 0);
        Tcc = OtherName(Tcc, 1);
    }
    if (!ByNumber)
    {
        const auto chosen = Chosen;
        Fill();
        Chosen = chosen;
    }
}
