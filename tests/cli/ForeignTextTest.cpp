/// Part numbers and file names that are commands to a terminal, or break the format that they stand in.

#include "tests/cli/CommandLine.h"
#include "tests/partfiles/SmallPair.h"
#include "tests/terminal/PseudoTerminal.h"

#include <QTest>
#include <QXmlStreamReader>

#include <cstdlib>
#include <future>

/// Clears the screen, sets the title, breaks the line; then two bytes that are commands in the codes beyond
/// ASCII.
static const std::string partNum = "A\x1B[2J\x1B]0;t\x07\r\nB&<C\x90\x9D\x7F";
static const QByteArray shownPartNum = "A\\x1B[2J\\x1B]0;t\\x07\\x0D\\x0AB&<C\\x90\\x9D\\x7F";

class ForeignTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void GivesATerminalNoCommands_data();
    void GivesATerminalNoCommands();
    void GivesAPipeTheVeryText();
    void KeepsPicturesFromATerminal();
    void DrawsXmlWhateverThePartIsCalled();
    void WritesFilesUnderTheVeryName_data();
    void WritesFilesUnderTheVeryName();

private:
    std::string CommandOf(const std::string& arguments) const;
    int RunInShell(const std::string& command) const;

    TemporaryFolder folder;
    QString data;
};

void ForeignTextTest::initTestCase()
{
    SmallPair pair;
    for (std::size_t i = 0; i < 4; ++i)
    {
        pair.Parts[0].Names[i] = partNum;
        pair.Parts[1].Names[i] = "PLAIN" + std::to_string(i);
    }
    folder.Write("parts.idx", pair.Index());
    folder.Write("parts.dat", pair.Data());
    data = QString::fromStdString(folder.Path());
}

/// A command of the program on the pair, as a shell reads it. "PART" stands for the part.
std::string ForeignTextTest::CommandOf(const std::string& arguments) const
{
    std::string command = CommandLineProgram().toStdString() + ' ' + arguments;
    for (auto at = command.find("PART"); at != std::string::npos; at = command.find("PART"))
    {
        // The part files are in another code page than a command line.
        command.replace(at, 4, "'" + partNum.substr(0, partNum.find('\x90')) + "\xC2\x90\xC2\x9D\x7F'");
    }
    return "cd " + folder.Path() + " && " + command;
}

int ForeignTextTest::RunInShell(const std::string& command) const
{
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// ---- Terminals ----

void ForeignTextTest::GivesATerminalNoCommands_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<bool>("namesThePart");
    const auto row = [](const char* arguments, bool namesThePart = true)
    { QTest::newRow(arguments) << QByteArray(arguments) << namesThePart; };
    row("parts --data .");
    row("parts --data . --format csv", false);
    row("parts --data . --format json", false);
    row("curve PART --data . --chart capacitance-dc-voltage");
    row("curve PART --data . --chart capacitance-dc-voltage --format csv");
    row("curve PART --data . --chart capacitance-dc-voltage --format json", false);
    row("chart PART --data . --chart capacitance-dc-voltage --format svg", false);
    row("data check .");
    row("data check . --format json", false);
    row("data export .", false);
    row("data export . --output /dev/stdout", false);
    row("curve PART --data . --chart capacitance-dc-voltage --output /dev/stdout");
    row("curve PART --data . --chart no-such-chart", false);
    row("parts --data \"$(printf 'no\\033[2J')\"", false);
}

void ForeignTextTest::GivesATerminalNoCommands()
{
    QFETCH(const QByteArray, arguments);
    QFETCH(const bool, namesThePart);
    const PseudoTerminal terminal;
    const auto command = CommandOf(arguments.toStdString()) + " >" + terminal.Name() + " 2>&1";
    auto run = std::async(std::launch::async, [&] { return RunInShell(command); });
    std::string shown;
    while (run.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
    {
        shown += terminal.Shown();
    }
    shown += terminal.Shown();
    QVERIFY(!shown.empty());
    // The terminal itself puts a carriage return before each line end.
    std::erase(shown, '\r');
    for (const char c : shown)
    {
        QVERIFY2(c == '\n' || (static_cast<unsigned char>(c) >= 0x20 && c != '\x7F'), shown.c_str());
    }
    for (const char* const control : {"\xC2\x90", "\xC2\x9D", "\x90", "\x9D"})
    {
        QVERIFY2(shown.find(control) == std::string::npos, shown.c_str());
    }
    QCOMPARE(QByteArray::fromStdString(shown).contains(shownPartNum), namesThePart);
}

void ForeignTextTest::GivesAPipeTheVeryText()
{
    const Run csv = RunCommandLine({"parts", "--data", data, "--format", "csv"});
    QVERIFY(csv.Output.contains("\n\"A\x1B[2J\x1B]0;t\x07\r\nB&<C\xC2\x90\xC2\x9D\x7F\","));
    const Run table = RunCommandLine({"data", "export", data});
    QVERIFY(table.Output.contains("\x1B[2J"));
    QCOMPARE(table.Status, 0);
}

void ForeignTextTest::KeepsPicturesFromATerminal()
{
    for (const char* const format : {"png", "pdf"})
    {
        const auto command =
            CommandOf(std::string("chart PLAIN0 --data . --chart capacitance-dc-voltage --format ") + format);
        const PseudoTerminal terminal;
        QCOMPARE(RunInShell(command + " >" + terminal.Name() + " 2>messages"), 2);
        QCOMPARE(terminal.Shown(), std::string());
        QCOMPARE(BytesOf(folder.Path() + "/messages"),
                 std::string("tavik-cli: a picture is not for a terminal; name a file with --output\n"));
        QCOMPARE(RunInShell(command + " --output " + terminal.Name() + " 2>messages"), 2);
        QCOMPARE(terminal.Shown(), std::string());
        QCOMPARE(RunInShell(command + " | grep -q ."), 0);
    }
}

// ---- Formats ----

void ForeignTextTest::DrawsXmlWhateverThePartIsCalled()
{
    const auto command = CommandOf("chart PART --data . --chart capacitance-dc-voltage --output a.svg");
    QCOMPARE(RunInShell(command), 0);
    QXmlStreamReader xml(QByteArray::fromStdString(BytesOf(folder.Path() + "/a.svg")));
    QString texts;
    while (!xml.atEnd())
    {
        if (xml.readNext() == QXmlStreamReader::Characters)
        {
            texts += xml.text();
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY2(texts.contains(QString::fromLatin1(shownPartNum.left(8))), qPrintable(texts.simplified()));
}

// ---- File names ----

void ForeignTextTest::WritesFilesUnderTheVeryName_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char* arguments, const char* written = "NAME")
    { QTest::newRow(arguments) << QByteArray(arguments) << QByteArray(written); };
    row("parts --data . --output NAME");
    row("curve PLAIN0 --data . --chart capacitance-dc-voltage --output NAME");
    row("curve --data . --requests /dev/null --output NAME");
    row("chart PLAIN0 --data . --chart capacitance-dc-voltage --format svg --output NAME");
    row("chart PLAIN0 --data . --chart capacitance-dc-voltage --output NAME.png", "NAME.png");
    row("data export . --output NAME");
    row("data build table --output NAME", "NAME.idx");
    row("data build table --output NAME", "NAME.dat");
    row("data build table --output NAME.idx", "NAME.dat");
    row("parts --data FOLDER --output FOLDER/NAME", "FOLDER/NAME");
    row("data build table --output FOLDER/NAME", "FOLDER/NAME.idx");
    row("data check FOLDER >FOLDER/NAME", "FOLDER/NAME");
    row("data export FOLDER/parts.idx --output NAME");
    row("curve --data FOLDER --requests FOLDER/table --output NAME");
}

static std::string Named(std::string text)
{
    const auto put = [&](const std::string& word, const std::string& name)
    {
        for (auto at = text.find(word); at != std::string::npos; at = text.find(word))
        {
            text.replace(at, word.size(), name);
        }
    };
    put("NAME", "caf\xE9\x80");
    put("FOLDER", "d\xFCnn");
    return text;
}

void ForeignTextTest::WritesFilesUnderTheVeryName()
{
    QFETCH(const QByteArray, arguments);
    QFETCH(const QByteArray, written);
    namespace fs = std::filesystem;
    const fs::path inner = fs::path(folder.Path()) / Named("FOLDER");
    fs::remove_all(inner);
    fs::create_directory(inner);
    const SmallPair pair;
    folder.Write(Named("FOLDER/parts.idx"), pair.Index());
    folder.Write(Named("FOLDER/parts.dat"), pair.Data());
    folder.Write(Named("FOLDER/table"), "");
    QCOMPARE(RunInShell(CommandOf("data export " + Named("FOLDER") + " --output table 2>messages")), 0);
    const fs::path target = fs::path(folder.Path()) / Named(written.toStdString());
    fs::remove(target);

    QCOMPARE(RunInShell(CommandOf(Named(arguments.toStdString()) + " 2>messages")), 0);
    QVERIFY(fs::is_regular_file(target));
    for (const auto& entry : fs::recursive_directory_iterator(folder.Path()))
    {
        QVERIFY2(entry.path().string().find("\xEF\xBF\xBD") == std::string::npos, entry.path().c_str());
    }
}

QTEST_MAIN(ForeignTextTest)
#include "ForeignTextTest.moc"
