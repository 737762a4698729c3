/// Part files that something has gone wrong with, through loader, command line, window and program: each pair
/// gives its parts or a clear message, and takes neither long nor much memory.
///
/// A few dozen pairs are tried as a rule, none of them large. More are tried with MUTATED_PAIRS, from the
/// pair of MUTATED_FROM on, and what came of them is told:
///
///     MUTATED_PAIRS=10000 build/release/bin/e2e_mutated_test -maxwarnings 0

#include "tests/e2e/mutated/MutatedPairs.h"
#include "tests/e2e/mutated/Child.h"
#include "tests/e2e/mutated/Differences.h"
#include "tests/e2e/mutated/OddFolders.h"
#include "tests/e2e/mutated/WindowDifference.h"
#include "tests/partdata/TemporaryFolder.h"

#include <QApplication>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

namespace fs = std::filesystem;

namespace
{
constexpr unsigned PairsAsARule = 16;

/// Seconds on the clock that the program may take.
constexpr double UntilItIsUp = 0.5;
constexpr double UntilItHasSaidWhyNot = 15;

/// What came of the pairs of one test.
struct Tally
{
    std::map<int, int> Errors;
    int Processes = 0;
    double Seconds = 0;
    double Megabytes = 0;

    void Add(const ChildEnd& end)
    {
        ++Processes;
        Seconds = std::max(Seconds, end.Seconds);
        Megabytes = std::max(Megabytes, end.Megabytes);
    }
};

/// Odd folders, and the large ones where time does not count.
const std::vector<OddFolder>& Odd()
{
    static const std::vector<OddFolder> all = []
    {
        auto folders = OddFolders();
        if (qEnvironmentVariableIsSet("MUTATED_PAIRS"))
        {
            folders.insert(folders.end(), LargeFolders().begin(), LargeFolders().end());
        }
        return folders;
    }();
    return all;
}

/// One of the pairs: odd folders first, then accidents by number.
class Case
{
public:
    explicit Case(unsigned caseNumber)
        : number(caseNumber)
        , folder(path.Path())
    {
        number < Odd().size() ? Odd()[number].Write(folder) : WriteMutatedPair(number, folder);
    }

    unsigned Number() const { return number; }
    const fs::path& Folder() const { return folder; }
    std::string Name() const
    {
        return number < Odd().size() ? Odd()[number].Name : "pair " + std::to_string(number);
    }
    const PlainPair& Plain()
    {
        if (!isRead)
        {
            plain = ReadPlainly(folder);
            isRead = true;
        }
        return plain;
    }

private:
    TemporaryFolder path;
    unsigned number;
    fs::path folder;
    PlainPair plain;
    bool isRead = false;
};
} // namespace

class MutatedPairsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void LoaderReadsThemAsThePlainReaderDoes();
    void CommandLineListsTheirPartsOrSaysWhyNot();
    void WindowShowsTheirParts();
    void ProgramComesUpOrSaysWhyNot();

private:
    using Check = std::string (*)(Case&, Tally&);

    void ForEachPair(Check check);

    TemporaryFolder runtime;
    unsigned first = 0;
    unsigned last = 0;
    bool tells = false;
};

void MutatedPairsTest::initTestCase()
{
    qputenv("XDG_SESSION_ID",
            QByteArray("mutated-") + QByteArray::number(QCoreApplication::applicationPid()));
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime.Path()));
    first = static_cast<unsigned>(qEnvironmentVariableIntValue("MUTATED_FROM"));
    tells = qEnvironmentVariableIsSet("MUTATED_PAIRS");
    last = tells ? first + static_cast<unsigned>(qEnvironmentVariableIntValue("MUTATED_PAIRS"))
                 : static_cast<unsigned>(Odd().size()) + PairsAsARule;
}

void MutatedPairsTest::ForEachPair(Check check)
{
    Tally tally;
    int differences = 0;
    for (unsigned number = first; number < last; ++number)
    {
        Case pair(number);
        const auto difference = check(pair, tally);
        ++tally.Errors[pair.Plain().Error];
        if (!difference.empty())
        {
            ++differences;
            qWarning("%s: %s", pair.Name().c_str(), difference.substr(0, 1000).c_str());
        }
    }
    if (tells)
    {
        for (const auto& [error, count] : tally.Errors)
        {
            qInfo("%d pairs with error %d", count, error);
        }
        qInfo("%d processes, longest %.2f s, at most %.0f MB", tally.Processes, tally.Seconds,
              tally.Megabytes);
    }
    QCOMPARE(differences, 0);
}

void MutatedPairsTest::LoaderReadsThemAsThePlainReaderDoes()
{
    ForEachPair([](Case& pair, Tally&) { return LoaderDifference(pair.Folder(), pair.Plain()); });
}

/// What `curve` is asked of a pair: a part, mostly one that is there, and a chart type with conditions that
/// it uses.
static std::vector<std::string> CurveCommandOf(Case& pair)
{
    static const std::vector<std::vector<std::string>> charts = {
        {"temperature-rise", "--dc-bias", "0", "--frequency", "100"},
        {"allowable-power", "--dc-bias", "0"},
        {"capacitance-temperature", "--dc-bias", "0"},
        {"capacitance-dc-voltage"}};
    const auto number = pair.Number();
    const auto& parts = pair.Plain().Parts;
    auto part = parts.empty() ? std::string() : Utf8Of(parts[number * 7919 % parts.size()].Names[0]);
    if (part.empty() || part.size() > 500 || part.find('\0') != std::string::npos)
    {
        // No argument can be all that, and a message repeats a long one.
        part = "NONE";
    }
    std::vector<std::string> command = {COMMAND_LINE, "curve", "--data", pair.Folder(),
                                        "--format",   "json",  "--chart"};
    std::ranges::copy(charts[number % charts.size()], std::back_inserter(command));
    if (number % 3 == 0)
    {
        command.emplace_back("--unchecked");
    }
    command.emplace_back("--");
    command.push_back(part);
    return command;
}

static std::string CommandLineDifference(Case& pair, Tally& tally)
{
    const auto difference = [&](const char* what, const std::vector<std::string>& command, auto differs)
    {
        const auto end = RunLimited(command);
        tally.Add(end);
        const std::string text = differs(end, pair.Plain());
        return text.empty() ? text : what + (": " + text) + ": " + end.Messages;
    };
    const std::string folder = pair.Folder();
    auto text =
        difference("parts", {COMMAND_LINE, "parts", "--data", folder, "--format", "json"}, PartsDifference);
    if (text.empty())
    {
        text = difference("data check", {COMMAND_LINE, "data", "check", folder, "--format", "json"},
                          CheckDifference);
    }
    return !text.empty() ? text : difference("curve", CurveCommandOf(pair), CurveDifference);
}

void MutatedPairsTest::CommandLineListsTheirPartsOrSaysWhyNot()
{
    ForEachPair(CommandLineDifference);
}

/// A copy of this process, which has what every window needs, opens the window.
static std::string WindowOrNothing(Case& pair, Tally& tally)
{
    if (pair.Plain().Error != 0)
    {
        return "";
    }
    const auto end = RunCopy(
        [&]
        {
            const auto difference = WindowDifference(pair.Folder(), pair.Plain(), pair.Number());
            std::fputs(difference.c_str(), stderr);
            return difference.empty() ? 0 : 1;
        });
    tally.Add(end);
    return end.Status == 0 ? "" : "status " + std::to_string(end.Status) + ": " + end.Messages;
}

void MutatedPairsTest::WindowShowsTheirParts()
{
    ForEachPair(WindowOrNothing);
}

/// The program beside the part files, as it is installed.
static std::string ProgramDifferenceOf(Case& pair, Tally& tally)
{
    // One that comes up stays until it is asked to end, so a few of those are enough.
    if (pair.Plain().Error == 0 && pair.Number() % 20 != 0)
    {
        return "";
    }
    const auto program = pair.Folder() / "tavik";
    std::error_code fault;
    fs::create_hard_link(PROGRAM, program, fault);
    if (fault)
    {
        fs::copy_file(PROGRAM, program);
    }
    const auto end = RunLimited({program.string()}, "",
                                {.Patience = pair.Plain().Error == 0 ? UntilItIsUp : UntilItHasSaidWhyNot});
    tally.Add(end);
    const auto text = ProgramDifference(end, pair.Plain());
    return text.empty() ? text : text + ": " + end.Messages;
}

void MutatedPairsTest::ProgramComesUpOrSaysWhyNot()
{
    ForEachPair(ProgramDifferenceOf);
}

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet("MUTATED_PAIRS"))
    {
        // A test of many pairs takes longer than tests are given as a rule.
        qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
    }
    QApplication application(argc, argv);
    MutatedPairsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MutatedPairsTest.moc"
