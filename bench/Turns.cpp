#include "bench/Turns.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

static double ProcessMicroseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

double MicrosecondsOf(const std::function<void()>& work)
{
    const double start = ProcessMicroseconds();
    work();
    return ProcessMicroseconds() - start;
}

double Median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void CompareInTurns(std::string_view name, int rounds, const std::function<double(int)>& ours,
                    const std::function<double(int)>& bare)
{
    std::vector<double> times;
    std::vector<double> bareTimes;
    for (int round = 0; round < rounds; ++round)
    {
        times.push_back(ours(round));
        bareTimes.push_back(bare(round));
    }
    const double quickest = std::ranges::min(times);
    const double quickestBare = std::ranges::min(bareTimes);
    std::printf("%.*s: %.1f us against %.1f us\n", static_cast<int>(name.size()), name.data(), quickest,
                quickestBare);
    PrintRatio(name, quickest / quickestBare);
}

void PrintRatio(std::string_view name, double value)
{
    std::printf("ratio %.*s %.3f\n", static_cast<int>(name.size()), name.data(), value);
}
