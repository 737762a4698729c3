#include "cli/FileArguments.h"

#include "cli/CommandError.h"
#include "files/InputFile.h"
#include "files/InputsAndOutputs.h"
#include "files/PartFiles.h"
#include "files/StagedPair.h"
#include "partdata/RunTimeError.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

namespace fs = std::filesystem;

static std::string FaultOfInput(const std::string& name)
{
    return name.empty() ? "the name is empty" : "";
}

static std::string FaultOfPair(const std::string& name)
{
    return name == StandardStream ? "a pair of part files has no place in a stream" : FaultOfInput(name);
}

static std::string FaultOfOutput(const std::string& name)
{
    std::error_code fault;
    const auto last = fs::path(name).filename();
    const bool isFolder = last.empty() || last == "." || last == ".." || fs::is_directory(name, fault);
    return !name.empty() && isFolder ? "\"" + name + "\" is a folder, not a file" : FaultOfInput(name);
}

static std::string FaultOfOutputPair(const std::string& name)
{
    const auto fault = FaultOfPair(name);
    return fault.empty() ? FaultOfOutput(name) : fault;
}

static void Judge(CLI::Option& option, std::string (*faultOf)(const std::string&))
{
    option.check(CLI::Validator([faultOf](const std::string& name) { return faultOf(name); }, ""));
}

void TakeInputFile(CLI::Option& option)
{
    Judge(option, FaultOfInput);
}

void TakePair(CLI::Option& option)
{
    Judge(option, FaultOfPair);
}

void TakeOutputFile(CLI::Option& option)
{
    Judge(option, FaultOfOutput);
}

void TakeOutputPair(CLI::Option& option)
{
    Judge(option, FaultOfOutputPair);
}

void RefuseInputAsOutput(const std::string& output, const std::vector<fs::path>& inputs)
{
    const bool isStream = output.empty() || output == StandardStream;
    const auto* const input = InputThatIs(isStream ? StandardStream : output, inputs);
    if (input != nullptr)
    {
        throw Failure((isStream ? "standard output" : output) + ": is " + ShownName(input->string()) +
                      ", which this command reads");
    }
}

void RefuseOneOutput(const std::string& output, const std::string& picture)
{
    if (IsOnePlace(output, picture))
    {
        throw UsageError("--output and --picture name one file");
    }
}

void RefuseStreamTwice(const std::vector<std::string>& inputs)
{
    if (std::ranges::count(inputs, StandardStream) > 1)
    {
        throw UsageError("standard input can be read only once; name a file for all else");
    }
}

std::string ShownName(const std::string& file)
{
    return file == StandardStream ? "standard input" : file;
}

std::string ReadInput(const std::string& file, std::uintmax_t most)
{
    return file == StandardStream ? ReadBytes(std::cin, ShownName(file), most) : ReadBytes(file, most);
}

std::vector<fs::path> PartFilesOf(const std::string& pair)
{
    std::vector<fs::path> files;
    for (const auto find : {IndexFileOf, DataFileOf})
    {
        try
        {
            const auto file = find(pair);
            files.push_back(file);
            files.push_back(WhereRead(file));
        }
        catch (const RunTimeError&)
        {
            // What is not there cannot be written over; that it is missing is told when it is read.
            continue;
        }
    }
    return files;
}
