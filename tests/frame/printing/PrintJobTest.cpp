#include "frame/PrintJob.h"

#include "partdata/RunTimeError.h"
#include "tests/frame/printing/PdfText.h"
#include "tests/partdata/ErrorOf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <optional>
#include <stdexcept>

#include <sys/resource.h>
#include <sys/stat.h>

/// Limits the size of files that this process writes, as a full disk does, while it lives.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &former);
        const rlimit limit = {bytes, former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &former); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit former{};
};

class PrintJobTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void PageIsPortraitWithNarrowMargins_data();
    void PageIsPortraitWithNarrowMargins();
    void PageIsTurnedAsSetUpWhereAsked();
    void JobsBearTheirTitles();
    void PagesAreWrittenWholeAsSetUp();
    void PagesWithoutPrinterAreRefused();
    void PrinterIsAsBefore_data();
    void PrinterIsAsBefore();
    void WithoutPrinterNothingIsDrawn();
    void FileThatCannotBeWrittenIsToldByName();
    void FullDiskIsTold();
    void OldFileStaysUntilTheNewOneIsWhole();
    void PipeTakesNoPage();
    void ErrorOfTheDrawingLeavesNoFile();
    void MonochromePrinterIsKnown();

private:
    std::unique_ptr<QTemporaryDir> folder;
    QString file;
};

static void DrawWord(QPainter& painter, const PageArea& /*area*/)
{
    painter.drawText(QPointF(100, 400), QStringLiteral("Word"));
}

void PrintJobTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    file = folder->filePath(QStringLiteral("page.pdf"));
}

void PrintJobTest::PageIsPortraitWithNarrowMargins_data()
{
    QTest::addColumn<int>("paper");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::newRow("A4") << static_cast<int>(QPageSize::A4) << 210.0 << 297.0;
    QTest::newRow("Letter") << static_cast<int>(QPageSize::Letter) << 215.9 << 279.4;
}

void PrintJobTest::PageIsPortraitWithNarrowMargins()
{
    QFETCH(int, paper);
    QFETCH(double, width);
    QFETCH(double, height);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(file);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(paper)));
    printer.setPageOrientation(QPageLayout::Landscape);
    PageArea area;
    PrintPage(printer, [&](QPainter&, const PageArea& printable) { area = printable; });

    // 5 mm on every side.
    const auto inMillimetres = area.Printable.size() / area.Resolution * 25.4;
    QVERIFY(std::abs(inMillimetres.width() - (width - 10)) < 0.3);
    QVERIFY(std::abs(inMillimetres.height() - (height - 10)) < 0.3);
    const auto pages = ReadPdf(file);
    QCOMPARE(pages.size(), 1U);
    QVERIFY(std::abs(pages[0].Paper.width() - width / 25.4 * 72) < 1);
    QVERIFY(std::abs(pages[0].Paper.height() - height / 25.4 * 72) < 1);
}

void PrintJobTest::PageIsTurnedAsSetUpWhereAsked()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageOrientation(QPageLayout::Landscape);
    PageArea area;
    PrintPage(
        printer, [&](QPainter&, const PageArea& printable) { area = printable; }, {}, PageTurn::AsSetUp);
    QVERIFY(area.Printable.width() > area.Printable.height());
    QVERIFY(ReadPdf(file).at(0).Paper.width() > ReadPdf(file).at(0).Paper.height());
    PrintPage(printer, DrawWord);
    QVERIFY(ReadPdf(file).at(0).Paper.width() < ReadPdf(file).at(0).Paper.height());
}

void PrintJobTest::JobsBearTheirTitles()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setDocName(QStringLiteral("former"));
    PrintPage(printer, DrawWord, QStringLiteral("Allowable power(Frequency,Current) 25 °C"));
    QCOMPARE(TitleOfPdf(file), QStringLiteral("Allowable power(Frequency,Current) 25 °C"));
    PrintPages(
        printer, [](QPrinter& pages) { QPainter(&pages).drawText(100, 400, QStringLiteral("Word")); },
        QStringLiteral("ヘルプ"));
    QCOMPARE(TitleOfPdf(file), QStringLiteral("ヘルプ"));
    QCOMPARE(printer.docName(), QStringLiteral("former"));
}

void PrintJobTest::PagesAreWrittenWholeAsSetUp()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageSize(QPageSize(QPageSize::A5));
    printer.setPageOrientation(QPageLayout::Landscape);
    const auto twoPages = [](QPrinter& pages)
    {
        QPainter painter(&pages);
        painter.drawText(100, 400, QStringLiteral("First"));
        pages.newPage();
        painter.drawText(100, 400, QStringLiteral("Second"));
    };
    PrintPages(printer, twoPages, QStringLiteral("Book"));
    const auto pages = ReadPdf(file);
    QCOMPARE(pages.size(), std::size_t{2});
    QCOMPARE(pages[1].Words.at(0).Text, QStringLiteral("Second"));
    QVERIFY(std::abs(pages[0].Paper.width() - 210 / 25.4 * 72) < 1);
    QVERIFY(std::abs(pages[0].Paper.height() - 148 / 25.4 * 72) < 1);

    std::optional<RunTimeError> error;
    {
        const FullDisk disk(2000);
        error = ErrorOf([&] { PrintPages(printer, twoPages, QStringLiteral("Book")); });
    }
    QVERIFY(error);
    QCOMPARE(error->Number(), 61);
    QCOMPARE(ReadPdf(file).size(), std::size_t{2});
}

void PrintJobTest::PagesWithoutPrinterAreRefused()
{
    QPrinter printer(QPrinter::HighResolution);
    bool drawn = false;
    const auto error = ErrorOf(
        [&]
        {
            PrintPages(
                printer, [&](QPrinter&) { drawn = true; }, QStringLiteral("Book"));
        });
    QVERIFY(error);
    QCOMPARE(error->Number(), 65534);
    QVERIFY(!drawn);
}

void PrintJobTest::PrinterIsAsBefore_data()
{
    QTest::addColumn<bool>("fullPage");
    QTest::addColumn<bool>("fails");
    QTest::newRow("after a page") << false << false;
    QTest::newRow("after an error") << false << true;
    QTest::newRow("after a page, margins ignored") << true << false;
}

void PrintJobTest::PrinterIsAsBefore()
{
    QFETCH(bool, fullPage);
    QFETCH(bool, fails);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setFullPage(fullPage);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setPageMargins({12, 13, 14, 15}, QPageLayout::Millimeter);
    const auto before = printer.pageLayout();
    const auto fontBefore = QPainter(&printer).font();

    const auto draw = [&](QPainter& painter, const PageArea&)
    {
        painter.setFont(QFont(QStringLiteral("Arial"), 30));
        if (fails)
        {
            throw std::runtime_error("no drawing");
        }
    };
    if (fails)
    {
        QVERIFY_EXCEPTION_THROWN(PrintPage(printer, draw), std::runtime_error);
    }
    else
    {
        PrintPage(printer, draw);
    }
    QCOMPARE(printer.pageLayout().orientation(), QPageLayout::Landscape);
    QCOMPARE(printer.pageLayout().margins(QPageLayout::Millimeter), QMarginsF(12, 13, 14, 15));
    QCOMPARE(printer.fullPage(), fullPage);
    QVERIFY(printer.pageLayout() == before);
    QCOMPARE(QPainter(&printer).font(), fontBefore);
}

void PrintJobTest::WithoutPrinterNothingIsDrawn()
{
    QPrinter printer(QPrinter::HighResolution);
    const auto before = printer.pageLayout();
    bool drawn = false;
    const auto error =
        ErrorOf([&] { PrintPage(printer, [&](QPainter&, const PageArea&) { drawn = true; }); });
    QVERIFY(error);
    QCOMPARE(error->Number(), 65534);
    QCOMPARE(error->Description(), std::string("There is no printer in this system."));
    QVERIFY(!drawn);
    QVERIFY(printer.pageLayout() == before);
}

void PrintJobTest::FileThatCannotBeWrittenIsToldByName()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    file = folder->filePath(QStringLiteral("nowhere/page.pdf"));
    printer.setOutputFileName(file);
    const auto error = ErrorOf([&] { PrintPage(printer, DrawWord); });
    QVERIFY(error);
    QCOMPARE(error->Number(), 57);
    QCOMPARE(error->Description(), "Device I/O error: " + file.toStdString());
}

void PrintJobTest::FullDiskIsTold()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    std::optional<RunTimeError> error;
    {
        const FullDisk disk(2000);
        error = ErrorOf([&] { PrintPage(printer, DrawWord); });
    }
    QVERIFY(error);
    QCOMPARE(error->Number(), 61);
    QCOMPARE(error->Description(), std::string("Disk full"));
    QVERIFY(!QFileInfo::exists(file));
    // With room again the same page is printed.
    PrintPage(printer, DrawWord);
    QVERIFY(QFileInfo(file).size() > 2000);
}

void PrintJobTest::OldFileStaysUntilTheNewOneIsWhole()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    PrintPage(printer, DrawWord);
    const auto contents = [this]
    {
        QFile page(file);
        return page.open(QIODevice::ReadOnly) ? page.readAll() : QByteArray();
    };
    const QByteArray old = contents();
    QVERIFY(old.contains("%%EOF"));
    std::optional<RunTimeError> error;
    {
        const FullDisk disk(2000);
        error = ErrorOf([&] { PrintPage(printer, DrawWord); });
    }
    QVERIFY(error);
    QCOMPARE(error->Number(), 61);
    QCOMPARE(contents(), old);
    QVERIFY(ErrorOf(
        [&]
        {
            PrintPage(printer,
                      [](QPainter&, const PageArea&) { throw RunTimeError(RunTimeErrorNumber::Overflow); });
        }));
    QCOMPARE(contents(), old);
    QCOMPARE(printer.outputFileName(), file);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"page.pdf"});
}

void PrintJobTest::PipeTakesNoPage()
{
    // Nobody reads it: a program that opened it would wait for ever.
    QCOMPARE(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    const auto error = ErrorOf([&] { PrintPage(printer, DrawWord); });
    QVERIFY(error);
    QCOMPARE(error->Number(), 57);
    QCOMPARE(error->Description(), "Device I/O error: " + file.toStdString());
}

void PrintJobTest::ErrorOfTheDrawingLeavesNoFile()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    const auto error = ErrorOf(
        [&]
        {
            PrintPage(printer,
                      [](QPainter& painter, const PageArea& area)
                      {
                          DrawWord(painter, area);
                          throw RunTimeError(RunTimeErrorNumber::Overflow);
                      });
        });
    QVERIFY(error);
    QCOMPARE(error->Number(), 6);
    QVERIFY(!QFileInfo::exists(file));
}

void PrintJobTest::MonochromePrinterIsKnown()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setColorMode(QPrinter::Color);
    QCOMPARE(KindOf(printer), SurfaceKind::ColorPrinter);
    printer.setColorMode(QPrinter::GrayScale);
    QCOMPARE(KindOf(printer), SurfaceKind::MonochromePrinter);
}

QTEST_MAIN(PrintJobTest)
#include "PrintJobTest.moc"
