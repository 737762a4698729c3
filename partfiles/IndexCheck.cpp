#include "partfiles/IndexCheck.h"

#include "partdata/FieldNames.h"
#include "partdata/IndexReader.h"
#include "partdata/KeyedCollection.h"
#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"
#include "partfiles/SizeNames.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>

namespace
{
/// Bytes of a name that a finding shows.
constexpr std::size_t ShownBytes = 500;

/// The name as a finding shows it: as it is, but for one that is far too long.
std::string Shown(std::string_view name)
{
    return Utf8FromWindows1252(name.substr(0, ShownBytes)) + (name.size() > ShownBytes ? "..." : "");
}

bool HasLineEnd(std::string_view text)
{
    return text.find_first_of("\r\n") != std::string_view::npos;
}

/// A character that has no shape; line breaks are told on their own.
bool IsControl(char c)
{
    constexpr std::string_view Shapeless = "\x81\x8D\x8F\x90\x9D";
    const bool isControl = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
    return (isControl && c != '\r' && c != '\n') || Shapeless.find(c) != std::string_view::npos;
}

/// What makes a spreadsheet calculate.
constexpr std::string_view FormulaStarts = "=+@";

/// Judges the records of one index text.
class IndexJudge
{
public:
    IndexJudge(std::string_view indexText, const std::string& name, std::vector<Finding>& found)
        : text(indexText)
        , file(name)
        , findings(found)
    {
    }

    std::vector<PartRecord> Read();

private:
    void JudgeEnd(const RunTimeError& error);
    void JudgeLayout();
    void JudgeFields(std::size_t record);
    void JudgeText(std::size_t record, std::size_t field, std::string_view name);
    void JudgeSizes();
    void JudgeUnique(std::size_t form);
    void JudgePairing(std::size_t eia, std::string_view what);
    bool LiesOffItsLine(std::size_t record) const;

    /// The field as it stands in the file, with its quotes.
    std::string_view Outer(std::string_view field) const;
    bool IsQuoted(std::string_view field) const;
    /// What stands between two fields; `from` may be empty for the start of the text.
    std::string_view Between(std::string_view from, std::string_view to) const;

    void Add(Severity level, std::string rule, std::size_t record, std::string field, std::string_view value,
             std::string message);

    std::string_view text;
    const std::string& file;
    std::vector<Finding>& findings;
    std::vector<PartRecord> parts;
    /// How many records there are; those beyond the most parts are only counted.
    std::size_t count = 0;
};

std::vector<PartRecord> IndexJudge::Read()
{
    IndexReader reader(text, file);
    try
    {
        while (reader.FindRecord())
        {
            PartRecord part;
            reader.ReadRecord(part);
            if (++count <= MostParts)
            {
                parts.push_back(part);
            }
        }
    }
    catch (const RunTimeError& error)
    {
        JudgeEnd(error);
    }
    if (count > MostParts)
    {
        Add(Severity::Error, "part-count", 0, "", std::to_string(count),
            std::to_string(count) + " parts; at most " + std::to_string(MostParts) + " can be loaded");
    }
    JudgeLayout();
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        JudgeFields(i);
    }
    JudgeSizes();
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        JudgeUnique(form);
    }
    JudgePairing(FirstSizeCodeField, "size codes");
    JudgePairing(FirstTccField, "temperature characteristics");
    return std::move(parts);
}

void IndexJudge::JudgeEnd(const RunTimeError& error)
{
    const auto offset = static_cast<std::size_t>(error.Where().Offset.value_or(text.size()));
    const bool isOpenQuote = offset < text.size() && text[offset] == '"';
    Add(Severity::Error, isOpenQuote ? "open-quote" : "index-end", count + 1,
        "field " + std::to_string(error.Where().Field), "",
        isOpenQuote ? "the file ends within a quoted field" : "the file ends within the record");
}

bool IndexJudge::IsQuoted(std::string_view field) const
{
    // Behind an unquoted field stands a comma, a line end, a blank or the end, so two quotes are its own.
    return field.data() > text.data() && field.data() + field.size() < text.data() + text.size() &&
           field.data()[-1] == '"' && field.data()[field.size()] == '"';
}

std::string_view IndexJudge::Outer(std::string_view field) const
{
    return IsQuoted(field) ? std::string_view(field.data() - 1, field.size() + 2) : field;
}

std::string_view IndexJudge::Between(std::string_view from, std::string_view to) const
{
    const auto outer = Outer(from);
    return {outer.data() + outer.size(), Outer(to).data()};
}

/// A record should begin on a new line and keep to it, apart from line breaks in quotes.
bool IndexJudge::LiesOffItsLine(std::size_t record) const
{
    const auto names = NamesOf(parts[record]);
    if (record > 0 && !HasLineEnd(Between(parts[record - 1].Tcc[1], names[0])))
    {
        return true;
    }
    for (std::size_t i = 1; i < names.size(); ++i)
    {
        if (HasLineEnd(Between(names[i - 1], names[i])))
        {
            return true;
        }
    }
    return false;
}

void IndexJudge::JudgeLayout()
{
    bool wasOff = false;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        // One field too few or too many shifts all records behind it; one line tells them all.
        const bool isOff = LiesOffItsLine(i);
        if (isOff && !wasOff)
        {
            Add(Severity::Warning, "record-line", i + 1, "", "",
                "the record is not one line of its own; a field may be missing or too many");
        }
        wasOff = isOff;
    }
}

void IndexJudge::JudgeFields(std::size_t record)
{
    const auto names = NamesOf(parts[record]);
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        const auto add = [&](std::string rule, std::string message)
        { Add(Severity::Warning, std::move(rule), record + 1, FieldName(i), names[i], std::move(message)); };
        if (names[i].empty())
        {
            add("empty-field", "the field is empty");
        }
        if (HasLineEnd(names[i]))
        {
            add("line-break", "a line break within quotes; a quote may be missing");
        }
        JudgeText(record, i, names[i]);
        if (!IsQuoted(names[i]) && names[i].find('"') != std::string_view::npos)
        {
            add("stray-quote", "a quote within an unquoted field");
        }
        if (i > 0 && Between(names[i - 1], names[i]).find_first_of(",\r\n") == std::string_view::npos)
        {
            add("separator", "no comma before the field");
        }
    }
}

/// What a name does to those who show it: terminals, and spreadsheets.
void IndexJudge::JudgeText(std::size_t record, std::size_t field, std::string_view name)
{
    if (std::ranges::any_of(name, IsControl))
    {
        Add(Severity::Warning, "control-character", record + 1, FieldName(field), name,
            "a control character, which nobody sees");
    }
    if (!name.empty() && FormulaStarts.find(name.front()) != std::string_view::npos)
    {
        Add(Severity::Warning, "formula", record + 1, FieldName(field), name,
            "a spreadsheet takes what begins with = + or @ for a formula");
    }
}

/// Each pair of size names that is not known is told once: mostly a spreadsheet has taken them for numbers.
void IndexJudge::JudgeSizes()
{
    std::unordered_set<std::string> told;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        const auto& [eia, jis] = parts[i].SizeCode;
        const auto jisOfEia = JisSizeOf(eia);
        const bool fits = jisOfEia == jis;
        if (fits || eia.empty() || jis.empty() || !told.insert(FoldedKey(eia) + '\0' + FoldedKey(jis)).second)
        {
            continue;
        }
        const auto message =
            jisOfEia && EiaSizeOf(jis)
                ? "EIA size " + Shown(eia) + " is " + std::string(*jisOfEia) + " in JIS, not " + Shown(jis)
                : std::string("no known size of ") + (jisOfEia ? "JIS" : "EIA") +
                      " code; a spreadsheet may have taken it for a number";
        const auto field = FirstSizeCodeField + (jisOfEia ? 1 : 0);
        Add(Severity::Warning, "size", i + 1, FieldName(field), jisOfEia ? jis : eia, message);
    }
}

void IndexJudge::JudgeUnique(std::size_t form)
{
    std::unordered_map<std::string, std::size_t> firstRecord;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        const auto partNum = parts[i].PartNum[form];
        const auto [first, isNew] = firstRecord.try_emplace(FoldedKey(partNum), i);
        if (!isNew)
        {
            Add(Severity::Error, "duplicate", i + 1, FieldName(form), partNum,
                "the part number stands in record " + std::to_string(first->second + 1) + " already");
        }
    }
}

/// Each EIA name should go with one JIS name and the other way round; each further pairing is told once.
void IndexJudge::JudgePairing(std::size_t eia, std::string_view what)
{
    std::array<std::unordered_map<std::string, std::string>, CodeForms> partner;
    std::unordered_set<std::string> told;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        const auto names = NamesOf(parts[i]);
        const std::array keys = {FoldedKey(names[eia]), FoldedKey(names[eia + 1])};
        const auto eiaFirst = partner[0].try_emplace(keys[0], keys[1]).first;
        const auto jisFirst = partner[1].try_emplace(keys[1], keys[0]).first;
        const bool agrees = eiaFirst->second == keys[1] && jisFirst->second == keys[0];
        if (!agrees && told.insert(keys[0] + '\0' + keys[1]).second)
        {
            const auto field = eiaFirst->second == keys[1] ? eia : eia + 1;
            Add(Severity::Warning, "pairing", i + 1, FieldName(field), names[field],
                "EIA and JIS " + std::string(what) +
                    " do not pair one to one: an earlier record pairs them otherwise");
        }
    }
}

void IndexJudge::Add(Severity level, std::string rule, std::size_t record, std::string field,
                     std::string_view value, std::string message)
{
    const bool isWhole = record >= 1 && record <= parts.size();
    findings.push_back({.Level = level,
                        .Rule = std::move(rule),
                        .File = file,
                        .Record = record,
                        .PartNumber = isWhole ? Shown(parts[record - 1].PartNum[0]) : "",
                        .Field = std::move(field),
                        .Value = Shown(value),
                        .Message = std::move(message)});
}
} // namespace

std::vector<PartRecord> CheckIndex(std::string_view text, const std::string& file,
                                   std::vector<Finding>& findings)
{
    return IndexJudge(text, file, findings).Read();
}
