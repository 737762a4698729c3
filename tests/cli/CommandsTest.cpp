/// The commands of the built command line: what their options choose, and what each refuses.

#include "tests/cli/CommandLine.h"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ListsThePartsOfAFilter_data();
    void ListsThePartsOfAFilter();
    void SaysThatNoPartFits();
    void NamesPartsAsAsked();

    void WritesACurveAsCsv();
    void WritesACurveAsJson();
    void WritesValuesAtPointsAsCsv();
    void WritesWhereACurveTakesAValue();
    void TellsConditionsTypedInVain();
    void ComputesWithoutChecksWhereAsked();
    void TakesTheParameterOfAnOption();
    void DrawsTheParameterOfALine();
    void DrawsTheFrequencyOfALine();

    void RefusesWithOneLine_data();
    void RefusesWithOneLine();
};

static QStringList Words(const char* text)
{
    return QString::fromLatin1(text).split(' ', Qt::SkipEmptyParts);
}

/// Lines of the index of the program's own range that contain a text.
static QList<QByteArray> IndexLinesWith(const char* text)
{
    QFile index(QStringLiteral(SAMPLE_RANGE "/halvex.idx"));
    QList<QByteArray> lines;
    if (index.open(QIODevice::ReadOnly))
    {
        for (const auto& line : index.readAll().split('\n'))
        {
            if (line.contains(text))
            {
                lines << line;
            }
        }
    }
    return lines;
}

// ---- Lists of parts ----

void CommandsTest::ListsThePartsOfAFilter_data()
{
    QTest::addColumn<QStringList>("filter");
    QTest::addColumn<QByteArray>("inIndex");
    const auto row = [](const char* name, const char* filter, const char* inIndex)
    { QTest::newRow(name) << Words(filter) << QByteArray(inIndex); };
    row("all", "", "\"");
    row("a characteristic", "--characteristic Y5V", "\"Y5V\",");
    row("a characteristic in JIS code", "--characteristic B", ",\"B\"");
    row("a size", "--size 0402", "\"0402\",\"1005\"");
    row("a size in JIS code", "--size 1005", "\"0402\",\"1005\"");
    row("a text in small letters", "kts31nb", "KTS31NB");
    row("the whole of a previous number", "HC0201X7R101K025", "HC0201X7R101K025");
    row("size and text", "KTU155 --size 0402", "\"KTU155");
}

void CommandsTest::ListsThePartsOfAFilter()
{
    QFETCH(const QStringList, filter);
    QFETCH(const QByteArray, inIndex);
    const auto expected = IndexLinesWith(inIndex);
    QVERIFY(!expected.isEmpty());

    const Run run = RunCommandLine(QStringList{"parts", "--format", "csv"} + filter);
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Messages, QByteArray());
    const auto lines = run.Output.trimmed().split('\n');
    QCOMPARE(lines.size(), expected.size() + 1);
    for (qsizetype i = 0; i < expected.size(); ++i)
    {
        const auto partNum = lines[i + 1].split(',').first();
        QVERIFY2(expected[i].startsWith('"' + partNum + '"'), partNum);
    }
}

void CommandsTest::SaysThatNoPartFits()
{
    const Run run = RunCommandLine(Words("parts --capacitance 10uF --rated-voltage 9kV --format json"));
    QCOMPARE(run.Status, 0);
    QVERIFY(QJsonDocument::fromJson(run.Output).array().isEmpty());
    QCOMPARE(run.Messages, QByteArray("tavik-cli: no part fits\n"));
}

void CommandsTest::NamesPartsAsAsked()
{
    const auto list = [](const char* naming)
    { return RunCommandLine(Words("parts KTU033R71E101KA01 --format csv") + Words(naming)).Output; };
    QVERIFY(list("").contains("\nKTU033R71E101KA01,0201,X7R,100,25,"));
    QVERIFY(list("--code jis").contains("\nKTU033R01E101KA01,0603,R,100,25,"));
    QVERIFY(list("--numbering previous").contains("\nHC0201X7R101K025,0201,X7R,100,25,"));
    QVERIFY(list("--code jis --numbering previous").contains("\nHC0603R101K025,0603,R,100,25,"));
}

// ---- Curves ----

static const QStringList biasCurve = Words("curve KTS31NB51E106MA01 --chart capacitance-dc-voltage");

void CommandsTest::WritesACurveAsCsv()
{
    const Run run = RunCommandLine(biasCurve + Words("--y Capacitance-Change --format csv"));
    QCOMPARE(run.Status, 0);
    QList<QByteArray> points;
    for (const auto& line : run.Output.trimmed().split('\n'))
    {
        if (!line.startsWith('#'))
        {
            points << line;
        }
    }
    // A heading, and the voltages from 0 to the rated 25 V.
    QCOMPARE(points.size(), 201);
    QVERIFY2(points[1].startsWith("0,"), points[1]);
    QVERIFY2(points[200].startsWith("25,"), points[200]);
}

void CommandsTest::WritesACurveAsJson()
{
    const Run run = RunCommandLine(biasCurve + Words("--ambient 85C --format json"));
    QCOMPARE(run.Status, 0);
    const auto curve = QJsonDocument::fromJson(run.Output).object();
    QCOMPARE(curve["part"].toString(), QStringLiteral("KTS31NB51E106MA01"));
    QCOMPARE(curve["conditions"].toObject()["ambient"].toDouble(), 85.0);
    QCOMPARE(curve["x"].toArray().size(), 200);
    QCOMPARE(curve["x"].toArray().last().toDouble(), 25.0);
    QCOMPARE(curve["y"].toArray().size(), 200);
}

void CommandsTest::WritesValuesAtPointsAsCsv()
{
    const QStringList curve = Words("curve KTS31NB51E106MA01 --chart capacitance-dc-voltage");
    const auto whole = RunCommandLine(curve + Words("--format csv")).Output.split('\n');
    const Run run = RunCommandLine(curve + Words("--at 0,25V"));
    QCOMPARE(run.Messages, QByteArray());
    QCOMPARE(run.Status, 0);
    // The curve's own headings, first and last row.
    QCOMPARE(run.Output.split('\n'), whole.mid(0, 5) + whole.mid(203));
}

void CommandsTest::WritesWhereACurveTakesAValue()
{
    const QStringList change = QStringList{"curve", "KTS31NB51E106MA01", "--chart", "capacitance-dc-voltage",
                                           "--y",   "capacitance-change"};
    const Run run = RunCommandLine(change + Words("--where -50%,0"));
    QCOMPARE(run.Messages, QByteArray());
    const auto lines = run.Output.split('\n');
    QCOMPARE(lines.size(), 7);
    QVERIFY2(lines[4].endsWith(",-50"), lines[4]);
    QCOMPARE(lines[5], QByteArray("0,0"));
    const Run none = RunCommandLine(change + Words("--where 900 --format json"));
    QCOMPARE(none.Status, 0);
    QVERIFY2(none.Output.contains("\"crossings\":[{\"y\":900,\"x\":[]}]"), none.Output);
}

void CommandsTest::TellsConditionsTypedInVain()
{
    const Run curve = RunCommandLine(
        Words("curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --frequency 300 --dc-bias 2 --at 1"));
    QCOMPARE(curve.Status, 0);
    QCOMPARE(curve.Messages, QByteArray("tavik-cli: KTS31NB51E106MA01: capacitance-dc-voltage does not use "
                                        "--dc-bias, --frequency\n"));
    const Run batch =
        RunCommandLine(Words("curve --requests -"),
                       R"({"part":"KTS31NB51E106MA01","chart":"capacitance-dc-voltage","dcBias":1})");
    QCOMPARE(batch.Messages, QByteArray());
}

void CommandsTest::ComputesWithoutChecksWhereAsked()
{
    const auto hot = biasCurve + Words("--ambient 200C --format json");
    QCOMPARE(RunCommandLine(hot).Status, 1);
    const Run run = RunCommandLine(hot + Words("--unchecked"));
    QCOMPARE(run.Messages, QByteArray());
    QCOMPARE(QJsonDocument::fromJson(run.Output).object()["y"].toArray().size(), 200);
}

void CommandsTest::TakesTheParameterOfAnOption()
{
    const Run run = RunCommandLine(Words("curve KTS31NB51E106MA01 --chart temperature-rise --x Frequency "
                                         "--dc-bias 0 --parameter current=1500mA --format csv"));
    QCOMPARE(run.Status, 0);
    QVERIFY2(run.Output.contains("\n# Current: 1.5 [Arms]\n"), run.Output);
    QCOMPARE(run.Messages, QByteArray());
}

void CommandsTest::DrawsTheParameterOfALine()
{
    const QTemporaryDir folder;
    const auto picture = folder.filePath("rise.png");
    const auto chart =
        Words("chart --chart temperature-rise --x Frequency --dc-bias 0") + QStringList{"--output", picture};
    const auto line = [](const char* parameter) {
        return QStringList{"--line", QStringLiteral("KTS31NB51E106MA01 ") + QLatin1String(parameter)};
    };
    const Run run = RunCommandLine(chart + line("current=0.5A") + line("voltage=100mV") +
                                   line("effective-power=10mW") + line("apparent-power=10mVA"));
    QCOMPARE(run.Messages, QByteArray());
    QCOMPARE(run.Status, 0);
    QVERIFY(!QImage(picture).isNull());
}

void CommandsTest::DrawsTheFrequencyOfALine()
{
    const auto chart = [](const char* frequency)
    {
        return RunCommandLine(Words("chart --chart temperature-rise --x Current --format svg --line") +
                              QStringList{QStringLiteral("KTS31NB51E106MA01 dc-bias=0V frequency=") +
                                          QLatin1String(frequency)});
    };
    const Run run = chart("300kHz");
    QCOMPARE(run.Messages, QByteArray());
    QCOMPARE(run.Status, 0);
    QVERIFY(run.Output != chart("100kHz").Output);
}

// ---- Refusals ----

void CommandsTest::RefusesWithOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char* name, const char* words, int status, const char* message)
    { QTest::newRow(name) << Words(words) << status << QByteArray(message); };
    row("parts of an unknown chart", "parts --chart power", 2, "tavik-cli: chart \"power\" is none of: ");
    row("parts rated for no number", "parts --rated-voltage high", 2,
        "--rated-voltage \"high\" is not a number");
    row("range upside down", "parts --capacitance 5uF..1uF", 2,
        "--capacitance \"5uF..1uF\" ends below where it begins");
    row("range without ends", "parts --rated-voltage ..", 2,
        "--rated-voltage \"..\" is neither a number nor a range");
    row("unknown code", "parts --code din", 2, "code \"din\" is none of: eia, jis");
    row("unknown numbering", "parts --numbering next", 2, "numbering \"next\" is none of: global, previous");
    row("chart of no type", "chart KTS31NB51E106MA01 --output a.png", 2, "chart wants --chart");
    row("chart of no part", "chart --chart allowable-power --output a.png", 2,
        "chart wants a part number or a --line");
    row("picture without an extent",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --size 0x100", 2,
        "--size \"0\" is not a number above 0");
    row("scale with a unit", "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --scale 2x",
        2, "--scale \"2x\" is not a number above 0");
    row("end of an axis in another unit",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --x-to 5pF", 2,
        "--x-to \"5pF\": \"pF\" is not the unit of a voltage");
    row("lower end of the other axis in another unit",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --y-from 5V", 2,
        "--y-from \"5V\": \"V\" is not the unit of a capacitance");
    row("chart of a refused condition",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --ambient 86 --format png", 1,
        "KTS31NB51E106MA01: --ambient 86: Ambient Temperature is invalid! Please enter a Number from -55 to "
        "85 [C]");
    row("condition that is not given", "curve KTS31NB51E106MA01 --chart temperature-rise --dc-bias 0", 1,
        "--frequency is not given: Frequency is invalid!");
    row("condition that is no number, unchecked",
        "curve KTS31NB51E106MA01 --chart capacitance-temperature --dc-bias high --unchecked", 2,
        "--dc-bias \"high\" is not a number");
    row("chart that the part has no data for",
        "curve KTU033R71E101KA01 --chart temperature-rise --dc-bias 0 --frequency 300", 1,
        "KTU033R71E101KA01: has no data for chart temperature-rise");
    row("calculation that fails", "curve KTS31NB51E106MA01 --chart temperature-rise --x Current --unchecked",
        1, "Run-time error '11': Division by zero: KTS31NB51E106MA01");
    row("chart whose calculation fails",
        "chart KTS31NB51E106MA01 --chart temperature-rise --x Current --unchecked --format png", 1,
        "Run-time error '11': Division by zero: KTS31NB51E106MA01");
    row("output that is no place", "parts --output /dev/tty/none", 1, "Path not found: /dev/tty/none");
}

void CommandsTest::RefusesWithOneLine()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const QByteArray, message);
    const Run run = RunCommandLine(arguments);
    QCOMPARE(run.Output, QByteArray());
    QVERIFY2(run.Messages.startsWith("tavik-cli: ") && run.Messages.contains(message), run.Messages);
    QCOMPARE(run.Messages.count('\n'), 1);
    QCOMPARE(run.Status, status);
}

QTEST_GUILESS_MAIN(CommandsTest)
#include "CommandsTest.moc"
