#include "cli/FileArguments.h"

#include "cli/CommandError.h"
#include "files/InputsAndOutputs.h"
#include "files/PartFiles.h"
#include "files/StagedPair.h"
#include "partdata/RunTimeError.h"

#include <CLI/CLI.hpp>

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

/// What a stream is called where it stands for a file.
static std::string NameOf(const fs::path& file, const char* stream)
{
    return file == StandardStream ? stream : file.string();
}

void RefuseInputAsOutput(const std::string& output, const std::vector<fs::path>& inputs)
{
    const auto* const input = InputThatIs(output.empty() ? StandardStream : output, inputs);
    if (input != nullptr)
    {
        throw Failure(NameOf(output.empty() ? StandardStream : output, "standard output") + ": is " +
                      NameOf(*input, "standard input") + ", which this command reads");
    }
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
