#include "frame/PrintJob.h"
#include "frame/clsComdlg.h"
#include "partdata/RunTimeError.h"
#include "tests/frame/printing/PdfText.h"
#include "tests/frame/printing/SamplePages.h"
#include "tests/partdata/ErrorOf.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <algorithm>

/// Prints on the queues of a real print server, which write what they print to files.
class PrintQueueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void PagesReachThePaper_data();
    void PagesReachThePaper();
    void GrayQueueIsMonochrome();
    void AcceptedDialogGivesItsChoicesBack_data();
    void AcceptedDialogGivesItsChoicesBack();
    void QueueThatCannotPrintIsToldByName_data();
    void QueueThatCannotPrintIsToldByName();
    void PrinterThatIsGoneIsToldByName();
    void StoppedQueueTakesNoJob();
    void CancelledDialogPrintsNothing();

private:
    /// Waits until a queue has printed, and reads its paper.
    std::vector<PdfPage> Printed(const QString& queue);
    int JobsOf(const QString& queue);

    QString folder;
};

static const ChartKey rise = {0, "Frequency", "Temperature Rise"};

static bool Holds(const std::vector<PdfPage>& pages, const char* word)
{
    return pages.size() == 1 && std::ranges::any_of(pages[0].Words, [&](const PdfWord& printed)
                                                    { return printed.Text == QString::fromUtf8(word); });
}

void PrintQueueTest::initTestCase()
{
    folder = qEnvironmentVariable("PRINTED_FILES");
    QVERIFY2(!folder.isEmpty(), "This test runs beside a print server of its own.");
    const auto queues = QPrinterInfo::availablePrinterNames();
    QCOMPARE(QStringList(queues).size(), 4);
    QCOMPARE(QPrinterInfo::defaultPrinterName(), QStringLiteral("color"));
}

std::vector<PdfPage> PrintQueueTest::Printed(const QString& queue)
{
    const auto file = folder + '/' + queue + ".pdf";
    std::vector<PdfPage> pages;
    [[maybe_unused]] const bool inTime = QTest::qWaitFor(
        [&]
        {
            QFile paper(file);
            if (JobsOf(queue) > 0 || !paper.open(QIODevice::ReadOnly) || !paper.readAll().contains("%%EOF"))
            {
                return false;
            }
            pages = ReadPdf(file);
            return true;
        },
        10000);
    QFile::remove(file);
    return pages;
}

int PrintQueueTest::JobsOf(const QString& queue)
{
    QProcess list;
    list.start(QStringLiteral("lpstat"), {"-o", queue});
    list.waitForFinished();
    return static_cast<int>(list.readAllStandardOutput().count('\n'));
}

void PrintQueueTest::PagesReachThePaper_data()
{
    QTest::addColumn<QString>("queue");
    QTest::newRow("colour") << "color";
    QTest::newRow("gray") << "gray";
}

void PrintQueueTest::PagesReachThePaper()
{
    QFETCH(QString, queue);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(queue);
    printer.setPageOrientation(QPageLayout::Landscape);
    const auto before = printer.pageLayout();
    const auto lines = SixLines(rise);

    PrintPage(printer, DataPageOf(lines[1]));
    const auto data = Printed(queue);
    QVERIFY(Holds(data, "KTU033R71E101KA01(HC0201X7R101K025)"));
    // The last points of all three columns: 67, 134 and 200.
    for (const auto i : {66U, 133U, 199U})
    {
        QVERIFY(Holds(data, qPrintable(QString::asprintf("%.2E", lines[1].YData[i]))));
    }
    QVERIFY(data[0].Paper.height() > data[0].Paper.width());

    PrintPage(printer, ChartPageOf(lines, KindOf(printer)));
    const auto chart = Printed(queue);
    QVERIFY(Holds(chart, "KTU155R72A680KA01"));
    QVERIFY(Holds(chart, "KTU155R72A685KA01"));
    QVERIFY(Holds(chart, "Resistance[°C/W]"));
    QVERIFY(chart[0].Paper.height() > chart[0].Paper.width());

    QVERIFY(printer.pageLayout() == before);
    QCOMPARE(printer.printerName(), queue);
}

void PrintQueueTest::GrayQueueIsMonochrome()
{
    QPrinter color(QPrinter::HighResolution);
    QCOMPARE(color.printerName(), QStringLiteral("color"));
    QCOMPARE(KindOf(color), SurfaceKind::ColorPrinter);
    QPrinter gray(QPrinterInfo::printerInfo(QStringLiteral("gray")), QPrinter::HighResolution);
    QCOMPARE(KindOf(gray), SurfaceKind::MonochromePrinter);
}

void PrintQueueTest::AcceptedDialogGivesItsChoicesBack_data()
{
    QTest::addColumn<bool>("printerDefault");
    QTest::newRow("to printer and properties") << true;
    QTest::newRow("to the properties only") << false;
}

void PrintQueueTest::AcceptedDialogGivesItsChoicesBack()
{
    QFETCH(bool, printerDefault);
    QPrinter printer(QPrinter::HighResolution);
    QCOMPARE(printer.printerName(), QStringLiteral("color"));
    clsComdlg dialog(&printer);
    dialog.PrinterDefault = printerDefault;
    int firstCopies = 0;
    QTimer::singleShot(200, qApp,
                       [&]
                       {
                           auto* shown = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                           QVERIFY(shown != nullptr);
                           for (QComboBox* list : shown->findChildren<QComboBox*>())
                           {
                               const int index = list->findText(QStringLiteral("gray"));
                               list->setCurrentIndex(index >= 0 ? index : list->currentIndex());
                           }
                           auto* copies = shown->findChild<QSpinBox*>("copies");
                           QVERIFY(copies != nullptr);
                           firstCopies = copies->value();
                           copies->setValue(3);
                           QTest::keyClick(shown, Qt::Key_Return);
                       });
    dialog.Copies = 2;
    dialog.ShowPrinter();
    QCOMPARE(firstCopies, 2);
    QCOMPARE(dialog.Copies, 3);
    QCOMPARE(printer.printerName(), printerDefault ? QStringLiteral("gray") : QStringLiteral("color"));
    QCOMPARE(printer.copyCount(), printerDefault ? 3 : 1);
    QCOMPARE(KindOf(printer), printerDefault ? SurfaceKind::MonochromePrinter : SurfaceKind::ColorPrinter);
}

void PrintQueueTest::QueueThatCannotPrintIsToldByName_data()
{
    QTest::addColumn<QString>("queue");
    QTest::newRow("stopped") << "stopped";
    QTest::newRow("rejecting") << "rejecting";
}

void PrintQueueTest::QueueThatCannotPrintIsToldByName()
{
    QFETCH(QString, queue);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(queue);
    printer.setPageOrientation(QPageLayout::Landscape);
    const auto before = printer.pageLayout();
    const auto error = ErrorOf([&] { PrintPage(printer, DataPageOf(SixLines(rise)[0])); });
    QVERIFY(error);
    QCOMPARE(error->Number(), 57);
    QCOMPARE(error->Description(), "Device I/O error: " + queue.toStdString());
    QCOMPARE(JobsOf(queue), 0);
    QVERIFY(printer.pageLayout() == before);
}

void PrintQueueTest::StoppedQueueTakesNoJob()
{
    bool drawn = false;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(QStringLiteral("stopped"));
    QVERIFY(ErrorOf([&] { PrintPage(printer, [&](QPainter&, const PageArea&) { drawn = true; }); }));
    QVERIFY(!drawn);
}

void PrintQueueTest::CancelledDialogPrintsNothing()
{
    QPrinter printer(QPrinter::HighResolution);
    const auto before = printer.pageLayout();
    bool asked = false;
    QTimer::singleShot(200, qApp,
                       [&]
                       {
                           if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                           {
                               asked = true;
                               dialog->reject();
                           }
                       });
    const auto error = ErrorOf(
        [&]
        {
            clsComdlg(&printer).ShowPrinter();
            PrintPage(printer, DataPageOf(SixLines(rise)[0]));
        });
    QVERIFY(asked);
    QVERIFY(error);
    QCOMPARE(error->Number(), 65535);
    QCOMPARE(JobsOf(QStringLiteral("color")), 0);
    QVERIFY(!QFile::exists(folder + "/color.pdf"));
    QVERIFY(printer.pageLayout() == before);
}

void PrintQueueTest::PrinterThatIsGoneIsToldByName()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(QStringLiteral("gray"));
    QCOMPARE(QProcess::execute(QStringLiteral("lpadmin"), {"-x", "gray"}), 0);
    const auto error = ErrorOf([&] { PrintPage(printer, DataPageOf(SixLines(rise)[0])); });
    QVERIFY(error);
    QCOMPARE(error->Number(), 57);
    QCOMPARE(error->Description(), std::string("Device I/O error: gray"));
}

QTEST_MAIN(PrintQueueTest)
#include "PrintQueueTest.moc"
