/// A bill of a thousand rows, from its text to the verdicts, beside a search of the longest possible part
/// list at one point.

#include "bench/Turns.h"
#include "board/BomVerdict.h"
#include "files/PartLoading.h"
#include "find/PartFilter.h"
#include "find/PartFinder.h"
#include "stress/WaveformError.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace
{
constexpr std::size_t rowsOfBill = 1000;

/// Parts of the range one after the other, under ranges of conditions and a load, ten of them on a net.
std::string BillText(const PartTable& parts)
{
    std::string text = "Ref,MPN,Net,DC Bias,Ambient,Frequency,Current,Tolerance,Min Left\n";
    for (std::size_t i = 0; i < rowsOfBill; ++i)
    {
        const auto& part = parts.PartData[i % parts.PartData.size()];
        text += 'C' + std::to_string(i + 1) + ',' + std::string(part.PartNum[0]) + ",N" +
                std::to_string(i / 10) + ",4.5..5.5V,-10..65C,270..330kHz,100mA,10%,40\n";
    }
    return text;
}

WaveformTable NoWaveform(const std::string& name, bool /*isOfConditions*/)
{
    throw WaveformError("there is no file " + name);
}

std::size_t judged = 0;

void Judge(const std::string& text, const PartTable& parts)
{
    const auto bill = ReadBomTable(text, BomTableKind::Bill);
    const auto joined = JoinBom(bill, BomTable(), {});
    judged = JudgeBom(joined, parts, {}, NoWaveform).Items.size();
}

/// The longest list there is: parts of the range over and over.
std::vector<const PartRecord*> LongestList(const PartTable& parts)
{
    std::vector<const PartRecord*> list;
    for (std::size_t i = 0; i < MostParts; ++i)
    {
        list.push_back(&parts.PartData[i % parts.PartData.size()]);
    }
    return list;
}
} // namespace

int main()
{
    const auto parts = LoadPartData(SAMPLE_RANGE);
    const auto text = BillText(parts);
    const auto candidates = LongestList(parts);
    const FindQuestion point = {.At = {.BiasVolts = 5,
                                       .AmbientC = 60,
                                       .Kilohertz = 300.0F,
                                       .Load = AcLoad{.Kind = Quantity::Current, .Value = 0.5F}}};
    std::vector<double> times;
    CompareInTurns(
        "bom", 20,
        [&](int)
        {
            times.push_back(MicrosecondsOf([&] { Judge(text, parts); }));
            return times.back();
        },
        [&](int) { return MicrosecondsOf([&] { FindParts(candidates, point); }); });
    std::printf("bom: %zu of %zu rows judged, quickest answer %.1f ms\n", judged, rowsOfBill,
                std::ranges::min(times) / 1000);
    return 0;
}
