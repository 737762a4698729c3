/// A random user on the real main window, held after each action against a plain model of all that is to be
/// seen, stored and saved.
///
/// The short run, part of every test, is three users, always the same. A failure names the seed and the last
/// actions. Without a printer, printing ends in its message; beside the tests' print server the users print
/// to files. From the environment:
///   TAVIK_TEST_SEED      one other user alone
///   RANDOM_USER_ACTIONS  how much each user does. From 10,000 on, memory is sampled each 1,000 actions with
///                        all charts closed, and the last quarter may have 1 MB more than the one before.

#include "tests/Seed.h"
#include "tests/frame/randomuser/User.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <vector>

#include <malloc.h>
#include <unistd.h>

class RandomUserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void EverythingFollowsThePlainModel_data();
    void EverythingFollowsThePlainModel();
};

static constexpr int ShortRun = 150;
static constexpr int LongRun = 10000;
static constexpr int SampleEach = 1000;
/// What memory may waver by, in kilobytes, in the second half of a long run.
static constexpr long Wavering = 1024;

static QtMessageHandler testHandler = nullptr;

/// Leaves out what the display without a screen says at every click.
static void SayRest(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith("This plugin does not support"))
    {
        testHandler(type, context, text);
    }
}

void RandomUserTest::initTestCase()
{
    testHandler = qInstallMessageHandler(SayRest);
}

void RandomUserTest::EverythingFollowsThePlainModel_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("first user") << TestSeed(1);
    if (!qEnvironmentVariableIsSet("TAVIK_TEST_SEED"))
    {
        QTest::newRow("second user") << TestSeed(20);
        QTest::newRow("third user") << TestSeed(300);
    }
}

/// Memory of this process in kilobytes, without what is only kept for reuse: the toolkit's cache of pictures,
/// which fills to its bound, and freed blocks.
struct Memory
{
    long Resident = 0;
    long InUse = 0;
};

static Memory MemoryNow()
{
    QPixmapCache::clear();
    malloc_trim(0);
    long total = 0;
    long resident = 0;
    std::FILE* statm = std::fopen("/proc/self/statm", "r");
    if (statm != nullptr)
    {
        const int read = std::fscanf(statm, "%ld %ld", &total, &resident);
        std::fclose(statm);
        resident = read == 2 ? resident : 0;
    }
    const auto heap = mallinfo2();
    return {.Resident = resident * (sysconf(_SC_PAGESIZE) / 1024),
            .InUse = static_cast<long>((heap.uordblks + heap.hblkhd) / 1024)};
}

/// How much more the last quarter of the samples has at most than the quarter before.
static long Growth(const std::vector<Memory>& samples, long Memory::*kind)
{
    const auto quarter = static_cast<std::ptrdiff_t>(samples.size() / 4);
    const auto most = [&](auto from, auto to)
    { return std::ranges::max(std::ranges::subrange(from, to), {}, kind).*kind; };
    return most(samples.end() - quarter, samples.end()) -
           most(samples.end() - 2 * quarter, samples.end() - quarter);
}

void RandomUserTest::EverythingFollowsThePlainModel()
{
    QFETCH(unsigned, seed);
    bool given = false;
    const int wanted = qEnvironmentVariableIntValue("RANDOM_USER_ACTIONS", &given);
    const int actions = given ? wanted : ShortRun;
    qInfo("TAVIK_TEST_SEED=%u RANDOM_USER_ACTIONS=%d", seed, actions);

    User user(seed);
    std::vector<Memory> samples;
    QElapsedTimer clock;
    clock.start();
    for (int action = 1; action <= actions; ++action)
    {
        user.Act();
        if (action % SampleEach == 0)
        {
            user.CloseCharts();
            samples.push_back(MemoryNow());
            std::fprintf(stderr, "%7d actions %8.1f s %8ld kB resident %8ld kB in use\n", action,
                         static_cast<double>(clock.elapsed()) / 1000, samples.back().Resident,
                         samples.back().InUse);
        }
        if (user.Differences().Any())
        {
            QFAIL(qPrintable(QStringLiteral("seed %1, action %2\n%3\nafter\n%4")
                                 .arg(seed)
                                 .arg(action)
                                 .arg(user.Differences().Text(), user.LastActions().join('\n'))));
        }
    }
    if (actions >= LongRun)
    {
        for (auto count = user.Counts().cbegin(); count != user.Counts().cend(); ++count)
        {
            std::fprintf(stderr, "%7d %s\n", count.value(), qPrintable(count.key()));
        }
        const long resident = Growth(samples, &Memory::Resident);
        const long inUse = Growth(samples, &Memory::InUse);
        QVERIFY2(
            resident <= Wavering && inUse <= Wavering,
            qPrintable(QStringLiteral("%1 kB more resident, %2 kB more in use").arg(resident).arg(inUse)));
    }
}

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet("RANDOM_USER_ACTIONS"))
    {
        // Many actions take longer than tests are given as a rule.
        qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
    }
    QApplication application(argc, argv);
    RandomUserTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RandomUserTest.moc"
