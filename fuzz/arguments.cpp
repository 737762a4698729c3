/// Any command line: an exit status of 0, 1 or 2, one readable line that says why it is not 0, and no file
/// where there should be none.

#include "cli/Program.h"
#include "fuzz/Require.h"
#include "fuzz/StandardStreams.h"
#include "tests/partdata/TemporaryFolder.h"
#include "tests/partfiles/SmallPair.h"

#include "files/PartLoading.h"
#include "partfiles/TableWriter.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace
{
/// A current folder of its own with a pair of part files, their table and a file of requests.
class Workplace
{
public:
    Workplace()
    {
        const SmallPair pair;
        fs::create_directory(fs::path(folder.Path()) / "parts");
        folder.Write("parts/small.idx", pair.Index());
        folder.Write("parts/small.dat", pair.Data());
        const auto table = LoadPartData(folder.Path() + "/parts");
        tableText = TableText(table.PartData, "\n");
        request = R"({"part":")" + pair.Parts[0].Names[0] +
                  R"(","chart":"temperature-rise","dcBias":"1V","frequency":"300kHz"})"
                  "\n{}\n";
        Restore();
        fs::current_path(folder.Path());
    }

    /// Takes away what a command has written; true when that was anything.
    bool CleanUp() const
    {
        std::vector<fs::path> names;
        for (const auto& entry : fs::directory_iterator(folder.Path()))
        {
            names.push_back(entry.path());
        }
        bool changed = names.size() != 3;
        for (const auto& name : names)
        {
            const bool own = name.filename() == "parts" || IsAsWritten(name, "table.csv", tableText) ||
                             IsAsWritten(name, "requests", request);
            if (!own)
            {
                fs::remove_all(name);
                changed = true;
            }
        }
        if (changed)
        {
            Restore();
        }
        return changed;
    }

private:
    static bool IsAsWritten(const fs::path& file, const char* name, const std::string& contents)
    {
        return file.filename() == name && BytesOf(file) == contents;
    }
    void Restore() const
    {
        folder.Write("table.csv", tableText);
        folder.Write("requests", request);
    }

    TemporaryFolder folder;
    std::string tableText;
    std::string request;
};

/// A command line and what it reads.
struct CommandLine
{
    std::vector<std::string> Arguments;
    std::string Input;

    bool Has(std::string_view option) const
    {
        return std::ranges::any_of(Arguments, [&](const auto& text) { return text.starts_with(option); });
    }
};
} // namespace

/// Arguments are lines; behind an empty line stands what the command reads. A separator of folders becomes
/// a blank: no command is to write outside its folder here.
static CommandLine CommandLineOf(std::string_view text)
{
    CommandLine line;
    while (!text.empty() && text.front() != '\n')
    {
        const auto size = std::min(text.find('\n'), text.size());
        std::string argument(text.substr(0, size));
        std::ranges::replace_if(
            argument, [](char c) { return c == '/' || c == '\\' || c == ':'; }, ' ');
        line.Arguments.emplace_back(argument.c_str());
        text.remove_prefix(std::min(size + 1, text.size()));
    }
    line.Input = text.substr(std::min<std::size_t>(1, text.size()));
    return line;
}

/// True for a picture of more than some ten thousand pixels: drawing it shows nothing new and takes its time.
static bool WantsLargePicture(const CommandLine& line)
{
    std::string option;
    for (const auto& argument : line.Arguments)
    {
        const auto equals = argument.find('=');
        const bool isValue = option == "--size" || option == "--scale";
        const bool holdsValue = argument.starts_with("--size=") || argument.starts_with("--scale=");
        const auto value = holdsValue ? argument.substr(equals + 1) : isValue ? argument : std::string();
        std::size_t digits = 0;
        for (const char c : value)
        {
            digits = c >= '0' && c <= '9' ? digits + 1 : 0;
            if (digits > 2 || c == 'e' || c == 'E')
            {
                return true;
            }
        }
        option = argument;
    }
    // Both together multiply.
    return line.Has("--size") && line.Has("--scale");
}

/// Puts a small range of parts and a small picture where none is asked for.
static void AddDefaults(CommandLine& line)
{
    auto& arguments = line.Arguments;
    const bool isChart = !arguments.empty() && arguments[0] == "chart";
    const bool needsParts =
        isChart || (!arguments.empty() && (arguments[0] == "parts" || arguments[0] == "curve"));
    if (isChart && !line.Has("--size"))
    {
        arguments.insert(arguments.begin() + 1, {"--size", line.Has("--scale") ? "9x3" : "36x12"});
    }
    if (needsParts && !line.Has("--data"))
    {
        arguments.insert(arguments.begin() + 1, {"--data", "parts"});
    }
}

/// @param readsTable the command tells a faulty table by a line for each fault, and by nothing else
static void RequireMessage(const std::string& messages, bool readsTable)
{
    Require(messages.ends_with('\n'), "a message is a line");
    const auto before = messages.rfind('\n', messages.size() - 2);
    const auto last = messages.substr(before == std::string::npos ? 0 : before + 1);
    const bool isFault = readsTable && last.find(": line ") != std::string::npos;
    Require(isFault || (last.starts_with("tavik-cli: ") && last.size() > 13),
            "the last line says what went wrong");
    Require(
        std::ranges::none_of(messages, [](unsigned char c) { return (c < ' ' && c != '\n') || c == 0x7F; }),
        "a message is readable");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto line = CommandLineOf({reinterpret_cast<const char*>(data), size});
    if (WantsLargePicture(line))
    {
        return 0;
    }
    AddDefaults(line);

    static const Workplace workplace;
    static int one = 1;
    static char name[] = "tavik-cli";
    static char* names[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(one, names);

    std::vector<const char*> argv = {name};
    for (const auto& argument : line.Arguments)
    {
        argv.push_back(argument.c_str());
    }
    argv.push_back(nullptr);
    const StandardStreams streams(line.Input);
    const int status = RunProgram(static_cast<int>(argv.size()) - 1, argv.data());
    const bool wrote = workplace.CleanUp();

    Require(status >= 0 && status <= 2, "the exit status is 0, 1 or 2");
    if (status != 0)
    {
        RequireMessage(streams.Messages(), line.Has("build"));
    }
    // Answers to requests are given, whether each has a curve or not.
    Require(status != 1 || !wrote || line.Has("--requests"), "a command that fails leaves no file");
    Require(status != 2 || (!wrote && streams.Output().empty()), "a wrong command line does nothing");
    Require(status != 0 || wrote || !streams.Output().empty() || line.Has("--requests"),
            "a command that was done gave something");
    return 0;
}
