/// F1 everywhere: the page of what is in front, and help that is read while a box stands.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "formkit/Messages.h"
#include "frame/HelpBrowser.h"
#include "frame/HelpTopics.h"
#include "frame/frmHelp.h"
#include "tests/frame/Desk.h"
#include "tests/frame/WhenShown.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QWindow>

class HelpKeyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void OpensThePageOfAControl_data();
    void OpensThePageOfAControl();
    void OpensThePageOfAChart();
    void OpensThePageOfADialog_data();
    void OpensThePageOfADialog();
    void OpensTheLineOfAMessage_data();
    void OpensTheLineOfAMessage();
    void ChoosesTheLineWithMostOfTheMessage();
    void HelpIsReadWhileABoxStandsAndStays();
    void HelpThatWasOpenIsReadWhileABoxStands();
    void BoxesWithinBoxesLeaveHelpUsable();
    void BooksHaveEveryPage_data();
    void BooksHaveEveryPage();
};

static frmHelp* Viewer()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
    {
        auto* viewer = qobject_cast<frmHelp*>(widget);
        if (viewer != nullptr && viewer->isVisible())
        {
            return viewer;
        }
    }
    return nullptr;
}

static HelpBrowser* Page()
{
    return Viewer() != nullptr ? Viewer()->findChild<HelpBrowser*>("txtBook") : nullptr;
}

/// The text of the first line on the page.
static QString FirstLine()
{
    return Page() != nullptr ? Page()->cursorForPosition(QPoint(8, 12)).block().text().simplified()
                             : QString();
}

/// A desk whose program lies beside the books.
static std::unique_ptr<Desk> DeskWithBooks(int language = 2)
{
    auto desk = std::make_unique<Desk>(SAMPLE_RANGE, language);
    mdlPublic.PathSep = "/";
    QApplication::setActiveWindow(desk->main.get());
    return desk;
}

void HelpKeyTest::cleanup()
{
    CloseHelp();
}

void HelpKeyTest::OpensThePageOfAControl_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("heading");
    QTest::newRow("chart type") << "optChartType_0"
                                << "Chart type";
    QTest::newRow("size") << "cmbSizeCode"
                          << "Part";
    QTest::newRow("axis") << "cmbXaxis"
                          << "Axes";
    QTest::newRow("bias") << "txtDCBiasVol"
                          << "Condition";
}

void HelpKeyTest::OpensThePageOfAControl()
{
    QFETCH(QString, control);
    QFETCH(QString, heading);
    const auto desk = DeskWithBooks();
    desk->TypePart("KTS31NR71E475KA01");
    auto* box = desk->Find<QWidget>(control);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_F1);
    QVERIFY(Viewer() != nullptr);
    QCOMPARE(FirstLine(), heading);
    QVERIFY(desk->TakeBoxes().empty());
}

void HelpKeyTest::OpensThePageOfAChart()
{
    const auto desk = DeskWithBooks();
    desk->PlotCapacitance("KTS31NR71E475KA01", "12");
    QTest::keyClick(desk->Charts().front(), Qt::Key_F1);
    QVERIFY2(FirstLine().endsWith(". Chart windows"), qPrintable(FirstLine()));
}

void HelpKeyTest::OpensThePageOfADialog_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("heading");
    QTest::newRow("axis ranges") << "mnuChartExpand"
                                 << "Setting the ranges";
    QTest::newRow("about") << "mnuHelpAbout"
                           << "What is new";
    QTest::newRow("file") << "mnuFileSaveData"
                          << "Saving data";
}

/// The entry of the chart's menus that opens a dialog: by its name, or by what its name ends in.
static QAction* EntryOf(const Desk& desk, const QString& name)
{
    for (QAction* entry : desk.Charts().front()->findChildren<QAction*>())
    {
        if (entry->objectName() == name)
        {
            return entry;
        }
    }
    return nullptr;
}

void HelpKeyTest::OpensThePageOfADialog()
{
    QFETCH(QString, entry);
    QFETCH(QString, heading);
    const auto desk = DeskWithBooks();
    desk->PlotCapacitance("KTS31NR71E475KA01", "12");
    QAction* const action = EntryOf(*desk, entry);
    QVERIFY(action != nullptr);
    desk->StopAnswering();
    QString shown;
    WhenShown user({[&](QWidget& dialog)
                    {
                        Press(Qt::Key_F1)(dialog);
                        shown = FirstLine();
                        Press(Qt::Key_Escape)(dialog);
                    }});
    action->trigger();
    QVERIFY2(shown.endsWith(heading), qPrintable(shown));
    QVERIFY(Viewer() != nullptr);
}

void HelpKeyTest::OpensTheLineOfAMessage_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("words");
    QTest::newRow("refused bias") << "DC Bias Voltage is invalid!\r\nPlease enter a Number from 0 to 25[V]"
                                  << "from 0 to";
    QTest::newRow("question") << "Would you print KTS31NR71E475KA01 Data ?"
                              << "Would you print part number Data ?";
    QTest::newRow("saved") << "tavik Data saved to /home/a/b.tvk"
                           << "tavik Data saved to path";
    QTest::newRow("range") << "Set Y Range of Capacitance from 0 to 12 [pF]"
                           << "Set Y Range of";
    QTest::newRow("error") << "Unexpected Error 61\r\nDisk full"
                           << "61";
    QTest::newRow("unknown") << "Nobody wrote this."
                             << ". Messages";
}

void HelpKeyTest::OpensTheLineOfAMessage()
{
    QFETCH(QString, message);
    QFETCH(QString, words);
    const auto desk = DeskWithBooks();
    desk->StopAnswering();
    QString shown;
    WhenShown user({[&](QWidget& box)
                    {
                        Press(Qt::Key_F1)(box);
                        shown = FirstLine();
                        Press(Qt::Key_Escape)(box);
                    }});
    ShowExclamation(desk->main.get(), message);
    QVERIFY2(shown.contains(words), qPrintable(shown));
}

void HelpKeyTest::ChoosesTheLineWithMostOfTheMessage()
{
    QTextDocument book;
    book.setHtml(
        "<table><tr><td><code>Frequency is invalid!</code></td><td>a</td></tr>"
        "<tr><td><code>Frequency is invalid!</code> <code>From </code><i>L</i><code> to "
        "</code><i>U</i></td><td>b</td></tr><tr><td>plain</td><td><code>Disk full</code></td></tr></table>");
    const auto cellOf = [&book](const QString& message)
    {
        const auto place = PlaceOfMessage(book, message);
        return place ? book.findBlock(*place).text() : QString();
    };
    QCOMPARE(cellOf("Frequency is invalid!"), "Frequency is invalid!");
    QVERIFY(cellOf("Frequency is invalid!\nFrom 10 to 1000").endsWith("U"));
    QCOMPARE(cellOf("Unexpected Error 61\nDisk full"), "Disk full");
    QCOMPARE(cellOf("plain"), QString());
}

/// The reader turns a page of the help, zooms and searches, by key and mouse through the windows.
static bool CanBeRead()
{
    Page()->moveCursor(QTextCursor::Start);
    QTest::keyClick(Viewer()->windowHandle(), Qt::Key_PageDown);
    const bool turned = Page()->verticalScrollBar()->value() > 0;
    QTest::mouseClick(Viewer()->windowHandle(), Qt::LeftButton, {},
                      Page()->viewport()->mapTo(Viewer(), QPoint(20, 20)));
    return turned && Page()->hasFocus();
}

void HelpKeyTest::HelpIsReadWhileABoxStandsAndStays()
{
    const auto desk = DeskWithBooks();
    desk->StopAnswering();
    bool read = false;
    WhenShown user({[&](QWidget& box)
                    {
                        Press(Qt::Key_F1)(box);
                        QApplication::setActiveWindow(Viewer());
                        read = CanBeRead();
                        QVERIFY(box.isVisible());
                        Press(Qt::Key_Return)(box);
                    }});
    ShowInformation(desk->main.get(), "Close all chart windows");
    QVERIFY(read);
    Settle();
    QVERIFY(Viewer() != nullptr);
    QVERIFY(Viewer()->windowHandle()->transientParent() == nullptr);
    QVERIFY(CanBeRead());
    // Its windows are still one: the viewer goes with the main window.
    desk->main->close();
    Settle();
    QVERIFY(Viewer() == nullptr);
}

void HelpKeyTest::HelpThatWasOpenIsReadWhileABoxStands()
{
    const auto desk = DeskWithBooks();
    desk->StopAnswering();
    QTest::keyClick(desk->main.get(), Qt::Key_F1);
    QVERIFY(Viewer() != nullptr);
    bool read = false;
    WhenShown user({[&](QWidget& box)
                    {
                        QApplication::setActiveWindow(Viewer());
                        read = CanBeRead();
                        QTest::keyClick(Viewer(), Qt::Key_Escape);
                        QVERIFY(Viewer() == nullptr);
                        QVERIFY(box.isVisible());
                        Press(Qt::Key_Return)(box);
                    }});
    ShowInformation(desk->main.get(), "Close all chart windows");
    QVERIFY(read);
}

void HelpKeyTest::BoxesWithinBoxesLeaveHelpUsable()
{
    const auto desk = DeskWithBooks();
    desk->StopAnswering();
    QDialog outer(desk->main.get());
    QLineEdit field(&outer);
    int times = 0;
    const auto showBox = [&outer]
    { ShowExclamation(&outer, "Frequency is invalid!\r\nPlease enter a Number from 10 to 1000 [kHz]"); };
    WhenShown user({[&](QWidget& dialog)
                    {
                        Press(Qt::Key_F1)(dialog);
                        times += CanBeRead() ? 1 : 0;
                        QTimer::singleShot(0, &outer, showBox);
                    },
                    [&](QWidget& box)
                    {
                        Press(Qt::Key_F1)(box);
                        times += FirstLine().contains("Frequency is invalid!") && CanBeRead() ? 1 : 0;
                        Press(Qt::Key_Return)(box);
                    },
                    [&](QWidget& dialog)
                    {
                        times += CanBeRead() ? 1 : 0;
                        QApplication::setActiveWindow(&dialog);
                        Press(Qt::Key_Escape)(dialog);
                    }});
    outer.exec();
    QCOMPARE(times, 3);
    QVERIFY(Viewer() != nullptr);
}

void HelpKeyTest::BooksHaveEveryPage_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("English") << 2;
    QTest::newRow("Japanese") << 1;
}

/// Each control of the main window, and each window by its name, leads to a heading that is there.
void HelpKeyTest::BooksHaveEveryPage()
{
    QFETCH(int, language);
    const auto desk = DeskWithBooks(language);
    QTest::keyClick(desk->main.get(), Qt::Key_F1);
    const auto topics = Page()->Topics();
    QSet<QString> anchors;
    for (QWidget* control : desk->main->findChildren<QWidget*>())
    {
        anchors << HelpTopicOf(*control);
    }
    for (const char* window : {"frmGraph", "frmChartView", "frmPicture", "frmSetAxis", "frmFind",
                               "frmWaveform", "frmBom", "frmPrinting", "frmAbout"})
    {
        QWidget control;
        control.setObjectName(window);
        QVERIFY2(!HelpTopicOf(control).isEmpty(), window);
        anchors << HelpTopicOf(control);
    }
    anchors.remove(QString());
    QVERIFY(anchors.size() >= 12);
    for (const QString& anchor : anchors)
    {
        QVERIFY2(std::ranges::find(topics, anchor, &HelpTopic::anchor) != topics.end(), qPrintable(anchor));
    }
}

QTEST_MAIN(HelpKeyTest)
#include "HelpKeyTest.moc"
