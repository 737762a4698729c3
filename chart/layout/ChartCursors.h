#pragma once

/// The cursors of a chart view: where the values of its lines are read.

#include "calc/ChartRecord.h"

#include <optional>

/// One cursor or two, at values of the X axis in the unit of records. Without a pin A follows; pinned, A
/// stays and B follows; with both pinned neither does.
class ChartCursors
{
public:
    /// A alone, not pinned.
    void Start(double x);

    double A() const { return state.a; }
    std::optional<double> B() const { return state.pins > 0 ? std::optional(state.b) : std::nullopt; }
    bool IsPinnedA() const { return state.pins > 0; }
    bool IsPinnedB() const { return state.pins == 2; }
    /// The one that keys move: A while it is alone, else B.
    double Moving() const { return state.pins == 0 ? state.a : state.b; }

    /// The pointer is here: the cursor that follows comes along.
    void Follow(double x);
    /// The moving cursor goes here, pinned or not.
    void MoveTo(double x);
    /// Pins the cursor that follows here: first A, beside which B then follows, then B. With both pinned B is
    /// free again, and comes here.
    void Pin(double x);
    /// Pins the moving cursor here, B as well where it is pinned already.
    void Jump(double x);
    /// Undoes the last `Pin`.
    void TakePinBack() { state = beforePin; }
    /// Frees B, else A, which is then alone and stays where it is. False when nothing was pinned.
    bool Free();

private:
    struct State
    {
        double a = 0;
        double b = 0;
        int pins = 0;
    };
    State state;
    State beforePin;
};

/// The stored X so many points before (negative) or behind a place, at most the first or last one.
double SteppedX(const ChartRecord& line, double from, int points);

/// The shortest decimal number between two bounds, included, that is nearest their middle: what a pointer
/// means that stands on a pixel from 24.48 to 24.57 is 24.5.
double ShortestNumberBetween(double lowest, double highest);
