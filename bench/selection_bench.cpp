/// What users of the longest possible part list wait for: filling the part-number box, changing its naming
/// and opening its list, beside an ordinary combo box of the same entries.

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "bench/Turns.h"
#include "selection/PartNumBox.h"
#include "selection/PartSelection.h"
#include "tests/selection/Ranges.h"

#include <QApplication>

#include <cstdio>
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

/// Filling the box, each time with another of the four part-number forms.
template <class Box> double TimeOfFilling(Box& box, int round)
{
    return MicrosecondsOf([&] { Fill(box, round % 4); });
}

/// Opening the list at its first or last entry until it is painted; closing it is not counted.
template <class Box> double TimeOfOpening(Box& box, int round)
{
    Fill(box, 0);
    box.setCurrentIndex(round % 2 == 0 ? 0 : box.count() - 1);
    QApplication::processEvents();
    const double time = MicrosecondsOf(
        [&]
        {
            box.showPopup();
            QApplication::processEvents();
        });
    box.hidePopup();
    QApplication::processEvents();
    return time;
}

/// The lists that a chart type or a code switch brings; no plain widget does the same.
void TimeCascade()
{
    PartSelection selection(mdlPublic.Parts);
    std::vector<double> times;
    for (int round = 0; round < 100; ++round)
    {
        times.push_back(MicrosecondsOf(
            [&] { selection.AddPartNum(static_cast<std::int16_t>(round % 4), CodeView::Eia); }));
    }
    std::printf("lists after a chart type: %.0f us\n", Median(times));
    times.clear();
    for (int round = 0; round < 100; ++round)
    {
        times.push_back(
            MicrosecondsOf([&] { selection.ChangeNaming(round % 2 == 0 ? CodeView::Jis : CodeView::Eia); }));
    }
    std::printf("lists after a code switch: %.0f us\n", Median(times));
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    mdlPublic.Parts = LargestRange();
    TimeCascade();

    PartNumBox ours;
    QComboBox plain;
    for (QComboBox* box : {static_cast<QComboBox*>(&ours), &plain})
    {
        box->setMaxVisibleItems(20);
        box->show();
    }
    CompareInTurns(
        "list-fill", 20, [&](int round) { return TimeOfFilling(ours, round); },
        [&](int round) { return TimeOfFilling(plain, round); });
    CompareInTurns(
        "list-open", 10, [&](int round) { return TimeOfOpening(ours, round); },
        [&](int round) { return TimeOfOpening(plain, round); });
    return 0;
}
