/// The print commands of the real main window, on the queues of a real print server.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"
#include "tests/frame/printing/PdfText.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMdiArea>
#include <QPrintDialog>
#include <QPrinter>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <functional>

class PrintCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void ChartIsPrintedOnTheChosenPrinter();
    void DataIsPrintedOnThePrinterOfTheSetUp();
    void CancelledDialogEndsSilently();
    void PaperOfTheSetUpHoldsForEveryPrint();
    void ShadesOfGreyHoldUntilAnotherPrinter();
    void CancelledSetUpChangesNothing();
    void FileOfTheSetUpTakesEveryPrint();
    void FileIsReplacedOnlyWhenAsked();
    void HelpOnAQueueThatTakesNoJobsIsTold();
    void PrintedHelpBearsItsTitle();

private:
    std::vector<PdfPage> Printed(const QString& queue) const;

    QString folder;
};

/// A failed test leaves no paper to the next.
void PrintCommandsTest::cleanup()
{
    for (const auto& file : QDir(folder).entryList({"*.pdf"}))
    {
        QFile::remove(folder + '/' + file);
    }
}

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

/// What a user sees and does in the printer dialog and the properties of its printer.
struct DialogUse
{
    /// Choices; what is empty stays as the dialog shows it.
    QString Printer{};
    QString File{};
    QString Paper{};
    bool Landscape = false;
    bool OpenProperties = false;
    bool Gray = false;
    Qt::Key Key = Qt::Key_Return;

    // What the dialog showed first.
    bool Shown = false;
    QString FirstPrinter{};
    QString FirstFile{};
    QString FirstPaper{};
    bool FirstLandscape = false;
    bool FirstGray = false;
};

/// Chooses the entry that begins so.
static void Pick(QComboBox* list, const QString& text)
{
    const int index = text.isEmpty() ? -1 : list->findText(text, Qt::MatchStartsWith);
    list->setCurrentIndex(index >= 0 ? index : list->currentIndex());
}

static void UseProperties(QDialog* properties, DialogUse& use)
{
    auto* const papers = properties->findChild<QComboBox*>("pageSizeCombo");
    auto* const landscape = properties->findChild<QRadioButton*>("landscape");
    use.FirstPaper = papers->currentText();
    use.FirstLandscape = landscape->isChecked();
    Pick(papers, use.Paper);
    if (use.Landscape)
    {
        landscape->click();
    }
    properties->accept();
}

static void UseDialog(QPrintDialog* dialog, DialogUse& use)
{
    use.Shown = true;
    auto* const printers = dialog->findChild<QComboBox*>("printers");
    auto* const file = dialog->findChild<QLineEdit*>("filename");
    use.FirstPrinter = printers->currentText();
    use.FirstFile = file->text();
    auto* const gray = dialog->findChild<QRadioButton*>("grayscale");
    use.FirstGray = gray->isChecked();
    if (use.Gray)
    {
        gray->click();
    }
    Pick(printers, use.Printer);
    file->setText(use.File.isEmpty() ? use.FirstFile : use.File);
    if (use.OpenProperties || !use.Paper.isEmpty())
    {
        QTimer::singleShot(
            100, dialog,
            [&use] { UseProperties(qobject_cast<QDialog*>(QApplication::activeModalWidget()), use); });
        dialog->findChild<QAbstractButton*>("properties")->click();
    }
    QTest::keyClick(dialog, use.Key);
}

/// Does something that opens the printer dialog, and uses it.
static void InPrinterDialog(DialogUse& use, const std::function<void()>& open)
{
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look,
                     [&]
                     {
                         auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
                         if (dialog != nullptr && dialog->isVisible() && !use.Shown)
                         {
                             UseDialog(dialog, use);
                         }
                     });
    look.start(50);
    open();
}

/// Chooses a printer in the dialog and presses a key. True when the dialog was shown.
static bool InPrinterDialog(const QString& printer, Qt::Key key, const std::function<void()>& open)
{
    DialogUse use{.Printer = printer, .Key = key};
    InPrinterDialog(use, open);
    return use.Shown;
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

/// Letter, in points.
static bool IsLetter(const std::vector<PdfPage>& pages, bool landscape)
{
    const QSizeF portrait(612, 792);
    const auto expected = landscape ? portrait.transposed() : portrait;
    return !pages.empty() && std::abs(pages[0].Paper.width() - expected.width()) < 2 &&
           std::abs(pages[0].Paper.height() - expected.height()) < 2;
}

static void PrintDataBy(Desk& desk)
{
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    PressPrint(desk);
}

/// Prints what a window beside the main window shows.
static void PrintWindow(const char* form, DialogUse& use)
{
    for (const QWidget* window : QApplication::topLevelWidgets())
    {
        auto* const print = window->findChild<QAction*>("mnuPrint");
        if (print != nullptr && window->objectName() == QLatin1String(form))
        {
            InPrinterDialog(use, [&] { print->trigger(); });
        }
    }
}

/// Opens the help book and prints it.
static void PrintHelp(Desk& desk, DialogUse& use)
{
    mdlPublic.PathSep = "/";
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    desk.Choose("mnuContents");
    PrintWindow("frmHelp", use);
}

void PrintCommandsTest::PaperOfTheSetUpHoldsForEveryPrint()
{
    Desk desk;
    Plot(desk);
    DialogUse setUp{.Paper = "Letter", .Landscape = true};
    InPrinterDialog(setUp, [&] { desk.Choose("mnuFilePageSetup"); });
    QCOMPARE(setUp.FirstPaper, QString("A4"));

    // Chart and data are portrait whatever was set up.
    DialogUse chart{.OpenProperties = true};
    InPrinterDialog(chart, [&] { PressPrint(desk); });
    QVERIFY(chart.FirstPaper.startsWith("Letter"));
    QVERIFY(chart.FirstLandscape);
    QVERIFY(IsLetter(Printed("color"), false));
    PrintDataBy(desk);
    QVERIFY(IsLetter(Printed("color"), false));

    // A dialog whose properties nobody opens keeps the paper too.
    DialogUse again;
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    InPrinterDialog(again, [&] { PressPrint(desk); });
    QVERIFY(IsLetter(Printed("color"), false));

    // Chart view and help are turned as set up.
    QApplication::setActiveWindow(desk.main.get());
    QTest::keyClick(desk.main.get(), Qt::Key_E, Qt::ControlModifier);
    Settle();
    DialogUse view{.OpenProperties = true};
    PrintWindow("frmChartView", view);
    QVERIFY(view.FirstPaper.startsWith("Letter"));
    QTRY_VERIFY(QFile::exists(folder + "/color.pdf"));
    const auto pages = Printed("color");
    QVERIFY(IsLetter(pages, true));
    QVERIFY(Holds(pages, ListedPart(desk, 0)));

    DialogUse help{.OpenProperties = true};
    PrintHelp(desk, help);
    QVERIFY(help.FirstPaper.startsWith("Letter"));
    QVERIFY(IsLetter(Printed("color"), true));
    QVERIFY(IsAtRest());
}

void PrintCommandsTest::ShadesOfGreyHoldUntilAnotherPrinter()
{
    Desk desk;
    Plot(desk);
    DialogUse setUp{.Gray = true};
    InPrinterDialog(setUp, [&] { desk.Choose("mnuFilePageSetup"); });
    QVERIFY(!setUp.FirstGray);
    QCOMPARE(KindOf(desk.main->Printer()), SurfaceKind::MonochromePrinter);
    DialogUse again;
    InPrinterDialog(again, [&] { desk.Choose("mnuFilePageSetup"); });
    QVERIFY(again.FirstGray);
    QCOMPARE(KindOf(desk.main->Printer()), SurfaceKind::MonochromePrinter);

    // They were chosen for the printer that was shown.
    DialogUse gray{.Printer = "gray"};
    InPrinterDialog(gray, [&] { desk.Choose("mnuFilePageSetup"); });
    QCOMPARE(KindOf(desk.main->Printer()), SurfaceKind::MonochromePrinter);
    DialogUse color{.Printer = "color"};
    InPrinterDialog(color, [&] { desk.Choose("mnuFilePageSetup"); });
    QCOMPARE(KindOf(desk.main->Printer()), SurfaceKind::ColorPrinter);
}

void PrintCommandsTest::CancelledSetUpChangesNothing()
{
    Desk desk;
    Plot(desk);
    DialogUse setUp{.Paper = "Letter", .Landscape = true, .Gray = true, .Key = Qt::Key_Escape};
    InPrinterDialog(setUp, [&] { desk.Choose("mnuFilePageSetup"); });
    QVERIFY(setUp.Shown);
    const auto& layout = desk.main->Printer().pageLayout();
    QVERIFY(layout.pageSize().isEquivalentTo(QPageSize(QPageSize::A4)));
    QCOMPARE(layout.orientation(), QPageLayout::Portrait);
    QCOMPARE(KindOf(desk.main->Printer()), SurfaceKind::ColorPrinter);
}

void PrintCommandsTest::FileOfTheSetUpTakesEveryPrint()
{
    const QTemporaryDir files;
    const auto file = files.filePath("data.pdf");
    const auto contents = [&]
    {
        QFile printed(file);
        return printed.open(QIODevice::ReadOnly) ? printed.readAll() : QByteArray();
    };
    Desk desk;
    Plot(desk);
    DialogUse setUp{.Printer = "Print to File", .File = file, .Paper = "A5"};
    InPrinterDialog(setUp, [&] { desk.Choose("mnuFilePageSetup"); });
    QVERIFY(desk.TakeBoxes().empty());
    PrintDataBy(desk);
    QCOMPARE(desk.TakeText(), "Would you print " + ListedPart(desk, 0) + " Data ?");
    QVERIFY(contents().contains("%%EOF"));
    QCOMPARE(TitleOfPdf(file),
             ListedPart(desk, 0) + " Capacitance-Temperature Characteristics(Temperature,Capacitance)");
    QVERIFY(std::abs(ReadPdf(file).at(0).Paper.width() - 148 / 25.4 * 72) < 2);

    DialogUse chart{.File = files.filePath("chart.pdf")};
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    InPrinterDialog(chart, [&] { PressPrint(desk); });
    QVERIFY(chart.FirstPrinter.startsWith("Print to File"));
    QCOMPARE(chart.FirstFile, file);
    QCOMPARE(TitleOfPdf(chart.File),
             QString("Capacitance-Temperature Characteristics(Temperature,Capacitance)"));
    QTest::qWait(300);
    QVERIFY(!QFile::exists(folder + "/color.pdf"));
}

/// Answers by Cancel from the box on whose text holds this.
class CancelFrom : public QObject
{
public:
    CancelFrom(Desk& user, QString boxText)
        : desk(user)
        , text(std::move(boxText))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
        if (box != nullptr && box->text().contains(text))
        {
            desk.AnswerBy(QMessageBox::Cancel);
        }
        return false;
    }

private:
    Desk& desk;
    QString text;
};

void PrintCommandsTest::FileIsReplacedOnlyWhenAsked()
{
    const QTemporaryDir files;
    const auto file = files.filePath("data.pdf");
    QFile former(file);
    QVERIFY(former.open(QIODevice::WriteOnly));
    former.write("mine");
    former.close();
    Desk desk;
    Plot(desk);
    desk.main->Printer().setOutputFormat(QPrinter::PdfFormat);
    desk.main->Printer().setOutputFileName(file);
    {
        const CancelFrom cancel(desk, "already exists");
        PrintDataBy(desk);
    }
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{2});
    QCOMPARE(boxes[0].text, "Would you print " + ListedPart(desk, 0) + " Data ?");
    QCOMPARE(boxes[1].icon, QMessageBox::Question);
    QCOMPARE(boxes[1].text, file + " already exists.\nDo you want to replace it?");
    QCOMPARE(QFileInfo(file).size(), 4);
    QVERIFY(IsAtRest());

    desk.AnswerBy(QMessageBox::Ok);
    PrintDataBy(desk);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{2});
    QCOMPARE(ReadPdf(file).size(), std::size_t{1});
}

void PrintCommandsTest::HelpOnAQueueThatTakesNoJobsIsTold()
{
    Desk desk;
    DialogUse use{.Printer = "rejecting"};
    PrintHelp(desk, use);
    QVERIFY(use.Shown);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes[0].icon, QMessageBox::Critical);
    QCOMPARE(boxes[0].text, QString("Unexpected Error 57\nDevice I/O error: rejecting"));
    QVERIFY(IsAtRest());
}

void PrintCommandsTest::PrintedHelpBearsItsTitle()
{
    Desk desk;
    DialogUse use{.Printer = "gray"};
    PrintHelp(desk, use);
    const auto file = folder + "/gray.pdf";
    QTRY_VERIFY_WITH_TIMEOUT(!ReadPdf(file).empty(), 10000);
    QCOMPARE(TitleOfPdf(file), QString("Help - Halvex Chip Capacitor Characteristics Data Library"));
    QVERIFY(desk.TakeBoxes().empty());
    QFile::remove(file);
}

QTEST_MAIN(PrintCommandsTest)
#include "PrintCommandsTest.moc"
