/// The commands that the help books show: each is run, and answers what stands below it.

#include "tests/help/BookText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <regex>
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

/// A folder with the files that a book shows, and those that are installed beside it as documents.
class ReadersFolder
{
public:
    explicit ReadersFolder(const std::string& book)
        : path(Made(std::filesystem::temp_directory_path() / "tavik-reader-XXXXXX"))
    {
        std::filesystem::create_directory(path / "parts");
        std::filesystem::copy(SOURCES "/docs/own-parts.csv", path);
        const auto text = BookText(book);
        const char* const shown = "<p><code>([a-z]+\\.csv)</code>[^<]*</p>\n<pre[^>]*>\n([^<]*)</pre>";
        const std::regex pattern(shown);
        for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match)
        {
            std::ofstream(path / (*match)[1].str(), std::ios::binary) << WithoutTags((*match)[2]);
        }
    }
    ReadersFolder(const ReadersFolder&) = delete;
    ReadersFolder& operator=(const ReadersFolder&) = delete;
    ~ReadersFolder() { std::filesystem::remove_all(path); }

    const std::filesystem::path path;

private:
    static std::string Made(std::string name)
    {
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        return name;
    }
};

/// What the program writes in a folder, its notes included.
std::string ToldBy(const std::string& command, const ReadersFolder& folder)
{
    const auto arguments =
        std::regex_replace(command.substr(std::string("tavik-cli").size()), std::regex("/usr/lib/tavik"),
                           std::filesystem::path(TAVIK_CLI).parent_path().string());
    const auto line = "cd " + folder.path.string() + " && " + TAVIK_CLI + arguments + " 2>&1 </dev/null";
    const std::unique_ptr<FILE, int (*)(FILE*)> program(popen(line.c_str(), "r"), pclose);
    std::string output;
    for (int c = 0; program != nullptr && (c = std::fgetc(program.get())) != EOF;)
    {
        output += static_cast<char>(c);
    }
    return output;
}

/// The cells of a row: at least two blanks stand between them.
std::vector<std::string> Cells(const std::string& row)
{
    static const std::regex gap(" {2,}");
    return {std::sregex_token_iterator(row.begin(), row.end(), gap, -1), {}};
}

/// The book shows some columns of a table, in their order, and some of its rows.
void ExpectTable(const std::vector<std::string>& shown, const std::vector<std::string>& told)
{
    ASSERT_FALSE(told.empty());
    const auto headings = Cells(told.front());
    std::vector<std::size_t> columns;
    auto next = headings.begin();
    for (const auto& heading : Cells(shown.front()))
    {
        next = std::find(next, headings.end(), heading);
        ASSERT_NE(next, headings.end()) << heading;
        columns.push_back(static_cast<std::size_t>(next++ - headings.begin()));
    }
    for (std::size_t row = 1; row < shown.size(); ++row)
    {
        const auto part = Words(shown[row]).front();
        const auto line =
            std::ranges::find_if(told, [&](const std::string& text) { return text.starts_with(part + ' '); });
        ASSERT_NE(line, told.end()) << part;
        std::vector<std::string> cells;
        std::ranges::transform(columns, std::back_inserter(cells),
                               [&](std::size_t column) { return Cells(*line).at(column); });
        EXPECT_EQ(Cells(shown[row]), cells);
    }
}

class BookCommands : public testing::TestWithParam<const char*>
{
};

TEST_P(BookCommands, AnswerWhatTheBookShows)
{
    const auto commands = CommandsOfBook(GetParam());
    EXPECT_GE(commands.size(), 30U);
    const ReadersFolder folder(GetParam());
    for (const auto& shown : commands)
    {
        SCOPED_TRACE(shown.Command);
        const auto told = ToldBy(shown.Command, folder);
        if (shown.Answer.empty())
        {
            EXPECT_EQ(told, "");
            continue;
        }
        if (shown.Answer.front().starts_with("PART "))
        {
            ExpectTable(shown.Answer, Lines(told));
            continue;
        }
        for (const auto& line : shown.Answer)
        {
            // What a narrow page has no room for.
            const bool isCut = line.ends_with(" ...");
            EXPECT_THAT(told, testing::HasSubstr(isCut ? line.substr(0, line.size() - 4) : line + "\n"));
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
        // Part files hold both codes.
        if (Words(english[i].Command)[1] != "data")
        {
            EXPECT_THAT(japanese[i].Command, testing::HasSubstr(" --code jis"));
        }
    }
}

} // namespace
