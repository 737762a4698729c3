#include "board/BomCsv.h"

#include "board/BomText.h"
#include "board/References.h"
#include "calc/NumberText.h"
#include "requests/FoundList.h"
#include "requests/ListText.h"
#include "requests/Names.h"

#include <array>

namespace
{
constexpr std::array<const char*, 13> verdictHeadings = {"verdict",
                                                         "reserve [%]",
                                                         "decides",
                                                         "reasons",
                                                         "references",
                                                         "count",
                                                         "part",
                                                         "net",
                                                         "dc bias low [V]",
                                                         "dc bias high [V]",
                                                         "ambient low [C]",
                                                         "ambient high [C]",
                                                         "tolerance [%]"};

std::string Number(std::optional<double> value)
{
    return value ? NumberText(static_cast<float>(*value)) : "";
}

void Append(ListRow& row, const ListRow& cells)
{
    row.insert(row.end(), cells.begin(), cells.end());
}

/// The texts of a found part without its number, which stands before them.
ListRow WithoutNumber(ListRow cells)
{
    cells.erase(cells.begin());
    return cells;
}

/// "10", "-20/+80".
std::string ToleranceText(const CapacitanceTolerance& tolerance)
{
    const auto down = NumberText(tolerance.Down);
    const auto up = NumberText(tolerance.Up);
    return down == up ? down : '-' + down + "/+" + up;
}

void AddVerdict(ListRow& row, const JudgedItem& item, const BomSettings& settings)
{
    const auto& at = item.Question.Asked.At;
    const auto bias = [&](float volts) { return item.Question.HasBias ? NumberText(volts) : ""; };
    Append(row,
           {std::string(BomVerdictNames.at(static_cast<std::size_t>(item.Verdict))), Number(item.Reserve),
            item.Decides, ListOf(item.Reasons, "; "), ReferenceText(item.Item->References),
            std::to_string(item.Item->Parts()), PartText(item, settings), item.Item->TextOf(BomField::Net),
            bias(at.BiasVolts.Low), bias(at.BiasVolts.High), NumberText(at.AmbientC.Low),
            NumberText(at.AmbientC.High), ToleranceText(at.Tolerance)});
}

void AddFigures(ListRow& row, const JudgedItem& item, const BomSettings& settings)
{
    if (!item.Judged)
    {
        row.resize(row.size() + FoundHeadings().size() - 1);
        return;
    }
    CurveSettings numbering;
    numbering.NumberingOffset = settings.NumberingOffset;
    Append(row, WithoutNumber(FoundTexts(item.Judged->Figures, item.ToldQuestion(), numbering)));
}

void AddSuggestion(ListRow& row, const JudgedItem& item, const BomSettings& settings)
{
    const auto& suggested = item.Suggestion;
    row.push_back(suggested ? (suggested->Count > 1 ? std::to_string(suggested->Count) + " x " : "") +
                                  NumberOf(*suggested->Part, settings)
                            : "");
    row.push_back(suggested ? Number(suggested->Least) : "");
}

/// The cells of the bill, as many as it has headings.
ListRow CellsOf(const BomItem& item, const BomTable& bill)
{
    ListRow row = bill.Rows.at(item.Row).Cells;
    row.resize(bill.Headings.size());
    return row;
}
} // namespace

std::string BomCsv(const CheckedBom& bom, const BomSettings& settings)
{
    ListRow headings = bom.Bill.Headings;
    Append(headings, {verdictHeadings.begin(), verdictHeadings.end()});
    Append(headings, WithoutNumber(FoundHeadings()));
    Append(headings, {"suggestion", "suggested least [pF]"});
    std::vector<ListRow> rows = {headings};
    for (const JudgedItem& item : bom.Judged.Items)
    {
        ListRow row = CellsOf(*item.Item, bom.Bill);
        AddVerdict(row, item, settings);
        AddFigures(row, item, settings);
        AddSuggestion(row, item, settings);
        rows.push_back(std::move(row));
    }
    for (const BomItem* item : bom.Judged.Unjudged)
    {
        ListRow row = CellsOf(*item, bom.Bill);
        row.emplace_back(item->IsFitted() ? "skipped" : "not fitted");
        row.resize(headings.size());
        rows.push_back(std::move(row));
    }
    return CsvOf(rows);
}
