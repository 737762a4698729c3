/// `tavik-cli find` as its users run it: the questions that its help answers, and what it refuses.

#include "tests/cli/CommandLine.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

class FindTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void KeepsCapacitanceUnderBiasAndHeat();
    void StaysCoolUnderRipple();
    void TellsWhatOnePartBears();
    void TakesTheLeastBoard();
    void SharesTheRipple();
    void KeepsCapacitanceInTheCold();
    void HoldsEverywhereInRanges_data();
    void HoldsEverywhereInRanges();
    void JudgesHeatingFromWhereItsDataBegin();

    void ListsNoPartThatFits();
    void FindsTheRowsOfSizesInEitherCode();
    void ListsOnlySoMany();
    void TakesUnitsAndBareNumbers();
    void SharesFiltersWithTheListOfParts();

    void RefusesWithOneLine_data();
    void RefusesWithOneLine();
};

static QStringList Words(const char* text)
{
    return QString::fromUtf8(text).split(' ', Qt::SkipEmptyParts);
}

static Run Find(const char* words)
{
    return RunCommandLine(QStringList{"find"} + Words(words));
}

/// The answer row by row, each value by the heading of its column.
class Answer
{
public:
    explicit Answer(const char* words)
    {
        const Run run = RunCommandLine(QStringList{"find", "--format", "csv"} + Words(words));
        Messages = run.Messages;
        const auto lines = QString::fromUtf8(run.Output).split('\n', Qt::SkipEmptyParts);
        const auto headings = lines.value(0).split(',');
        for (const auto& line : lines.sliced(std::min<qsizetype>(1, lines.size())))
        {
            QHash<QString, QString> row;
            const auto fields = line.split(',');
            for (qsizetype i = 0; i < headings.size(); ++i)
            {
                row.insert(headings[i], fields.value(i));
            }
            rows << row;
        }
    }

    qsizetype Count() const { return rows.size(); }
    QString Part(int row) const { return rows.value(row).value("part"); }
    QString Text(int row, const char* heading) const
    {
        return rows.value(row).value(QString::fromUtf8(heading));
    }
    double Value(int row, const char* heading) const { return Text(row, heading).toDouble(); }
    /// The first row of a size and characteristic.
    int RowOf(const char* size, const char* tcc) const
    {
        for (int i = 0; i < rows.size(); ++i)
        {
            if (rows[i].value("size") == size && rows[i].value("characteristic") == tcc)
            {
                return i;
            }
        }
        return -1;
    }

    QByteArray Messages;

private:
    QList<QHash<QString, QString>> rows;
};

static bool IsAbout(double value, double told, double halfAPlace)
{
    return std::abs(value - told) <= halfAPlace;
}

// ---- The questions ----

void FindTest::KeepsCapacitanceUnderBiasAndHeat()
{
    const Answer answer("--dc-bias 12V --ambient 85C --min-capacitance 6uF --max-size 1206");
    QCOMPARE(answer.Count(), 1);
    QCOMPARE(answer.Part(0), "KTS31NB51C226MA01");
    QVERIFY(IsAbout(answer.Value(0, "effective capacitance [pF]"), 6.28e6, 0.005e6));
    QVERIFY(IsAbout(answer.Value(0, "left [%]"), 28.5, 0.05));
    QVERIFY(answer.Messages.startsWith("tavik-cli: 1 part fits; left out: "));
}

void FindTest::StaysCoolUnderRipple()
{
    const Answer answer(
        "--capacitance 10uF --dc-bias 12V --frequency 300kHz --current 1.5Arms --max-rise 20C "
        "--sort -rise");
    QCOMPARE(answer.Count(), 25);
    QCOMPARE(answer.Messages, QByteArray("tavik-cli: 25 parts fit; left out: 21 bias too high\n"));
    QCOMPARE(answer.Text(0, "size"), "0805");
    struct Row
    {
        const char* Size;
        const char* Tcc;
        double Rise;
        double Allowed;
    };
    for (const Row& row : {Row{"0805", "X5R", 2.03, 4.71}, Row{"1206", "X5R", 1.31, 5.87},
                           Row{"1206", "X7R", 0.92, 6.98}, Row{"1210", "X7R", 0.57, 8.87}})
    {
        const int found = answer.RowOf(row.Size, row.Tcc);
        QVERIFY2(found >= 0, row.Size);
        QVERIFY2(IsAbout(answer.Value(found, "rise [°C]"), row.Rise, 0.006), row.Size);
        QVERIFY2(IsAbout(answer.Value(found, "current [Arms]"), row.Allowed, 0.01), row.Size);
    }
}

void FindTest::TellsWhatOnePartBears()
{
    const Answer answer("KTS31NB51E106MA01 --frequency 400kHz --max-rise 20C");
    QCOMPARE(answer.Count(), 1);
    QVERIFY(IsAbout(answer.Value(0, "current [Arms]"), 6.311, 0.0005));
    QVERIFY(IsAbout(answer.Value(0, "voltage [Vrms]"), 0.2124, 0.00005));
    QVERIFY(IsAbout(answer.Value(0, "apparent power [VA]"), 1.340, 0.0005));
    QVERIFY(IsAbout(answer.Value(0, "effective power [W]"), 0.1905, 0.00005));
    QCOMPARE(answer.Text(0, "rise [°C]"), "");
    QCOMPARE(answer.Messages, QByteArray());
}

void FindTest::TakesTheLeastBoard()
{
    const Answer answer("--parallel auto --min-capacitance 22uF --dc-bias 12V --ambient 85C --max-size 1206");
    QCOMPARE(answer.Part(0), "KTS31NB51C226MA01");
    QCOMPARE(answer.Text(0, "count"), "4");
    QVERIFY(IsAbout(answer.Value(0, "area [mm²]"), 20.5, 0.05));
    QVERIFY(answer.Value(0, "total [pF]") >= 22e6);
}

void FindTest::SharesTheRipple()
{
    const Answer answer("--parallel auto --min-capacitance 10uF --dc-bias 12V --ambient 70C "
                        "--frequency 500kHz --current 4Arms");
    QCOMPARE(answer.Part(0), "KTS32XR71C226KA01");
    QCOMPARE(answer.Text(0, "count"), "1");
    QVERIFY(IsAbout(answer.Value(0, "effective capacitance [pF]"), 10.5e6, 0.05e6));
    QVERIFY(IsAbout(answer.Value(0, "area [mm²]"), 8.0, 0.05));
    QVERIFY(IsAbout(answer.Value(0, "body [°C]"), 72.8, 0.05));
    QVERIFY(IsAbout(answer.Value(0, "ripple [Vrms]"), 0.122, 0.0005));
    const int small = answer.RowOf("0805", "X5R");
    QCOMPARE(answer.Part(small), "KTS21JB51C106MA01");
    QCOMPARE(answer.Text(small, "count"), "4");
    const int middle = answer.RowOf("1206", "X5R");
    QCOMPARE(answer.Part(middle), "KTS31NB51C156MA01");
    QCOMPARE(answer.Text(middle, "count"), "2");
    QVERIFY(small < middle);
}

void FindTest::KeepsCapacitanceInTheCold()
{
    const char* cold = "--dc-bias 5V --ambient -20C --min-left 75 --min-capacitance 0.7uF --max-size 0603 "
                       "--sort -effective-capacitance";
    const Answer answer(cold);
    QCOMPARE(answer.Count(), 9);
    QCOMPARE(answer.Part(0), "KTS188B51E155MA01");
    QVERIFY(IsAbout(answer.Value(0, "effective capacitance [pF]"), 1.16e6, 0.005e6));
    QVERIFY(IsAbout(answer.Value(0, "left [%]"), 77.4, 0.05));
    // Nothing is known of heating below 20 °C.
    const auto loaded = (QByteArray(cold) + " --frequency 300kHz --current 0.1");
    const Answer none(loaded.constData());
    QCOMPARE(none.Count(), 0);
    QVERIFY2(none.Messages.contains("temperature out of range"), none.Messages);
}

// ---- Lists ----

// ---- The questions over ranges ----

void FindTest::HoldsEverywhereInRanges_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("part");
    QTest::addColumn<double>("leastMicrofarads");
    QTest::addColumn<QString>("bias");
    QTest::addColumn<QString>("ambient");
    const auto row = [](const char* name, const QByteArray& words, int count, const char* part = "",
                        double least = 0, const char* bias = "", const char* ambient = "")
    { QTest::newRow(name) << words << count << part << least << bias << ambient; };
    const QByteArray rail = "--dc-bias 10.8..13.2V --ambient -20..85C --max-size 1206 ";
    row("what the point has, no part has everywhere", rail + "--tolerance 10 --min-capacitance 6uF", 0);
    row("three have less", rail + "--tolerance 10 --min-capacitance 4uF", 3, "KTS31NB51C156MA01", 4.34,
        "13.2", "85");
    row("some bear a ripple at 85 degrees",
        "--capacitance 10uF --dc-bias 10.8..13.2V --ambient 20..85C --frequency 270..330kHz --current "
        "1.5Arms "
        "--max-rise 20C",
        8, "KTS31NR71C106KA01", 4.33, "13.2", "85");
    row("one more in parallel", rail + "--tolerance 20 --parallel auto --min-capacitance 22uF", 134,
        "KTS31NB51C226MA01", 4.598, "13.2", "85");
    row("the ripple at the worst",
        "--parallel auto --min-capacitance 10uF --dc-bias 10.8..13.2V --ambient 20..70C "
        "--frequency 450..550kHz --current 4Arms --tolerance 10",
        375, "KTS32XB51C336MA01", 10.48, "13.2", "70");
    row("in the cold too",
        "--dc-bias 4.75..5.25V --ambient -20..60C --tolerance 10 --min-left 70 --min-capacitance 0.7uF "
        "--max-size 0603 --sort -effective-capacitance",
        3, "KTS188B51E105MA01", 0.7188, "5.25", "60");
}

void FindTest::HoldsEverywhereInRanges()
{
    QFETCH(QByteArray, words);
    QFETCH(int, count);
    QFETCH(QString, part);
    QFETCH(double, leastMicrofarads);
    const Answer answer(words.constData());
    QCOMPARE(answer.Count(), count);
    if (count > 0)
    {
        QCOMPARE(answer.Part(0), part);
        QVERIFY(IsAbout(answer.Value(0, "effective capacitance [pF]"), leastMicrofarads * 1e6, 0.005e6));
        QTEST(answer.Text(0, "least at bias [V]"), "bias");
        QTEST(answer.Text(0, "least at ambient [°C]"), "ambient");
    }
}

void FindTest::JudgesHeatingFromWhereItsDataBegin()
{
    const Answer answer(
        "KTS31NB51C226MA01 --dc-bias 12V±10% --ambient -20..65C --frequency 300kHz --current 1A");
    QCOMPARE(answer.Count(), 1);
    QCOMPARE(answer.Messages,
             "tavik-cli: 1 part fits; rise and loads judged from 20 C up, where the heating data begins\n");
}

void FindTest::ListsNoPartThatFits()
{
    const Run json = Find("KTS31NB51E106MA01 --dc-bias 26V --format json");
    QCOMPARE(json.Status, 0);
    QVERIFY(QJsonDocument::fromJson(json.Output).isArray());
    QVERIFY(QJsonDocument::fromJson(json.Output).array().isEmpty());
    QCOMPARE(json.Messages, QByteArray("tavik-cli: no part fits; left out: 1 bias too high\n"));
    const Run csv = Find("nothing --format csv");
    QCOMPARE(csv.Status, 0);
    QCOMPARE(csv.Output.count('\n'), 1);
    QCOMPARE(csv.Messages, QByteArray("tavik-cli: no part fits\n"));
}

void FindTest::FindsTheRowsOfSizesInEitherCode()
{
    const auto sizes = [](const char* words)
    {
        const Answer answer(words);
        QSet<QString> found;
        for (int i = 0; i < answer.Count(); ++i)
        {
            found << answer.Text(i, "size");
        }
        return found;
    };
    QCOMPARE(sizes("--max-size 0603"), (QSet<QString>{"0201", "0402", "0603"}));
    QCOMPARE(sizes("--max-size 0603 --code jis"), (QSet<QString>{"0603"}));
    QCOMPARE(sizes("--max-size 1005"), (QSet<QString>{"0201", "0402"}));
    QCOMPARE(sizes("--max-size 0402 --code jis"), (QSet<QString>{"0603", "1005"}));
}

void FindTest::ListsOnlySoMany()
{
    const Answer answer("--capacitance 10uF --dc-bias 12V --limit 3");
    QCOMPARE(answer.Count(), 3);
    QVERIFY2(answer.Messages.contains(" parts fit; left out: "), answer.Messages);
    QVERIFY(!answer.Messages.contains("tavik-cli: 3 parts"));
}

void FindTest::TakesUnitsAndBareNumbers()
{
    const Run bare = Find("KTS31N --dc-bias 12 --ambient 85 --frequency 300 --heat-resistance 50 "
                          "--parameter current=1.5 --min-capacitance 1000000 --min-left 10 --max-rise 20 "
                          "--max-loss-resistance 6");
    const Run units = Find("KTS31N --dc-bias 12V --ambient 85C --frequency 0.3MHz --heat-resistance 50C/W "
                           "--current 1500mA --min-capacitance 1uF --min-left 10% --max-rise 20°C "
                           "--max-loss-resistance 0.006Ω");
    QCOMPARE(bare.Status, 0);
    QVERIFY(bare.Output.count('\n') > 1);
    QCOMPARE(units.Output, bare.Output);
    QCOMPARE(units.Messages, bare.Messages);
}

void FindTest::SharesFiltersWithTheListOfParts()
{
    // With a frequency every part of these has some column.
    const QByteArray filter = "KTS --size 1206 --characteristic X7R --capacitance 1uF..10uF";
    const auto found = [&](const QByteArray& more)
    { return Answer((filter + " --frequency 100 " + more).constData()).Count(); };
    const auto listed = [&](const QByteArray& more)
    {
        const auto words = Words((filter + more).constData());
        return RunCommandLine(QStringList{"parts", "--format", "csv"} + words).Output.count('\n') - 1;
    };
    QVERIFY(listed(" --rated-voltage 16V..") > 1);
    QVERIFY(listed("") > listed(" --rated-voltage 16V.."));
    QCOMPARE(found("--rated-voltage 16V.."), listed(" --rated-voltage 16V.."));
    QCOMPARE(found("--min-rated-voltage 16V"), listed(" --rated-voltage 16V.."));
    QCOMPARE(found("--min-rated-voltage 16V --rated-voltage ..25V"), listed(" --rated-voltage 16V..25V"));
    QCOMPARE(found("--rated-voltage ..16V --min-rated-voltage 17V"), 0);
}

// ---- Refusals ----

void FindTest::RefusesWithOneLine_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* words, int status, const char* message)
    { QTest::newRow(name) << QString::fromUtf8(words) << status << QString::fromUtf8(message); };
    row("bias below zero", "KTS31NB51E106MA01 --dc-bias -1V", 1,
        "--dc-bias -1V: DC Bias Voltage is invalid! Please enter a Number from 0 to 25[V]");
    row("frequency", "--frequency 5kHz", 1,
        "--frequency 5kHz: Frequency is invalid! Please enter a Number from 10 to 1000 [kHz]");
    row("no frequency for a load", "--current 1", 1,
        "--frequency is not given: Frequency is invalid! Please enter a Number from 10 to 1000 [kHz]");
    row("no frequency for a loss", "--max-loss-resistance 3mOhm", 1,
        "--frequency is not given: Frequency is invalid! Please enter a Number from 10 to 1000 [kHz]");
    row("heat resistance", "--heat-resistance 0", 1,
        "--heat-resistance 0: Heat Resistance is invalid! Please enter a Number from 0 [C/W]");
    row("current below zero", "--frequency 100 --current -1A", 1,
        "--current -1A: Parameter is invalid! Please enter a Number from 0 [Arms]");
    row("power below zero", "--frequency 100 --parameter effective-power=-1W", 1,
        "--parameter -1W: Parameter is invalid! Please enter a Number from 0 [W]");
    row("rise of nothing", "--max-rise 0", 1,
        "--max-rise 0: Temperature Rise is invalid! Please enter a Number above 0, up to 80 [C]");
    row("least capacitance", "--min-capacitance -1pF", 1,
        "--min-capacitance -1pF: Capacitance is invalid! Please enter a Number from 0 [pF]");
    row("none in parallel", "--parallel 0", 1, "--parallel 0: Please enter a whole Number from 1 to 100");
    row("half a part in parallel", "--parallel 1.5", 1,
        "--parallel 1.5: Please enter a whole Number from 1 to 100");
    row("limit of none", "--limit 0", 1, "--limit 0: Please enter a whole Number from 1 to 1000000000");
    row("size", "--max-size 1207", 1,
        "no size \"1207\"; there are 0201, 0402, 0603, 0805, 1206, 1210, 1812, 2220");
    row("size in JIS code", "--max-size 1207 --code jis", 1,
        "no size \"1207\"; there are 0603, 1005, 1608, 2012, 3216, 3225, 4532, 5750");
    row("unit", "--dc-bias 5A", 2, "--dc-bias \"5A\": \"A\" is not the unit of a voltage");
    row("unit of a load", "--parameter voltage=5A", 2,
        "--parameter \"5A\": \"A\" is not the unit of an r.m.s. voltage");
    row("range upside down", "--rated-voltage 25V..10V", 2,
        "--rated-voltage \"25V..10V\" ends below where it begins");
    row("no number", "--min-left much", 2, "--min-left \"much\" is not a number");
    row("no number of parts", "--parallel some", 2, "--parallel \"some\" is not a whole number");
    row("two loads", "--frequency 100 --current 1 --parameter voltage=1", 2,
        "--current and --parameter are two loads: leave one out");
    row("unknown load", "--parameter force=1", 2,
        "parameter \"force\" is none of: current, voltage, effective-power, apparent-power");
    row("no load", "--parameter 5", 2, "--parameter \"5\": wants NAME=VALUE, for example current=1.5");
    row("range from above", "--dc-bias 13.2..10.8", 1,
        "--dc-bias 13.2..10.8: DC Bias Voltage 13.2..10.8: the first must not be above the second");
    row("range below zero", "KTS31NB51E106MA01 --dc-bias -1..5V", 1,
        "--dc-bias -1..5V: DC Bias Voltage is invalid! Please enter a Number from 0 to 25[V]");
    row("range with an open end", "--ambient 20..", 2,
        "--ambient \"20..\" is not a range: an end is left open");
    row("range of a load", "--frequency 100 --current 1..2A", 2,
        "--current \"1..2A\" is a range, which is not taken here: enter the largest");
    row("range of a want", "--min-left 50+-10%", 2,
        "--min-left \"50+-10%\" is a range, which is not taken here: enter one value");
    row("power in a range", "--frequency 100..200 --parameter effective-power=1", 2,
        "--parameter effective-power takes no ranges of conditions: leave one out");
    row("tolerance", "--tolerance 100", 1,
        "--tolerance 100: Tolerance is invalid! Please enter a Number from 0 to 99 [%] down and from 0 to "
        "999 "
        "[%] up");
    row("order of what is not asked for", "--sort rise", 2, "key \"rise\" wants a load");
    row("order of ripple", "--frequency 100 --parameter voltage=1 --sort -ripple", 2,
        "key \"ripple\" wants a current");
    row("order of counts", "--sort count", 2, "key \"count\" wants parts in parallel");
}

void FindTest::RefusesWithOneLine()
{
    QFETCH(const QString, words);
    QFETCH(const int, status);
    QFETCH(const QString, message);
    const Run run = Find(words.toUtf8().constData());
    QCOMPARE(run.Status, status);
    QCOMPARE(QString::fromUtf8(run.Messages), "tavik-cli: " + message + '\n');
    QCOMPARE(run.Output, QByteArray());
}

QTEST_GUILESS_MAIN(FindTest)
#include "FindTest.moc"
