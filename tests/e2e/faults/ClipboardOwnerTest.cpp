/// Other programs that own the clipboard, and die, hang or lose interest while tavik deals with them.

#include "tests/e2e/Program.h"

#include <QFile>
#include <QImage>
#include <QTest>

#include <csignal>

class ClipboardOwnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void PasteFromDeadOwnerDoesNothing();
    void PasteFromHangingOwnerGivesUp();
    void CopyOutlivesOtherOwnersAndReaders();

private:
    void StartOwner(QProcess& owner, const QByteArray& text) const;
    /// Saves to see that the program works; the bias that it saved.
    QByteArray SavedBias() const;

    std::unique_ptr<TestDisplay> display;
    std::unique_ptr<ProgramFolder> folder;
    std::unique_ptr<QProcess> program;
    QProcessEnvironment environment;
    QString window;
};

void ClipboardOwnerTest::initTestCase()
{
    if (!qEnvironmentVariableIsSet("TAVIK_TEST_RUNS"))
    {
        QSKIP("takes long and wants an idle machine: only with TAVIK_TEST_RUNS set");
    }
}

void ClipboardOwnerTest::init()
{
    display = std::make_unique<TestDisplay>();
    QVERIFY2(display->IsUp(), "Xvfb does not start");
    folder = std::make_unique<ProgramFolder>();
    environment = display->Environment(QStringLiteral("owner"));
    program = folder->Start(environment);
    const QStringList windows = display->WindowsOf(*program, 1);
    QCOMPARE(windows.size(), 1);
    window = windows.front();
    PlotByKeyboard(*display, window);
}

void ClipboardOwnerTest::cleanup()
{
    if (program != nullptr)
    {
        Kill(*program);
    }
    program.reset();
    display.reset();
}

/// Starts a program that owns the clipboard and stays in the foreground.
void ClipboardOwnerTest::StartOwner(QProcess& owner, const QByteArray& text) const
{
    owner.setProcessEnvironment(environment);
    owner.start("xclip", {"-selection", "clipboard", "-in", "-quiet"});
    owner.write(text);
    owner.closeWriteChannel();
    QProcess reader;
    reader.setProcessEnvironment(environment);
    const auto owns = [&]
    {
        reader.start("xclip", {"-selection", "clipboard", "-out"});
        return reader.waitForFinished(5000) && reader.readAllStandardOutput() == text;
    };
    QVERIFY(QTest::qWaitFor(owns, 5000));
}

QByteArray ClipboardOwnerTest::SavedBias() const
{
    const QTemporaryDir saved;
    const QString box = SaveByKeyboard(*display, window, *program, saved.filePath("a.tvk"));
    display->Press(box, "Return");
    QFile file(saved.filePath("a.tvk"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n').value(3).trimmed()
                                          : QByteArray("no file");
}

void ClipboardOwnerTest::PasteFromDeadOwnerDoesNothing()
{
    QProcess owner;
    StartOwner(owner, "1");
    // The bias is 0; pasted behind it, while the owner lives, "1" makes it 01.
    display->Press(window, QStringList{"ctrl+Tab", "alt+d", "End", "ctrl+v"});
    QCOMPARE(SavedBias(), QByteArray("!DC Bias Voltage-> 1 [V]"));
    Kill(owner);
    display->Press(window, QStringList{"ctrl+a", "2", "ctrl+v"});
    QCOMPARE(SavedBias(), QByteArray("!DC Bias Voltage-> 2 [V]"));
}

void ClipboardOwnerTest::PasteFromHangingOwnerGivesUp()
{
    QProcess owner;
    StartOwner(owner, "1");
    QCOMPARE(::kill(static_cast<pid_t>(owner.processId()), SIGSTOP), 0);
    display->Press(window, QStringList{"ctrl+Tab", "alt+d", "2", "ctrl+v"});
    // The toolkit asks for some seconds; the save waits behind that.
    QTest::qWait(1000);
    Kill(owner);
    QCOMPARE(SavedBias(), QByteArray("!DC Bias Voltage-> 2 [V]"));
}

void ClipboardOwnerTest::CopyOutlivesOtherOwnersAndReaders()
{
    const auto pasted = [this]
    {
        QProcess reader;
        reader.setProcessEnvironment(environment);
        reader.start("xclip", {"-selection", "clipboard", "-target", "image/png", "-out"});
        return reader.waitForFinished(5000) ? QImage::fromData(reader.readAllStandardOutput(), "PNG").size()
                                            : QSize();
    };
    display->Press(window, "ctrl+c");
    QTRY_COMPARE_WITH_TIMEOUT(pasted(), QSize(1450, 496), 10000);
    // Readers that die at any moment of the transfer; a BMP of this size comes in many pieces.
    for (int moment = 0; moment < 8; ++moment)
    {
        QProcess reader;
        reader.setProcessEnvironment(environment);
        reader.start("xclip", {"-selection", "clipboard", "-target", "image/bmp", "-out"});
        QVERIFY(reader.waitForStarted());
        QTest::qWait(moment * 7);
        Kill(reader);
    }
    QTRY_COMPARE_WITH_TIMEOUT(pasted(), QSize(1450, 496), 20000);
    // Another program takes the clipboard and dies; then the chart is copied again.
    QProcess other;
    StartOwner(other, "text");
    Kill(other);
    QVERIFY(pasted().isEmpty());
    display->Press(window, "ctrl+c");
    QTRY_COMPARE_WITH_TIMEOUT(pasted(), QSize(1450, 496), 10000);
    QVERIFY(EndsByExit(*display, window, *program));
}

QTEST_GUILESS_MAIN(ClipboardOwnerTest)
#include "ClipboardOwnerTest.moc"
