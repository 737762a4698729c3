#pragma once

/// Two ways of doing the same, timed in turn by the processor time they take, so that a busy machine slows
/// neither or both. The quickest round of each counts: what else the machine does only ever adds to one.

#include <functional>
#include <string_view>
#include <vector>

/// Microseconds of processor time, the system's included, that some work takes in this process.
double MicrosecondsOf(const std::function<void()>& work);

/// The middle one of some times.
double Median(std::vector<double> times);

/// Runs one way and its yardstick in turn. Each call does the work of a round, 0 and up, and returns the time
/// that counts. Prints the quickest times and their ratio.
void CompareInTurns(std::string_view name, int rounds, const std::function<double(int)>& ours,
                    const std::function<double(int)>& bare);

/// Prints "ratio NAME VALUE", the line that bench/compare judges.
void PrintRatio(std::string_view name, double value);
