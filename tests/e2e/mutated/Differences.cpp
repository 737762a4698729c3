#include "tests/e2e/mutated/Differences.h"

#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <bit>
#include <csignal>
#include <map>
#include <vector>

static const char* DescriptionOfNumber(int number)
{
    switch (number)
    {
    case 6:
        return "Overflow";
    case 53:
        return "File not found";
    case 62:
        return "Input past end of file";
    case 75:
        return "Path/File access error";
    case 457:
        return "This key is already associated with an element of this collection";
    default:
        return "";
    }
}

std::string PlaceOf(const PlainPair& plain)
{
    auto place = plain.File;
    // The only control character in the file names of the tests.
    if (const auto lineEnd = place.find('\n'); lineEnd != std::string::npos)
    {
        place.replace(lineEnd, 1, "\\x0A");
    }
    return place + (plain.Record != 0 ? ": record " + std::to_string(plain.Record) : "");
}

std::string MessageOf(const PlainPair& plain)
{
    return "Run-time error '" + std::to_string(plain.Error) + "': " + DescriptionOfNumber(plain.Error) +
           ": " + PlaceOf(plain);
}

/// True when a message begins with a text, and the number at its end is not the start of a longer one.
static bool Tells(const std::string& message, const std::string& start)
{
    return message.starts_with(start) &&
           (message.size() == start.size() || message[start.size()] == ':' || message[start.size()] == '\n');
}

static bool IsOneLine(const std::string& text)
{
    return std::ranges::count(text, '\n') == 1 && text.ends_with('\n') && text.size() < 2000;
}

static bool SameBits(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

// ---- The part table ----

static std::string PartDifference(const PartTable& table, std::size_t index, const PlainPart& plain)
{
    const PartRecord& part = table.PartData[index];
    const std::array<std::string_view, 8> names = {part.PartNum[0], part.PartNum[1],  part.PartNum[2],
                                                   part.PartNum[3], part.SizeCode[0], part.SizeCode[1],
                                                   part.Tcc[0],     part.Tcc[1]};
    if (!std::ranges::equal(names, plain.Names))
    {
        return "other names";
    }
    if (!std::ranges::equal(part.Data, plain.Data, SameBits))
    {
        return "other values";
    }
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        const auto* found = table.PartIndex[form].Find(plain.Names[form]);
        if (found == nullptr || static_cast<std::size_t>(*found) != index)
        {
            return "PartIndex(" + std::to_string(form) + ") does not find the part";
        }
    }
    return "";
}

std::string LoaderDifference(const std::filesystem::path& folder, const PlainPair& plain)
{
    try
    {
        const auto table = LoadPartData(folder.string());
        if (plain.Error != 0)
        {
            return "loads, but: " + MessageOf(plain);
        }
        if (table.PartData.size() != plain.Parts.size() ||
            table.PartMax + 1 != static_cast<int>(plain.Parts.size()))
        {
            return "has " + std::to_string(table.PartData.size()) + " parts";
        }
        for (std::size_t i = 0; i < plain.Parts.size(); ++i)
        {
            const auto difference = PartDifference(table, i, plain.Parts[i]);
            if (!difference.empty())
            {
                return "record " + std::to_string(i + 1) + ": " + difference;
            }
        }
        return "";
    }
    catch (const RunTimeError& error)
    {
        return error.Number() == plain.Error && Tells(error.what(), MessageOf(plain)) ? "" : error.what();
    }
    catch (const std::exception& error)
    {
        return error.what();
    }
}

// ---- The command line ----

/// The message of a command that cannot load the pair; it may name the folder before a pattern.
static bool TellsFault(const std::string& message, const PlainPair& plain)
{
    const auto start = "tavik-cli: Run-time error '" + std::to_string(plain.Error) +
                       "': " + DescriptionOfNumber(plain.Error) + ": ";
    if (!message.starts_with(start) || !IsOneLine(message))
    {
        return false;
    }
    const auto place = message.substr(start.size());
    return plain.File.starts_with('*') ? place.ends_with("/" + plain.File + "\n")
                                       : Tells(place, PlaceOf(plain));
}

/// How the end of a command that loads the pair differs from what the pair asks for.
static std::string EndDifference(const ChildEnd& end, const PlainPair& plain)
{
    if (plain.Error != 0)
    {
        return end.Status == 1 && end.Output.empty() && TellsFault(end.Messages, plain)
                   ? ""
                   : "status " + std::to_string(end.Status) + ", not " + MessageOf(plain);
    }
    return end.Status == 0 ? "" : "status " + std::to_string(end.Status);
}

static QString ShownText(const std::string& ansi)
{
    return QString::fromStdString(Utf8Of(ansi));
}

static bool IsListed(const QJsonObject& row, const PlainPart& part)
{
    const auto number = [&](const char* key)
    { return static_cast<float>(row[QLatin1String(key)].toDouble()); };
    QJsonArray charts;
    static constexpr std::array<const char*, 4> names = {"temperature-rise", "allowable-power",
                                                         "capacitance-temperature", "capacitance-dc-voltage"};
    for (int type = 0; type < 4; ++type)
    {
        if (IsOffered(part, type))
        {
            charts.append(names[static_cast<std::size_t>(type)]);
        }
    }
    if (IsOffered(part, 0))
    {
        charts.append("loss-resistance");
    }
    return row["part"].toString() == ShownText(part.Names[0]) &&
           row["size"].toString() == ShownText(part.Names[4]) &&
           row["characteristic"].toString() == ShownText(part.Names[6]) &&
           number("capacitance") == part.Data[0] && number("ratedVoltage") == part.Data[2] &&
           row["charts"].toArray() == charts;
}

std::string PartsDifference(const ChildEnd& end, const PlainPair& plain)
{
    const auto difference = EndDifference(end, plain);
    if (!difference.empty() || plain.Error != 0)
    {
        return difference;
    }
    const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(end.Output));
    const QJsonArray rows = json.array();
    qsizetype at = 0;
    for (const PlainPart& part : plain.Parts)
    {
        if ((IsOffered(part, 0) || IsOffered(part, 2)) && !IsListed(rows.at(at++).toObject(), part))
        {
            return "row " + std::to_string(at) + " is not " + part.Names[0];
        }
    }
    const bool says = end.Messages == (at == 0 ? "tavik-cli: no part fits\n" : "");
    return json.isArray() && rows.size() == at && says ? ""
                                                       : "lists " + std::to_string(rows.size()) + " parts";
}

/// The rules of a finding for what a pair ends in.
static std::vector<QString> RulesOf(int error)
{
    static const std::map<int, std::vector<QString>> rules = {{6, {"part-count", "unreadable"}},
                                                              {53, {"unreadable"}},
                                                              {62, {"index-end", "open-quote"}},
                                                              {75, {"unreadable"}},
                                                              {457, {"duplicate"}}};
    const auto found = rules.find(error);
    return found != rules.end() ? found->second : std::vector<QString>();
}

std::string CheckDifference(const ChildEnd& end, const PlainPair& plain)
{
    const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(end.Output)).object();
    const bool hasErrors = json["errors"].toInt() > 0;
    if (end.Status != (hasErrors ? 1 : 0) || (hasErrors ? !IsOneLine(end.Messages) : !end.Messages.empty()))
    {
        return "status " + std::to_string(end.Status) + ", " + std::to_string(json["errors"].toInt()) +
               " errors";
    }
    const auto rules = RulesOf(plain.Error);
    bool isTold = plain.Error == 0;
    for (const auto& value : json["findings"].toArray())
    {
        const auto finding = value.toObject();
        const auto rule = finding["rule"].toString();
        const bool isOfRecord =
            finding["record"].toInt() == static_cast<int>(plain.Record) || rule == "part-count";
        isTold = isTold || (std::ranges::count(rules, rule) != 0 && isOfRecord);
        for (const int fault : {6, 53, 62, 75, 457})
        {
            if (plain.Error == 0 && std::ranges::count(RulesOf(fault), rule) != 0)
            {
                return "tells " + rule.toStdString() + " of a pair that loads";
            }
        }
    }
    const bool counts = plain.Error != 0 || json["parts"].toInt() == static_cast<int>(plain.Parts.size());
    return isTold && counts ? ""
                            : "does not tell " + (plain.Error != 0 ? MessageOf(plain) : "the part count");
}

std::string CurveDifference(const ChildEnd& end, const PlainPair& plain)
{
    if (plain.Error != 0)
    {
        return EndDifference(end, plain);
    }
    if (end.Status == 1)
    {
        return end.Output.empty() && IsOneLine(end.Messages) ? "" : "a failure without a message of one line";
    }
    if (end.Status != 0 || !end.Messages.empty())
    {
        return "status " + std::to_string(end.Status);
    }
    // A document holds finite numbers only; any other would not be read.
    const auto curve = QJsonDocument::fromJson(QByteArray::fromStdString(end.Output)).object();
    const auto holds = [&](const char* axis)
    {
        const auto points = curve[QLatin1String(axis)].toArray();
        return points.size() == 200 &&
               std::ranges::all_of(points, [](const auto& value) { return value.isDouble(); });
    };
    return holds("x") && holds("y") ? "" : "a curve without 200 points";
}

// ---- The built program ----

/// What the program says, without what the windows of a system without a display say of themselves.
static std::string SaidBy(const ChildEnd& end)
{
    static const std::string ofNoDisplay = "This plugin does not support propagateSizeHints()\n";
    auto said = end.Messages;
    for (auto at = said.find(ofNoDisplay); at != std::string::npos; at = said.find(ofNoDisplay))
    {
        said.erase(at, ofNoDisplay.size());
    }
    return said;
}

std::string ProgramDifference(const ChildEnd& end, const PlainPair& plain)
{
    const auto said = SaidBy(end);
    if (plain.Error == 0)
    {
        return end.Status == -SIGTERM && said.empty() ? "" : "status " + std::to_string(end.Status);
    }
    return end.Status == 1 && IsOneLine(said) && Tells(said, MessageOf(plain))
               ? ""
               : "status " + std::to_string(end.Status) + ", not " + MessageOf(plain);
}
