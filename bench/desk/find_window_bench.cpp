/// What a key costs in the window that finds parts, typed into each kind of box with the largest possible
/// part list, until the new answer is painted; beside a bare window that paints as many cells anew.

#include "bench/Turns.h"
#include "bench/desk/BareWindows.h"
#include "bench/desk/LargestRange.h"
#include "tests/frame/FindDesk.h"

#include <algorithm>
#include <cstdio>

static constexpr int Rounds = 40;

/// Types a key, and in the next round takes it back.
static double MicrosecondsOfKey(QLineEdit* box, char key, int round)
{
    return MicrosecondsOf(
        [&]
        {
            round % 2 == 0 ? QTest::keyClick(box, key) : QTest::keyClick(box, Qt::Key_Backspace);
            Settle();
        });
}

/// What a box holds before the key.
struct Typed
{
    const char* Name;
    const char* Box;
    const char* Before;
    char Key;
};

/// The boxes fill from first to last, so that the questions grow: at last all values are asked for.
static constexpr Typed Keys[] = {
    {"part", "txtFindPartNum", "", 'k'},         {"bias", "txtFindDCBiasVol", "1", '.'},
    {"ambient", "txtFindAmbientTemp", "4", '5'}, {"frequency", "txtFindFrequency", "30", '0'},
    {"current", "txtFindCurrent", "0.1", '2'},   {"least", "txtFindMinCap", "0.0", '1'},
    {"rise", "txtFindMaxRise", "3", '0'},
};

static void Compare(const FindDesk& desk, BareFind& bare, const Typed& typed)
{
    auto* const box = desk.Control<QLineEdit>(typed.Box);
    box->setText(QString::fromLatin1(typed.Before));
    Settle();
    std::vector<double> times;
    CompareInTurns(
        std::string("find-key-") + typed.Name, Rounds,
        [&](int round)
        {
            times.push_back(MicrosecondsOfKey(box, typed.Key, round));
            return times.back();
        },
        [&](int round) { return MicrosecondsOfKey(bare.box, 'k', round); });
    std::printf("%s: %d rows, quickest key %.1f ms, median %.1f ms\n", typed.Name, desk.Rows(),
                std::ranges::min(times) / 1000, Median(times) / 1000);
    QTest::keyClick(box, typed.Key);
}

/// A rail with its tolerance, an ambient from winter to summer, and a converter's own frequency.
static void TypeRanges(const FindDesk& desk)
{
    desk.Control<QCheckBox>("chkFindParallel")->setChecked(false);
    desk.Control<QLineEdit>("txtFindDCBiasVol")->setText(QStringLiteral("4.5..5.5"));
    desk.Control<QLineEdit>("txtFindAmbientTemp")->setText(QStringLiteral("-20..60"));
    desk.Control<QLineEdit>("txtFindFrequency")->setText(QStringLiteral("270..330"));
    Settle();
}

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const LargestRange range;
    const FindDesk desk(range.Folder());
    if (desk.window == nullptr || desk.Rows() == 0)
    {
        std::fputs("no window has found parts\n", stderr);
        return 1;
    }
    BareFind bare;
    bare.resize(desk.window->size());
    bare.show();
    Settle();
    for (const Typed& typed : Keys)
    {
        Compare(desk, bare, typed);
    }
    desk.Control<QCheckBox>("chkFindParallel")->setChecked(true);
    Compare(desk, bare, {"parallel", "txtFindCurrent", "0.1", '2'});
    const QSize size = desk.window->size();
    desk.window->resize(1920, 1040);
    bare.resize(desk.window->size());
    Compare(desk, bare, {"large", "txtFindCurrent", "0.1", '2'});
    desk.window->resize(size);
    bare.resize(size);
    TypeRanges(desk);
    Compare(desk, bare, {"ranges", "txtFindCurrent", "0.1", '2'});
    return 0;
}
