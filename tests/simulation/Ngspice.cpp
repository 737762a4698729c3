#include "tests/simulation/Ngspice.h"

#include "tests/partdata/TemporaryFolder.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include <sys/wait.h>

namespace
{
/// Behind a blank or a comma.
double NextNumber(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" ,\t"), text.size()));
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
    return value;
}

std::string OutputOf(const std::string& command, int& status)
{
    std::string output;
    auto* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
    {
        throw std::runtime_error("no shell");
    }
    std::array<char, 4096> piece{};
    for (std::size_t read = 0; (read = fread(piece.data(), 1, piece.size(), pipe)) > 0;)
    {
        output.append(piece.data(), read);
    }
    const int ended = pclose(pipe);
    status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
    return output;
}

std::string TextOf(const std::string& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}
} // namespace

std::vector<std::pair<double, double>> SimulatorRun::Values(std::string_view expression) const
{
    const auto start = std::string(expression) + " = ";
    std::vector<std::pair<double, double>> values;
    std::istringstream lines(Output);
    for (std::string line; std::getline(lines, line);)
    {
        if (line.starts_with(start))
        {
            auto rest = std::string_view(line).substr(start.size());
            const double real = NextNumber(rest);
            values.emplace_back(real, NextNumber(rest));
        }
    }
    return values;
}

double SimulatorRun::Value(std::string_view expression) const
{
    const auto values = Values(expression);
    if (values.size() != 1)
    {
        throw std::runtime_error("not one " + std::string(expression) + " in\n" + Output);
    }
    return values.front().first;
}

SimulatorRun RunDeck(const std::string& deck, const std::string& commands, double seconds)
{
    return RunDeck(deck, commands, seconds, "");
}

SimulatorRun RunDeck(const std::string& deck, const std::string& commands, double seconds,
                     const std::string& settings)
{
    const TemporaryFolder folder;
    folder.Write("deck.cir",
                 deck + ".control\nset numdgt=12\nset width=200\n" + commands + "quit\n.endc\n.end\n");
    folder.Write(".spiceinit", settings + "\n");
    SimulatorRun run;
    const auto start = std::chrono::steady_clock::now();
    // The settings of a person at this machine are not read.
    run.Output = OutputOf("cd " + folder.Path() + " && HOME=" + folder.Path() + " timeout -k 1 " +
                              DeckNumber(seconds) + " ngspice -b deck.cir 2>messages",
                          run.Status);
    // Messages of a long run come in the middle of a line of results, and stand behind all of them here.
    run.Output += TextOf(folder.Path() + "/messages");
    run.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return run;
}

std::string DeckNumber(double value)
{
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), written.ptr};
}
