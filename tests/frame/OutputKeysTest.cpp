/// Printing without a printer, keyboard shortcuts, and what a screen reader finds.

#include "app/mdlPublic.h"
#include "chart/drawing/TitledSheet.h"
#include "chart/frmGraph.h"
#include "frame/frmPrinting.h"
#include "tests/frame/Desk.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

class OutputKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void PrintingDataWithoutPrinterIsTold();
    void PrintingChartWithoutPrinterIsTold();
    void PageSetupWithoutPrinterIsTold();
    void DeclinedQuestionPrintsNothing();
    void RefusedParameterIsNotPrinted();
    void RefusedConditionIsNotPrinted();
    void ChartsOwnEntryPrintsTheSelection();
    void NoticeStandsUnderTheHourglass();
    void KeysOfTheMainWindow();
    void KeysOfAChart();
    void CopyKeyInABoxCopiesItsText();
    void OutputKeysNeedAPart();
    void HelpKeyAnswersOnceEverywhere();
    void EveryEntryExplainsItself();
    void EveryControlHasANameForScreenReaders();

private:
    std::unique_ptr<QTemporaryDir> settings;
};

void OutputKeysTest::init()
{
    settings = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings->path());
}

static void PlotOne(Desk& desk)
{
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
}

static void Key(Desk& desk, int key)
{
    QApplication::setActiveWindow(desk.main.get());
    QWidget* focus = desk.main->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : desk.main.get(), static_cast<Qt::Key>(key),
                    Qt::ControlModifier);
    Settle();
}

static void VerifyNothingIsUnderWay(std::int16_t lines)
{
    QCOMPARE(mdlPublic.Charts.CurrentChart(), lines);
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
    for (const QWidget* window : QApplication::topLevelWidgets())
    {
        QVERIFY(qobject_cast<const frmPrinting*>(window) == nullptr);
    }
}

static void VerifyNoPrinter(const Desk& desk, const Said& box)
{
    QCOMPARE(box.text, QString("Unexpected Error 65534\nThere is no printer in this system."));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.title, desk.main->windowTitle());
}

void OutputKeysTest::PrintingDataWithoutPrinterIsTold()
{
    Desk desk;
    PlotOne(desk);
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    Key(desk, Qt::Key_P);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{2});
    QCOMPARE(boxes[0].text, "Would you print " + ListedPart(desk, 0) + " Data ?");
    QCOMPARE(boxes[0].icon, QMessageBox::Question);
    QCOMPARE(boxes[0].title, QString("Halvex Chip Capacitor Characteristics Data Library"));
    VerifyNoPrinter(desk, boxes[1]);
    VerifyNothingIsUnderWay(1);
}

void OutputKeysTest::PrintingChartWithoutPrinterIsTold()
{
    Desk desk;
    PlotOne(desk);
    Key(desk, Qt::Key_P);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{2});
    QCOMPARE(boxes[0].text, QString("Would you print Capacitance-Temperature Characteristics Chart ?"));
    QCOMPARE(boxes[0].icon, QMessageBox::Question);
    VerifyNoPrinter(desk, boxes[1]);
    VerifyNothingIsUnderWay(1);
}

void OutputKeysTest::PageSetupWithoutPrinterIsTold()
{
    Desk desk;
    PlotOne(desk);
    desk.Choose("mnuFilePageSetup");
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    VerifyNoPrinter(desk, boxes[0]);
    VerifyNothingIsUnderWay(1);
}

void OutputKeysTest::DeclinedQuestionPrintsNothing()
{
    Desk desk;
    PlotOne(desk);
    desk.AnswerBy(QMessageBox::Cancel);
    Key(desk, Qt::Key_P);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{1});
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    Key(desk, Qt::Key_P);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{1});
    VerifyNothingIsUnderWay(1);
}

void OutputKeysTest::RefusedParameterIsNotPrinted()
{
    Desk desk;
    desk.ClickChartType(0);
    desk.PickXAxis("Frequency");
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtAmbientTemp", "25");
    desk.Type("txtParameter", "1E9");
    Key(desk, Qt::Key_P);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes[0].icon, QMessageBox::Warning);
    QVERIFY(desk.HasFocus("txtParameter"));
    VerifyNothingIsUnderWay(0);
}

void OutputKeysTest::RefusedConditionIsNotPrinted()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "nothing");
    Key(desk, Qt::Key_P);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes[0].icon, QMessageBox::Warning);
    QVERIFY(desk.HasFocus("txtDCBiasVol"));
    VerifyNothingIsUnderWay(0);
}

void OutputKeysTest::ChartsOwnEntryPrintsTheSelection()
{
    Desk desk;
    PlotOne(desk);
    desk.TypePart(ListedPart(desk, 1));
    desk.Type("txtDCBiasVol", "0");
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    QVERIFY(desk.MenuTitles().contains("&Chart"));
    desk.AnswerBy(QMessageBox::Cancel);
    desk.Entry("mnuPrintData")->trigger();
    Settle();
    QCOMPARE(desk.TakeText(), "Would you print " + ListedPart(desk, 1) + " Data ?");
    VerifyNothingIsUnderWay(1);
}

/// Notes under which pointer the printing notice appears.
class NoticeWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QCursor* pointer = QGuiApplication::overrideCursor();
        if (event->type() == QEvent::Show && qobject_cast<frmPrinting*>(watched) != nullptr)
        {
            pointers << (pointer != nullptr ? pointer->shape() : Qt::ArrowCursor);
        }
        return false;
    }
    QList<Qt::CursorShape> pointers;
};

void OutputKeysTest::NoticeStandsUnderTheHourglass()
{
    Desk desk;
    PlotOne(desk);
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    NoticeWatch watch;
    qApp->installEventFilter(&watch);
    Key(desk, Qt::Key_P);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{2});
    QCOMPARE(watch.pointers, QList<Qt::CursorShape>{Qt::WaitCursor});
    VerifyNothingIsUnderWay(1);
}

/// Presses a key that opens a dialog, and names the class of what opened.
static QByteArray OpenedBy(Desk& desk, int key)
{
    QByteArray opened;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look,
                     [&]
                     {
                         auto* front = QApplication::activeModalWidget();
                         if (front != nullptr && qobject_cast<QMessageBox*>(front) == nullptr)
                         {
                             opened = front->metaObject()->className();
                             QTest::keyClick(front, Qt::Key_Escape);
                         }
                     });
    look.start(5);
    Key(desk, key);
    return opened;
}

void OutputKeysTest::KeysOfTheMainWindow()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "0");
    QCOMPARE(OpenedBy(desk, Qt::Key_S), QByteArray("QFileDialog"));
    Key(desk, Qt::Key_P);
    QCOMPARE(desk.TakeBoxes().front().text, "Would you print " + ListedPart(desk, 0) + " Data ?");
    Key(desk, Qt::Key_Q);
    QVERIFY(!desk.main->isVisible());
}

void OutputKeysTest::KeysOfAChart()
{
    Desk desk;
    PlotOne(desk);
    QGuiApplication::clipboard()->clear();
    Key(desk, Qt::Key_C);
    QCOMPARE(QGuiApplication::clipboard()->image().size(), (TitledSheetSize() * 2).toSize());
    QCOMPARE(OpenedBy(desk, Qt::Key_S), QByteArray("QFileDialog"));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    Key(desk, Qt::Key_Q);
    QVERIFY(!desk.main->isVisible());
}

void OutputKeysTest::CopyKeyInABoxCopiesItsText()
{
    Desk desk;
    PlotOne(desk);
    for (const char* name : {"txtDCBiasVol", "cmbPartNum"})
    {
        QGuiApplication::clipboard()->clear();
        auto* edit = desk.Find<QLineEdit>(name);
        edit = edit != nullptr ? edit : desk.Find<QComboBox>(name)->lineEdit();
        QTest::mouseClick(edit, Qt::LeftButton);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(edit, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), edit->text());
        QVERIFY(QGuiApplication::clipboard()->image().isNull());
    }
}

void OutputKeysTest::OutputKeysNeedAPart()
{
    Desk desk;
    PlotOne(desk);
    desk.TypePart("none");
    QCOMPARE(OpenedBy(desk, Qt::Key_S), QByteArray());
    Key(desk, Qt::Key_P);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    QCOMPARE(OpenedBy(desk, Qt::Key_S), QByteArray());
    // The chart itself can still be printed.
    Key(desk, Qt::Key_P);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{2});
}

void OutputKeysTest::HelpKeyAnswersOnceEverywhere()
{
    Desk desk;
    PlotOne(desk);
    // A place without books.
    mdlPublic.PathSep = "/nowhere/";
    for (const bool onChart : {true, false})
    {
        QMdiSubWindow* active = desk.Charts().front();
        desk.Area()->setActiveSubWindow(onChart ? active : desk.Find<frmLibrary>("frmLibrary"));
        QApplication::setActiveWindow(desk.main.get());
        QTest::keyClick(desk.main.get(), Qt::Key_F1);
        Settle();
        QCOMPARE(desk.TakeText(), QString("There is no Help File."));
    }
}

/// All entries of a menu and of the menus in it.
static void CollectEntries(const QMenu* menu, QList<QAction*>& entries)
{
    for (QAction* action : menu->actions())
    {
        if (action->menu() != nullptr)
        {
            CollectEntries(action->menu(), entries);
        }
        else if (!action->isSeparator())
        {
            entries << action;
        }
    }
}

void OutputKeysTest::EveryEntryExplainsItself()
{
    Desk desk;
    PlotOne(desk);
    QList<QAction*> entries;
    for (const bool onChart : {true, false})
    {
        QMdiSubWindow* active = desk.Charts().front();
        desk.Area()->setActiveSubWindow(onChart ? active : desk.Find<frmLibrary>("frmLibrary"));
        for (const QAction* title : desk.main->menuBar()->actions())
        {
            CollectEntries(title->menu(), entries);
        }
    }
    // 11 of the main window and 16 of a chart.
    QVERIFY(entries.size() >= 24);
    for (const QAction* entry : entries)
    {
        QVERIFY2(!entry->statusTip().isEmpty(), qPrintable(entry->objectName()));
    }
}

/// The controls that a user reaches by key and that have no name.
static void CollectNameless(QAccessibleInterface* control, QStringList& nameless, int& controls)
{
    if (control == nullptr || control->state().invisible)
    {
        return;
    }
    const auto* widget = qobject_cast<const QWidget*>(control->object());
    const bool reached =
        widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
    if (reached)
    {
        ++controls;
        if (control->text(QAccessible::Name).trimmed().isEmpty())
        {
            nameless << QString("%1 %2").arg(widget->metaObject()->className(), widget->objectName());
        }
    }
    for (int i = 0; i < control->childCount(); ++i)
    {
        CollectNameless(control->child(i), nameless, controls);
    }
}

static QStringList Nameless(QWidget* window, int& controls)
{
    QStringList nameless;
    CollectNameless(QAccessible::queryAccessibleInterface(window), nameless, controls);
    return nameless;
}

void OutputKeysTest::EveryControlHasANameForScreenReaders()
{
    Desk desk;
    PlotOne(desk);
    int controls = 0;
    QCOMPARE(Nameless(desk.main.get(), controls), QStringList());
    QVERIFY2(controls >= 12, qPrintable(QString::number(controls)));
    for (const char* entry : {"mnuChartExpand", "mnuHelpAbout"})
    {
        controls = 0;
        QStringList nameless = {"not looked at"};
        QTimer look;
        connect(&look, &QTimer::timeout, &look,
                [&]
                {
                    if (QWidget* front = QApplication::activeModalWidget())
                    {
                        nameless = Nameless(front, controls);
                        QTest::keyClick(front, Qt::Key_Escape);
                    }
                });
        look.start(5);
        desk.Choose(entry);
        QCOMPARE(nameless, QStringList());
        QVERIFY(controls > 0);
    }
}

QTEST_MAIN(OutputKeysTest)
#include "OutputKeysTest.moc"
