#pragma once

/// Long texts compared with files kept beside the tests. TAVIK_WRITE_GOLDEN=1 in the environment writes the
/// files anew instead; whoever does reads the difference before it is committed.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// The line in which two texts begin to differ, counted from 1, with both readings.
inline std::string FirstDifference(const std::string& expected, const std::string& actual)
{
    std::size_t start = 0;
    for (int line = 1;; ++line)
    {
        const auto lineOf = [start](const std::string& text)
        { return start < text.size() ? text.substr(start, text.find('\n', start) - start) : "(the end)"; };
        if (lineOf(expected) != lineOf(actual) || start >= expected.size())
        {
            return "line " + std::to_string(line) + " reads\n  " + lineOf(actual) + "\ninstead of\n  " +
                   lineOf(expected);
        }
        start += lineOf(expected).size() + 1;
    }
}

/// What is wrong with a text that should equal the file `name` below tests/, byte for byte; empty if nothing
/// is.
inline std::string GoldenDifference(const std::string& name, const std::string& actual)
{
    const auto path = std::filesystem::path(TEST_DATA) / name;
    if (std::getenv("TAVIK_WRITE_GOLDEN") != nullptr)
    {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << actual;
    }
    std::ifstream file(path, std::ios::binary);
    const std::string expected{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open())
    {
        return "there is no file tests/" + name;
    }
    return expected == actual ? "" : "tests/" + name + ": " + FirstDifference(expected, actual);
}
