#include "selection/PlotNeeds.h"

#include "calc/NumberText.h"
#include "partdata/Windows1252.h"

#include <algorithm>
#include <array>

static constexpr std::array<std::string_view, 4> ListNames = {"Size Code", "Temperature Char.", "Capacitance",
                                                              "Rated Voltage"};
/// The entries of the View menu: the code of a form is its number modulo 2, its numbering half of it.
static constexpr std::array<std::string_view, CodeForms> Codes = {"EIA code", "JIS code"};
static constexpr std::array<std::string_view, 2> Numberings = {"Global Part Number", "Previous Part Number"};

// ---- The upper lists ----

/// The first of the upper four choices that is still to be made; 4 when all are.
static std::size_t NextChoice(const PartSelection& selection)
{
    const PartChoice& choice = selection.Choice();
    const std::array<bool, 4> made = {choice.SizeCode.has_value(), choice.Tcc.has_value(),
                                      choice.Capacitance.has_value(), choice.RatedVoltage.has_value()};
    return static_cast<std::size_t>(std::ranges::find(made, false) - made.begin());
}

static bool IsEmpty(const PartSelection& selection, std::size_t list)
{
    const std::array<bool, 4> empty = {selection.SizeCodes().empty(), selection.Tccs().empty(),
                                       selection.Capacitances().empty(), selection.RatedVoltages().empty()};
    return empty.at(list);
}

std::string WhyListIsEmpty(const PartSelection& selection, int list)
{
    const auto index = static_cast<std::size_t>(list);
    if (!IsEmpty(selection, index))
    {
        return {};
    }
    const std::string name(ListNames.at(index));
    const std::size_t next = NextChoice(selection);
    return next < index ? name + " is empty: choose a " + std::string(ListNames.at(next)) + " first."
                        : name + " is empty: no part has data for this chart type.";
}

// ---- The part number ----

static std::string_view WithoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

static std::string NextStep(const PartSelection& selection)
{
    const std::size_t next = NextChoice(selection);
    return next < ListNames.size()
               ? "Plot needs a part: choose a " + std::string(ListNames[next]) + ", or a part number."
               : "Plot needs a part: choose a part number.";
}

/// What is chosen in the upper lists, and what the part has there.
static std::string ChoiceAgainst(const PartRecord& part, const PartSelection& selection)
{
    const PartChoice& choice = selection.Choice();
    const auto view = static_cast<std::size_t>(selection.View());
    const auto number = [](const std::optional<float>& value) { return value ? NumberText(*value) : ""; };
    const std::array<std::string, 4> chosen = {std::string(choice.SizeCode.value_or("")),
                                               std::string(choice.Tcc.value_or("")),
                                               number(choice.Capacitance), number(choice.RatedVoltage)};
    const std::array<std::string, 4> own = {std::string(part.SizeCode[view]), std::string(part.Tcc[view]),
                                            NumberText(part.Data[Value::Capacitance]),
                                            NumberText(part.Data[Value::RatedVoltage])};
    for (std::size_t i = 0; i < chosen.size(); ++i)
    {
        if (!chosen[i].empty() && chosen[i] != own[i])
        {
            return std::string(ListNames[i]) + " is " + own[i] + ", and " + chosen[i] + " is chosen";
        }
    }
    return "choices differ";
}

/// A part of the range whose number is not in the list as it was typed.
static std::string WhyNotThisPart(const PartTable& parts, const PartSelection& selection, std::int16_t part,
                                  int partNumForm, std::string_view typed)
{
    const PartRecord& record = parts.PartData[static_cast<std::size_t>(part)];
    const std::string name(record.PartNum[static_cast<std::size_t>(partNumForm)]);
    if (!selection.HasData(part))
    {
        return name + " has no data for this chart type: choose another chart type, or another part.";
    }
    if (!std::ranges::binary_search(selection.PartNums(), part))
    {
        return name + " is not in this list: its " + ChoiceAgainst(record, selection) +
               ". Choose again, or File, Reset Selection.";
    }
    return WithoutBlanks(typed) == name
               ? "A blank stands before or behind " + name + ": delete it."
               : "Capital and small letters differ in part numbers: enter " + name + ".";
}

/// The entries of the View menu that lead from one part-number form to another.
static std::string WayTo(std::size_t form, std::size_t from)
{
    const bool changesCode = form % 2 != from % 2;
    const bool changesNumbering = form / 2 != from / 2;
    return "View, " + std::string(changesCode ? Codes.at(form % 2) : "") +
           (changesCode && changesNumbering ? " and " : "") +
           std::string(changesNumbering ? Numberings.at(form / 2) : "");
}

static std::string WhyUnknown(const PartTable& parts, const PartSelection& selection, std::string_view typed,
                              int partNumForm)
{
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        if (parts.PartIndex[form].Find(typed) != nullptr)
        {
            return std::string(typed) + " is a number of another view: choose " +
                   WayTo(form, static_cast<std::size_t>(partNumForm)) + '.';
        }
    }
    const auto begins = [&](std::int16_t part)
    {
        const PartRecord& record = parts.PartData[static_cast<std::size_t>(part)];
        return record.PartNum[static_cast<std::size_t>(partNumForm)].starts_with(typed);
    };
    const auto count = std::ranges::count_if(selection.PartNums(), begins);
    const std::string beginning = " with \"" + std::string(typed) + "\": ";
    return count == 0 ? "No part number of this list begins" + beginning + "check it, or pick one."
                      : std::to_string(count) + (count == 1 ? " part number begins" : " part numbers begin") +
                            beginning + "type on, or pick one.";
}

std::string WhyNoPart(const PartTable& parts, const PartSelection& selection, std::string_view typed,
                      int partNumForm)
{
    const std::string_view text = WithoutBlanks(typed);
    if (text.empty())
    {
        return NextStep(selection);
    }
    const auto* part = parts.PartIndex[static_cast<std::size_t>(partNumForm)].Find(text);
    return Utf8FromWindows1252(part != nullptr ? WhyNotThisPart(parts, selection, *part, partNumForm, typed)
                                               : WhyUnknown(parts, selection, text, partNumForm));
}

// ---- The conditions ----

std::string WhichConditionsAreEmpty(std::span<const Condition> empty)
{
    std::string names;
    for (const Condition condition : empty)
    {
        names += (names.empty() ? "" : ", ") + std::string(KindOf(condition).Name);
    }
    return names.empty() ? names : "Plot still needs: " + names + '.';
}
