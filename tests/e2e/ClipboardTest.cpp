/// A chart copied in the built program and pasted by another program.

#include "tests/e2e/Program.h"

#include <QImage>
#include <QTest>

class ClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ChartIsPastedElsewhere();
};

/// What another program gets from the clipboard as a picture.
static QImage Pasted(const QProcessEnvironment& environment)
{
    QProcess other;
    other.setProcessEnvironment(environment);
    other.start("xclip", {"-selection", "clipboard", "-target", "image/png", "-out"});
    other.waitForFinished(5000);
    return QImage::fromData(other.readAllStandardOutput(), "PNG");
}

static int CountOf(const QImage& picture, const QRect& part, QRgb colour)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
    {
        for (int x = part.left(); x <= part.right(); ++x)
        {
            count += (picture.pixel(x, y) & 0xFFFFFF) == (colour & 0xFFFFFF) ? 1 : 0;
        }
    }
    return count;
}

void ClipboardTest::ChartIsPastedElsewhere()
{
    const TestDisplay display;
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    const ProgramFolder folder;
    const auto environment =
        display.Environment(QStringLiteral("e2e-copy-%1").arg(QCoreApplication::applicationPid()));
    const auto program = folder.Start(environment);
    const QStringList windows = display.WindowsOf(*program, 1);
    QCOMPARE(windows.size(), 1);

    PlotByKeyboard(display, windows.front());
    display.Press(windows.front(), "ctrl+c");

    QImage picture;
    QTRY_VERIFY_WITH_TIMEOUT(!(picture = Pasted(environment)).isNull(), 10000);
    QCOMPARE(picture.size(), QSize(1462, 584));
    // The chart is white to its corners, its curve and its pane are blue, and the other panes are empty.
    const QPoint sheet(20, 70);
    QVERIFY(CountOf(picture, QRect(0, 8, 746, 484).translated(sheet), qRgb(255, 255, 255)) > 300000);
    QVERIFY(CountOf(picture, QRect(124, 36, 592, 398).translated(sheet), qRgb(0, 0, 255)) > 500);
    QVERIFY(CountOf(picture, QRect(760, 0, 660, 80).translated(sheet), qRgb(0, 0, 255)) > 100);
    QCOMPARE(CountOf(picture, QRect(760, 84, 660, 400).translated(sheet), qRgb(0, 0, 255)), 0);
    // The title is black, and nothing touches an edge.
    QVERIFY(CountOf(picture, QRect(20, 20, 700, 34), qRgb(0, 0, 0)) > 100);
    for (const QRect& edge :
         {QRect(0, 0, 1462, 18), QRect(0, 566, 1462, 18), QRect(0, 0, 18, 584), QRect(1444, 0, 18, 584)})
    {
        QCOMPARE(CountOf(picture, edge, qRgb(240, 240, 240)), edge.width() * edge.height());
    }
    program->terminate();
    QVERIFY(program->waitForFinished(5000));
}

QTEST_GUILESS_MAIN(ClipboardTest)
#include "ClipboardTest.moc"
