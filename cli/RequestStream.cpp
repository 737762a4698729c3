#include "cli/RequestStream.h"

#include "cli/Command.h"
#include "requests/JsonRequest.h"
#include "terminal/Progress.h"

#include <filesystem>
#include <fstream>
#include <iostream>

/// Bytes of a file, or nothing where that is not known.
static std::uintmax_t SizeOf(const std::string& fileName)
{
    std::error_code fault;
    const auto size = std::filesystem::file_size(fileName, fault);
    return fault ? 0 : size;
}

static RequestCounts AnswerLines(std::istream& in, Progress progress, const CurveRequest& defaults,
                                 const PartTable& parts, const CurveSettings& settings, Output& output)
{
    RequestCounts counts;
    std::string line;
    std::string answer;
    AxisTexts axes;
    while (std::getline(in, line))
    {
        progress.Advance(line.size() + 1);
        answer.clear();
        ++counts.Requests;
        counts.WithoutCurve +=
            AppendAnswer(answer, {line, counts.Requests}, defaults, parts, settings, axes) ? 0 : 1;
        output.Write(answer);
        if (in.rdbuf()->in_avail() <= 0)
        {
            output.Flush();
        }
    }
    return counts;
}

RequestCounts AnswerRequests(const std::string& fileName, const CurveRequest& defaults,
                             const PartTable& parts, const CurveSettings& settings, Output& output)
{
    if (fileName == "-")
    {
        const auto counts = AnswerLines(std::cin, Progress("curves", 0), defaults, parts, settings, output);
        if (std::cin.bad())
        {
            throw Failure("standard input: cannot be read");
        }
        return counts;
    }
    std::ifstream file(fileName, std::ios::binary);
    // A folder opens, and fails with the first character.
    if (!file || (file.peek() == std::ifstream::traits_type::eof() && !file.eof()))
    {
        throw Failure(fileName + ": cannot be read");
    }
    file.clear();
    const auto counts =
        AnswerLines(file, Progress("curves", SizeOf(fileName)), defaults, parts, settings, output);
    if (file.bad())
    {
        throw Failure(fileName + ": cannot be read to its end");
    }
    return counts;
}
