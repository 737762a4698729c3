/// The commands that the help books show: each is run, and answers what stands below it.

#include "tests/help/BookText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>

namespace
{

/// A command of the book and the lines that it is said to answer.
struct ShownCommand
{
    std::string Command;
    std::vector<std::string> Answer;
};

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        if (!line.empty())
        {
            lines.push_back(line);
        }
    }
    return lines;
}

std::vector<std::string> Words(const std::string& line)
{
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// The commands of one block. A line that ends with a backslash goes on in the next one.
std::vector<ShownCommand> CommandsOf(const std::string& block)
{
    std::vector<ShownCommand> commands;
    bool goesOn = false;
    for (auto line : Lines(WithoutTags(block)))
    {
        const bool begins = line.starts_with("tavik-cli ");
        if (begins)
        {
            commands.push_back({});
        }
        if (!begins && !goesOn)
        {
            commands.back().Answer.push_back(line);
            continue;
        }
        goesOn = line.ends_with('\\');
        commands.back().Command += line.substr(0, line.size() - (goesOn ? 1 : 0));
    }
    return commands;
}

std::vector<ShownCommand> CommandsOfBook(const std::string& book)
{
    std::vector<ShownCommand> commands;
    for (const auto& block : All(BookText(book), "<pre[^>]*>\\n(tavik-cli [^<]*)</pre>"))
    {
        std::ranges::copy(CommandsOf(block), std::back_inserter(commands));
    }
    return commands;
}

/// What the program writes, its notes included.
std::string ToldBy(const std::string& command)
{
    const std::string line = TAVIK_CLI + command.substr(std::string("tavik-cli").size()) + " 2>&1 </dev/null";
    const std::unique_ptr<FILE, int (*)(FILE*)> program(popen(line.c_str(), "r"), pclose);
    std::string output;
    for (int c = 0; program != nullptr && (c = std::fgetc(program.get())) != EOF;)
    {
        output += static_cast<char>(c);
    }
    return output;
}

/// The book shows some columns of a table, and some of its rows.
void ExpectTable(const std::vector<std::string>& shown, const std::vector<std::string>& told)
{
    ASSERT_FALSE(told.empty());
    const auto headings = Words(told.front());
    std::vector<std::size_t> columns;
    for (const auto& heading : Words(shown.front()))
    {
        const auto column = std::ranges::find(headings, heading);
        ASSERT_NE(column, headings.end()) << heading;
        columns.push_back(static_cast<std::size_t>(column - headings.begin()));
    }
    for (std::size_t row = 1; row < shown.size(); ++row)
    {
        const auto part = Words(shown[row]).front();
        const auto line =
            std::ranges::find_if(told, [&](const std::string& text) { return text.starts_with(part + ' '); });
        ASSERT_NE(line, told.end()) << part;
        std::vector<std::string> cells;
        std::ranges::transform(columns, std::back_inserter(cells),
                               [&](std::size_t column) { return Words(*line).at(column); });
        EXPECT_EQ(Words(shown[row]), cells);
    }
}

class BookCommands : public testing::TestWithParam<const char*>
{
};

TEST_P(BookCommands, AnswerWhatTheBookShows)
{
    const auto commands = CommandsOfBook(GetParam());
    EXPECT_GE(commands.size(), 12U);
    for (const auto& shown : commands)
    {
        SCOPED_TRACE(shown.Command);
        ASSERT_FALSE(shown.Answer.empty());
        const auto told = ToldBy(shown.Command);
        if (shown.Answer.front().starts_with("PART "))
        {
            ExpectTable(shown.Answer, Lines(told));
            continue;
        }
        for (const auto& line : shown.Answer)
        {
            EXPECT_THAT(told, testing::HasSubstr(line + "\n"));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Books, BookCommands, testing::Values("tavike.hlp", "tavikj.hlp"),
                         [](const auto& book) { return std::string(book.param).substr(0, 6); });

/// Both books work the same examples through, each in the code of its readers.
TEST(BookCommands, AreTheSameInBothBooks)
{
    const auto english = CommandsOfBook("tavike.hlp");
    const auto japanese = CommandsOfBook("tavikj.hlp");
    ASSERT_EQ(english.size(), japanese.size());
    for (std::size_t i = 0; i < english.size(); ++i)
    {
        EXPECT_EQ(Words(english[i].Command)[1], Words(japanese[i].Command)[1]);
        EXPECT_EQ(english[i].Answer.size(), japanese[i].Answer.size());
        EXPECT_THAT(japanese[i].Command, testing::HasSubstr(" --code jis"));
    }
}

} // namespace
