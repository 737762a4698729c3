/// What bash offers behind a command line, against the program's own help.

#include "tests/cli/CommandLine.h"
#include "tests/partfiles/SmallPair.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>

class CompletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void OffersAllThatTheHelpNames();
    void OffersWhatFits_data();
    void OffersWhatFits();
    void ObeysNoNameOfAPart();

private:
    static void OffersAllOf(const QStringList& command);
};

/// What stands for choice behind the words, the last of which is begun.
static QStringList OfferedBehind(const QStringList& words)
{
    static const QString script =
        QStringLiteral("source \"$1\"; program=$2; shift 2; COMP_WORDS=(tavik-cli \"$@\"); COMP_CWORD=$#; "
                       "_tavik_cli \"$program\"; printf '%s\\n' \"${COMPREPLY[@]}\"");
    QProcess bash;
    bash.start(QStringLiteral("bash"),
               QStringList{"-c", script, "bash", QStringLiteral(COMPLETION), CommandLineProgram()} + words);
    if (!bash.waitForFinished(60000))
    {
        return {QStringLiteral("no end")};
    }
    const auto messages = bash.readAllStandardError();
    return QString::fromUtf8(messages + bash.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

/// First captures of a pattern in the help of a command.
static QStringList FoundInHelp(const QStringList& command, const char* pattern)
{
    const auto help = QString::fromUtf8(RunCommandLine(command + QStringList{"--help"}).Output);
    QStringList found;
    const QRegularExpression expression(QString::fromLatin1(pattern), QRegularExpression::MultilineOption);
    for (auto match = expression.globalMatch(help); match.hasNext();)
    {
        found << match.next().captured(1);
    }
    return found;
}

static QStringList OptionsOf(const QStringList& command)
{
    return FoundInHelp(command, "^  (?:-[a-z],)?(--[a-z-]+)");
}

/// Commands are the lines of the help behind the options that have neither a dash nor a kind of value.
static QStringList CommandsOf(const QStringList& command)
{
    return FoundInHelp(command, "^  ([a-z]+) {10,}(?!.*OPTIONS)");
}

void CompletionTest::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("bash")).isEmpty())
    {
        QSKIP("there is no bash");
    }
}

void CompletionTest::OffersAllOf(const QStringList& command)
{
    const auto options = OptionsOf(command);
    QVERIFY(options.contains("--help"));
    QCOMPARE(OfferedBehind(command + QStringList{"--"}), options);
    const auto commands = CommandsOf(command);
    QCOMPARE(OfferedBehind(command + QStringList{""}), commands + options);
    for (const auto& name : commands)
    {
        OffersAllOf(command + QStringList{name});
    }
}

void CompletionTest::OffersAllThatTheHelpNames()
{
    QCOMPARE(CommandsOf({}), (QStringList{"parts", "find", "like", "curve", "chart", "model", "bank",
                                          "ripple", "bom", "data"}));
    OffersAllOf({});
}

void CompletionTest::OffersWhatFits_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("offered");
    const auto row = [](const char* name, const char* words, const char* offered)
    { QTest::newRow(name) << QString::fromLatin1(words) << QString::fromLatin1(offered); };
    const char* charts = "temperature-rise allowable-power capacitance-temperature capacitance-dc-voltage "
                         "loss-resistance";
    row("a command", "pa", "parts");
    row("nothing", "parts --no", "");
    row("chart types of a curve", "curve ABC --chart ", charts);
    row("chart types of parts", "parts --chart ", charts);
    row("a chart type", "chart --chart a", "allowable-power");
    row("codes", "chart ABC --code ", "eia jis");
    row("numberings", "parts --numbering ", "global previous");
    row("formats of lists", "parts --format ", "table csv json");
    row("formats of curves", "curve --format ", "tvk csv json");
    row("formats of pictures", "chart --format ", "png svg pdf");
    row("formats of findings", "data check --format ", "text json");
    row("parameters", "curve --parameter ", "current= voltage= effective-power= apparent-power=");
    row("a parameter", "curve --parameter ap", "apparent-power=");
    row("an option behind one without a value", "curve --unchecked --da", "--data --date");
    row("an option behind a value", "curve --dc-bias 5V --dat", "--data --date");
    row("a part number", "curve KTS31NB51E106", "KTS31NB51E106MA01");
    row("part numbers of a chart", "chart KTS31NB51E106MA01 --code jis KTU155F01H102", "KTU155F01H102ZA01");
    row("part numbers of a model", "model KTS31NB51E106", "KTS31NB51E106MA01");
    row("part numbers of a bank", "bank KTS31NB51E106MA01 --code jis KTU155F01H102", "KTU155F01H102ZA01");
    row("formats of banks", "bank --format ", "table json");
    row("part numbers to stand for", "like KTS31NB51E106", "KTS31NB51E106MA01");
    row("orders of parts that stand for another", "like KTS31NB51E106MA01 --sort l",
        "least-ratio loss-ratio");
    row("no part number as text of a list", "parts KTS31NB51E106", "");
    row("sizes", "parts --size 0", "0201 0402 0603 0805");
    row("sizes in the other code", "parts --code jis --size 0", "0603");
    row("characteristics", "parts --characteristic X", "X7R X5R");
    row("capacitances", "parts --capacitance 4.7", "4.7nF 4.7uF");
    row("rated voltages", "parts --rated-voltage 6", "6.3V 630V");
    row("orders", "parts --sort c", "characteristic capacitance");
    row("all orders", "parts --sort ", "part size characteristic capacitance rated-voltage");
    row("orders of found parts", "find --sort r", "rated-voltage rise ripple");
    row("all orders of found parts", "find --sort ",
        "part size characteristic capacitance rated-voltage effective-capacitance left permitted-rise "
        "loss-resistance current voltage apparent-power effective-power rise body ripple count total area "
        "most-capacitance margin warm-capacitance");
    row("as few in parallel as will do", "find --parallel ", "auto");
    row("largest sizes", "find --max-size 12", "1206 1210");
    row("least rated voltages", "find --min-rated-voltage 6", "6.3V 630V");
    row("formats of found parts", "find --format ", "table csv json");
    row("loads", "find --parameter v", "voltage=");
    row("no option as a value", "curve --dc-bias ", "");
    row("files as a value", "curve --output ", "");
    row("a text that no command bears", "parts * --code j", "jis");
}

void CompletionTest::OffersWhatFits()
{
    QFETCH(const QString, words);
    QFETCH(const QString, offered);
    QCOMPARE(OfferedBehind(words.split(' ')).join(' '), offered);
}

void CompletionTest::ObeysNoNameOfAPart()
{
    const TemporaryFolder folder;
    const auto trace = folder.Path() + "/obeyed";
    SmallPair pair;
    for (std::size_t i = 0; i < pair.Parts[0].Names.size(); ++i)
    {
        pair.Parts[0].Names[i] = "$(touch " + trace + std::to_string(i) + ")";
        pair.Parts[1].Names[i] = "A`>" + trace + std::to_string(i) + "`";
        pair.Parts[2].Names[i] = "PLAIN" + std::to_string(i);
    }
    folder.Write("p.idx", pair.Index());
    folder.Write("p.dat", pair.Data());
    const auto data = QString::fromStdString(folder.Path());
    QCOMPARE(OfferedBehind({"curve", "--data", data, "P"}), QStringList("PLAIN0"));
    // A name that is put on the command line would be obeyed there.
    QCOMPARE(OfferedBehind({"curve", "--data", data, "$"}), QStringList());
    QCOMPARE(OfferedBehind({"curve", "--data", data, "A"}), QStringList());
    QCOMPARE(OfferedBehind({"parts", "--data", data, "--size", ""}), QStringList("PLAIN4"));
    for (std::size_t i = 0; i < pair.Parts[0].Names.size(); ++i)
    {
        QVERIFY(!std::filesystem::exists(trace + std::to_string(i)));
    }
}

QTEST_GUILESS_MAIN(CompletionTest)
#include "CompletionTest.moc"
