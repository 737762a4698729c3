/// The two help books: the same chapters, links that lead somewhere, and every message explained.

#include "tests/help/BookText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace
{

/// Number of characters of at least three UTF-8 bytes: Japanese letters, in these books.
std::size_t WideCharacters(const std::string& text)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xF0U) == 0xE0; }));
}

class EachBook : public testing::TestWithParam<const char*>
{
};

TEST_P(EachBook, HasAnAnchorForEachChapterAndSection)
{
    const auto text = BookText(GetParam());
    EXPECT_GE(All(text, "<(h2)>").size(), 11U);
    EXPECT_EQ(All(text, "<(h2)>").size(), All(text, "<h2><a name=\"([^\"]+)\"").size());
    EXPECT_EQ(All(text, "<(h3)>").size(), All(text, "<h3><a name=\"([^\"]+)\"").size());
}

TEST_P(EachBook, LinksLeadToAnchorsOfItsOwn)
{
    const auto text = BookText(GetParam());
    const auto anchors = All(text, "<a name=\"([^\"]+)\"");
    const std::set<std::string> known(anchors.begin(), anchors.end());
    EXPECT_EQ(known.size(), anchors.size()) << "an anchor stands twice";
    const auto links = All(text, "<a href=\"#([^\"]+)\"");
    EXPECT_GE(links.size(), 11U);
    for (const auto& link : links)
    {
        EXPECT_TRUE(known.contains(link)) << link;
    }
}

TEST_P(EachBook, ShowsPicturesThatExist)
{
    const auto pictures = All(BookText(GetParam()), "<img [^>]*src=\"([^\"]+)\"");
    EXPECT_GE(pictures.size(), 6U);
    for (const auto& picture : pictures)
    {
        EXPECT_TRUE(std::filesystem::exists(std::string(BOOKS) + "/" + picture)) << picture;
    }
}

/// Width and height, as a PNG file tells them behind its first 16 bytes.
std::pair<int, int> PixelsOf(const std::string& picture)
{
    const std::string bytes = BookText(picture);
    const auto number = [&bytes](std::size_t at)
    {
        int value = 0;
        for (std::size_t i = at; i < at + 4; ++i)
        {
            value = value * 256 + static_cast<unsigned char>(bytes.at(i));
        }
        return value;
    };
    return {number(16), number(20)};
}

TEST_P(EachBook, ShowsPicturesWithAtLeastTwiceThePixelsOfTheirPlace)
{
    const auto text = BookText(GetParam());
    const auto pictures = All(text, "<img width=\"\\d+\" height=\"\\d+\" src=\"([^\"]+)\"");
    EXPECT_EQ(pictures.size(), All(text, "<(img) ").size());
    for (const auto& picture : pictures)
    {
        const auto width = All(text, ("<img width=\"(\\d+)\" height=\"\\d+\" src=\"" + picture).c_str());
        const auto height = All(text, ("<img width=\"\\d+\" height=\"(\\d+)\" src=\"" + picture).c_str());
        const auto [pixelsAcross, pixelsDown] = PixelsOf(picture);
        const int across = std::stoi(width.at(0));
        EXPECT_LE(across, 620) << picture;
        EXPECT_GE(pixelsAcross, 2 * across) << picture;
        EXPECT_EQ(std::stoi(height.at(0)), (pixelsDown * across + pixelsAcross / 2) / pixelsAcross)
            << picture;
    }
}

/// The dialog for axis ranges names no part, and the points of a part of one's own are in no code.
TEST(Books, ShowTheFormsInTheCodeTheyAreWrittenFor)
{
    for (const auto& picture : All(BookText("tavikj.hlp"), "<img [^>]*src=\"([^\"]+)\""))
    {
        EXPECT_TRUE(picture.ends_with("-jis.png") || picture.ends_with("axis-range.png") ||
                    picture.ends_with("own-part.png"))
            << picture;
    }
    for (const auto& picture : All(BookText("tavike.hlp"), "<img [^>]*src=\"([^\"]+)\""))
    {
        EXPECT_FALSE(picture.ends_with("-jis.png")) << picture;
    }
}

/// What a book leads to beside itself is in the sources, and is installed.
TEST_P(EachBook, LeadsToDocumentsThatAreInstalled)
{
    const auto installed = PlainText(FileText(SOURCES "/packaging/CMakeLists.txt"));
    const auto documents = All(BookText(GetParam()), "<code>([a-z.-]+\\.(?:md|py|schema\\.json))</code>");
    EXPECT_GE(documents.size(), 8U);
    for (const auto& document : documents)
    {
        EXPECT_TRUE(std::filesystem::exists(std::string(SOURCES) + "/docs/" + document)) << document;
        EXPECT_THAT(installed, testing::HasSubstr(' ' + document)) << document;
    }
}

TEST_P(EachBook, BearsATitleOfItsOwn)
{
    const auto title = All(BookText(GetParam()), "<title>([^<]+)</title>");
    ASSERT_EQ(title.size(), 1U);
    EXPECT_THAT(title[0], testing::EndsWith(" - Halvex Chip Capacitor Characteristics Data Library"));
}

TEST_P(EachBook, TellsVersionAndDateFirst)
{
    const auto text = BookText(GetParam());
    const auto first = PlainText(text.substr(text.find("<h1>"), 400));
    EXPECT_THAT(first, testing::HasSubstr(" " TAVIK_VERSION));
    EXPECT_THAT(first, testing::ContainsRegex("20[0-9][0-9]"));
    EXPECT_THAT(text, testing::Not(testing::ContainsRegex("@version@|@date@|<!--")));
}

TEST_P(EachBook, HasNoEmptyChapter)
{
    const auto text = std::regex_replace(BookText(GetParam()), std::regex("\\n"), " ");
    for (std::size_t at = text.find("<h2>"); at != std::string::npos;)
    {
        const auto next = text.find("<h2>", at + 1);
        EXPECT_GT(PlainText(text.substr(at, next - at)).size(), 400U) << text.substr(at, 60);
        at = next;
    }
}

INSTANTIATE_TEST_SUITE_P(Books, EachBook, testing::Values("tavike.hlp", "tavikj.hlp"),
                         [](const auto& book) { return std::string(book.param).substr(0, 6); });

TEST(Books, HaveTheSameAnchorsInTheSameOrder)
{
    EXPECT_EQ(All(BookText("tavike.hlp"), "<a name=\"([^\"]+)\""),
              All(BookText("tavikj.hlp"), "<a name=\"([^\"]+)\""));
}

TEST(Books, AreWrittenInTheirLanguages)
{
    EXPECT_LT(WideCharacters(PlainText(BookText("tavike.hlp"))), 200U);
    EXPECT_GT(WideCharacters(PlainText(BookText("tavikj.hlp"))), 8000U);
}

} // namespace
