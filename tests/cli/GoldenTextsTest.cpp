/// All that the command line says in runs whose answers are long: help, lists, curves and reports of checks.

#include "partdata/ValueNames.h"
#include "tests/Golden.h"
#include "tests/cli/CommandLine.h"
#include "tests/partfiles/SmallPair.h"

#include <QTest>

#include <limits>

class GoldenTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Help_data();
    void Help();
    void Answers_data();
    void Answers();
    void Checks_data();
    void Checks();
    void Tables();

private:
    TemporaryFolder folder;
};

/// A run as a terminal shows it: results, then messages, then the exit status.
static std::string Told(const Run& run)
{
    return (run.Output + "[messages]\n" + run.Messages + "[exit status " + QByteArray::number(run.Status) +
            "]\n")
        .toStdString();
}

static void CompareWithGolden(const std::string& name, const std::string& text)
{
    const auto difference = GoldenDifference("cli/golden/" + name + ".txt", text);
    QVERIFY2(difference.empty(), difference.c_str());
}

static QStringList Words(const QString& text)
{
    return text.split(' ', Qt::SkipEmptyParts);
}

void GoldenTextsTest::Help_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("help") << "--help";
    QTest::newRow("help-parts") << "parts --help";
    QTest::newRow("help-find") << "find --help";
    QTest::newRow("help-bom") << "bom --help";
    QTest::newRow("help-like") << "like --help";
    QTest::newRow("help-curve") << "curve --help";
    QTest::newRow("help-chart") << "chart --help";
    QTest::newRow("help-model") << "model --help";
    QTest::newRow("help-bank") << "bank --help";
    QTest::newRow("help-ripple") << "ripple --help";
    QTest::newRow("help-data") << "data --help";
    QTest::newRow("help-data-check") << "data check --help";
    QTest::newRow("help-data-export") << "data export --help";
    QTest::newRow("help-data-build") << "data build --help";
    QTest::newRow("help-data-fit") << "data fit --help";
    QTest::newRow("help-data-merge") << "data merge --help";
}

void GoldenTextsTest::Help()
{
    QFETCH(const QString, words);
    CompareWithGolden(QTest::currentDataTag(), Told(RunCommandLine(Words(words))));
}

// ---- Lists and curves ----

static const QByteArray someRequests =
    R"({"part":"KTS31NB51E106MA01","chart":"capacitance-dc-voltage","ambient":"85C"}
{"part":"KTS31NB51E106MA01","chart":"temperature-rise","x":"Current","y":"Temperature Rise","frequency":"300kHz"}
{"part":"KTS31NB51E106MA01","chart":"temperature-rise","dcBias":"30V"}
{"part":"KTS31NB51E106MA01","chart":"temperature-rise","dcBias":"5A"}
{"part":"KTS31NB51E106MA01","chart":"allowable-power","dcBias":12,"frequency":300000}
{"part":"KTS31NB51E106MA01","chart":"power"}
{"part":"KTS31NB51E106MA01","chart":"temperature-rise","bias":3}
{"part":"nothing","chart":"capacitance-temperature"}
{"chart":"capacitance-temperature"}
{"part":"KTS31NB51E106MA01"}
["KTS31NB51E106MA01"]
{"part":
)";

void GoldenTextsTest::Answers_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("input");
    const auto row = [](const char* name, const char* words, const QByteArray& input = {})
    { QTest::newRow(name) << QString::fromLatin1(words) << input; };
    row("parts-table", "parts KTS31N --capacitance 10uF");
    row("parts-csv", "parts KTS31N --capacitance 10uF --format csv --code jis --numbering previous");
    row("parts-json", "parts KTS31N --capacitance 10uF --format json");
    row("find-table", "find --parallel auto --min-capacitance 10uF --dc-bias 12V --ambient 70C "
                      "--frequency 500kHz --current 4Arms --limit 12");
    row("find-csv", "find KTS31N --capacitance 10uF --dc-bias 16V --frequency 300kHz --parallel 2 "
                    "--parameter voltage=0.2 --format csv --code jis --numbering previous");
    row("find-json", "find --dc-bias 5V --ambient=-20C --min-left 75 --min-capacitance 0.7uF --max-size 0603 "
                     "--sort=-effective-capacitance --format json");
    row("like-table", "like KTS32XR71E106KA01 --dc-bias 10.8..13.2V --ambient=-10..65C");
    row("like-short", "like KTS32XR71E106KA01 --format csv");
    row("like-json", "like KTS188B51A475MA01 --format json");
    row("like-unknown", "like KTS188B51A475MA02");
    row("like-refused", "like KTS188B51A475MA01 --dc-bias 20V");
    row("curve-tvk", "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --date 1/2/2026");
    row("curve-csv",
        "curve KTS31NB51E106MA01 --chart temperature-rise --dc-bias 12V --frequency 300kHz --format csv");
    row("curve-csv-frequency", "curve KTS31NB51E106MA01 --chart temperature-rise --dc-bias 12V --x Frequency "
                               "--parameter current=2A --format csv");
    row("curve-json", "curve KTS31NB51E106MA01 --chart allowable-power --dc-bias 12V --format json");
    row("curve-ranges",
        "curve KTS31NB51C226MA01 --chart capacitance-dc-voltage --ambient=-20..85C --at 12V,10.8..13.2V");
    row("curve-range-alone", "curve KTS31NB51C226MA01 --chart capacitance-dc-voltage --ambient=-20..85C");
    row("curve-loss-resistance", "curve KTS31NR71A226KA01 --chart loss-resistance --ambient 45C");
    row("bank-table",
        "bank KTS31NR71A226KA01 KTS188R71H104KA01 --dc-bias 5V --ambient 45C --frequency 300kHz "
        "--current 6Arms");
    row("bank-ranges", "bank KTS31NR71A226KA01 KTS188R71H104KA01 --dc-bias 4.5..5.5V --ambient -10..65C "
                       "--frequency 270..330kHz --current 2 --tolerance 10");
    row("bank-json", "bank KTS31NR71A226KA01 KTS31NB51A476MA01 --dc-bias 5V --format json --code jis "
                     "--numbering previous --current 300kHz=4");
    row("curve-requests", "curve --requests -", someRequests);
}

void GoldenTextsTest::Answers()
{
    QFETCH(const QString, words);
    QFETCH(const QByteArray, input);
    CompareWithGolden(QTest::currentDataTag(), Told(RunCommandLine(Words(words), input)));
}

// ---- Reports of checks, and tables ----

void GoldenTextsTest::Checks_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("check-text") << "data check FOLDER";
    QTest::newRow("check-json") << "data check FOLDER --format json";
}

/// A pair with something wrong in every part.
static SmallPair BrokenPair()
{
    SmallPair pair;
    pair.Parts[0].Names[1] = "";
    pair.Parts[0].Data[Value::Capacitance] = -1;
    pair.Parts[1].Data[Value::RatedVoltage] = 0;
    pair.Parts[1].Data[Value::HeatResistance] = std::numeric_limits<float>::infinity();
    pair.Parts[2].Names[0] = pair.Parts[0].Names[0];
    pair.Parts[2].Data[Value::AmplitudeT2R2] = 1e30F;
    return pair;
}

/// A run on the pair in the folder, whose own name is told as FOLDER.
static std::string ToldOfFolder(const TemporaryFolder& folder, QString words)
{
    const auto path = QString::fromStdString(folder.Path());
    auto run = RunCommandLine(Words(words.replace("FOLDER", path)));
    run.Output.replace(path.toUtf8(), "FOLDER");
    run.Messages.replace(path.toUtf8(), "FOLDER");
    return Told(run);
}

void GoldenTextsTest::Checks()
{
    QFETCH(const QString, words);
    const auto pair = BrokenPair();
    folder.Write("p.idx", pair.Index());
    folder.Write("p.dat", pair.Data() + "more");
    CompareWithGolden(QTest::currentDataTag(), ToldOfFolder(folder, words));
}

void GoldenTextsTest::Tables()
{
    const SmallPair pair;
    folder.Write("p.idx", pair.Index());
    folder.Write("p.dat", pair.Data());
    CompareWithGolden("export", ToldOfFolder(folder, "data export FOLDER"));
}

QTEST_GUILESS_MAIN(GoldenTextsTest)
#include "GoldenTextsTest.moc"
