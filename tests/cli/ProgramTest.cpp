/// The built command line from end to end: results, messages and exit statuses, and files left behind.

#include "tests/cli/CommandLine.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

#include <fcntl.h>
#include <sys/stat.h>

class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void AnswersTheVectors();
    void AnswersRequestsFromAFileIntoAFile();
    void AnswersEachRequestAtOnce();

    void EndsBadInputWithOneLine_data();
    void EndsBadInputWithOneLine();
    void LeavesAnOldFileAsItWas();
    void TellsABrokenPair_data();
    void TellsABrokenPair();
    void TellsThatStandardOutputIsFull();
    void TellsThatADeviceIsFull();
    void WritesIntoAPipe();
    void ReadsNoEndlessInput();

    void HasHelpAndVersion();
    void WritesTheDateAsked();

private:
    QString InFolder(const char* name) const { return folder->filePath(QString::fromLatin1(name)); }
    std::unique_ptr<QTemporaryDir> folder;
};

static const QString medium = QStringLiteral("KTS31NB51E106MA01");

static QStringList Words(const char* text)
{
    return QString::fromLatin1(text).split(' ', Qt::SkipEmptyParts);
}

static QByteArray Contents(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ProgramTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

// ---- Streams of requests ----

static QJsonObject RequestOfVector(const QJsonObject& vector)
{
    static const char* const charts[] = {"temperature-rise", "allowable-power", "capacitance-temperature",
                                         "capacitance-dc-voltage"};
    QJsonObject request{{"part", vector["partNum"]},
                        {"chart", charts[vector["chartType"].toInt()]},
                        {"x", vector["xAxis"]},
                        {"y", vector["yAxis"]},
                        {"dcBias", vector["dcBias"]},
                        {"frequency", vector["frequency"]},
                        {"heatResistance", vector["heatResistance"]},
                        {"ambient", vector["ambientTemp"]},
                        {"code", vector["codeForm"].toInt() == 0 ? "eia" : "jis"}};
    if (!vector["parameterName"].toString().isEmpty())
    {
        request["parameter"] = vector["parameterName"];
        request["parameterValue"] = vector["parameterValue"];
    }
    return request;
}

/// Agreement of two singles that were computed in double precision in different ways.
static bool IsNear(const QJsonValue& actual, const QJsonValue& expected)
{
    return actual.isDouble() &&
           std::abs(actual.toDouble() - expected.toDouble()) <= 2.5e-7 * std::abs(expected.toDouble());
}

static bool IsExpected(const QJsonObject& answer, const QJsonObject& expect)
{
    const auto error = answer["error"].toObject();
    if (expect.contains("error"))
    {
        return error["number"] == expect["error"];
    }
    if (expect.contains("refused"))
    {
        const auto refused = expect["refused"].toObject();
        // The form shows the message on two lines, an answer on one.
        const auto message = refused["message"].toString().replace("\r\n", " ");
        return IsNear(error["limit"], refused["limit"]) && error["message"] == message;
    }
    bool near = answer["x"].toArray().size() == 200 && answer["y"].toArray().size() == 200;
    const auto at = expect["at"].toArray();
    for (qsizetype i = 0; i < at.size(); ++i)
    {
        const auto point = at[i].toInt();
        near = near && IsNear(answer["x"].toArray()[point], expect["x"].toArray()[i]) &&
               IsNear(answer["y"].toArray()[point], expect["y"].toArray()[i]);
    }
    for (const char* limit : {"xMax", "yMax", "xMin", "yMin"})
    {
        near = near && IsNear(answer[QLatin1String(limit)], expect[QLatin1String(limit)]);
    }
    return near && IsNear(answer["extraValue"], expect["extra"]);
}

void ProgramTest::AnswersTheVectors()
{
    const QString vectors = QStringLiteral(TEST_DATA "/calc/vectors");
    QList<QJsonObject> expected;
    QByteArray requests;
    for (const QByteArray& line : Contents(vectors + "/curves.jsonl").trimmed().split('\n'))
    {
        const auto vector = QJsonDocument::fromJson(line).object();
        expected << vector["expect"].toObject();
        requests += QJsonDocument(RequestOfVector(vector)).toJson(QJsonDocument::Compact) + '\n';
    }
    QCOMPARE(expected.size(), 444);

    const Run run = RunCommandLine(
        {"curve", "--requests", "-", "--unchecked", "--data", vectors, "--format", "json"}, requests);
    const auto answers = run.Output.trimmed().split('\n');
    QCOMPARE(answers.size(), expected.size());
    for (qsizetype i = 0; i < answers.size(); ++i)
    {
        const auto answer = QJsonDocument::fromJson(answers[i]).object();
        QVERIFY2(IsExpected(answer, expected[i]), qPrintable(QStringLiteral("vector %1").arg(i + 1)));
    }
    // Some vectors have no curve, which is told once more where people look.
    QCOMPARE(run.Status, 1);
    QCOMPARE(run.Messages.count('\n'), 1);
}

/// How every answer with a curve begins.
static constexpr const char* curveBegin = "{\"schemaVersion\":1,\"part\"";

void ProgramTest::AnswersRequestsFromAFileIntoAFile()
{
    QFile requests(InFolder("requests.jsonl"));
    QVERIFY(requests.open(QIODevice::WriteOnly));
    requests.write("{\"part\":\"KTS31NB51E106MA01\",\"chart\":\"capacitance-dc-voltage\"}\r\n\n"
                   "{\"part\":\"nothing\",\"chart\":\"capacitance-dc-voltage\"}\n"
                   "{\"part\":\"KTS31NB51E106MA01\",\"chart\":\"capacitance-temperature\",\"dcBias\":5}");
    requests.close();
    const Run run =
        RunCommandLine({"curve", "--requests", requests.fileName(), "--output", InFolder("answers.jsonl")});
    QCOMPARE(run.Status, 1);
    QCOMPARE(run.Output, QByteArray());
    const auto answers = Contents(InFolder("answers.jsonl")).split('\n');
    QCOMPARE(answers.size(), 5);
    QVERIFY(answers[0].startsWith(curveBegin));
    QCOMPARE(answers[1], QByteArray("{\"schemaVersion\":1,\"error\":{\"number\":5,\"code\":\"blank-line\","
                                    "\"message\":\"the line is blank\",\"line\":2}}"));
    QCOMPARE(answers[2],
             QByteArray(
                 "{\"schemaVersion\":1,\"error\":{\"number\":5,\"code\":\"unknown-part\",\"message\":"
                 "\"there is no part \\\"nothing\\\"\",\"line\":3,\"part\":\"nothing\",\"key\":\"part\"}}"));
    QVERIFY(answers[3].startsWith(curveBegin));
    QCOMPARE(answers[4], QByteArray());
}

void ProgramTest::AnswersEachRequestAtOnce()
{
    QProcess program;
    program.start(CommandLineProgram(), Words("curve --requests -"));
    for (int i = 0; i < 3; ++i)
    {
        program.write("{\"part\":\"KTS31NB51E106MA01\",\"chart\":\"capacitance-dc-voltage\"}\n");
        QByteArray answer;
        while (!answer.endsWith('\n'))
        {
            QVERIFY(program.waitForReadyRead(10000));
            answer += program.readAllStandardOutput();
        }
        QVERIFY(answer.startsWith(curveBegin));
    }
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished(10000));
    QCOMPARE(program.exitCode(), 0);
}

// ---- Bad input ----

void ProgramTest::EndsBadInputWithOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* words, int status, const char* message)
    { QTest::newRow(name) << Words(words) << status << QString::fromLatin1(message); };
    row("no command", "", 2, "a command is missing (see tavik-cli --help)");
    row("unknown command", "plot", 2, "The following argument was not expected: plot (see tavik-cli --help)");
    row("unknown option", "curve --bias 3", 2,
        "The following argument was not expected: --bias (see tavik-cli --help)");
    row("nearly a command", "cruve", 2,
        "The following argument was not expected: cruve; did you mean \"curve\"? (see tavik-cli --help)");
    row("nearly a command below one", "data chek", 2,
        "The following argument was not expected: chek; did you mean \"check\"? (see tavik-cli --help)");
    row("nearly an option", "curve A --dcbias=3", 2,
        "The following argument was not expected: --dcbias=3; did you mean \"--dc-bias\"? (see tavik-cli "
        "--help)");
    row("an option before its command", "--data=p parts", 2,
        "The following argument was not expected: --data=p; --data stands behind the command that takes it "
        "(see "
        "tavik-cli --help)");
    row("unknown arguments in their order", "curve A --bias B C", 2,
        "The following arguments were not expected: --bias B C (see tavik-cli --help)");
    row("nearly a chart of a list", "parts --chart allowable-powr", 2,
        "chart \"allowable-powr\" is none of: temperature-rise, allowable-power, capacitance-temperature, "
        "capacitance-dc-voltage, loss-resistance; did you mean \"allowable-power\"?");
    row("no part", "curve --chart allowable-power", 2, "curve wants a part number, or --requests");
    row("no chart", "curve KTS31NB51E106MA01", 2, "curve wants --chart");
    row("unknown chart", "curve KTS31NB51E106MA01 --chart power", 2,
        "chart \"power\" is none of: temperature-rise, allowable-power, capacitance-temperature, "
        "capacitance-dc-voltage, loss-resistance");
    row("unknown format", "curve KTS31NB51E106MA01 --chart allowable-power --format xml", 2,
        "--format: xml not in {tvk,csv,json} (see tavik-cli --help)");
    row("foreign unit", "curve KTS31NB51E106MA01 --chart allowable-power --dc-bias 5kHz", 2,
        "--dc-bias \"5kHz\": \"kHz\" is not the unit of a voltage");
    row("text for a number", "curve KTS31NB51E106MA01 --chart allowable-power --dc-bias much", 2,
        "--dc-bias \"much\" is not a number");
    row("a refused value as typed", "curve KTS31NB51E106MA01 --chart allowable-power --dc-bias 12kV", 1,
        "KTS31NB51E106MA01: --dc-bias 12kV: DC Bias Voltage is invalid! Please enter a Number from 0 "
        "under 25[V]");
    row("a name that is nearly one", "curve KTS31NB51E106MA01 --chart allowable-powr", 2,
        "chart \"allowable-powr\" is none of: temperature-rise, allowable-power, capacitance-temperature, "
        "capacitance-dc-voltage, loss-resistance; did you mean \"allowable-power\"?");
    row("points in a data file", "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --at 5 --format tvk",
        2, "--at and --where are answered in csv or json: leave out --format tvk");
    row("a loss resistance in a data file", "curve KTS31NB51E106MA01 --chart loss-resistance --format tvk", 2,
        "--chart loss-resistance is answered in csv or json: leave out --format tvk");
    row("a loss resistance over another axis", "curve KTS31NB51E106MA01 --chart loss-resistance --x current",
        2, "X axis \"current\" is none of: Frequency");
    row("another quantity of a loss resistance",
        "curve KTS31NB51E106MA01 --chart loss-resistance --y current", 2,
        "Y axis \"current\" is none of: Loss Resistance");
    row("a loss resistance without heating data", "curve KTU033R71E101KA01 --chart loss-resistance", 1,
        "KTU033R71E101KA01: has no data for chart loss-resistance");
    row("a loss resistance where nothing was measured",
        "chart KTS31NB51E106MA01 --chart loss-resistance --ambient 19 --format svg", 1,
        "KTS31NB51E106MA01: --ambient 19: Ambient Temperature is invalid! Please enter a Number from 20 to "
        "85 [C]");
    row("a point beyond the curve", "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --at 5,26", 1,
        "KTS31NB51E106MA01: --at 26: the curve reaches from 0 to 25 [V] of DC Bias Voltage");
    row("a level that is no number", "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --where ,", 2,
        "--where \"\" is not a number");
    row("parameter without a value", "curve KTS31NB51E106MA01 --chart temperature-rise --parameter current",
        2, "--parameter \"current\": wants NAME=VALUE, for example current=1.5");
    row("requests as a data file", "curve --requests - --format tvk", 2,
        "--requests is answered in JSON only: leave out --format tvk");
    row("unknown part", "curve KTS --chart allowable-power", 1, "KTS: there is no part \"KTS\"");
    row("out of range", "curve KTS31NB51E106MA01 --chart allowable-power --dc-bias 25V", 1,
        "KTS31NB51E106MA01: --dc-bias 25V: DC Bias Voltage is invalid! Please enter a Number from 0 under "
        "25[V]");
    row("a bank of nothing", "bank --current 1", 2, "bank wants a part number");
    row("a bank without a current", "bank KTS31NB51E106MA01", 2, "bank wants --current");
    row("a current without a frequency", "bank KTS31NB51E106MA01 --current 1", 1,
        "--frequency is not given: Frequency is invalid! Please enter a Number from 10 to 1000 [kHz]");
    row("a frequency beside those of currents", "bank KTS31NB51E106MA01 --frequency 100 --current 100=1", 2,
        "--frequency stands beside the frequencies of currents: leave it out");
    row("a current in a wrong unit", "bank KTS31NB51E106MA01 --current 100kHz=1V", 2,
        "--current \"1V\": \"V\" is not the unit of a current");
    row("a piece above its bias", "bank KTS32XR71E106KA01 KTS31NR71A226KA01 --dc-bias 11V --current 100=1", 1,
        "KTS31NR71A226KA01: --dc-bias 11V: DC Bias Voltage is invalid! Please enter a Number from 0 to "
        "10[V]");
    row("a piece without heating data", "bank KTU033R71E101KA01 --current 100=1", 1,
        "KTU033R71E101KA01: no heating data");
    row("a bank below and above", "bank KTS31NB51E106MA01 --dc-bias 5..4 --current 100=1", 1,
        "--dc-bias 5..4: DC Bias Voltage 5..4: the first must not be above the second");
    row("a bank over an open range", "bank KTS31NB51E106MA01 --dc-bias 5.. --current 100=1", 2,
        "--dc-bias \"5..\" is not a range: an end is left open");
    row("a bank of an unknown part", "bank KTS --current 100=1", 1, "KTS: there is no part \"KTS\"");
    row("no request file", "curve --requests /nowhere/requests", 1, "/nowhere/requests: cannot be read");
    row("a folder of requests", "curve --requests /", 1, "/: cannot be read");
    row("no data folder", "curve A --chart allowable-power --data /nowhere", 1,
        "Run-time error '76': Path not found: /nowhere");
    row("no part files", "parts --data /", 1, "Run-time error '53': File not found: /*.idx");
    row("no folder for the output",
        "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --output /nowhere/file", 1,
        "Run-time error '76': Path not found: /nowhere/file");
    row("a folder as output", "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --output /", 2,
        "--output: \"/\" is a folder, not a file (see tavik-cli --help)");
    row("capacitance in volts", "parts --capacitance 5V", 2,
        "--capacitance \"5V\": \"V\" is not the unit of a capacitance");
    row("picture of no format", "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --output a.bmp", 2,
        "--output \"a.bmp\" ends in none of: .png, .svg, .pdf; say which with --format");
    row("picture of no size",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --size big", 2,
        "--size \"big\" is not WIDTHxHEIGHT, for example 725x248");
    row("picture too large",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --scale 1000", 1,
        "a picture is from 1 to 20000 pixels wide and high");
    row("range out of range", "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --x-to 51",
        1, "Set X Range of DC Bias Voltage from 0 to 50 [V]");
    row("the same line twice",
        "chart KTS31NB51E106MA01 KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png", 1,
        "KTS31NB51E106MA01 (line 2): is line 1 already");
    row("range upside down",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --x-from 10V --x-to 5", 1,
        "--x-from 10V is not below 5");
    row("picture beyond all measure",
        "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png --scale 1e9", 1,
        "a picture is from 1 to 20000 pixels wide and high");
    row("standard input for two files", "bom - --conditions -", 2,
        "standard input can be read only once; name a file for all else");
    row("help on no command", "help chrt", 2,
        "there is no command \"chrt\"; did you mean \"chart\"? (see tavik-cli --help)");
    row("misspelt option", "curve KTS31NB51E106MA01 more --chrt x", 2,
        "The following arguments were not expected: more --chrt x; did you mean \"--chart\"? (see tavik-cli "
        "--help)");
}

void ProgramTest::EndsBadInputWithOneLine()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const QString, message);
    QStringList withOutput = arguments;
    const bool writes = QStringList{"parts", "curve", "chart"}.contains(arguments.value(0)) &&
                        !arguments.contains("--output");
    if (writes)
    {
        withOutput << "--output" << InFolder("result.png");
    }
    const Run run = RunCommandLine(withOutput);
    QCOMPARE(run.Status, status);
    QCOMPARE(run.Output, QByteArray());
    QCOMPARE(run.Messages, "tavik-cli: " + message.toUtf8() + '\n');
    QVERIFY(QDir(folder->path()).isEmpty());
}

void ProgramTest::LeavesAnOldFileAsItWas()
{
    QFile old(InFolder("old.tvk"));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const QStringList curve = {"curve", medium, "--chart", "allowable-power", "--output", old.fileName()};
    QCOMPARE(RunCommandLine(curve + QStringList{"--dc-bias", "25"}).Status, 1);
    QCOMPARE(Contents(old.fileName()), QByteArray("old"));
    QCOMPARE(RunCommandLine(curve + QStringList{"--dc-bias", "24"}).Status, 0);
    QVERIFY(Contents(old.fileName()).startsWith("!Halvex"));
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"old.tvk"});
}

void ProgramTest::TellsABrokenPair_data()
{
    QTest::addColumn<QByteArray>("index");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* index, const char* message)
    { QTest::newRow(name) << QByteArray(index) << QString::fromLatin1(message); };
    row("index cut short", R"("A","B","C","D","1","2","3")",
        "62': Input past end of file: broken.idx: record 1: field 8");
    row("open quote", "\"A\",\"B\",\"C\",\"D\",\"1\",\"2\",\"3\",\"4\n",
        "62': Input past end of file: broken.idx: record 1: field 8");
    row("a number twice", "A,B,C,D,1,2,3,4\nA,E,F,G,1,2,3,4\n",
        "457': This key is already associated with an element of this collection: broken.idx: record 2: "
        "PartNum(0) \"A\"");
}

void ProgramTest::TellsABrokenPair()
{
    QFETCH(const QByteArray, index);
    QFETCH(const QString, message);
    QFile idx(InFolder("broken.idx"));
    QFile dat(InFolder("broken.dat"));
    QVERIFY(idx.open(QIODevice::WriteOnly) && dat.open(QIODevice::WriteOnly));
    idx.write(index);
    idx.close();
    dat.close();
    const Run run = RunCommandLine({"parts", "--data", folder->path()});
    QCOMPARE(run.Status, 1);
    QCOMPARE(run.Output, QByteArray());
    QCOMPARE(run.Messages, "tavik-cli: Run-time error '" + message.toUtf8() + '\n');
}

void ProgramTest::TellsThatStandardOutputIsFull()
{
    if (!QFile::exists("/dev/full"))
    {
        QSKIP("this system has no full device");
    }
    QProcess program;
    program.setStandardOutputFile("/dev/full");
    program.start(CommandLineProgram(), {"curve", medium, "--chart", "capacitance-dc-voltage"});
    QVERIFY(program.waitForFinished(10000));
    QCOMPARE(program.exitCode(), 1);
    QCOMPARE(program.readAllStandardError(),
             QByteArray("tavik-cli: Run-time error '61': Disk full: standard output\n"));
}

void ProgramTest::TellsThatADeviceIsFull()
{
    if (!QFile::exists("/dev/full"))
    {
        QSKIP("this system has no full device");
    }
    const QStringList curve = {medium, "--chart", "capacitance-dc-voltage", "--output", "/dev/full"};
    for (const auto& command : {QStringList{"curve"} + curve, QStringList{"chart", "--format", "png"} + curve,
                                QStringList{"parts", "--output", "/dev/full"}})
    {
        const Run run = RunCommandLine(command);
        QCOMPARE(run.Messages, QByteArray("tavik-cli: Run-time error '61': Disk full: /dev/full\n"));
        QCOMPARE(run.Status, 1);
    }
}

void ProgramTest::WritesIntoAPipe()
{
    const QByteArray name = QFile::encodeName(InFolder("pipe"));
    QCOMPARE(mkfifo(name.constData(), 0600), 0);
    QFile reader;
    QVERIFY(reader.open(open(name.constData(), O_RDONLY | O_NONBLOCK), QIODevice::ReadOnly,
                        QFileDevice::AutoCloseHandle));
    const QStringList curve = {"curve", medium, "--chart", "capacitance-dc-voltage"};
    const Run run = RunCommandLine(curve + QStringList{"--output", InFolder("pipe")});
    QCOMPARE(run.Messages, QByteArray());
    QCOMPARE(run.Status, 0);
    QCOMPARE(reader.readAll(), RunCommandLine(curve).Output);
    // The pipe itself is still there.
    struct stat pipe = {};
    QCOMPARE(stat(name.constData(), &pipe), 0);
    QVERIFY(S_ISFIFO(pipe.st_mode));
}

// ---- Manners ----

void ProgramTest::ReadsNoEndlessInput()
{
    const QByteArray input((16 << 20) + 1, ' ');
    const Run run = RunCommandLine({QStringLiteral("bom"), QStringLiteral("-")}, input);
    QCOMPARE(run.Status, 1);
    QCOMPARE(run.Messages, QByteArray("tavik-cli: Run-time error '6': Overflow: standard input\n"));
}

void ProgramTest::HasHelpAndVersion()
{
    QCOMPARE(RunCommandLine({"--version"}).Output, QByteArray("tavik-cli " PROGRAM_VERSION "\n"));
    for (const char* command : {"parts", "curve", "chart"})
    {
        const Run run = RunCommandLine({command, "--help"});
        QCOMPARE(run.Status, 0);
        QVERIFY(run.Messages.isEmpty());
        QVERIFY2(run.Output.contains("Examples:\n  tavik-cli " + QByteArray(command)), run.Output);
        QVERIFY(!run.Output.contains('\x1B'));
        QCOMPARE(RunCommandLine({"help", command}).Output, run.Output);
        QCOMPARE(RunCommandLine({command, "--version"}).Output,
                 QByteArray("tavik-cli " PROGRAM_VERSION "\n"));
    }
}

void ProgramTest::WritesTheDateAsked()
{
    const Run run = RunCommandLine(
        {"curve", medium, "--chart", "capacitance-dc-voltage", "--date", QString::fromUtf8("1 März 2026")});
    QCOMPARE(run.Output.split('\r')[0],
             QByteArray("!Halvex Chip Capacitor Characteristics Data Library  1 M\xE4rz 2026"));
}

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
