/// Makes one help book: make_help_book FRAME CHAPTERS OUTPUT VERSION DATE. CHAPTERS is the folder of the
/// chapters and of the words of the index, DATE the day of the version as YYYY-MM-DD.

#include "help/BookMaking.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <sstream>
#include <stdexcept>

namespace
{

std::string TextOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
    {
        throw std::runtime_error(path.string() + " cannot be read");
    }
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// "22 November 2026", or "2026年11月22日" in a Japanese book.
std::string DateText(const std::string& date, bool isJapanese)
{
    static constexpr const char* Months[] = {"January",   "February", "March",    "April",
                                             "May",       "June",     "July",     "August",
                                             "September", "October",  "November", "December"};
    const auto year = date.substr(0, 4);
    const int month = std::stoi(date.substr(5, 2));
    const auto day = std::to_string(std::stoi(date.substr(8, 2)));
    return isJapanese ? year + "年" + std::to_string(month) + "月" + day + "日"
                      : day + ' ' + Months[std::clamp(month, 1, 12) - 1] + ' ' + year;
}

void Make(std::span<char*> arguments)
{
    const std::filesystem::path chapters = arguments[1];
    const auto frame = TextOf(arguments[0]);
    const bool isJapanese = frame.find("<html lang=\"ja\">") != std::string::npos;
    const auto book =
        MakeBook(frame, [&](const std::string& name) { return TextOf(chapters / (name + ".html")); },
                 ReadIndexWords(TextOf(chapters / "index.txt")),
                 {.Version = arguments[3], .Date = DateText(arguments[4], isJapanese)});
    std::ofstream file(arguments[2], std::ios::binary);
    file << book;
    if (!file.flush())
    {
        throw std::runtime_error(std::string(arguments[2]) + " cannot be written");
    }
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 6)
    {
        std::cerr << "make_help_book FRAME CHAPTERS OUTPUT VERSION DATE\n";
        return 2;
    }
    try
    {
        Make(std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
        return 0;
    }
    catch (const std::exception& error)
    {
        std::cerr << "make_help_book: " << error.what() << '\n';
        return 1;
    }
}
