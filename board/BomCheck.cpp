#include "board/BomCheck.h"

#include <algorithm>
#include <utility>

/// Reads one of the tables, with what is told of it.
static BomTable Read(std::string bytes, BomTableKind kind, const std::vector<ChosenColumn>& columns,
                     CheckedBom& checked)
{
    auto table = ReadBomTable(std::move(bytes), kind, columns);
    const bool isOfConditions = kind == BomTableKind::Conditions;
    for (const auto& fault : table.Faults)
    {
        checked.Faults.push_back({fault, isOfConditions});
    }
    for (const auto& note : table.Notes)
    {
        checked.Warnings.push_back({note, isOfConditions});
    }
    return table;
}

static void ReadTables(CheckedBom& checked, BomTexts texts, const BomAsked& asked)
{
    checked.Bill = Read(std::move(texts.Bill), BomTableKind::Bill, asked.Columns, checked);
    checked.Conditions.Kind = BomTableKind::Conditions;
    if (texts.Conditions)
    {
        checked.Conditions = Read(std::move(*texts.Conditions), BomTableKind::Conditions, {}, checked);
    }
}

static void Join(CheckedBom& checked, const BomAsked& asked)
{
    checked.Joined = JoinBom(checked.Bill, checked.Conditions, asked.Options);
    checked.Faults = checked.Joined.Faults;
    const auto& stale = checked.Joined.Warnings;
    checked.Warnings.insert(checked.Warnings.end(), stale.begin(), stale.end());
}

std::string RemarkText(const BomRemark& remark, const BomNames& names)
{
    const auto line = remark.Note.Line > 0 ? "line " + std::to_string(remark.Note.Line) + ": " : "";
    const auto file = (remark.IsOfConditions ? names.Conditions : names.Bill) + ": ";
    return (remark.IsOfOptions ? "" : file) + line + remark.Note.Text;
}

std::unique_ptr<const CheckedBom> CheckBom(BomTexts texts, const BomAsked& asked, const PartTable& parts)
{
    auto checked = std::make_unique<CheckedBom>();
    ReadTables(*checked, std::move(texts), asked);
    asked.Pause();
    if (checked->Faults.empty())
    {
        Join(*checked, asked);
        asked.Pause();
    }
    if (checked->Faults.empty())
    {
        checked->Judged = JudgeBom(checked->Joined, parts, asked.Settings, asked.Waveforms, asked.Pause);
        checked->Faults = checked->Judged.Faults;
        // What many parts share, such as an option, is told once.
        const auto again = std::ranges::unique(checked->Faults);
        checked->Faults.erase(again.begin(), again.end());
        for (const auto& note : checked->Judged.Notes)
        {
            checked->Warnings.push_back({.Note = {.Text = note}, .IsOfOptions = true});
        }
    }
    return checked;
}
