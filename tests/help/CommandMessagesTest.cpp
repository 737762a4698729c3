/// Every message of tavik-cli is found in both books: in the rooms that answer it, all texts are collected
/// but those of reports and of the help that a command gives.

#include "tests/help/BookText.h"
#include "tests/help/SourceTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <regex>
#include <set>

namespace
{

constexpr std::array Rooms = {"board",    "cli",           "find",       "ownparts", "partfiles",
                              "requests", "separatedtext", "simulation", "stress",   "terminal"};

/// What is written when all is well: reports, pictures, models, and the names of columns.
constexpr std::array Reports = {
    "BomChart.cpp",       "BomFields.cpp",   "ChartSvg.cpp",    "BomReport.cpp",
    "CurveFormats.cpp",   "FileHeader.cpp",  "FitGroups.cpp",   "FitSheet.cpp",
    "FitText.cpp",        "LikeList.cpp",    "ModelHeader.cpp", "PeakedNetlist.cpp",
    "ProductNetlist.cpp", "StressSheet.cpp", "StressText.cpp",  "SimulationModel.cpp"};

constexpr std::array Commands = {
    "",       "parts", "find", "like",       "curve",       "chart",      "model",    "bank",
    "ripple", "bom",   "data", "data check", "data export", "data build", "data fit", "data merge"};

/// What the help of all commands says, in one line.
std::string AllHelp()
{
    std::string help;
    for (const char* command : Commands)
    {
        const auto line = std::string(TAVIK_CLI) + ' ' + command + " --help";
        const std::unique_ptr<FILE, int (*)(FILE*)> program(popen(line.c_str(), "r"), pclose);
        for (int c = 0; program != nullptr && (c = std::fgetc(program.get())) != EOF;)
        {
            help += static_cast<char>(c);
        }
    }
    return std::regex_replace(help, std::regex("\\s+"), " ");
}

bool IsReport(const std::filesystem::path& source)
{
    return std::ranges::find(Reports, source.filename().string()) != Reports.end();
}

/// The heading of a column, with its unit, or what other programs write.
bool IsNoMessage(const SourceText& text)
{
    const bool isHeading = text.Text.ends_with(']') && text.Text.find('[') != std::string::npos;
    return isHeading || text.Before.ends_with("starts_with(");
}

std::set<std::string> PiecesOfMessages()
{
    const auto help = AllHelp();
    std::set<std::string> pieces;
    for (const char* room : Rooms)
    {
        for (const auto& source : SourcesIn(std::filesystem::path(SOURCES) / room))
        {
            for (const auto& text : TextsOfSource(IsReport(source) ? "" : FileText(source)))
            {
                if (HasWords(text.Text) && !IsNoMessage(text))
                {
                    std::ranges::copy_if(PiecesOf(text.Text), std::inserter(pieces, pieces.end()),
                                         [&](const std::string& piece)
                                         { return help.find(piece) == std::string::npos; });
                }
            }
        }
    }
    return pieces;
}

TEST(CommandMessages, AreCollected)
{
    const auto pieces = PiecesOfMessages();
    EXPECT_GE(pieces.size(), 250U);
    for (const char* known :
         {"there is no part \"", "\" is not a range:", "bank wants --current",
          "C within the tolerances, above the", "the current does not change, so nothing heats",
          "is not in the bill of materials", ", so there is no model", "a rise needs a frequency",
          "no closing quote"})
    {
        EXPECT_TRUE(pieces.contains(known)) << known;
    }
    EXPECT_FALSE(pieces.contains("Frequency, 10 to 1000 kHz"));
}

TEST(CommandMessages, AreFoundInBothBooks)
{
    const auto pieces = PiecesOfMessages();
    for (const char* book : {"tavike.hlp", "tavikj.hlp"})
    {
        const auto text = PlainText(BookText(book));
        for (const auto& piece : pieces)
        {
            EXPECT_TRUE(text.find(piece) != std::string::npos) << book << ": " << piece;
        }
    }
}

} // namespace
