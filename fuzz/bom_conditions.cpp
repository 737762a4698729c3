/// A bill of materials joined with its conditions and judged: told why not, or a verdict on each item, the
/// worst first, in a table and in CSV. A record separator parts the two files.

#include "board/BomCheck.h"
#include "board/BomCsv.h"
#include "board/BomText.h"
#include "files/PartLoading.h"
#include "fuzz/Allocations.h"
#include "fuzz/Require.h"
#include "partdata/OneLine.h"
#include "stress/WaveformError.h"
#include "tests/partdata/TemporaryFolder.h"
#include "tests/partfiles/SmallPair.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <tuple>

static constexpr char FileSeparator = '\x1E';

static PartTable LoadSmallRange()
{
    const SmallPair pair;
    const TemporaryFolder folder;
    folder.Write("small.idx", pair.Index());
    folder.Write("small.dat", pair.Data());
    return LoadPartData(folder.Path());
}

/// The one waveform that cells may name, as it stands beside every bill.
static WaveformTable Waveform(const std::string& name, bool /*isOfConditions*/)
{
    if (name != "i.csv")
    {
        throw WaveformError("there is no file " + OneLine(name));
    }
    return ReadWaveforms("time,i\n0,0\n1e-6,1\n2e-6,0\n3e-6,-1\n4e-6,0\n5e-6,1\n6e-6,0\n7e-6,-1\n8e-6,0\n");
}

/// A file, and how many lines it may be spoken of.
struct TextFile
{
    explicit TextFile(std::string bytes)
        : Bytes(std::move(bytes))
        , Lines(2 + static_cast<std::size_t>(
                        std::ranges::count_if(Bytes, [](char c) { return c == '\n' || c == '\r'; })))
    {
    }

    std::string Bytes;
    std::size_t Lines;
};

static void RequireRemarks(const std::vector<BomRemark>& remarks, const TextFile& bill,
                           const TextFile& conditions)
{
    for (const BomRemark& remark : remarks)
    {
        const auto& file = remark.IsOfConditions ? conditions : bill;
        Require(remark.Note.Line <= file.Lines, "what is told stands in a line of the file");
        Require(!remark.Note.Text.empty(), "a remark says something");
    }
}

static void RequireJoined(const JoinedBom& joined, const BomTable& bill)
{
    Require(std::ranges::is_sorted(joined.Items, {}, &BomItem::Row), "items stand in the order of the bill");
    std::set<std::string> known;
    for (const BomItem& item : joined.Items)
    {
        Require(item.Row < bill.Rows.size() && item.Line == bill.Rows[item.Row].Line, "an item is of a row");
        Require(item.References.size() <= item.ReferencesOfRow, "a row has the references of its items");
        for (const auto& reference : item.References)
        {
            Require(!joined.Faults.empty() || known.insert(reference).second, "a reference stands once");
        }
    }
}

static void RequireItem(const JudgedItem& item, float warnPercent)
{
    const bool holds = item.Verdict == BomVerdict::Ok || item.Verdict == BomVerdict::Warn;
    Require(!item.Reserve || !std::isnan(*item.Reserve), "a reserve is a number");
    Require(!holds || (item.Part != nullptr && item.Reserve && *item.Reserve >= 0),
            "what holds has a reserve");
    Require(item.Verdict != BomVerdict::Ok || *item.Reserve >= warnPercent, "a small reserve is a warning");
    Require(!item.Reserve || *item.Reserve >= 0 || item.Verdict == BomVerdict::Fail, "what is missed fails");
    Require(!item.Reasons.empty(), "a verdict has a reason");
    Require(!item.Share || (item.Share->Arms >= 0 && std::isfinite(item.Share->Rise)), "a share heats");
}

static void RequireVerdicts(const JudgedBom& bom, const JoinedBom& joined, const BomSettings& settings)
{
    const auto rank = [](const JudgedItem& item)
    { return std::tuple(item.Verdict, item.Reserve.value_or(std::numeric_limits<double>::max())); };
    Require(std::ranges::is_sorted(bom.Items, {}, rank), "the worst stands first");
    std::size_t counted = 0;
    for (std::size_t i = 0; i < bom.Counts.size(); ++i)
    {
        const auto verdict = static_cast<BomVerdict>(i);
        const auto found = std::ranges::count(bom.Items, verdict, &JudgedItem::Verdict);
        Require(bom.Counts[i] == static_cast<std::size_t>(found), "verdicts are counted");
        counted += bom.Counts[i];
    }
    Require(counted == bom.Items.size(), "each item has a verdict");
    Require(counted + bom.Skipped + bom.NotFitted <= joined.Items.size(), "no item counts twice");
    std::ranges::for_each(bom.Items, [&](const auto& item) { RequireItem(item, settings.WarnPercent); });
}

static void RequireTexts(const CheckedBom& bom, const BomSettings& settings)
{
    const auto text = BomText(bom.Judged, settings);
    Require(text.ends_with('\n') &&
                std::ranges::none_of(text, [](unsigned char c) { return c < ' ' && c != '\n'; }),
            "a table is readable");
    const auto csv = BomCsv(bom, settings);
    TableCells cells(csv);
    TableRow row;
    Require(cells.Read(row), "a table has headings");
    const auto columns = row.Cells.size();
    std::size_t rows = 0;
    for (; cells.Read(row); ++rows)
    {
        Require(row.Fault.empty() && row.Cells.size() == columns, "a row has a cell a heading");
    }
    Require(rows >= bom.Judged.Items.size(), "each item has a row");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const PartTable parts = LoadSmallRange();
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto end = std::min(bytes.find(FileSeparator), size);
    const TextFile billFile(bytes.substr(0, end));
    const TextFile conditionFile(bytes.substr(std::min(end + 1, size)));
    const auto bill = ReadBomTable(billFile.Bytes, BomTableKind::Bill);
    const auto conditions =
        end == size ? BomTable() : ReadBomTable(conditionFile.Bytes, BomTableKind::Conditions);
    if (!bill.Faults.empty() || !conditions.Faults.empty())
    {
        return 0;
    }
    ForgetAllocations();
    const auto joined = JoinBom(bill, conditions, {});
    Require(LargestAllocation() <= (std::size_t{16} << 20), "a list of references has an end");
    RequireRemarks(joined.Warnings, billFile, conditionFile);
    RequireRemarks(joined.Faults, billFile, conditionFile);
    RequireJoined(joined, bill);
    if (joined.Faults.empty())
    {
        const BomSettings settings{.IsSuggesting = true};
        const auto bom = JudgeBom(joined, parts, settings, Waveform);
        RequireRemarks(bom.Faults, billFile, conditionFile);
        if (bom.Faults.empty())
        {
            RequireVerdicts(bom, joined, settings);
            BomTexts texts{.Bill = billFile.Bytes};
            texts.Conditions = end == size ? std::nullopt : std::optional(conditionFile.Bytes);
            RequireTexts(*CheckBom(texts, {.Settings = settings, .Waveforms = Waveform}, parts), settings);
        }
    }
    return 0;
}
