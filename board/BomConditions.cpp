#include "board/BomConditions.h"

#include "board/References.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace
{
/// More faults than these tell nothing more about a file.
constexpr std::size_t mostFaults = 1000;

std::string LowerCased(std::string text)
{
    std::ranges::transform(text, text.begin(),
                           [](char c)
                           { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

const std::optional<BomCell>& At(const BomCells& cells, BomField field)
{
    return cells[static_cast<std::size_t>(field)];
}

/// A row of conditions for a net or for a reference.
struct ConditionRow
{
    BomCells Cells;
    bool IsUsed = false;
};

/// Fills what is empty in the cells with what the others have; names and counts of a bill are its own.
void FillFrom(BomCells& cells, const BomCells& others)
{
    for (std::size_t i = static_cast<std::size_t>(BomField::Net); i < BomFieldCount; ++i)
    {
        cells[i] = cells[i] ? cells[i] : others[i];
    }
}

class Joining
{
public:
    Joining(const BomTable& billTable, const BomTable& conditionTable, const BomCells& optionCells)
        : bill(billTable)
        , conditions(conditionTable)
        , options(optionCells)
    {
    }

    JoinedBom Join()
    {
        joined.Bill = &bill;
        TakeConditions();
        references = 0;
        for (std::size_t row = 0; row < bill.Rows.size() && !isEnded; ++row)
        {
            TakeRow(row);
        }
        if (!isEnded)
        {
            TellStale();
            RefuseContraryNets();
        }
        return std::move(joined);
    }

private:
    void Fault(std::size_t line, const std::string& text, bool isOfConditions)
    {
        joined.Faults.push_back({{line, text}, isOfConditions});
    }

    /// Counts a reference; false, for good, in a file with more than any board has or with little but faults.
    bool TakesReference(std::size_t line, bool isOfConditions)
    {
        const bool isTooLong = ++references > MostReferences;
        if (!isEnded && (isTooLong || joined.Faults.size() >= mostFaults))
        {
            isEnded = true;
            Fault(line,
                  isTooLong ? "there are more than 100,000 references"
                            : "too many errors: the rest of the file was not read",
                  isOfConditions);
        }
        return !isEnded;
    }

    // ---- Conditions ----

    void TakeConditions()
    {
        for (const TableRow& row : conditions.Rows)
        {
            if (isEnded)
            {
                return;
            }
            auto cells = conditions.CellsOf(row);
            const auto names = At(cells, BomField::Reference);
            const auto net = At(cells, BomField::Net);
            if (names)
            {
                TakeReferences(ReferencesIn(names->Text), row.Line);
                rows.push_back({cells});
            }
            else if (net)
            {
                const auto [known, isNew] = byNet.try_emplace(net->Text, rows.size());
                if (!isNew)
                {
                    Fault(row.Line,
                          "net " + net->Text + " has a row already, line " +
                              std::to_string(At(rows[known->second].Cells, BomField::Net)->Line),
                          true);
                }
                rows.push_back({cells});
            }
            else
            {
                Fault(row.Line, "names neither a reference nor a net", true);
            }
        }
    }

    void TakeReferences(const std::vector<std::string>& names, std::size_t line)
    {
        for (const auto& name : names)
        {
            if (!TakesReference(line, true))
            {
                return;
            }
            const auto [known, isNew] = byReference.try_emplace(LowerCased(name), rows.size(), name);
            if (!isNew)
            {
                const auto& other =
                    rows.size() > known->second.first ? rows[known->second.first].Cells : BomCells();
                const auto otherLine =
                    At(other, BomField::Reference) ? At(other, BomField::Reference)->Line : line;
                Fault(line, name + " stands in line " + std::to_string(otherLine) + " already", true);
            }
        }
    }

    /// What stands in no row of the bill: conditions that have outlived their parts.
    void TellStale()
    {
        for (const auto& [key, place] : byReference)
        {
            if (!linesByReference.contains(key))
            {
                Warn(place.first, place.second + " is not in the bill of materials");
            }
        }
        for (const auto& [net, row] : byNet)
        {
            if (!rows[row].IsUsed)
            {
                Warn(row, "no part is on net " + net);
            }
        }
        std::ranges::stable_sort(joined.Warnings, {},
                                 [](const BomRemark& remark) { return remark.Note.Line; });
    }

    void Warn(std::size_t row, const std::string& text)
    {
        const auto& named = At(rows[row].Cells, BomField::Reference)
                                ? At(rows[row].Cells, BomField::Reference)
                                : At(rows[row].Cells, BomField::Net);
        joined.Warnings.push_back({{named->Line, text}, true});
    }

    // ---- Rows of the bill ----

    void TakeRow(std::size_t index)
    {
        const TableRow& row = bill.Rows[index];
        const auto cells = bill.CellsOf(row);
        const auto list = At(cells, BomField::Reference);
        const auto names = list ? ReferencesIn(list->Text) : std::vector<std::string>();
        const auto first = joined.Items.size();
        for (const auto& reference : names)
        {
            if (!TakesReference(row.Line, false))
            {
                break;
            }
            CheckOnce(reference, row.Line);
            Place(reference, CellsFor(reference, cells), first, index);
        }
        if (names.empty())
        {
            Place("", CellsFor("", cells), first, index);
        }
        for (auto item = first; item < joined.Items.size(); ++item)
        {
            joined.Items[item].ReferencesOfRow = names.size();
        }
    }

    void CheckOnce(const std::string& reference, std::size_t line)
    {
        const auto [known, isNew] = linesByReference.try_emplace(LowerCased(reference), line);
        if (!isNew)
        {
            Fault(line, reference + " stands in line " + std::to_string(known->second) + " already", false);
        }
    }

    BomCells CellsFor(const std::string& reference, BomCells cells)
    {
        if (const auto own = byReference.find(LowerCased(reference)); own != byReference.end())
        {
            FillFrom(cells, rows[own->second.first].Cells);
        }
        const auto& net = At(cells, BomField::Net);
        if (const auto shared = net ? byNet.find(net->Text) : byNet.end(); shared != byNet.end())
        {
            rows[shared->second].IsUsed = true;
            FillFrom(cells, rows[shared->second].Cells);
        }
        for (const auto* more : {&options, &conditions.Defaults, &bill.Defaults})
        {
            FillFrom(cells, *more);
        }
        return cells;
    }

    /// Beside the references of the row that have the same conditions, or as an item of its own.
    void Place(const std::string& reference, const BomCells& cells, std::size_t first, std::size_t row)
    {
        auto item =
            std::find_if(joined.Items.begin() + static_cast<std::ptrdiff_t>(first), joined.Items.end(),
                         [&](const BomItem& other) { return other.Cells == cells; });
        if (item == joined.Items.end())
        {
            joined.Items.push_back(
                {.Row = row, .Line = bill.Rows[row].Line, .References = {}, .Cells = cells});
            item = joined.Items.end() - 1;
        }
        if (!reference.empty())
        {
            item->References.push_back(reference);
        }
    }

    // ---- Nets ----

    /// All parts of a net have one bias, and what is said of the net as a whole is said once.
    void RefuseContraryNets()
    {
        std::map<std::string, BomCells> known;
        for (const BomItem& item : joined.Items)
        {
            if (item.TextOf(BomField::Net).empty())
            {
                continue;
            }
            BomCells& cells = known[item.TextOf(BomField::Net)];
            for (const BomField field :
                 {BomField::DCBias, BomField::NetCurrent, BomField::NetFrequency, BomField::NetConverter,
                  BomField::NetWaveform, BomField::NetMinCapacitance})
            {
                CheckSame(cells[static_cast<std::size_t>(field)], At(item.Cells, field), field,
                          item.TextOf(BomField::Net));
            }
        }
    }

    void CheckSame(std::optional<BomCell>& known, const std::optional<BomCell>& cell, BomField field,
                   const std::string& net)
    {
        if (known && cell && known->Text != cell->Text)
        {
            Fault(cell->Line,
                  "net " + net + " has another " + std::string(KindOf(field).Name) + ", " + cell->Text +
                      ", than in line " + std::to_string(known->Line) + ", " + known->Text,
                  cell->IsOfConditions);
        }
        known = known ? known : cell;
    }

    const BomTable& bill;
    const BomTable& conditions;
    const BomCells& options;
    JoinedBom joined;
    /// Of the table at hand.
    std::size_t references = 0;
    bool isEnded = false;
    std::vector<ConditionRow> rows;
    /// By the reference in small letters: the row, and the reference as written.
    std::map<std::string, std::pair<std::size_t, std::string>> byReference;
    std::map<std::string, std::size_t> byNet;
    std::map<std::string, std::size_t> linesByReference;
};
} // namespace

const std::string& BomItem::TextOf(BomField field) const
{
    static const std::string none;
    const auto& cell = At(Cells, field);
    return cell ? cell->Text : none;
}

bool BomItem::IsFitted() const
{
    const auto says = [&](BomField field)
    {
        const auto word = LowerCased(TextOf(field));
        return !word.empty() && word != "0" && word != "no" && word != "false";
    };
    return !says(BomField::NotFitted) && (TextOf(BomField::Fitted).empty() || says(BomField::Fitted));
}

std::size_t BomItem::Parts() const
{
    const auto& quantity = TextOf(BomField::Quantity);
    std::size_t count = 0;
    const auto read = std::from_chars(quantity.data(), quantity.data() + quantity.size(), count);
    const bool isCount = read.ec == std::errc() && read.ptr == quantity.data() + quantity.size() &&
                         count > 0 && count <= MostReferences;
    return !References.empty() ? References.size() : (isCount ? count : 1);
}

JoinedBom JoinBom(const BomTable& bill, const BomTable& conditions, const BomCells& options)
{
    return Joining(bill, conditions, options).Join();
}
