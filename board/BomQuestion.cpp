#include "board/BomQuestion.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "find/QuestionRules.h"
#include "partdata/OneLine.h"
#include "requests/BankRequest.h"
#include "requests/ConverterEntry.h"
#include "requests/Names.h"
#include "requests/RangeEntry.h"
#include "requests/RequestError.h"
#include "requests/ToleranceEntry.h"
#include "requests/UnitEntry.h"
#include "stress/WaveformError.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace
{
constexpr double hertzPerKilohertz = 1e3;

/// A rail below ground stresses a capacitor like one above it.
ConditionRange Magnitude(const ConditionRange& volts)
{
    const float most = std::max(std::abs(volts.Low), std::abs(volts.High));
    const bool crossesZero = volts.Low < 0 && volts.High > 0;
    return {crossesZero ? 0 : std::min(std::abs(volts.Low), std::abs(volts.High)), most};
}

/// The lines of a current as sines that the data of parts reach to: what lies beyond them at the nearer end.
std::vector<RippleCurrent> RippleOf(const CurrentLoad& load)
{
    constexpr double leastShare = 1e-6;
    const double least = leastShare * load.Lines.Moments.Total().Square;
    std::map<double, double> squares;
    squares[HighestFrequencyHz] += load.Lines.Unresolved;
    for (const SpectralLine& line : load.Lines.Lines)
    {
        const double hertz = line.Square > least ? line.Hertz : HighestFrequencyHz;
        squares[std::clamp(hertz, LowestFrequencyHz, HighestFrequencyHz)] += line.Square;
    }
    std::vector<RippleCurrent> ripple;
    for (const auto& [hertz, square] : squares)
    {
        if (square > 0)
        {
            ripple.push_back({.Kilohertz = static_cast<float>(hertz / hertzPerKilohertz),
                              .Arms = static_cast<float>(std::sqrt(square))});
        }
    }
    return ripple;
}

class QuestionReading
{
public:
    QuestionReading(const BomItem& read, CodeView view, BomLoads& loadsOfBoard,
                    std::vector<BomRemark>& remarks)
        : item(read)
        , loads(loadsOfBoard)
        , faults(remarks)
    {
        question.Asked.At.View = view;
        question.Asked.At.AmbientC = ReferenceC(view);
    }

    BomQuestion Read()
    {
        ReadPoint();
        ReadWants();
        ReadLoad();
        ReadNet();
        Judge();
        return question;
    }

private:
    /// Hands the text of a cell to `take`; what it throws is a fault of the cell.
    template <class Take> void Read(BomField field, const Take& take)
    {
        const auto& cell = item.Cells[static_cast<std::size_t>(field)];
        if (!cell)
        {
            return;
        }
        try
        {
            take(cell->Text);
        }
        catch (const RequestError& error)
        {
            Fault(field, error.Message());
        }
        catch (const std::runtime_error& error)
        {
            Fault(field, error.what());
        }
    }

    void Fault(BomField field, const std::string& message)
    {
        const auto& cell = item.Cells[static_cast<std::size_t>(field)];
        faults.push_back(
            {{cell ? cell->Line : item.Line, std::string(KindOf(field).Name) + ": " + OneLine(message)},
             cell && cell->IsOfConditions,
             cell && cell->Line == 0});
    }

    void ReadRange(BomField field, ConditionRange& target)
    {
        Read(field, [&](const std::string& text)
             { target = ConditionRangeOf(text, KindOf(field).Measures.value_or(Quantity{}), ""); });
    }

    template <class Target> void ReadValue(BomField field, Target& target)
    {
        Read(field, [&](const std::string& text)
             { target = ValueInUnit(text, KindOf(field).Measures.value_or(Quantity{}), ""); });
    }

    void ReadPoint()
    {
        OperatingPoint& at = question.Asked.At;
        question.HasBias = !item.TextOf(BomField::DCBias).empty();
        ReadRange(BomField::DCBias, at.BiasVolts);
        at.BiasVolts = Magnitude(at.BiasVolts);
        ReadRange(BomField::Ambient, at.AmbientC);
        ReadValue(BomField::HeatResistance, at.HeatResistance);
        Read(BomField::Tolerance, [&](const std::string& text) { at.Tolerance = ToleranceOf(text, ""); });
        Read(BomField::Parallel,
             [&](const std::string& text) { question.Asked.Wanted.Parallel = Bank{.Count = CountIn(text)}; });
    }

    static int CountIn(const std::string& text)
    {
        const float number = ValueInUnit(text, Quantity::CapacitanceChange, "");
        if (!(number >= 1 && number <= MostInParallel && number == std::floor(number)))
        {
            throw RequestError(RequestErrorKind::Condition, "",
                               '"' + text + "\" is not a whole number from 1 to 100");
        }
        return static_cast<int>(number);
    }

    void ReadWants()
    {
        Wants& wanted = question.Asked.Wanted;
        ReadValue(BomField::MinCapacitance, wanted.LeastCapacitance);
        ReadValue(BomField::MinLeft, wanted.LeastLeft);
        ReadValue(BomField::MinWarmCapacitance, wanted.LeastWarmCapacitance);
        ReadValue(BomField::MaxRise, wanted.MostRise);
        ReadValue(BomField::MaxLossResistance, wanted.MostLossResistance);
        ReadValue(BomField::MaxBias, question.MostBias);
        if (!(question.MostBias > 0 && question.MostBias <= 100))
        {
            Fault(BomField::MaxBias, "not above 0, up to 100 %");
        }
    }

    BomLoads::Load LoadOfWaveform(const std::string& text, BomField field)
    {
        const auto& cell = item.Cells[static_cast<std::size_t>(field)];
        return loads.OfWaveform(text, cell && cell->IsOfConditions);
    }

    void ReadLoad()
    {
        OperatingPoint& at = question.Asked.At;
        Read(BomField::Frequency, [&](const std::string& text)
             { at.Kilohertz = ConditionRangeOf(text, Quantity::Frequency, ""); });
        Read(BomField::Current,
             [&](const std::string& text) {
                 at.Load =
                     AcLoad{.Kind = Quantity::Current, .Value = ValueInUnit(text, Quantity::Current, "")};
             });
        Read(BomField::Converter, [&](const std::string& text) { TakeLoad(loads.OfConverter(text)); });
        Read(BomField::Waveform,
             [&](const std::string& text) { TakeLoad(LoadOfWaveform(text, BomField::Waveform)); });
        const auto isGiven = [&](BomField field) { return !item.TextOf(field).empty(); };
        if (isGiven(BomField::Current) + isGiven(BomField::Converter) + isGiven(BomField::Waveform) > 1)
        {
            Fault(BomField::Current, "stands beside another load");
        }
    }

    /// The sine that heats as the load does.
    void TakeLoad(const BomLoads::Load& load)
    {
        question.Load = load;
        const auto sine = load->Lines.Moments.Total().Sine();
        const auto kilohertz = static_cast<float>(sine.Hertz / hertzPerKilohertz);
        question.IsLoadOutside = !IsInside(sine.Hertz);
        if (!question.IsLoadOutside)
        {
            question.Asked.At.Load =
                AcLoad{.Kind = Quantity::Current, .Value = static_cast<float>(sine.Arms)};
            question.Asked.At.Kilohertz = kilohertz;
        }
    }

    void ReadNet()
    {
        Read(BomField::NetCurrent, [&](const std::string& text) { TakeNetCurrent(text); });
        Read(BomField::NetConverter,
             [&](const std::string& text) { question.NetRipple = RippleOf(*loads.OfConverter(text)); });
        Read(BomField::NetWaveform, [&](const std::string& text)
             { question.NetRipple = RippleOf(*LoadOfWaveform(text, BomField::NetWaveform)); });
        ReadValue(BomField::NetMinCapacitance, question.NetMinCapacitance);
        if (!question.NetRipple.empty() && question.Asked.At.Load)
        {
            Fault(BomField::Current, "stands beside a part of the current of the net; leave one out");
        }
    }

    void TakeNetCurrent(const std::string& text)
    {
        for (const RippleText& ripple : ::RippleOf(text))
        {
            if (!ripple.Kilohertz && item.TextOf(BomField::NetFrequency).empty())
            {
                throw RequestError(RequestErrorKind::MissingKey, "", "there is no net frequency");
            }
            const float kilohertz =
                ripple.Kilohertz ? *ripple.Kilohertz
                                 : ValueInUnit(item.TextOf(BomField::NetFrequency), Quantity::Frequency, "");
            CheckNetCurrent(kilohertz, ripple.Arms);
            question.NetRipple.push_back({.Kilohertz = kilohertz, .Arms = ripple.Arms});
        }
    }

    static void CheckNetCurrent(float kilohertz, float arms)
    {
        if (!IsFrequencyPermitted(kilohertz) || !(arms >= 0) || !std::isfinite(arms))
        {
            throw RequestError(RequestErrorKind::Condition, "",
                               "not 10 to 1000 kHz, or not a current from 0");
        }
    }

    /// By the rules that parts are found under.
    void Judge()
    {
        const auto refusal = RefuseQuestion(JudgedQuestion(), std::numeric_limits<float>::max());
        for (std::size_t i = 0; refusal && i < BomFieldCount; ++i)
        {
            if (KindOf(static_cast<BomField>(i)).Key == refusal->Key)
            {
                Fault(static_cast<BomField>(i), refusal->Message);
            }
        }
    }

    /// A warm capacitance without a load of one's own is judged by the share of the net's current.
    FindQuestion JudgedQuestion() const
    {
        auto judged = question.Asked;
        const bool hasOther = !question.NetRipple.empty() || question.IsLoadOutside;
        if (hasOther && !judged.At.Load)
        {
            judged.Wanted.LeastWarmCapacitance.reset();
            judged.Wanted.MostLossResistance.reset();
        }
        return judged;
    }

    const BomItem& item;
    BomLoads& loads;
    std::vector<BomRemark>& faults;
    BomQuestion question;
};
} // namespace

BomQuestion QuestionOf(const BomItem& item, CodeView view, BomLoads& loads, std::vector<BomRemark>& faults)
{
    return QuestionReading(item, view, loads, faults).Read();
}

void CheckCell(BomField field, const std::string& text)
{
    const bool isRange =
        field == BomField::DCBias || field == BomField::Ambient || field == BomField::Frequency;
    if (field == BomField::Tolerance)
    {
        ToleranceOf(text, "");
    }
    else if (isRange)
    {
        ConditionRangeOf(text, KindOf(field).Measures.value_or(Quantity{}), "");
    }
    else
    {
        ValueInUnit(text, KindOf(field).Measures.value_or(Quantity{}), "");
    }
}
