/// The shared state's selectors and scopes, the instances' meeting name, and message boxes.

#include "app/SingleInstance.h"
#include "app/mdlPublic.h"
#include "formkit/HourglassScope.h"
#include "formkit/Messages.h"
#include "formkit/RunCommand.h"
#include "formkit/Twips.h"
#include "partdata/RunTimeError.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <new>

class SharedStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SelectorsReadTheMarks_data();
    void SelectorsReadTheMarks();
    void NestedUpdatingRestoresFormerValue();
    void HourglassEndsHoweverItsCommandEnds();
    void InstancesMeetByUserAndLogin();
    void TwipsAreFifteenToThePixel();
    void BoxesBearTitleIconAndText();
    void QuestionIsAnsweredByItsButtons();
    void BoxShowsNormalPointerInLongCommand();
    void CommandTellsWhatEndedIt_data();
    void CommandTellsWhatEndedIt();
    void CancelledCommandEndsInSilence();
};

void SharedStateTest::SelectorsReadTheMarks_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("numbering");
    QTest::addColumn<int>("form");
    QTest::newRow("EIA, global") << 0 << 0 << 0;
    QTest::newRow("JIS, global") << 1 << 0 << 1;
    QTest::newRow("EIA, previous") << 0 << 1 << 2;
    QTest::newRow("JIS, previous") << 1 << 1 << 3;
}

void SharedStateTest::SelectorsReadTheMarks()
{
    QFETCH(int, code);
    QFETCH(int, numbering);
    mdlPublic.Marks.mnuViewCode = [=](int i) { return i == code; };
    mdlPublic.Marks.mnuPartNum = [=](int i) { return i == numbering; };
    QCOMPARE(static_cast<int>(GetCodeForm()), code);
    QCOMPARE(static_cast<int>(GetNumberingOffset()), 2 * numbering);
    QTEST(static_cast<int>(GetPartNumForm()), "form");
    QVERIFY(GetCodeView() == (code == 0 ? CodeView::Eia : CodeView::Jis));
    mdlPublic.Marks = {};
}

void SharedStateTest::NestedUpdatingRestoresFormerValue()
{
    QVERIFY(!mdlPublic.Updating);
    {
        const UpdatingScope outer;
        {
            const UpdatingScope inner;
            QVERIFY(mdlPublic.Updating);
        }
        QVERIFY(mdlPublic.Updating);
    }
    QVERIFY(!mdlPublic.Updating);
}

void SharedStateTest::HourglassEndsHoweverItsCommandEnds()
{
    try
    {
        const HourglassScope hourglass;
        QVERIFY(QGuiApplication::overrideCursor() != nullptr);
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        throw RunTimeError(RunTimeErrorNumber::Overflow);
    }
    catch (const RunTimeError&)
    {
    }
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void SharedStateTest::InstancesMeetByUserAndLogin()
{
    const QByteArray session = qgetenv("XDG_SESSION_ID");
    qputenv("XDG_SESSION_ID", "7");
    const std::string seventh = SingleInstanceName(0);
    QCOMPARE(SingleInstanceName(0), seventh);
    QVERIFY(SingleInstanceName(1) != seventh);
    qputenv("XDG_SESSION_ID", "8");
    QVERIFY(SingleInstanceName(0) != seventh);
    qunsetenv("XDG_SESSION_ID");
    QVERIFY(SingleInstanceName(0) != seventh);
    qputenv("XDG_SESSION_ID", session);
}

void SharedStateTest::TwipsAreFifteenToThePixel()
{
    QCOMPARE(Twips(3000), 200);
    QCOMPARE(Twips(10995), 733);
    QCOMPARE(Twips(4425), 295);
    QCOMPARE(Twips(50), 3);
    QCOMPARE(Twips(0), 0);
}

/// What was seen of a message box while it stood.
struct Seen
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::CursorShape pointer = Qt::BlankCursor;
};

/// Runs something that shows one box, and answers the box by a key.
static Seen SeeBox(const std::function<void()>& show, Qt::Key answer = Qt::Key_Return)
{
    Seen seen;
    QTimer::singleShot(0, qApp,
                       [&]
                       {
                           auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                           const QCursor* pointer = QGuiApplication::overrideCursor();
                           seen = {box->windowTitle(), box->text(), box->icon(),
                                   pointer != nullptr ? pointer->shape() : Qt::ArrowCursor};
                           QTest::keyClick(box, answer);
                       });
    show();
    return seen;
}

void SharedStateTest::BoxesBearTitleIconAndText()
{
    const QString title = "Halvex Chip Capacitor Characteristics Data Library";
    Seen seen = SeeBox([] { ShowExclamation(nullptr, "a\r\nb <b>c</b>"); });
    QCOMPARE(seen.title, title);
    QCOMPARE(seen.text, QString("a\nb <b>c</b>"));
    QCOMPARE(seen.icon, QMessageBox::Warning);
    seen = SeeBox([] { ShowInformation(nullptr, "n"); });
    QCOMPARE(seen.title, title);
    QCOMPARE(seen.icon, QMessageBox::Information);
    seen = SeeBox([] { ShowUnexpectedError(nullptr, RunTimeError(RunTimeErrorNumber::DiskFull)); });
    QCOMPARE(seen.title, title);
    QCOMPARE(seen.icon, QMessageBox::Critical);
    QCOMPARE(seen.text, QString("Unexpected Error 61\nDisk full"));
}

void SharedStateTest::QuestionIsAnsweredByItsButtons()
{
    bool answer = false;
    const Seen seen = SeeBox([&] { answer = AskOkCancel(nullptr, "Go on?"); });
    QVERIFY(answer);
    QCOMPARE(seen.icon, QMessageBox::Question);
    SeeBox([&] { answer = AskOkCancel(nullptr, "Go on?"); }, Qt::Key_Escape);
    QVERIFY(!answer);
}

void SharedStateTest::BoxShowsNormalPointerInLongCommand()
{
    const HourglassScope hourglass;
    const Seen seen = SeeBox([] { ShowInformation(nullptr, "n"); });
    QCOMPARE(seen.pointer, Qt::ArrowCursor);
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

/// Throws what a command may end in.
static void Fail(const QString& how)
{
    if (how == "memory")
    {
        throw std::bad_alloc();
    }
    throw RunTimeError(how == "cancel" ? RunTimeErrorNumber::Cancelled : RunTimeErrorNumber::DiskFull);
}

void SharedStateTest::CommandTellsWhatEndedIt_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("text");
    QTest::newRow("an error") << "disk"
                              << "Unexpected Error 61\nDisk full";
    QTest::newRow("no memory") << "memory"
                               << "Unexpected Error 7\nOut of memory";
}

void SharedStateTest::CommandTellsWhatEndedIt()
{
    QFETCH(QString, how);
    const Seen seen = SeeBox([&] { RunCommand(nullptr, [&] { Fail(how); }); });
    QTEST(seen.text, "text");
    QCOMPARE(seen.icon, QMessageBox::Critical);
}

void SharedStateTest::CancelledCommandEndsInSilence()
{
    bool ran = false;
    RunCommand(nullptr,
               [&]
               {
                   ran = true;
                   Fail("cancel");
               });
    QVERIFY(ran);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(SharedStateTest)
#include "SharedStateTest.moc"
