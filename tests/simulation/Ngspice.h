#pragma once

/// Decks run by the circuit simulator ngspice.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What a run told.
struct SimulatorRun
{
    /// 0 when it came to its end; 124 when its time was over before.
    int Status = -1;
    double Seconds = 0;
    std::string Output;

    /// The values that it printed of an expression, "i(v1)" of an AC analysis with real and imaginary part;
    /// the latter is 0 where there is none.
    std::vector<std::pair<double, double>> Values(std::string_view expression) const;
    /// The only value of an expression. Throws std::runtime_error with the output when there is none, or
    /// more.
    double Value(std::string_view expression) const;
};

/// Runs a deck, whose first line is its title, with what stands in `commands` as its control section. It is
/// ended when it has not come to its end within `seconds`.
SimulatorRun RunDeck(const std::string& deck, const std::string& commands, double seconds);

/// As above, with simulator settings of its own.
SimulatorRun RunDeck(const std::string& deck, const std::string& commands, double seconds,
                     const std::string& settings);

/// A number of a deck to the last digit.
std::string DeckNumber(double value);
