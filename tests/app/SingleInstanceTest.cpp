/// One instance per user and login, whoever else sits on its names.

#include "app/SingleInstance.h"
#include "tests/app/Stranger.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

#include <unistd.h>

#include <sys/socket.h>
#include <sys/un.h>

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void SecondClaimIsRefused();
    void InstanceUnderAnyNameCounts();
    void OtherUsersDoNotCount_data();
    void OtherUsersDoNotCount();
    void SilentHoldersDoNotCount_data();
    void SilentHoldersDoNotCount();
    void InstanceBehindStrangersIsFound();
    void ManyCallersDoNotHideTheInstance();

private:
    QByteArray session;
    int logins = 0;
};

/// Each test is a login of its own, since this very process holds the names of the former ones.
void SingleInstanceTest::init()
{
    if (logins == 0)
    {
        session = qgetenv("XDG_SESSION_ID");
    }
    qputenv("XDG_SESSION_ID", QByteArray("instance-test-") +
                                  QByteArray::number(QCoreApplication::applicationPid()) + "-" +
                                  QByteArray::number(++logins));
}

void SingleInstanceTest::cleanupTestCase()
{
    qputenv("XDG_SESSION_ID", session);
}

/// The first names of the login.
static std::vector<std::string> Names(std::size_t count)
{
    std::vector<std::string> names;
    for (std::size_t number = 0; number < count; ++number)
    {
        names.push_back(SingleInstanceName(number));
    }
    return names;
}

void SingleInstanceTest::SecondClaimIsRefused()
{
    QVERIFY(ClaimSingleInstance());
    QVERIFY(!ClaimSingleInstance());
}

void SingleInstanceTest::InstanceUnderAnyNameCounts()
{
    const Stranger instance({SingleInstanceName(InstanceNames - 1)}, getuid(), Manner::Listens);
    QVERIFY(instance.Holds());
    QVERIFY(!ClaimSingleInstance());
}

void SingleInstanceTest::OtherUsersDoNotCount_data()
{
    QTest::addColumn<int>("names");
    QTest::newRow("one name taken") << 1;
    QTest::newRow("all but one taken") << static_cast<int>(InstanceNames) - 1;
    QTest::newRow("all taken") << static_cast<int>(InstanceNames);
}

void SingleInstanceTest::OtherUsersDoNotCount()
{
    QFETCH(int, names);
    if (getuid() != 0)
    {
        QSKIP("only root can be another user");
    }
    const Stranger stranger(Names(static_cast<std::size_t>(names)), Stranger::OtherUser, Manner::Listens);
    QVERIFY(stranger.Holds());
    QVERIFY(ClaimSingleInstance());
    // Without any name left, nobody can know of the first one.
    QCOMPARE(ClaimSingleInstance(), names == static_cast<int>(InstanceNames));
}

void SingleInstanceTest::SilentHoldersDoNotCount_data()
{
    OtherUsersDoNotCount_data();
}

void SingleInstanceTest::SilentHoldersDoNotCount()
{
    QFETCH(int, names);
    const Stranger stranger(Names(static_cast<std::size_t>(names)), getuid(), Manner::IsSilent);
    QVERIFY(stranger.Holds());
    QElapsedTimer waited;
    waited.start();
    QVERIFY(ClaimSingleInstance());
    // Each might have been an instance that is about to listen.
    QVERIFY(waited.elapsed() >= 200 * names);
    QCOMPARE(ClaimSingleInstance(), names == static_cast<int>(InstanceNames));
}

void SingleInstanceTest::InstanceBehindStrangersIsFound()
{
    const Stranger silent(Names(2), getuid(), Manner::IsSilent);
    const Stranger instance({SingleInstanceName(2)}, getuid(), Manner::Listens);
    QVERIFY(silent.Holds() && instance.Holds());
    QVERIFY(!ClaimSingleInstance());
}

/// Calls the first name of the login and leaves, as a start that is refused does; false when it is kept out.
static bool Call()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name = SingleInstanceName(0);
    name.copy(address.sun_path + 1, name.size());
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    const int caller = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0);
    const bool heard = connect(caller, reinterpret_cast<const sockaddr*>(&address), size) == 0;
    close(caller);
    return heard;
}

void SingleInstanceTest::ManyCallersDoNotHideTheInstance()
{
    QVERIFY(ClaimSingleInstance());
    constexpr int crowd = 10000;
    int heard = 0;
    for (int i = 0; i < crowd && Call(); ++i)
    {
        ++heard;
        QCoreApplication::processEvents();
    }
    QCOMPARE(heard, crowd);
    QVERIFY(!ClaimSingleInstance());
}

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
