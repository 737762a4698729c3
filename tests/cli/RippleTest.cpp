/// `tavik-cli ripple` as its users run it: records, converters, and what is refused.

#include "tests/cli/CommandLine.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

class RippleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void HeatsAsTheSineThatFindIsAsked();
    void TellsARecordAndItsLines();
    void ReadsStandardInput();
    void TakesTheBiasFromAVoltage();
    void SharesTheCurrent();
    void TellsBothSidesOfAConverter();
    void TakesTheBiasOfAConvertersSide();
    void TellsNoRiseOutsideTheData();
    void WarnsInTheReport();
    void WarnsWhereFewPeriodsRepeat_data();
    void WarnsWhereFewPeriodsRepeat();
    void WritesARowALine();
    void DrawsThePicture();
    void WritesPictureAndReportOrNeither();

    void RefusesWithOneLine_data();
    void RefusesWithOneLine();

private:
    QString File(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

    QTemporaryDir folder;
};

static const char* const part = "KTS32XB51E106MA01";

/// Rows of a current: a sine of 2 A in peak and a third of it at three times the frequency, and 12 V.
static QByteArray Rows(double hertz, int periods)
{
    QByteArray text = "time\tI(C1)\tV(c1)\n";
    constexpr int perPeriod = 200;
    for (int i = 0; i <= periods * perPeriod; ++i)
    {
        const double angle = 2 * M_PI * i / perPeriod;
        text += QByteArray::number(i / (hertz * perPeriod), 'g', 17) + '\t' +
                QByteArray::number(2 * std::sin(angle) + 2.0 / 3 * std::sin(3 * angle), 'g', 17) + "\t12\n";
    }
    return text;
}

/// Triangles of 500 kHz, each larger by a tenth than the one before.
static QByteArray GrowingRows()
{
    QByteArray text = "time\tI(C1)\n";
    double amperes = 1e-3;
    for (int period = 0; period < 50; ++period)
    {
        for (int step = 0; step < 20; ++step)
        {
            const double current = amperes * (step < 10 ? step / 5.0 - 1 : 3 - step / 5.0);
            text += QByteArray::number((period + step / 20.0) * 2e-6, 'g', 17) + '\t' +
                    QByteArray::number(current, 'g', 17) + '\n';
        }
        amperes *= 1.1;
    }
    return text + "1e-4\t0\n";
}

static void Write(const QString& name, const QByteArray& text)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

static QString BytesOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void RippleTest::initTestCase()
{
    Write(File("wave.txt"), Rows(200e3, 50));
    Write(File("fast.txt"), Rows(2e6, 50));
    Write(File("once.txt"),
          "time\tI(C1)\n" + QByteArray("0\t0\n1\t1\n2\t0\n3\t-1\n4\t0\n5\t2\n6\t1\n7\t-3\n"));
    Write(File("two.txt"), Rows(200e3, 1) + Rows(200e3, 1).mid(17));
    Write(File("growing.txt"), GrowingRows());
    Write(File("reversed.txt"), Rows(200e3, 50).replace("\t12\n", "\t-12\n"));
    Write(File("high.txt"), Rows(200e3, 50).replace("\t12\n", "\t26\n"));
    Write(File("buck.raw"), "Title: buck\nBinary:\n");
}

static Run Ripple(const QStringList& words)
{
    return RunCommandLine(QStringList{"ripple"} + words);
}

static QJsonObject Answer(const QStringList& words)
{
    const Run run = Ripple(words + QStringList{"--format", "json"});
    return QJsonDocument::fromJson(run.Output).object();
}

static QJsonObject FirstPart(const QJsonObject& answer)
{
    return answer["parts"].toArray().first().toObject();
}

static bool IsNear(double value, double expected, double share)
{
    return std::abs(value - expected) <= share * std::abs(expected);
}

/// What the report says to type into the search brings the same rise, to what the sine stands for.
void RippleTest::HeatsAsTheSineThatFindIsAsked()
{
    const auto answer = Answer({File("wave.txt"), "--column", "i(c1)", "--part", part, "--ambient", "45"});
    const double rise = FirstPart(answer)["rise"].toDouble();
    QVERIFY(rise > 0);
    const QString text = Ripple({File("wave.txt"), "--column", "2", "--part", part}).Output;
    const auto typed = text.section("(find ", 1).section(')', 0, 0).split(' ');
    QCOMPARE(typed.size(), 4);
    const Run found =
        RunCommandLine(QStringList{"find", part, "--ambient", "45", "--format", "json"} + typed);
    const auto row = QJsonDocument::fromJson(found.Output).array().first().toObject();
    QVERIFY2(IsNear(row["rise"].toDouble(), rise, 0.0017), found.Output.constData());
}

void RippleTest::TellsARecordAndItsLines()
{
    const auto answer = Answer({File("wave.txt"), "--column", "2", "--part", part, "--dc-bias", "12V"});
    const auto waveform = answer["waveform"].toObject();
    QCOMPARE(waveform["column"].toString(), "I(C1)");
    QCOMPARE(waveform["periods"].toInt(), 50);
    QVERIFY(IsNear(waveform["period"].toDouble(), 5e-6, 1e-6));
    QVERIFY(IsNear(answer["current"].toObject()["rms"].toDouble(), std::sqrt(2 + 2.0 / 9), 1e-3));
    const auto lines = FirstPart(answer)["lines"].toArray();
    QVERIFY(IsNear(lines[0].toObject()["frequency"].toDouble(), 200, 1e-6));
    QVERIFY(IsNear(lines[0].toObject()["current"].toDouble(), std::sqrt(2), 1e-3));
    QVERIFY(IsNear(lines[1].toObject()["frequency"].toDouble(), 600, 1e-6));
    QVERIFY(IsNear(lines[1].toObject()["current"].toDouble(), std::sqrt(2) / 3, 2e-3));
    QVERIFY(answer["bankCurrent"].toString().startsWith("200kHz=1.41"));
    QVERIFY(answer["converter"].isNull());
    QCOMPARE(answer["warnings"].toArray().size(), 0);
    // All that is told follows from each other.
    const auto told = FirstPart(answer);
    QVERIFY(
        IsNear(told["margin"].toDouble(), told["permittedRise"].toDouble() - told["rise"].toDouble(), 1e-6));
    QVERIFY(IsNear(told["body"].toDouble(), 25 + told["rise"].toDouble(), 1e-6));
}

void RippleTest::ReadsStandardInput()
{
    const Run run = RunCommandLine({"ripple", "-", "--column", "2", "--part", part}, Rows(200e3, 50));
    QCOMPARE(run.Messages, QByteArray());
    QVERIFY(run.Output.startsWith("I(C1): 50 periods of 5.0000 us (200.00 kHz) from 0 s to 250 us"));
}

void RippleTest::TakesTheBiasFromAVoltage()
{
    const auto answer = Answer({File("wave.txt"), "--column", "2", "--voltage", "V(c1)", "--part", part});
    QCOMPARE(FirstPart(answer)["dcBias"].toDouble(), 12.0);
    const auto typed = Answer({File("wave.txt"), "--column", "2", "--dc-bias", "12", "--part", part});
    QCOMPARE(FirstPart(answer)["rippleVoltage"], FirstPart(typed)["rippleVoltage"]);
    const auto reversed = Answer({File("reversed.txt"), "--column", "2", "--voltage", "3", "--part", part});
    QCOMPARE(FirstPart(reversed)["dcBias"].toDouble(), 12.0);
}

void RippleTest::SharesTheCurrent()
{
    const QStringList one{File("wave.txt"), "--column", "2", "--part", part};
    const auto alone = FirstPart(Answer(one));
    const auto shared = FirstPart(Answer(one + QStringList{"--parallel", "2"}));
    QVERIFY(IsNear(shared["rise"].toDouble(), alone["rise"].toDouble() / 4, 1e-6));
}

void RippleTest::TellsBothSidesOfAConverter()
{
    const auto answer = Answer({"--buck", "vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH"});
    const auto sides = answer["sides"].toArray();
    QCOMPARE(sides.size(), 2);
    QCOMPARE(sides[0].toObject()["side"].toString(), "input");
    const double D = 3.3 / 12;
    const double swing = 3.3 * (1 - D) / (2.2e-6 * 500e3);
    const auto rms = [&](int i) { return sides[i].toObject()["current"].toObject()["rms"].toDouble(); };
    QVERIFY(IsNear(rms(0), std::sqrt(D * (25 * (1 - D) + swing * swing / 12)), 1e-6));
    QVERIFY(IsNear(rms(1), swing / std::sqrt(12.0), 1e-6));
    QCOMPARE(answer["converter"].toObject()["kind"].toString(), "buck");
}

void RippleTest::TakesTheBiasOfAConvertersSide()
{
    const QStringList words{"--boost", "vin=5 vout=12 iout=1 f=500kHz l=4.7uH", "--part", part};
    QCOMPARE(FirstPart(Answer(words))["dcBias"].toDouble(), 12.0);
    QCOMPARE(FirstPart(Answer(words + QStringList{"--side", "input"}))["dcBias"].toDouble(), 5.0);
    QCOMPARE(FirstPart(Answer(words + QStringList{"--dc-bias", "6"}))["dcBias"].toDouble(), 6.0);
}

void RippleTest::TellsNoRiseOutsideTheData()
{
    const auto answer = Answer({File("fast.txt"), "--column", "2", "--part", part});
    const auto told = FirstPart(answer);
    for (const char* key : {"rise", "margin", "body", "allowedCurrent", "warmCapacitance"})
    {
        QVERIFY2(told[QString::fromUtf8(key)].isNull(), key);
    }
    QVERIFY(told["riseAbove"].toDouble() > 0);
    QVERIFY(!told["lines"].toArray().isEmpty());
    QVERIFY(answer["warnings"].toArray().first().toString().startsWith("100 % of the rise is above 1 MHz"));
}

void RippleTest::WarnsInTheReport()
{
    const Run run =
        Ripple({"--buck", "vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH", "--part", part, "--parallel", "2"});
    QCOMPARE(run.Status, 0);
    QVERIFY(
        run.Output.startsWith("buck input: 12 V to 3.3 V, 5 A, 500 kHz, 2.2 uH; continuous, 27.5 % on\n"));
    QVERIFY2(run.Output.contains("\nwarning: 15."), run.Output.constData());
    QVERIFY(run.Output.contains("of the rise is above 1 MHz, where the part has no data"));
}

void RippleTest::WarnsWhereFewPeriodsRepeat_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("warning");
    QTest::newRow("one of many") << QStringList{File("growing.txt"), "--period", "2us"}
                                 << "only the last 1 of 50 periods repeat; the current may not be settled";
    QTest::newRow("one in the record")
        << QStringList{File("wave.txt"), "--column", "2", "--period", "240us"}
        << "the record holds a single period; whether the current repeats is not known";
    QTest::newRow("as many as asked for")
        << QStringList{File("wave.txt"), "--column", "2", "--periods", "2"} << "";
    QTest::newRow("all as one") << QStringList{File("wave.txt"), "--column", "2", "--whole"} << "";
}

void RippleTest::WarnsWhereFewPeriodsRepeat()
{
    QFETCH(const QStringList, words);
    QFETCH(const QString, warning);
    const auto warnings = Answer(words + QStringList{"--part", part})["warnings"].toArray();
    const auto first = warnings.isEmpty() ? QString() : warnings.first().toString();
    QCOMPARE(first, warning);
}

void RippleTest::WritesARowALine()
{
    const Run run = Ripple({File("wave.txt"), "--column", "2", "--part", part, "--format", "csv"});
    const auto rows = QString::fromUtf8(run.Output).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(rows[0], QString::fromUtf8(
                          "part,frequency [kHz],current [Arms],loss resistance [mOhm],rise [\u00B0C],share"));
    QVERIFY(rows[1].startsWith(QString::fromUtf8(part) + ",200,1.41"));
    QVERIFY(rows.last().contains(",rest,"));
}

void RippleTest::DrawsThePicture()
{
    QVERIFY(
        !Ripple({File("wave.txt"), "--part", part, "--column", "2", "--picture", File("wave.svg")}).Status);
    const auto picture = BytesOf(File("wave.svg"));
    QVERIFY(picture.contains("I(C1): 1.49 Arms, heats like a sine of 1.49 Arms at 214.3 kHz"));
    QVERIFY(picture.contains("KTS32XB51E106MA01 rises "));
    QVERIFY(picture.contains("Time in the last period [\u00B5s]"));
    QVERIFY(picture.contains("Share of the rise [%]"));
    QVERIFY(picture.contains("100 % from 10 kHz to 1 MHz"));

    const char* const buck = "vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH";
    QVERIFY(!Ripple({"--buck", buck, "--picture", File("buck.svg")}).Status);
    const auto sides = BytesOf(File("buck.svg"));
    QVERIFY(sides.contains("buck input: 2.257 Arms"));
    QVERIFY(sides.contains("buck output: 627.9 mArms"));
    QVERIFY(sides.contains("Share of the square [%]"));
    QVERIFY(sides.contains("17.3 % above 1 MHz"));
}

void RippleTest::WritesPictureAndReportOrNeither()
{
    const QStringList words = {File("wave.txt"), "--part", part, "--column", "2", "--picture"};
    QCOMPARE(Ripple(words + QStringList{File("wave.bmp")}).Status, 2);
    QCOMPARE(Ripple(words + QStringList{File("wave.txt")}).Status, 2);
    const auto onOutput = Ripple({File("wave.txt"), "--part", part, "--column", "2", "--output",
                                  File("a.svg"), "--picture", File("a.svg")});
    QCOMPARE(onOutput.Status, 2);
    const auto noFolder = Ripple(words + QStringList{File("none/wave.svg"), "--output", File("report.txt")});
    QCOMPARE(noFolder.Status, 1);
    QVERIFY(!QFile::exists(File("report.txt")));
}

void RippleTest::RefusesWithOneLine_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");
    const QStringList bearer{"--part", part};
    const QString buck = "vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH";
    const auto row = [&](const char* name, const QStringList& words, int status, const QString& message)
    { QTest::newRow(name) << words << status << message; };
    row("nothing", {}, 2, "ripple wants a waveform, or --buck, --boost or --flyback");
    row("two sources", {File("wave.txt"), "--buck", buck}, 2,
        "ripple wants a waveform or a converter, not both");
    row("no part", {File("wave.txt")}, 2, "ripple wants --part");
    row("two biases", QStringList{File("wave.txt"), "--voltage", "3", "--dc-bias", "12"} + bearer, 2,
        "--voltage and --dc-bias are two biases: leave one out");
    row("of a waveform", QStringList{"--buck", buck, "--from", "1us"}, 2,
        "--from is for a waveform, not for a converter");
    row("whole", QStringList{"--buck", buck, "--whole"}, 2, "--whole is for a waveform, not for a converter");
    row("of a converter", QStringList{File("wave.txt"), "--side", "input"} + bearer, 2,
        "--side is for a converter, not for a waveform");
    row("two periods", QStringList{File("wave.txt"), "--whole", "--period", "5us"} + bearer, 2,
        "--whole is one period: leave out --period and --periods");
    row("nothing to look at",
        QStringList{File("wave.txt"), "--column", "2", "--from", "200us", "--to", "100us"} + bearer, 1,
        File("wave.txt") + ": from 200 us to 100 us there is nothing to look at");
    row("too large a number", {"--buck", "vin=12 vout=3.3 iout=1e30 f=500kHz l=2.2uH", "--format", "json"}, 1,
        "Run-time error '6': Overflow");
    row("bias of a column", QStringList{File("high.txt"), "--column", "2", "--voltage", "3"} + bearer, 1,
        "KTS32XB51E106MA01: --voltage 3, whose mean is 26 V: DC Bias Voltage is invalid! Please enter a "
        "Number from 0 to 25[V]");
    row("two converters", {"--buck", buck, "--boost", buck}, 2,
        "--buck, --boost and --flyback are several converters: leave one");
    row("no frequency", {"--buck", "vin=12 vout=3 iout=5 l=2.2uH"}, 2,
        "--buck there is no f=, for example vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH");
    row("unknown datum", {"--buck", "vin=12 d=0.5"}, 2,
        "--buck \"d=0.5\" is none of: vin=, vout=, iout=, f=, l=, mode=");
    row("unit", {"--buck", "vin=12A"}, 2, "--buck \"12A\": \"A\" is not the unit of a voltage");
    row("no turns", {"--flyback", buck}, 2,
        "--flyback there is no n=, for example vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH n=4");
    row("impossible", {"--buck", "vin=3 vout=5 iout=1 f=500kHz l=1uH"}, 1,
        "--buck vin=3 vout=5 iout=1 f=500kHz l=1uH: a buck converter's vout is below its vin");
    row("side", {"--buck", buck, "--side", "left"}, 2, "side \"left\" is none of: input, output");
    row("bias", QStringList{File("wave.txt"), "--column", "2", "--dc-bias", "26V"} + bearer, 1,
        "KTS32XB51E106MA01: --dc-bias 26V: DC Bias Voltage is invalid! Please enter a Number from 0 to "
        "25[V]");
    row("ambient", QStringList{File("wave.txt"), "--column", "2", "--ambient", "86"} + bearer, 1,
        "KTS32XB51E106MA01: --ambient 86: Ambient Temperature is invalid! Please enter a Number from 20 to "
        "85 [C]");
    row("rise", QStringList{File("wave.txt"), "--max-rise", "0"} + bearer, 1,
        "--max-rise 0: Temperature Rise is invalid! Please enter a Number above 0, up to 80 [C]");
    row("unknown part", {File("wave.txt"), "--column", "2", "--part", "nothing"}, 1,
        "nothing: there is no part \"nothing\"");
    row("no heating data", {File("wave.txt"), "--column", "2", "--part", "KTU033R71E101KA01"}, 1,
        "KTU033R71E101KA01: has no heating data");
    row("no file", QStringList{File("none.txt")} + bearer, 1,
        "Run-time error '53': File not found: none.txt");
    row("column", QStringList{File("wave.txt"), "--column", "I(C9)"} + bearer, 1,
        File("wave.txt") + ": there is no column \"I(C9)\"; there are 2 I(C1), 3 V(c1)");
    row("period", QStringList{File("wave.txt"), "--column", "2", "--period", "1ms"} + bearer, 1,
        File("wave.txt") + ": a period of 1 ms is longer than the record of 250 us");
    row("unit of a period", QStringList{File("wave.txt"), "--period", "1V"} + bearer, 2,
        "--period \"1V\": \"V\" is not the unit of a time");
    row("one period", QStringList{File("once.txt")} + bearer, 1,
        File("once.txt") +
            ": no two periods of the current are in the record; --whole takes it for one period");
    row("two runs", QStringList{File("two.txt")} + bearer, 1,
        File("two.txt") + ": line 203: the time falls, so a second run begins; export one run");
    row("raw file", QStringList{File("buck.raw")} + bearer, 1,
        File("buck.raw") + ": is a raw file: export the waveform as text");
    // Only its length is there, and nothing of it is read.
    QFile tooLarge(File("large.txt"));
    QVERIFY(tooLarge.open(QIODevice::WriteOnly) && tooLarge.resize((qint64{1} << 30) + 1));
    row("larger than 1 GiB", QStringList{File("large.txt")} + bearer, 1,
        File("large.txt") + ": is larger than 1 GiB: export fewer columns, a shorter time or coarser steps");
    row("output", QStringList{File("wave.txt"), "--output", File("wave.txt")} + bearer, 1,
        File("wave.txt") + ": is " + File("wave.txt") + ", which this command reads");
}

void RippleTest::RefusesWithOneLine()
{
    QFETCH(const QStringList, words);
    QFETCH(const int, status);
    QFETCH(const QString, message);
    const Run run = Ripple(words);
    QCOMPARE(QString::fromUtf8(run.Messages), "tavik-cli: " + message + '\n');
    QCOMPARE(run.Status, status);
    QCOMPARE(run.Output, QByteArray());
}

QTEST_GUILESS_MAIN(RippleTest)
#include "RippleTest.moc"
