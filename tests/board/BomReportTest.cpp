/// Boards as pages for people.

#include "board/BomReport.h"
#include "tests/board/Board.h"
#include "tests/board/Contrast.h"
#include "tests/board/HtmlElements.h"

#include <gmock/gmock.h>

#include <regex>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace
{
std::unique_ptr<const CheckedBom> Check(const std::string& bill, const std::string& conditions,
                                        const BomSettings& settings = {})
{
    return CheckBom({.Bill = bill, .Conditions = conditions}, {.Settings = settings, .Waveforms = NoWaveform},
                    Range());
}

std::string SampleReport()
{
    const BomSettings settings{.IsSuggesting = true};
    return BomReport(*Check(BoardFile("board.csv"), BoardFile("rails.csv"), settings), settings);
}

/// What a hostile bill would have the reader of the report run, load or follow.
const std::string Hostile = "<script>alert(1)</script><img src=x onerror=a()>'&amp;<a href=\"\"//h.test\"\">";

std::string HostileReport()
{
    const auto checked = Check("Ref,MPN,Net,Bias\n\"C1,C2<b>\",\"" + Hostile + "\",\"" + Hostile +
                                   "\",5V\nC3,KTS31NB51C226MA01,\"N\n<i>\",5V\n",
                               "net,bias\n\"" + Hostile + "x\",5V\n");
    return BomReport(*checked, {});
}

Color ColorOf(std::string hex)
{
    if (hex.size() == 3)
    {
        hex = {hex[0], hex[0], hex[1], hex[1], hex[2], hex[2]};
    }
    const auto part = [&](std::size_t at)
    { return static_cast<std::uint8_t>(std::stoi(hex.substr(at, 2), nullptr, 16)); };
    return {part(0), part(2), part(4)};
}
} // namespace

TEST(BomReport, IsWellFormed)
{
    EXPECT_NO_THROW(ElementsOf(SampleReport()));
    EXPECT_NO_THROW(ElementsOf(HostileReport()));
    EXPECT_THROW(ElementsOf("<!DOCTYPE html><p><b></p>"), std::runtime_error);
    EXPECT_THROW(ElementsOf("<!DOCTYPE html><p>R&D</p>"), std::runtime_error);
}

TEST(BomReport, HasNothingToRunToLoadOrToFollow)
{
    const std::vector<std::string> known = {
        "html",  "head", "meta", "title", "style", "body", "h1",  "h2",       "p",      "table", "thead",
        "tbody", "tr",   "th",   "td",    "ul",    "li",   "svg", "polyline", "circle", "rect",  "text"};
    const std::vector<std::string> attributes = {
        "lang",   "charset", "http-equiv",       "content", "class", "width",
        "height", "viewBox", "font-size",        "fill",    "role",  "aria-label",
        "points", "stroke",  "stroke-dasharray", "x",       "y",     "cx",
        "cy",     "r",       "text-anchor"};
    for (const HtmlElement& element : ElementsOf(HostileReport()))
    {
        EXPECT_THAT(known, Contains(element.Name));
        for (const auto& [name, value] : element.Attributes)
        {
            EXPECT_THAT(attributes, Contains(name));
        }
    }
    EXPECT_THAT(HostileReport(), HasSubstr("default-src 'none'"));
}

TEST(BomReport, TellsTextsOfABillAsTheyStand)
{
    const auto report = HostileReport();
    EXPECT_THAT(report, HasSubstr(">&lt;script&gt;alert(1)&lt;/script&gt;&lt;img src=x onerror=a()&gt;"
                                  "&#39;&amp;amp;&lt;a href=&quot;//h.test&quot;&gt;</td>"));
    EXPECT_THAT(report, HasSubstr("<td>C1,C2&lt;b&gt;</td>"));
    EXPECT_THAT(report, HasSubstr("<td>N\\x0A&lt;i&gt;</td>"));
    EXPECT_THAT(report, HasSubstr("<li>conditions: line 2: no part is on net &lt;script&gt;"));
}

TEST(BomReport, HasNetsBeforeRowsAndTheWorstRowFirst)
{
    const auto report = SampleReport();
    const auto place = [&](const std::string& text) { return report.find(text); };
    EXPECT_LT(place("<td>+12V</td><td class=\"number\">3"), place("<td>C18</td>"));
    EXPECT_LT(place("<td>C18</td>"), place("<td>C9</td>"));
    EXPECT_LT(place("<td>C9</td>"), place("<td>C10,C11</td>"));
}

TEST(BomReport, KeepsRowsWholeOnPaper)
{
    EXPECT_THAT(SampleReport(), HasSubstr("tr { break-inside: avoid; }"));
}

TEST(BomReport, VerdictsAreReadOnTheirColours)
{
    const auto report = SampleReport();
    for (const auto name : BomVerdictNames)
    {
        const std::regex rule("\\." + std::string(name) +
                              " \\{ background: #([0-9a-f]+); color: #([0-9a-f]+); \\}");
        std::smatch match;
        ASSERT_TRUE(std::regex_search(report, match, rule)) << name;
        EXPECT_GE(Contrast(ColorOf(match[1]), ColorOf(match[2])), 4.5) << name;
    }
}
