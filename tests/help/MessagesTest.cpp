/// Every message that the windows show is found in both books: the messages are collected from the sources.

#include "tests/help/BookText.h"
#include "tests/help/SourceTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <regex>
#include <set>
#include <span>

namespace
{

constexpr std::array Folders = {"app", "calc", "chart", "files", "formkit", "frame", "partdata", "selection"};
/// What shows a message, whatever it says.
constexpr std::array Doors = {"ShowExclamation(", "ShowInformation(", "ShowPlain(",
                              "ShowCritical(",    "AskOkCancel(",     "ShowTold("};

/// The end of a sentence, but no caption of a menu, which ends with dots.
bool EndsSentence(const std::string& text)
{
    static const std::regex sentence("(.*[^.])?[.!?] *");
    return std::regex_match(text, sentence);
}

/// A message is what is shown as one, what describes an error, and a statement that makes a sentence.
bool IsMessage(std::span<const SourceText> statement, const std::filesystem::path& source)
{
    const auto& before = statement.back().Before;
    const bool isShown =
        std::ranges::any_of(Doors, [&](const char* door) { return before.find(door) != std::string::npos; });
    const bool isDescription =
        source.filename() == "RunTimeError.cpp" && before.find("return ") != std::string::npos;
    return isShown || isDescription ||
           std::ranges::any_of(statement, [](const SourceText& text) { return EndsSentence(text.Text); });
}

/// What no user reads: the stand-in for numbers that no error of the program has.
bool IsNeverShown(const std::string& text)
{
    return text == "Application-defined or object-defined error";
}

void AddMessages(const std::filesystem::path& source, std::set<std::string>& pieces)
{
    const auto texts = TextsOfSource(FileText(source));
    for (auto first = texts.begin(); first != texts.end();)
    {
        const auto last = std::find_if(
            first, texts.end(), [&](const SourceText& text) { return text.Statement != first->Statement; });
        if (IsMessage(std::span(first, last), source))
        {
            std::for_each(first, last,
                          [&](const SourceText& text)
                          {
                              if (HasWords(text.Text) && !IsNeverShown(text.Text))
                              {
                                  std::ranges::copy(PiecesOf(text.Text), std::inserter(pieces, pieces.end()));
                              }
                          });
        }
        first = last;
    }
}

std::set<std::string> PiecesOfAllMessages()
{
    std::set<std::string> pieces;
    for (const char* folder : Folders)
    {
        for (const auto& source : SourcesIn(std::filesystem::path(SOURCES) / folder))
        {
            AddMessages(source, pieces);
        }
    }
    return pieces;
}

TEST(SourceTexts, AreReadAsTheCompilerReadsThem)
{
    const auto texts =
        TextsOfSource("// \"no\"\n#include \"no.h\"\nf(\"one \"\n  \"and \\\" more\", 'x', '\"');"
                      " return \"two\"; /// \"no\"\n");
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[1].Text, "x");
    EXPECT_EQ(texts[2].Statement, texts[0].Statement);
    EXPECT_EQ(texts[0].Text, "one and \\\" more");
    EXPECT_EQ(texts[0].Before, "f(");
    EXPECT_EQ(texts[3].Text, "two");
    EXPECT_EQ(texts[3].Before, "return ");

    const auto numbers = TextsOfSource("f(1'000, R\"(no \"no\" no)\", \"yes\");");
    ASSERT_EQ(numbers.size(), 1U);
    EXPECT_EQ(numbers[0].Text, "yes");
}

TEST(Messages, AreCollected)
{
    const auto pieces = PiecesOfAllMessages();
    EXPECT_GE(pieces.size(), 60U);
    for (const char* known :
         {"It is already started.", "Unexpected Error", "There is no Help File.", "tavik Data saved to",
          "Would you print", "already exists.", "Do you want to replace it?",
          "There is no printer in this system.", "Plot needs a part: choose a", "is invalid!",
          "Maximum Numbers of this Chart Type open!"})
    {
        EXPECT_TRUE(pieces.contains(known)) << known;
    }
}

TEST(Messages, AreFoundInBothBooks)
{
    for (const char* book : {"tavike.hlp", "tavikj.hlp"})
    {
        const auto text = PlainText(BookText(book));
        for (const auto& piece : PiecesOfAllMessages())
        {
            EXPECT_TRUE(text.find(piece) != std::string::npos) << book << ": " << piece;
        }
    }
}

} // namespace
