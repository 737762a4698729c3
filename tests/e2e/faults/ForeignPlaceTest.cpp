/// Clock, time zone and language of another country: only the date of a data file shows them.

#include "tests/cli/CommandLine.h"

#include <QDateTime>
#include <QProcess>
#include <QTest>

class ForeignPlaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DataFileIsTheSameInEveryLanguage_data();
    void DataFileIsTheSameInEveryLanguage();
    void DateIsThatOfTheTimeZone_data();
    void DateIsThatOfTheTimeZone();
    void DateIsThatOfTheClock_data();
    void DateIsThatOfTheClock();
    void PartsAndAnswersAreTheSameInEveryLanguage();
};

static const QByteArray Title = "!Halvex Chip Capacitor Characteristics Data Library  ";
static const QStringList Curve = {"curve", "KTS31NB51E106MA01", "--chart",  "temperature-rise", "--dc-bias",
                                  "12.5V", "--frequency",       "300.25kHz"};
static const QStringList Languages = {"de_DE.UTF-8", "ja_JP.UTF-8", "tr_TR.UTF-8", "ar_EG.UTF-8",
                                      "fa_IR.UTF-8", "en_US.UTF-8", "xx_YY.UTF-8", "nonsense"};

/// Runs the command line with more in its environment.
static Run RunIn(const QStringList& variables, const QStringList& arguments, const QByteArray& input = {})
{
    for (const QString& variable : variables)
    {
        qputenv(variable.section('=', 0, 0).toLatin1().constData(), variable.section('=', 1).toLocal8Bit());
    }
    Run run = RunCommandLine(arguments, input);
    for (const QString& variable : variables)
    {
        qunsetenv(variable.section('=', 0, 0).toLatin1().constData());
    }
    return run;
}

static QStringList In(const QString& language)
{
    return {"LC_ALL=" + language, "LANG=" + language, "LANGUAGE=" + language};
}

static QByteArray DateOf(const Run& run)
{
    const QByteArray title = run.Output.left(run.Output.indexOf("\r\n"));
    return title.startsWith(Title) ? title.mid(Title.size()) : QByteArray();
}

static QByteArray BodyOf(const Run& run)
{
    return run.Output.mid(run.Output.indexOf("\r\n"));
}

void ForeignPlaceTest::DataFileIsTheSameInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : Languages)
    {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void ForeignPlaceTest::DataFileIsTheSameInEveryLanguage()
{
    QFETCH(QString, language);
    const Run here = RunIn(In("C"), Curve);
    const Run there = RunIn(In(language), Curve);
    QCOMPARE(there.Messages, QByteArray());
    QCOMPARE(there.Status, 0);
    QCOMPARE(BodyOf(there), BodyOf(here));
    QCOMPARE(BodyOf(here).count("\r\n"), 208);
    QVERIFY(BodyOf(there).contains("!DC Bias Voltage-> 12.5 [V]\r\n"));
    QVERIFY(BodyOf(there).contains("!Frequency-> 300.25 [kHz]\r\n"));
    QVERIFY(!DateOf(there).isEmpty() && !DateOf(there).contains('?'));
}

void ForeignPlaceTest::PartsAndAnswersAreTheSameInEveryLanguage()
{
    const QStringList list = {"parts", "KTS31", "--format", "csv"};
    const QByteArray request =
        "{\"part\":\"KTS31NB51E106MA01\",\"chart\":\"capacitance-dc-voltage\",\"ambient\":60.5}\n";
    const QByteArray parts = RunIn(In("C"), list).Output;
    const QByteArray answer = RunIn(In("C"), {"curve", "--requests", "-"}, request).Output;
    QVERIFY(parts.count('\n') > 10);
    QVERIFY(answer.contains("60.5"));
    for (const QString& language : Languages)
    {
        QCOMPARE(RunIn(In(language), list).Output, parts);
        QCOMPARE(RunIn(In(language), {"curve", "--requests", "-"}, request).Output, answer);
    }
}

void ForeignPlaceTest::DateIsThatOfTheTimeZone_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<int>("hours");
    // These two never share a date.
    QTest::newRow("first to see the day") << "KIRI-14" << 14;
    QTest::newRow("last to see it") << "BAKER12" << -12;
}

void ForeignPlaceTest::DateIsThatOfTheTimeZone()
{
    QFETCH(QString, zone);
    QFETCH(int, hours);
    const auto today = [hours] {
        return QDateTime::currentDateTimeUtc().addSecs(hours * 3600).date().toString("d MMM yyyy").toLatin1();
    };
    const QByteArray before = today();
    const QByteArray date = DateOf(RunIn(In("C") + QStringList{"TZ=" + zone}, Curve));
    QVERIFY2(date == before || date == today(), date);
}

void ForeignPlaceTest::DateIsThatOfTheClock_data()
{
    QTest::addColumn<qlonglong>("second");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("date");
    const auto row = [](const char* name, qlonglong second, const char* language, const char* date)
    { QTest::newRow(name) << second << QString::fromLatin1(language) << QByteArray(date); };
    row("start of time", 0, "C", "1 Jan 1970");
    row("end of 31 bits", 2147483647, "C", "19 Jan 2038");
    row("a second later", 2147483648, "C", "19 Jan 2038");
    row("end of 32 bits", 4294967296, "C", "7 Feb 2106");
    row("leap day", 1709164800, "C", "29 Feb 2024");
    row("far future", 253402300799, "C", "31 Dec 9999");
    row("Germany", 2147483648, "de_DE.UTF-8", "19.01.38");
    row("Japan", 2147483648, "ja_JP.UTF-8", "2038/01/19");
    row("Turkey", 2147483648, "tr_TR.UTF-8", "19.01.2038");
    row("United States", 2147483648, "en_US.UTF-8", "1/19/38");
    row("Iran", 2147483648, "fa_IR.UTF-8", "2038/1/19");
    row("Egypt", 2147483648, "ar_EG.UTF-8", "19/1/2038");
}

void ForeignPlaceTest::DateIsThatOfTheClock()
{
    QFETCH(qlonglong, second);
    QFETCH(QString, language);
    QFETCH(QByteArray, date);
    // A checked build wants its own library to be loaded first; it bears with another one when told to.
    const Run run = RunIn(In(language) + QStringList{"TZ=UTC0", "LD_PRELOAD=" SET_CLOCK,
                                                     QStringLiteral("SET_CLOCK=%1").arg(second),
                                                     "ASAN_OPTIONS=verify_asan_link_order=0"},
                          Curve);
    QCOMPARE(run.Status, 0);
    QCOMPARE(DateOf(run), date);
}

QTEST_GUILESS_MAIN(ForeignPlaceTest)
#include "ForeignPlaceTest.moc"
