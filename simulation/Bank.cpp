#include "simulation/Bank.h"

#include "calc/AllowablePower.h"
#include "calc/Capacitance.h"
#include "calc/CheckedMath.h"
#include "calc/Conditions.h"
#include "calc/PermittedRise.h"
#include "calc/PowerModel.h"
#include "calc/TemperatureRise.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <optional>
#include <utility>

namespace
{
using Admittance = std::complex<double>;

constexpr double FaradsPerPicoFarad = 1e-12;
constexpr double OhmsPerMilliohm = 1e-3;

/// What a piece is at the operating point.
struct PieceState
{
    int Count;
    double Farads;
    /// Shares of the capacitance.
    double Down;
    double Up;
    PowerModel Model;
};

/// A piece at its own capacitance, or at an end of its tolerance.
enum class End : std::uint8_t
{
    Lower,
    Typical,
    Upper,
};

double FaradsOf(const PieceState& piece, End end)
{
    switch (end)
    {
    case End::Lower:
        return piece.Farads * (1 - piece.Down);
    case End::Upper:
        return piece.Farads * (1 + piece.Up);
    default:
        return piece.Farads;
    }
}

double HertzOf(const RippleCurrent& ripple)
{
    return double{ripple.Kilohertz.Low} * KindOf(Quantity::Frequency).StoredPerShown;
}

/// All pieces at one frequency.
class Sharing
{
public:
    Sharing(const std::vector<PieceState>& states, double hertz)
        : pieces(states)
        , omega(2 * std::numbers::pi * hertz)
    {
        for (const PieceState& piece : pieces)
        {
            ohms.push_back(piece.Model.LossResistance(hertz).value_or(0) * OhmsPerMilliohm);
        }
    }

    double Ohms(std::size_t piece) const { return ohms[piece]; }
    double Omega() const { return omega; }

    /// The share of the whole current that one piece bears. Equal pieces bear 1/n to the last digit, since
    /// each quotient of theirs is 1.
    double ShareOf(std::size_t piece) const
    {
        const Admittance own = Of(piece, End::Typical);
        Admittance all = 0;
        for (std::size_t i = 0; i < pieces.size(); ++i)
        {
            all += double(pieces[i].Count) * (Of(i, End::Typical) / own);
        }
        return 1 / std::abs(all);
    }

    /// The same with the piece at its upper end and all others, of its own kind as well, at their lower ones.
    double LargestShareOf(std::size_t piece) const
    {
        const Admittance own = Of(piece, End::Upper);
        Admittance all = 1;
        for (std::size_t i = 0; i < pieces.size(); ++i)
        {
            const int others = pieces[i].Count - (i == piece ? 1 : 0);
            all += double(others) * (Of(i, End::Lower) / own);
        }
        return 1 / std::abs(all);
    }

    std::complex<double> Impedance() const
    {
        Admittance all = 0;
        for (std::size_t i = 0; i < pieces.size(); ++i)
        {
            all += double(pieces[i].Count) * Of(i, End::Typical);
        }
        return 1.0 / all;
    }

private:
    Admittance Of(std::size_t piece, End end) const
    {
        return 1.0 / std::complex(ohms[piece], -1 / (omega * FaradsOf(pieces[piece], end)));
    }

    const std::vector<PieceState>& pieces;
    double omega;
    std::vector<double> ohms;
};

PieceState StateOf(const BankPiece& piece, const OperatingPoint& at)
{
    constexpr double perPercent = 0.01;
    const PartRecord& part = *piece.Part;
    const float resistance = at.HeatResistance.value_or(part.Data[Value::HeatResistance]);
    const auto point = CapacitancePointAt(part, at.BiasVolts.High, at.AmbientC.High, at.View);
    return {.Count = piece.Count,
            .Farads = CheckedDivisor(point.value_or(CapacitancePoint{}).PicoFarads) * FaradsPerPicoFarad,
            .Down = piece.Tolerance.Down * perPercent,
            .Up = piece.Tolerance.Up * perPercent,
            .Model = PowerModelOf(part, at.BiasVolts.High, at.AmbientC.High, resistance)};
}

std::vector<PieceState> StatesOf(const BankQuestion& question)
{
    std::vector<PieceState> states;
    std::ranges::transform(question.Pieces, std::back_inserter(states),
                           [&](const BankPiece& piece) { return StateOf(piece, question.At); });
    return states;
}

/// Works out one bank.
class BankLaw
{
public:
    BankLaw(const BankQuestion& asked, std::vector<PieceState> states)
        : question(asked)
        , pieces(std::move(states))
    {
        std::ranges::transform(question.Ripple, std::back_inserter(sharings),
                               [&](const RippleCurrent& ripple) { return Sharing(pieces, HertzOf(ripple)); });
    }

    BankAnswer Answer() const
    {
        BankAnswer answer;
        for (std::size_t piece = 0; piece < pieces.size(); ++piece)
        {
            answer.Pieces.push_back(PieceAnswer(piece));
            answer.LeastPicoFarads +=
                pieces[piece].Count * FaradsOf(pieces[piece], End::Lower) / FaradsPerPicoFarad;
        }
        for (std::size_t i = 0; i < sharings.size(); ++i)
        {
            answer.Frequencies.push_back(AtFrequency(i));
            answer.Vrms = std::hypot(answer.Vrms, answer.Frequencies.back().Vrms);
        }
        answer.PicoFarads =
            std::ranges::min_element(answer.Frequencies, {},
                                     [](const BankAtFrequency& at) { return at.Kilohertz.Low; })
                ->PicoFarads;
        return answer;
    }

private:
    double RiseOf(std::size_t piece, double amperes, std::size_t frequency) const
    {
        return RiseAt(pieces[piece].Model, Quantity::Current, amperes, HertzOf(question.Ripple[frequency]));
    }

    PieceOfBank PieceAnswer(std::size_t piece) const
    {
        const PartRecord& part = *question.Pieces[piece].Part;
        const PermittedRise permitted{.MaxC = part.Data[Value::UpperTemperature],
                                      .Wanted = question.Pieces[piece].MostRise};
        PieceOfBank answer{.PicoFarads = pieces[piece].Farads / FaradsPerPicoFarad,
                           .PermittedRise = permitted.At(question.At.AmbientC.High),
                           .VoltageBound =
                               AllowableVoltageBound(RatedVoltage(part), question.At.BiasVolts.High),
                           .Frequencies = {}};
        for (std::size_t i = 0; i < sharings.size(); ++i)
        {
            AddFrequency(answer, piece, i);
        }
        answer.Margin = answer.PermittedRise - answer.Rise;
        answer.WorstMargin = answer.PermittedRise - answer.WorstRise;
        answer.WorstBody = question.At.AmbientC.High + answer.WorstRise;
        return answer;
    }

    void AddFrequency(PieceOfBank& answer, std::size_t piece, std::size_t frequency) const
    {
        const Sharing& sharing = sharings[frequency];
        const RippleCurrent& ripple = question.Ripple[frequency];
        const double amperes = ripple.Arms * sharing.ShareOf(piece);
        const double worst = ripple.Arms * sharing.LargestShareOf(piece);
        answer.Arms = std::hypot(answer.Arms, amperes);
        answer.Rise += RiseOf(piece, amperes, frequency);
        answer.WorstArms = std::hypot(answer.WorstArms, worst);
        answer.WorstRise += RiseOf(piece, worst, frequency);
        answer.Frequencies.push_back({.Kilohertz = ripple.Kilohertz,
                                      .LossResistance = sharing.Ohms(piece) / OhmsPerMilliohm,
                                      .Arms = amperes});
    }

    BankAtFrequency AtFrequency(std::size_t frequency) const
    {
        const Sharing& sharing = sharings[frequency];
        const auto impedance = sharing.Impedance();
        return {.Kilohertz = question.Ripple[frequency].Kilohertz,
                .PicoFarads = -1 / (sharing.Omega() * impedance.imag()) / FaradsPerPicoFarad,
                .LossResistance = impedance.real() / OhmsPerMilliohm,
                .Vrms = question.Ripple[frequency].Arms * std::abs(impedance)};
    }

    const BankQuestion& question;
    std::vector<PieceState> pieces;
    std::vector<Sharing> sharings;
};
/// The capacitance of a piece that runs warmer than its surroundings.
std::optional<double> WarmPicoFarads(const BankPiece& piece, const OperatingPoint& at, double rise)
{
    const double body = at.AmbientC.High + rise;
    if (!IsClassAmbientPermitted(static_cast<float>(body), *piece.Part, at.View))
    {
        return std::nullopt;
    }
    const auto point = CapacitancePointAt(*piece.Part, at.BiasVolts.High, body, at.View);
    return point && point->PicoFarads > 0 ? std::optional(point->PicoFarads) : std::nullopt;
}

/// The bank whose pieces have the capacitances of the temperatures that an answer leads to; nothing where one
/// has none there.
std::optional<BankAnswer> WarmedBy(const BankAnswer& answer, const BankQuestion& question)
{
    auto states = StatesOf(question);
    for (std::size_t i = 0; i < states.size(); ++i)
    {
        const auto warm = WarmPicoFarads(question.Pieces[i], question.At, answer.Pieces[i].Rise);
        if (!warm)
        {
            return std::nullopt;
        }
        states[i].Farads = *warm * FaradsPerPicoFarad;
    }
    return BankLaw(question, std::move(states)).Answer();
}

/// The bank in which each piece has the capacitance of its own temperature.
std::optional<BankAnswer> SettledFrom(const BankAnswer& cold, const BankQuestion& question)
{
    // Each round leaves a small part of the error of the one before.
    constexpr int rounds = 12;
    auto settled = WarmedBy(cold, question);
    for (int round = 1; settled && round < rounds; ++round)
    {
        settled = WarmedBy(*settled, question);
    }
    return settled;
}
} // namespace

BankAnswer BankWithoutWarmRise(const BankQuestion& question)
{
    auto answer = BankLaw(question, StatesOf(question)).Answer();
    for (std::size_t i = 0; i < answer.Pieces.size(); ++i)
    {
        PieceOfBank& piece = answer.Pieces[i];
        piece.WarmPicoFarads = WarmPicoFarads(question.Pieces[i], question.At, piece.Rise);
    }
    return answer;
}

BankAnswer BankAt(const BankQuestion& question)
{
    auto answer = BankWithoutWarmRise(question);
    const auto settled = SettledFrom(answer, question);
    for (std::size_t i = 0; i < answer.Pieces.size(); ++i)
    {
        answer.Pieces[i].WarmRise = settled ? std::optional(settled->Pieces[i].Rise) : std::nullopt;
    }
    return answer;
}
