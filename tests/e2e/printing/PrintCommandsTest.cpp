/// The print commands of the real main window, on the queues of a real print server.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"
#include "tests/frame/printing/PdfText.h"

#include <QComboBox>
#include <QFile>
#include <QMdiArea>
#include <QPrintDialog>
#include <QTest>

#include <functional>

class PrintCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ChartIsPrintedOnTheChosenPrinter();
    void DataIsPrintedOnThePrinterOfTheSetUp();
    void CancelledDialogEndsSilently();

private:
    std::vector<PdfPage> Printed(const QString& queue) const;

    QString folder;
};

void PrintCommandsTest::initTestCase()
{
    folder = qEnvironmentVariable("PRINTED_FILES");
    QVERIFY2(!folder.isEmpty(), "This test runs beside a print server of its own.");
}

/// Waits until a queue has printed, and reads its paper.
std::vector<PdfPage> PrintCommandsTest::Printed(const QString& queue) const
{
    const QString file = folder + '/' + queue + ".pdf";
    const auto isWhole = [&]
    {
        QFile paper(file);
        return paper.open(QIODevice::ReadOnly) && paper.readAll().contains("%%EOF");
    };
    if (!QTest::qWaitFor(isWhole, 10000))
    {
        return {};
    }
    const auto pages = ReadPdf(file);
    QFile::remove(file);
    return pages;
}

static bool Holds(const std::vector<PdfPage>& pages, const QString& word)
{
    return pages.size() == 1 && std::ranges::any_of(pages[0].Words, [&](const PdfWord& printed)
                                                    { return printed.Text.contains(word); });
}

static void Plot(Desk& desk)
{
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
}

/// Does something that opens the printer dialog, chooses a printer there and presses a key. True when the
/// dialog was shown.
static bool InPrinterDialog(const QString& printer, Qt::Key key, const std::function<void()>& open)
{
    bool shown = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look,
                     [&]
                     {
                         auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
                         if (dialog != nullptr && dialog->isVisible())
                         {
                             shown = true;
                             for (QComboBox* list : dialog->findChildren<QComboBox*>())
                             {
                                 const int index = list->findText(printer);
                                 list->setCurrentIndex(index >= 0 ? index : list->currentIndex());
                             }
                             QTest::keyClick(dialog, key);
                         }
                     });
    look.start(50);
    open();
    return shown;
}

static void PressPrint(Desk& desk)
{
    QApplication::setActiveWindow(desk.main.get());
    QTest::keyClick(desk.main.get(), Qt::Key_P, Qt::ControlModifier);
    Settle();
}

void PrintCommandsTest::ChartIsPrintedOnTheChosenPrinter()
{
    Desk desk;
    Plot(desk);
    QVERIFY(InPrinterDialog("gray", Qt::Key_Return, [&] { PressPrint(desk); }));
    QCOMPARE(desk.TakeText(), QString("Would you print Capacitance-Temperature Characteristics Chart ?"));
    const auto pages = Printed("gray");
    QVERIFY(Holds(pages, ListedPart(desk, 0)));
    QVERIFY(Holds(pages, "Resistance["));
    QVERIFY(pages[0].Paper.height() > pages[0].Paper.width());
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
}

void PrintCommandsTest::DataIsPrintedOnThePrinterOfTheSetUp()
{
    Desk desk;
    Plot(desk);
    QVERIFY(InPrinterDialog("gray", Qt::Key_Return, [&] { desk.Choose("mnuFilePageSetup"); }));
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    PressPrint(desk);
    QCOMPARE(desk.TakeText(), "Would you print " + ListedPart(desk, 0) + " Data ?");
    const auto pages = Printed("gray");
    QVERIFY(Holds(pages, ListedPart(desk, 0) + "("));
    // The last of the 200 points.
    const QString last = QString::asprintf("%.2E", double{mdlPublic.Charts.ChartData()[0].YData[199]});
    QVERIFY(Holds(pages, last));
    QVERIFY(IsAtRest());
}

void PrintCommandsTest::CancelledDialogEndsSilently()
{
    Desk desk;
    Plot(desk);
    QVERIFY(InPrinterDialog("color", Qt::Key_Escape, [&] { PressPrint(desk); }));
    // The question alone.
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{1});
    QTest::qWait(500);
    QVERIFY(!QFile::exists(folder + "/color.pdf"));
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
}

QTEST_MAIN(PrintCommandsTest)
#include "PrintCommandsTest.moc"
