#pragma once

/// The selection cascade without a window: which sizes, characteristics, capacitances, rated voltages and
/// part numbers are on offer after the choices made so far.

#include "partdata/PartTable.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// What has been chosen in the upper four boxes; names in the code on display.
struct PartChoice
{
    std::optional<std::string_view> SizeCode = {};
    std::optional<std::string_view> Tcc = {};
    std::optional<float> Capacitance = {};
    std::optional<float> RatedVoltage = {};
};

/// The five lists of the cascade and the choices that made them. Choosing at a level empties every level
/// below it; the part-number list always holds the parts that agree with all choices.
///
/// Lists are in order of first occurrence in the part table. A chart type outside 0 to 3 offers nothing.
class PartSelection
{
public:
    /// The table must outlive the selection.
    explicit PartSelection(const PartTable& parts);

    /// Empties every list and forgets every choice, the chart type included.
    void AllClear();
    /// The first fill after a chart type is chosen: all sizes and part numbers that have its data.
    void AddPartNum(std::int16_t chartType, CodeView view);

    /// After a size code, characteristic, capacitance or rated voltage is chosen.
    void FillTccList(std::string_view sizeCode);
    void FillCapList(std::string_view tcc);
    void FillRatedVolList(float capacitance);
    void FillPartNumList(float ratedVoltage);

    /// After a part number is chosen: the lower three lists hold that part's values only; the lists of
    /// sizes and part numbers stay.
    void ShowPart(std::int16_t part);
    /// After a text is typed that is no part number: no part is chosen any more; lists and choices stay.
    void LeavePart() { partChosen = false; }

    /// Names size codes and characteristics in the other code. Where two entries would read the same one is
    /// kept; the choices follow their names, and the lists hold what agrees with them. A complete part stays.
    void ChangeNaming(CodeView view);

    const std::vector<std::string_view>& SizeCodes() const { return sizeCodes; }
    const std::vector<std::string_view>& Tccs() const { return tccs; }
    const std::vector<float>& Capacitances() const { return capacitances; }
    const std::vector<float>& RatedVoltages() const { return ratedVoltages; }
    /// Indices into the part table.
    const std::vector<std::int16_t>& PartNums() const { return partNums; }

    const PartChoice& Choice() const { return choice; }
    /// The naming of sizes and characteristics.
    CodeView View() const { return view; }
    /// A part has data for the chart type that was chosen last.
    bool HasData(std::int16_t part) const;

    /// True while one part is chosen whole, by its number or by all four choices.
    bool IsPartChosen() const { return partChosen; }

private:
    std::string_view SizeCodeOf(const PartRecord& part) const;
    std::string_view TccOf(const PartRecord& part) const;
    bool Agrees(const PartRecord& part, const PartChoice& with) const;
    using AddItem = void (PartSelection::*)(std::int16_t part);
    void ForEachPart(const PartChoice& agreeing, AddItem addItem);
    void AddPartAndSizeCode(std::int16_t part);
    void AddPartNumItem(std::int16_t part);
    void AddSizeCodeItem(std::int16_t part);
    void AddTccItem(std::int16_t part);
    void AddCapacitanceItem(std::int16_t part);
    void AddRatedVoltageItem(std::int16_t part);
    const PartRecord& Part(std::int16_t index) const;
    void ForgetPart();
    void FillSizeCodes();
    void FillTccs();
    void FillCapacitances();
    void FillRatedVoltages();
    void FillPartNums();
    void RefillLists();

    const PartTable& parts;
    std::optional<std::int16_t> chartType;
    CodeView view = CodeView::Eia;
    PartChoice choice;
    /// The complete part, chosen by number or left over last by the four choices. A text typed over its
    /// number leaves it the part that the choices are named after.
    std::optional<std::int16_t> completePart;
    bool partChosen = false;
    bool chosenByNumber = false;
    /// How many of the lower three lists, from the top, hold only the value of a part chosen by number.
    int ownLists = 0;

    std::vector<std::string_view> sizeCodes;
    std::vector<std::string_view> tccs;
    std::vector<float> capacitances;
    std::vector<float> ratedVoltages;
    std::vector<std::int16_t> partNums;
};
