/// `tavik-cli model` as its users run it: files of models, and what it refuses.

#include "partdata/ValueNames.h"
#include "tests/cli/CommandLine.h"
#include "tests/partfiles/SmallPair.h"
#include "tests/terminal/PseudoTerminal.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <optional>

class ModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void WritesTheModelOfAPart();
    void NamesModelsAsPartsAreShown();
    void WritesAllPartsInTheirOrder();
    void CountsWhatItLeavesOut();
    void TellsThatNoPartHasAModel();
    void ShowsAPersonHowFarItIs();

    void WritesNothingWhereAPartHasNoModel();
    void WritesNothingWhereTwoNamesAreEqual();
    void RefusesWithOneLine_data();
    void RefusesWithOneLine();

private:
    void Write(const SmallPair& pair) const;
    Run RunOnPair(QStringList words) const;
    QString FileText(const std::string& name) const;

    std::optional<TemporaryFolder> folder;
};

/// The names of the subcircuits, in order.
static QStringList ModelsIn(const QString& text)
{
    QStringList names;
    for (const auto& line : text.split('\n'))
    {
        if (line.startsWith(".SUBCKT "))
        {
            names << line.section(' ', 1, 1);
        }
    }
    return names;
}

void ModelTest::init()
{
    folder.emplace();
}

void ModelTest::Write(const SmallPair& pair) const
{
    folder->Write("p.idx", pair.Index());
    folder->Write("p.dat", pair.Data());
}

Run ModelTest::RunOnPair(QStringList words) const
{
    const auto path = QString::fromStdString(folder->Path());
    words.replaceInStrings("FOLDER", path);
    return RunCommandLine(QStringList{"model", "--data", path} + words);
}

QString ModelTest::FileText(const std::string& name) const
{
    QFile file(QString::fromStdString(folder->Path() + "/" + name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : "(no file)";
}

// ---- What it writes ----

void ModelTest::WritesTheModelOfAPart()
{
    const auto run = RunCommandLine({"model", "kts31nb51a476ma01"});
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Messages, "");
    QFile kept(QStringLiteral(TEST_DATA "/simulation/golden/KTS31NB51A476MA01.lib"));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(run.Output, kept.readAll());
}

void ModelTest::NamesModelsAsPartsAreShown()
{
    SmallPair pair;
    pair.Parts[0].Names[3] = "9-PREVIOUS/J";
    Write(pair);
    const auto part = QString::fromStdString(pair.Parts[0].Names[0]);
    const auto run =
        RunOnPair({part, "--code", "jis", "--numbering", "previous", "--output", "FOLDER/m.lib"});
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Output, "");
    QVERIFY(FileText("m.lib").startsWith("* 9-PREVIOUS/J  "));
    QCOMPARE(ModelsIn(FileText("m.lib")), QStringList{"C_9_PREVIOUS_J"});
}

void ModelTest::WritesAllPartsInTheirOrder()
{
    const SmallPair pair;
    Write(pair);
    const auto run = RunOnPair({"--all"});
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Messages, "");
    QStringList names;
    for (const auto& part : pair.Parts)
    {
        names << QString::fromStdString(part.Names[0]);
    }
    QCOMPARE(ModelsIn(QString::fromUtf8(run.Output)), names);
}

void ModelTest::CountsWhatItLeavesOut()
{
    SmallPair pair;
    pair.Parts[0].Names[0] = "A-1";
    pair.Parts[1].Names[0] = "a_1";
    pair.Parts[2].Data[Value::RatedVoltage] = 0;
    Write(pair);
    const auto run = RunOnPair({"--all", "--output", "FOLDER/all.lib"});
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Messages,
             "tavik-cli: 1 model; left out: 1 nominal capacitance or rated voltage not above 0, "
             "1 name already taken\n");
    QCOMPARE(ModelsIn(FileText("all.lib")), QStringList{"A_1"});
}

void ModelTest::TellsThatNoPartHasAModel()
{
    SmallPair pair;
    for (auto& part : pair.Parts)
    {
        part.Data.fill(0);
    }
    Write(pair);
    const auto run = RunOnPair({"--all"});
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Output, "");
    QCOMPARE(run.Messages, "tavik-cli: no model; left out: 3 no capacitance data\n");
}

void ModelTest::ShowsAPersonHowFarItIs()
{
    // A peaked part takes some milliseconds, and the bar has half a second of patience.
    SmallPair pair;
    const auto peaked = pair.Parts[2];
    while (pair.Parts.size() < 400)
    {
        pair.Parts.push_back(peaked);
        for (std::size_t form = 0; form < PartNumForms; ++form)
        {
            pair.Parts.back().Names[form] = "P" + std::to_string(4 * pair.Parts.size() + form);
        }
    }
    Write(pair);
    const PseudoTerminal terminal;
    QProcess program;
    program.setStandardErrorFile(QString::fromStdString(terminal.Name()));
    program.start(CommandLineProgram(), {"model", "--all", "--data", QString::fromStdString(folder->Path()),
                                         "--output", QString::fromStdString(folder->Path() + "/all.lib")});
    std::string shown;
    while (!program.waitForFinished(50) && program.state() == QProcess::Running)
    {
        shown += terminal.Shown();
    }
    shown += terminal.Shown();
    QVERIFY2(shown.starts_with("\rmodels ["), shown.c_str());
    QVERIFY2(shown.ends_with("\r\x1B[K"), shown.c_str());
    QCOMPARE(ModelsIn(FileText("all.lib")).size(), 400);
}

// ---- What it refuses ----

void ModelTest::WritesNothingWhereAPartHasNoModel()
{
    SmallPair pair;
    pair.Parts[1].Data[Value::NominalCapacitance] = -1;
    Write(pair);
    const auto names = QStringList{QString::fromStdString(pair.Parts[0].Names[0]),
                                   QString::fromStdString(pair.Parts[1].Names[0])};
    folder->Write("kept.lib", "kept");
    const auto run = RunOnPair(names + QStringList{"--output", "FOLDER/kept.lib"});
    QCOMPARE(run.Status, 1);
    QCOMPARE(QString::fromUtf8(run.Messages),
             "tavik-cli: " + names[1] +
                 ": nominal capacitance or rated voltage not above 0, so there is no model\n");
    QCOMPARE(FileText("kept.lib"), "kept");
}

void ModelTest::WritesNothingWhereTwoNamesAreEqual()
{
    const auto run = RunCommandLine({"model", "KTS31NB51A476MA01", "kts31nb51a476ma01"});
    QCOMPARE(run.Status, 1);
    QCOMPARE(run.Output, "");
    QCOMPARE(run.Messages, "tavik-cli: KTS31NB51A476MA01: name already taken, so there is no model\n");
}

void ModelTest::RefusesWithOneLine_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("nothing named") << QStringList{} << 2 << QByteArray("model wants a part number, or --all");
    QTest::newRow("both") << QStringList{"KTS31NB51A476MA01", "--all"} << 2
                          << QByteArray("model wants part numbers or --all, not both");
    QTest::newRow("unknown part") << QStringList{"KTS31NB51A476MA0X"} << 1
                                  << QByteArray("there is no part \"KTS31NB51A476MA0X\"; did you mean "
                                                "\"KTS31NB51A476MA01\"?");
    QTest::newRow("a folder") << QStringList{"KTS31NB51A476MA01", "--output", "/"} << 2
                              << QByteArray("--output: \"/\" is a folder, not a file (see tavik-cli --help)");
}

void ModelTest::RefusesWithOneLine()
{
    QFETCH(const QStringList, words);
    QFETCH(const int, status);
    QFETCH(const QByteArray, message);
    const auto run = RunCommandLine(QStringList{"model"} + words);
    QCOMPARE(run.Status, status);
    QCOMPARE(run.Output, "");
    QCOMPARE(run.Messages, "tavik-cli: " + message + "\n");
}

QTEST_GUILESS_MAIN(ModelTest)
#include "ModelTest.moc"
