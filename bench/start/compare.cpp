/// Runs two commands in turn and prints the ratio of their times, as whole processes.
///
///     compare RUNS COMMAND YARDSTICK

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <vector>

extern char** environ;

/// Seconds that a command takes; ends the comparison when it fails.
static double SecondsOf(char* command)
{
    char* const arguments[] = {command, nullptr};
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = 0;
    if (posix_spawn(&process, command, nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(process, &status, 0) != process || status != 0)
    {
        std::cerr << command << " failed\n";
        std::exit(1);
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

static double MedianOf(std::vector<double> values)
{
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values[values.size() / 2];
}

int main(int argc, char* argv[])
{
    if (argc != 4 || std::atoi(argv[1]) < 1)
    {
        std::cerr << "usage: compare RUNS COMMAND YARDSTICK\n";
        return 2;
    }
    std::vector<double> ours;
    std::vector<double> bare;
    std::vector<double> ratios;
    SecondsOf(argv[2]);
    SecondsOf(argv[3]);
    for (int run = 0; run < std::atoi(argv[1]); ++run)
    {
        ours.push_back(SecondsOf(argv[2]));
        bare.push_back(SecondsOf(argv[3]));
        ratios.push_back(ours.back() / bare.back());
    }
    std::cout << "median " << MedianOf(ours) * 1000 << " ms against " << MedianOf(bare) * 1000
              << " ms, ratio " << MedianOf(ratios) << '\n';
    return 0;
}
