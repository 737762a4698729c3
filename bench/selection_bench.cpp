/// What users of the longest possible part list wait for: filling the part-number box, changing its naming
/// and opening its list, beside an ordinary combo box of the same entries.

#include "app/mdlPublic.h"
#include "selection/PartNumBox.h"
#include "selection/PartSelection.h"
#include "tests/selection/Ranges.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <numeric>
#include <vector>

namespace
{

std::vector<std::int16_t> AllParts()
{
    std::vector<std::int16_t> parts(mdlPublic.Parts.PartData.size());
    std::iota(parts.begin(), parts.end(), std::int16_t{0});
    return parts;
}

void Fill(PartNumBox& box, int form)
{
    box.SetParts(AllParts(), form);
}

void Fill(QComboBox& box, int form)
{
    box.clear();
    for (const auto part : AllParts())
    {
        box.addItem(PartNumText(part, form));
    }
}

template <class Box> void FillOrRename(benchmark::State& state)
{
    Box box;
    box.show();
    int form = 0;
    for (auto _ : state)
    {
        Fill(box, form);
        form = (form + 1) % 4;
    }
}

/// Opens the list at its first or last entry until it is painted. The cost of closing it is not counted.
template <class Box> void Open(benchmark::State& state)
{
    Box box;
    box.setMaxVisibleItems(20);
    box.show();
    for (auto _ : state)
    {
        state.PauseTiming();
        Fill(box, 0);
        box.setCurrentIndex(state.range(0) == 0 ? 0 : box.count() - 1);
        QApplication::processEvents();
        state.ResumeTiming();
        box.showPopup();
        QApplication::processEvents();
        state.PauseTiming();
        box.hidePopup();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void ChooseChartType(benchmark::State& state)
{
    PartSelection selection(mdlPublic.Parts);
    std::int16_t type = 0;
    for (auto _ : state)
    {
        selection.AddPartNum(type, CodeView::Eia);
        type = static_cast<std::int16_t>((type + 1) % 4);
    }
}

void ChangeNaming(benchmark::State& state)
{
    PartSelection selection(mdlPublic.Parts);
    selection.AddPartNum(0, CodeView::Eia);
    bool jis = true;
    for (auto _ : state)
    {
        selection.ChangeNaming(jis ? CodeView::Jis : CodeView::Eia);
        jis = !jis;
    }
}

BENCHMARK(ChooseChartType)->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeNaming)->Unit(benchmark::kMillisecond);
BENCHMARK(FillOrRename<PartNumBox>)->Unit(benchmark::kMillisecond);
BENCHMARK(FillOrRename<QComboBox>)->Unit(benchmark::kMillisecond);
BENCHMARK(Open<PartNumBox>)->Unit(benchmark::kMillisecond)->Iterations(10)->ArgName("last")->Arg(0)->Arg(1);
BENCHMARK(Open<QComboBox>)->Unit(benchmark::kMillisecond)->Iterations(10)->ArgName("last")->Arg(0)->Arg(1);

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    mdlPublic.Parts = LargestRange();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
