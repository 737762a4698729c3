/// The files of a board as they change below the window that checks it.

#include "tests/frame/BomDesk.h"

#include <QBrush>
#include <QElapsedTimer>
#include <QPalette>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

class BomFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void JudgesAgainWhenAFileIsWritten();
    void JudgesAgainWhenAFileIsReplaced();
    void KeepsTheVerdictsWhileAFileIsGone();
    void KeepsTheVerdictsOfAHalfWrittenFile();
    void TellsAllFaultsWithTheirLines();
    void ChosenRowStaysByItsReference();
    void WaveformsAreWatched();
    void ReadsNoFileOutsideTheFolder();
    void LastChangeCounts();
    void LargeBillDoesNotBlock();
};

/// "C9" would have 10 uF with less bias.
static QByteArray Mended(QByteArray rails)
{
    return rails.replace("C9,4.75..5.25V,,,6uF", "C9,1..1.2V,,,6uF")
        .replace("+5V,C15", "+5A,C15")
        .replace("+5V,C13", "+5B,C13");
}

static QColor Ink(const BomDesk& desk, int row)
{
    return desk.Table()->model()->index(row, 1).data(Qt::ForegroundRole).value<QBrush>().color();
}

/// How dark the darkest place of the chart is: 255 for white.
static int DarkestOfChart(const BomDesk& desk)
{
    const QImage chart = desk.Control<QWidget>("picBom")->grab().toImage();
    int darkest = 255;
    for (int y = 0; y < chart.height(); ++y)
    {
        for (int x = 0; x < chart.width(); ++x)
        {
            darkest = std::min(darkest, qGray(chart.pixel(x, y)));
        }
    }
    return darkest;
}

static bool IsGreyed(const BomDesk& desk)
{
    return Ink(desk, 0) == desk.window->palette().color(QPalette::Disabled, QPalette::Text) &&
           !desk.Control<QPushButton>("cmdBomReport")->isEnabled() &&
           !desk.Control<QPushButton>("cmdBomPlot")->isEnabled();
}

void BomFilesTest::JudgesAgainWhenAFileIsWritten()
{
    const BomDesk desk;
    desk.OpenSample();
    desk.Write("rails.csv", Mended(desk.Bytes("rails.csv")));
    QVERIFY2(desk.Tells("3 fail, 2 unknown, 0 warn, 7 ok"), qPrintable(desk.Line()));
    QCOMPARE(desk.Cell("tblBom", desk.RowOf("C9"), "Verdict"), QString("ok"));
}

void BomFilesTest::JudgesAgainWhenAFileIsReplaced()
{
    const BomDesk desk;
    desk.OpenSample();
    const auto rails = desk.Bytes("rails.csv");
    desk.Replace("rails.csv", Mended(rails));
    QVERIFY2(desk.Tells("3 fail, 2 unknown, 0 warn, 7 ok"), qPrintable(desk.Line()));
    // The file of that name is another one now, and is watched all the same.
    desk.Replace("rails.csv", rails);
    QVERIFY2(desk.Tells("4 fail, 2 unknown, 0 warn, 6 ok"), qPrintable(desk.Line()));
    desk.Replace("board.csv", desk.Bytes("board.csv").replace("C17;100u;CP_8x10;1;EEX-100-35;\n", ""));
    QVERIFY2(desk.Tells("4 fail, 1 unknown, 0 warn, 6 ok"), qPrintable(desk.Line()));
}

void BomFilesTest::KeepsTheVerdictsWhileAFileIsGone()
{
    const BomDesk desk;
    desk.OpenSample();
    const auto rails = desk.Bytes("rails.csv");
    QFile::remove(desk.File("rails.csv"));
    QVERIFY2(desk.Tells("rails.csv: File not found"), qPrintable(desk.Line()));
    QCOMPARE(desk.Rows(), 12);
    QVERIFY(IsGreyed(desk));
    QVERIFY2(DarkestOfChart(desk) > 128, qPrintable(QString::number(DarkestOfChart(desk))));
    Grab(desk, "gone");
    desk.Write("rails.csv", rails);
    QVERIFY2(desk.Tells("4 fail, 2 unknown, 0 warn, 6 ok"), qPrintable(desk.Line()));
    QVERIFY(!IsGreyed(desk));
    QVERIFY2(DarkestOfChart(desk) < 64, qPrintable(QString::number(DarkestOfChart(desk))));
    QVERIFY(desk.Control<QPushButton>("cmdBomReport")->isEnabled());
}

void BomFilesTest::KeepsTheVerdictsOfAHalfWrittenFile()
{
    const BomDesk desk;
    desk.OpenSample();
    const auto rails = desk.Bytes("rails.csv");
    desk.Write("rails.csv", "");
    QVERIFY2(desk.Tells("rails.csv: there is no heading"), qPrintable(desk.Line()));
    QVERIFY(IsGreyed(desk));
    QCOMPARE(desk.Rows(), 12);
    desk.Write("rails.csv", rails.left(rails.indexOf("C3-C8") + 3));
    QVERIFY2(desk.Tells("rails.csv: line 5: "), qPrintable(desk.Line()));
    QVERIFY(IsGreyed(desk));
    desk.Write("rails.csv", rails);
    QVERIFY2(desk.Tells("4 fail, 2 unknown, 0 warn, 6 ok"), qPrintable(desk.Line()));
    QVERIFY(!IsGreyed(desk));
}

void BomFilesTest::TellsAllFaultsWithTheirLines()
{
    const BomDesk desk;
    desk.OpenSample();
    QByteArray rails("reference,dc bias\n");
    for (int i = 1; i <= 19; ++i)
    {
        rails += "C" + QByteArray::number(i) + ",twelve" + QByteArray::number(i) + "\n";
    }
    desk.Write("rails.csv", rails);
    QVERIFY(desk.Tells("rails.csv: line 2: dc bias: "));
    const auto lines = desk.Line().split('\n');
    // C17 is no capacitor of the range, C19 is not fitted.
    QVERIFY2(lines.size() >= 15, qPrintable(desk.Line()));
    for (const QString& line : lines)
    {
        QVERIFY2(line.startsWith("rails.csv: line ") && line.contains("twelve"), qPrintable(line));
    }
    // They are scrolled to by the keyboard.
    auto* const area = desk.Control<QScrollArea>("scrBom");
    QTRY_VERIFY(area->focusPolicy() & Qt::TabFocus);
    QVERIFY(area->height() < 7 * desk.window->fontMetrics().lineSpacing());
    area->setFocus();
    QTest::keyClick(area, Qt::Key_PageDown);
    QVERIFY(area->verticalScrollBar()->value() > 0);
    Grab(desk, "faults");
}

void BomFilesTest::ChosenRowStaysByItsReference()
{
    const BomDesk desk;
    desk.OpenSample();
    desk.Choose("C9");
    const int before = desk.RowOf("C9");
    desk.Write("rails.csv", Mended(desk.Bytes("rails.csv")));
    QVERIFY(desk.Tells("3 fail"));
    QVERIFY(desk.RowOf("C9") != before);
    QCOMPARE(desk.Chosen(), QString("C9"));
    QCOMPARE(desk.Table()->selectionModel()->selectedRows().size(), 1);
    QCOMPARE(desk.Table()->currentIndex().row(), desk.RowOf("C9"));
}

/// A triangle of so many amperes from peak to peak, ten periods of 2 µs.
static QByteArray Wave(double amperes)
{
    QByteArray text("time,i(c1)\n");
    for (int i = 0; i <= 1000; ++i)
    {
        const double place = (i % 100) / 100.0;
        text += QByteArray::number(i * 2e-8, 'g', 9) + "," +
                QByteArray::number(amperes * (place < 0.5 ? 2 * place - 0.5 : 1.5 - 2 * place), 'g', 9) +
                "\n";
    }
    return text;
}

void BomFilesTest::WaveformsAreWatched()
{
    const BomDesk desk;
    desk.Write("board.csv", "Reference,MPN,Bias,Waveform\nC1,KTS31NR71A226KA01,3.3V,wave.csv\n");
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY2(desk.Tells("board.csv: line 2: waveform: "), qPrintable(desk.Line()));
    desk.Write("wave.csv", Wave(2));
    QVERIFY2(desk.Tells("0 fail, 0 unknown, 0 warn, 1 ok"), qPrintable(desk.Line()));
    const QString rise = desk.Cell("tblBom", 0, "Rise [°C]");
    QVERIFY2(rise.endsWith(" of 20"), qPrintable(rise));
    desk.Write("wave.csv", Wave(40));
    QVERIFY2(desk.Tells("1 fail"), qPrintable(desk.Line()));
    QVERIFY(desk.Cell("tblBom", 0, "Rise [°C]") != rise);
}

void BomFilesTest::ReadsNoFileOutsideTheFolder()
{
    const BomDesk desk;
    desk.Write("board.csv", "Reference,MPN,Bias,Waveform\nC1,KTS31NR71A226KA01,3.3V,../wave.csv\n");
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY2(desk.Tells("lies outside the folder of the file that names it"), qPrintable(desk.Line()));
}

void BomFilesTest::LastChangeCounts()
{
    const BomDesk desk;
    desk.OpenSample();
    const auto rails = desk.Bytes("rails.csv");
    for (int i = 0; i < 10; ++i)
    {
        desk.Write("rails.csv", i % 2 == 0 ? Mended(rails) : rails);
        desk.Key("txtBomTolerance", QString::number(i));
    }
    desk.Write("rails.csv", Mended(rails));
    QVERIFY2(desk.Tells("3 fail, 2 unknown, 0 warn, 7 ok"), qPrintable(desk.Line()));
    QTest::qWait(600);
    QVERIFY2(desk.Line().startsWith("3 fail, 2 unknown, 0 warn, 7 ok"), qPrintable(desk.Line()));
}

void BomFilesTest::LargeBillDoesNotBlock()
{
    const BomDesk desk;
    QByteArray bill("Reference,MPN,Bias\n");
    for (int i = 1; i <= 50'000; ++i)
    {
        bill += "C" + QByteArray::number(i) + ",KTS21JB51C106MA01," + QByteArray::number(1 + i % 20) + "V\n";
    }
    desk.Write("board.csv", bill);
    QElapsedTimer pause;
    qint64 longest = 0;
    QTimer beat;
    connect(&beat, &QTimer::timeout, this, [&] { longest = std::max(longest, pause.restart()); });
    pause.start();
    beat.start(5);
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY(QTest::qWaitFor([&] { return desk.Control<QWidget>("prgBom")->isVisible(); }, 20000));
    QVERIFY2(longest < 500, qPrintable(QString::number(longest)));
    // Another board takes its place at once, while it is still being read.
    desk.Write("board.csv", "Reference,MPN,Bias\nC1,KTS21JB51C106MA01,5V\n");
    desk.Key("txtBomTolerance", "1");
    QVERIFY2(desk.Tells("0 fail, 0 unknown, 0 warn, 1 ok"), qPrintable(desk.Line()));
    QVERIFY(!desk.Control<QWidget>("prgBom")->isVisible());
}

QTEST_MAIN(BomFilesTest)
#include "BomFilesTest.moc"
