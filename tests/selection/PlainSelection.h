#pragma once

/// The selection cascade once more, as plainly as it can be told: every list is worked out afresh by walking
/// the whole part table. The tests compare the program with it.

#include "partdata/PartTable.h"

#include <optional>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

struct PlainSelection
{
    explicit PlainSelection(const PartTable& range)
        : table(&range)
    {
    }

    const PartTable* table;
    int ChartType = -1;
    std::size_t Code = 0;
    std::size_t Numbering = 0;

    /// What the boxes show; "" where nothing is chosen.
    std::string Size;
    std::string Tcc;
    std::string Cap;
    std::string Volt;
    /// The complete part, if there is one, and whether it was chosen by its number.
    std::optional<std::size_t> Chosen;
    bool ByNumber = false;
    /// How many of the lower three lists, from the top, hold only the value of a part chosen by number.
    int Alone = 0;
    /// The part-number list.
    std::vector<std::size_t> Parts;

    // What a user does.
    void ChooseChartType(int chartType);
    void PickSize(const std::string& text);
    void PickTcc(const std::string& text);
    void PickCap(const std::string& text);
    void PickVolt(const std::string& text);
    void PickPart(std::size_t part);
    void SwitchCode(std::size_t code);

    // What the lists hold.
    Texts Sizes() const;
    Texts Tccs() const;
    Texts Caps() const;
    Texts Volts() const;
    Texts PartNumbers() const;

    std::string NumberOf(std::size_t part) const
    {
        return std::string(table->PartData[part].PartNum[Numbering + Code]);
    }
    /// The part that bears a number on display, if its spelling is exactly that and it is in the list.
    std::optional<std::size_t> InList(const std::string& number) const;

private:
    std::string ValueOf(std::size_t part, int level) const;
    bool Offered(std::size_t part) const;
    bool Matches(std::size_t part, int levels) const;
    Texts Level(int level) const;
    void Fill();
    std::string OtherName(const std::string& name, int level) const;
    const std::string& Pick(int level) const;
};
