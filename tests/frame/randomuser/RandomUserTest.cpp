/// A random user on the real main window, held after each action against a plain model of all that is to be
/// seen, stored and saved.
///
/// The short run, part of every test, is three users: two are always the same, the third is a new one each
/// time. A failure names the seed and the last actions. From the environment:
///   RANDOM_USER_SEED     one user alone, to see a failure again
///   RANDOM_USER_ACTIONS  how much each user does. From 10,000 on, memory is sampled each 1,000 actions with
///                        all charts closed, and must not grow through the second half.

#include "tests/frame/randomuser/User.h"

#include <QElapsedTimer>
#include <QTest>

#include <cstdio>
#include <random>
#include <vector>

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
/// What the heap may waver by, in kilobytes, from the middle of a long run to its end.
static constexpr long Wavering = 2048;

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
    bool given = false;
    const auto seed = qEnvironmentVariableIntValue("RANDOM_USER_SEED", &given);
    if (given)
    {
        QTest::newRow("given user") << static_cast<unsigned>(seed);
        return;
    }
    QTest::newRow("first user") << 1U;
    QTest::newRow("second user") << 20U;
    QTest::newRow("new user") << std::random_device{}() % 1'000'000'000U;
}

/// Resident memory of this process in kilobytes.
static long ResidentKilobytes()
{
    long total = 0;
    long resident = 0;
    std::FILE* statm = std::fopen("/proc/self/statm", "r");
    if (statm != nullptr)
    {
        const int read = std::fscanf(statm, "%ld %ld", &total, &resident);
        std::fclose(statm);
        resident = read == 2 ? resident : 0;
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/// The most of a part of the samples.
static long MostOf(const std::vector<long>& samples, std::size_t from, std::size_t to)
{
    return *std::max_element(samples.begin() + static_cast<std::ptrdiff_t>(from),
                             samples.begin() + static_cast<std::ptrdiff_t>(to));
}

void RandomUserTest::EverythingFollowsThePlainModel()
{
    QFETCH(unsigned, seed);
    bool given = false;
    const int wanted = qEnvironmentVariableIntValue("RANDOM_USER_ACTIONS", &given);
    const int actions = given ? wanted : ShortRun;
    qInfo("RANDOM_USER_SEED=%u RANDOM_USER_ACTIONS=%d", seed, actions);

    User user(seed);
    std::vector<long> samples;
    QElapsedTimer clock;
    clock.start();
    for (int action = 1; action <= actions; ++action)
    {
        user.Act();
        if (action % SampleEach == 0)
        {
            user.CloseCharts();
            samples.push_back(ResidentKilobytes());
            std::fprintf(stderr, "%7d actions %8.1f s %8ld kB\n", action,
                         static_cast<double>(clock.elapsed()) / 1000, samples.back());
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
        const std::size_t half = samples.size() / 2;
        for (auto count = user.Counts().cbegin(); count != user.Counts().cend(); ++count)
        {
            std::fprintf(stderr, "%7d %s\n", count.value(), qPrintable(count.key()));
        }
        const long growth = MostOf(samples, samples.size() - half / 2, samples.size()) -
                            MostOf(samples, half, samples.size() - half / 2);
        QVERIFY2(growth <= Wavering, qPrintable(QStringLiteral("%1 kB more").arg(growth)));
    }
}

QTEST_MAIN(RandomUserTest)
#include "RandomUserTest.moc"
