#include "board/BomCsv.h"

#include "board/References.h"
#include "calc/NumberText.h"
#include "partdata/Windows1252.h"
#include "requests/ListText.h"
#include "requests/Names.h"

#include <array>

namespace
{
/// A column of figures.
struct FigureColumn
{
    const char* Heading;
    FoundColumn Column;
};

constexpr std::array<FigureColumn, 11> figureColumns = {{
    {"effective capacitance [pF]", FoundColumn::EffectiveCapacitance},
    {"most capacitance [pF]", FoundColumn::MostCapacitance},
    {"left [%]", FoundColumn::Left},
    {"loss resistance [mOhm]", FoundColumn::LossResistance},
    {"permitted rise [C]", FoundColumn::PermittedRise},
    {"current [Arms]", FoundColumn::Current},
    {"rise [C]", FoundColumn::Rise},
    {"body [C]", FoundColumn::Body},
    {"margin [C]", FoundColumn::Margin},
    {"warm capacitance [pF]", FoundColumn::WarmCapacitance},
    {"total [pF]", FoundColumn::Total},
}};

constexpr std::array<const char*, 19> ownHeadings = {"verdict",
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
                                                     "tolerance [%]",
                                                     "least at bias [V]",
                                                     "least at ambient [C]",
                                                     "net share [Arms]",
                                                     "net share rise [C]",
                                                     "suggestion",
                                                     "suggested least [pF]"};

std::string Number(std::optional<double> value)
{
    return value ? NumberText(static_cast<float>(*value)) : "";
}

void AddVerdict(ListRow& row, const JudgedItem& item)
{
    const auto& at = item.Question.Asked.At;
    const auto bias = [&](float volts) { return item.Question.HasBias ? NumberText(volts) : ""; };
    for (const auto& cell :
         {std::string(BomVerdictNames.at(static_cast<std::size_t>(item.Verdict))), Number(item.Reserve),
          item.Decides, ListOf(item.Reasons, "; "), ReferenceText(item.Item->References),
          std::to_string(item.Item->References.size()), item.Item->TextOf(BomField::Part),
          item.Item->TextOf(BomField::Net), bias(at.BiasVolts.Low), bias(at.BiasVolts.High),
          NumberText(at.AmbientC.Low), NumberText(at.AmbientC.High), item.Item->TextOf(BomField::Tolerance)})
    {
        row.push_back(cell);
    }
}

void AddFigures(ListRow& row, const JudgedItem& item, const BomSettings& settings)
{
    const auto place = item.Judged ? item.Judged->Figures.ConditionsAt(FoundPlace::Least) : std::nullopt;
    row.push_back(place ? NumberText((*place)[0]) : "");
    row.push_back(place ? NumberText((*place)[1]) : "");
    row.push_back(item.Share ? Number(item.Share->Arms) : "");
    row.push_back(item.Share ? Number(item.Share->Rise) : "");
    const auto& suggested = item.Suggestion;
    const auto form = static_cast<std::size_t>(settings.View) + settings.NumberingOffset;
    row.push_back(suggested ? (suggested->Count > 1 ? std::to_string(suggested->Count) + " x " : "") +
                                  Utf8FromWindows1252(suggested->Part->PartNum[form])
                            : "");
    row.push_back(suggested ? Number(suggested->Least) : "");
    for (const FigureColumn& column : figureColumns)
    {
        row.push_back(item.Judged ? Number(item.Judged->Figures.ValueOf(column.Column)) : "");
    }
}
} // namespace

std::string BomCsv(const JudgedBom& bom, const BomTable& bill, const BomSettings& settings)
{
    ListRow headings = bill.Headings;
    headings.insert(headings.end(), ownHeadings.begin(), ownHeadings.end());
    for (const FigureColumn& column : figureColumns)
    {
        headings.emplace_back(column.Heading);
    }
    std::vector<ListRow> rows = {headings};
    for (const JudgedItem& item : bom.Items)
    {
        ListRow row = bill.Rows.at(item.Item->Row).Cells;
        row.resize(bill.Headings.size());
        AddVerdict(row, item);
        AddFigures(row, item, settings);
        rows.push_back(std::move(row));
    }
    return CsvOf(rows);
}
