/// How a help book is made: numbers, contents, index, edition and formulas.

#include "help/BookMaking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using testing::HasSubstr;

const char* const Frame = "<h1>Book @version@, @date@</h1>\n<!-- contents -->\n"
                          "<h2><a name=\"one\">One</a></h2>\n<h3><a name=\"one-detail\">Detail</a></h3>\n"
                          "<!-- chapter two -->\n<h2><a name=\"three\">9. Three</a></h2>\n<!-- index -->";

std::string Chapter(const std::string& name)
{
    return "<h2><a name=\"" + name + "\">Chapter " + name + "</a></h2>\n<p><a name=\"term\">word</a></p>";
}

std::string Book(const std::string& index = "")
{
    return MakeBook(Frame, Chapter, ReadIndexWords(index), {.Version = "3.2.1", .Date = "1 May 2031"});
}

TEST(BookMaking, NumbersChaptersInTheirOrder)
{
    const auto book = Book();
    EXPECT_THAT(book, HasSubstr("<h2><a name=\"one\">1. One</a></h2>"));
    EXPECT_THAT(book, HasSubstr("<h2><a name=\"two\">2. Chapter two</a></h2>"));
    EXPECT_THAT(book, HasSubstr("<h2><a name=\"three\">3. Three</a></h2>"));
}

TEST(BookMaking, ListsTheChaptersWithoutNumbers)
{
    EXPECT_THAT(Book(),
                HasSubstr("<ol>\n<li><a href=\"#one\">One</a></li>\n<li><a href=\"#two\">Chapter two</a>"
                          "</li>\n<li><a href=\"#three\">Three</a></li>\n</ol>"));
}

TEST(BookMaking, TellsTheEdition)
{
    EXPECT_THAT(Book(), HasSubstr("<h1>Book 3.2.1, 1 May 2031</h1>"));
}

TEST(BookMaking, SortsTheIndexByReadingAndNamesItsPlaces)
{
    const auto book = Book("Zebra (aa) = three\nbias = one-detail term\n# a remark\n\nApple = two\n");
    const auto zebra = book.find("<b>Zebra</b>: <a href=\"#three\">Three</a>");
    const auto apple = book.find("<b>Apple</b>: <a href=\"#two\">Chapter two</a>");
    const auto bias =
        book.find("<b>bias</b>: <a href=\"#one-detail\">Detail</a>; <a href=\"#term\">Chapter two</a></p>");
    ASSERT_NE(bias, std::string::npos);
    EXPECT_LT(zebra, apple);
    EXPECT_LT(apple, bias);
}

TEST(BookMaking, RefusesAnIndexThatLeadsNowhere)
{
    EXPECT_THROW(Book("bias = nowhere\n"), std::runtime_error);
    EXPECT_THROW(Book("bias\n"), std::runtime_error);
    EXPECT_THROW(Book("bias = \n"), std::runtime_error);
}

TEST(BookMaking, SetsFormulas)
{
    // A paragraph would be indented less on paper.
    EXPECT_THAT(FormulaHtml("a = b<sup>2</sup>"), HasSubstr("margin-left:24px"));
    EXPECT_THAT(FormulaHtml("a = b<sup>2</sup>"), HasSubstr("<tr><td>a = b<sup>2</sup></td></tr></table>"));
    const auto fraction = FormulaHtml("a = {b|c} - {d|e}");
    EXPECT_THAT(fraction, HasSubstr(">a = &nbsp;</td>"));
    EXPECT_LT(fraction.find("&nbsp;d&nbsp;"), fraction.find("</tr><tr>"));
    EXPECT_GT(fraction.find("&nbsp;c&nbsp;"), fraction.find("</tr><tr>"));
    EXPECT_THROW(FormulaHtml("a = {b}"), std::runtime_error);
}

} // namespace
