/// Part numbers, codes, file names and help books that look like markup: every place shows their letters.

#include "chart/frmGraph.h"
#include "frame/DataPage.h"
#include "frame/frmHelp.h"
#include "tests/frame/Desk.h"
#include "tests/frame/printing/PdfText.h"
#include "tests/frame/printing/SamplePages.h"
#include "tests/partfiles/SmallPair.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <QTreeWidget>

#include <algorithm>

namespace
{

const QString partNum = QStringLiteral("<h1>x</h1><img src='trap.png'>");
const QString sizeCode = QStringLiteral("<b>0603</b>");

/// Watches every label that is shown or painted with a text that looks like markup.
class LabelWatch : public QObject
{
public:
    LabelWatch() { QCoreApplication::instance()->installEventFilter(this); }

    /// Labels that showed the letters, by name or class, and those that showed what the letters mean.
    QSet<QString> Plain;
    QSet<QString> Rendered;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const label = qobject_cast<QLabel*>(watched);
        const bool isSeen = event->type() == QEvent::Show || event->type() == QEvent::Paint;
        if (label != nullptr && isSeen && Qt::mightBeRichText(label->text()))
        {
            auto& places = label->textFormat() == Qt::PlainText ? Plain : Rendered;
            places.insert(label->objectName().isEmpty() ? label->metaObject()->className()
                                                        : label->objectName());
        }
        return false;
    }
};

/// Holds the pointer still over a place of a widget.
void AskForToolTip(QWidget* widget, const QPoint& place)
{
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &help);
}

} // namespace

class ForeignTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void IsShownLetterByLetter();
    void IsPrintedLetterByLetter();

private:
    std::unique_ptr<TemporaryFolder> parts;
    std::unique_ptr<QTemporaryDir> folder;
};

void ForeignTextTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder->path());
    SmallPair pair;
    pair.Parts[0].Names[0] = partNum.toStdString();
    pair.Parts[0].Names[4] = sizeCode.toStdString();
    parts = std::make_unique<TemporaryFolder>();
    parts->Write("parts.idx", pair.Index());
    parts->Write("parts.dat", pair.Data());
}

static void ShowHelp(const QString& bookFile)
{
    QFile book(bookFile);
    QVERIFY(book.open(QIODevice::WriteOnly));
    book.write("<html><head><title>" + partNum.toHtmlEscaped().toUtf8() + "</title></head><body><h2>" +
               partNum.toHtmlEscaped().toUtf8() + "</h2></body></html>");
    book.close();
    OpenHelp(bookFile, nullptr, partNum);
    const auto windows = QApplication::topLevelWidgets();
    const auto help = std::ranges::find(windows, "frmHelp", &QWidget::objectName);
    QVERIFY(help != windows.end());
    const auto* const contents = *help;
    QCOMPARE(contents->windowTitle(), partNum);
    QCOMPARE(contents->findChild<QLineEdit*>("txtFind")->text(), partNum);
    QCOMPARE(contents->findChild<QLabel*>("lblFound")->text(), QString("Found once"));
    auto* const tree = contents->findChild<QTreeWidget*>("treContents");
    QCOMPARE(tree->topLevelItem(0)->text(0), partNum);
    AskForToolTip(tree->viewport(), tree->visualItemRect(tree->topLevelItem(0)).center());
    QCOMPARE(QToolTip::text(), partNum);
    CloseHelp();
}

void ForeignTextTest::IsShownLetterByLetter()
{
    LabelWatch watch;
    Desk desk(parts->Path());
    QToolTip::hideText();
    desk.PlotCapacitance(partNum, "0");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QVERIFY(desk.Find<QComboBox>("cmbPartNum")->findText(partNum) >= 0);
    QVERIFY(desk.Find<QComboBox>("cmbSizeCode")->findText(sizeCode) >= 0);

    auto* const pane = desk.Charts().at(0)->findChild<QLabel*>("lblStatus_0");
    QCOMPARE(pane->text(), partNum);
    // However condensed and small, it no longer fits, which is told in a tool tip.
    pane->setFixedWidth(20);
    AskForToolTip(pane, pane->rect().center());
    QCOMPARE(QToolTip::text(), partNum);
    QVERIFY(watch.Plain.contains("qtooltip_label"));
    watch.Plain.remove("qtooltip_label");

    QCOMPARE(desk.SaveAs("").second, QString("<h1>x<_h1><img src='trap.png'>.tvk"));
    const auto file = folder->filePath("<b>a<i>.tvk");
    desk.SaveAs(file);
    QCOMPARE(desk.TakeText(), QString("tavik Data saved to " + file));
    QVERIFY(watch.Plain.contains("qt_msgbox_label"));
    watch.Plain.remove("qt_msgbox_label");

    // Whether to replace the file is a question of the file dialog's own, which begins with its name.
    desk.AnswerBy(QMessageBox::No);
    desk.SaveAs(file);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QVERIFY2(boxes[0].text.startsWith("<b>a<i>.tvk"), qPrintable(boxes[0].text));
    QVERIFY(watch.Plain.contains("qt_msgbox_label"));

    desk.AnswerBy(QMessageBox::Cancel);
    desk.Entry("mnuPrintData")->trigger();
    QCOMPARE(desk.TakeText(), QString("Would you print " + partNum + " Data ?"));

    desk.main->ShowPartFolder("/<i>parts</i>");
    Settle();
    QCOMPARE(desk.Find<QLabel>("lblPartFolder")->text(), QString("/<i>parts</i>"));

    ShowHelp(folder->filePath("book.hlp"));
    QCOMPARE(watch.Plain,
             QSet<QString>({"lblPartFolder", "lblStatus_0", "qt_msgbox_label", "qtooltip_label"}));
    QCOMPARE(watch.Rendered, QSet<QString>());
}

void ForeignTextTest::IsPrintedLetterByLetter()
{
    const auto line = SixLines({2, "Temperature", "Capacitance"})[0];
    PartRecord part;
    const auto name = partNum.toStdString();
    part.PartNum = {name, name, name, name};
    const DataPage page{.Line = line, .Part = part, .View = CodeView::Eia, .Date = {}, .DegreeSign = "°"};
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder->filePath("page.pdf"));
    PrintPage(printer, [&](QPainter& painter, const PageArea& area) { DrawDataPage(page, area, painter); });
    const auto pages = ReadPdf(printer.outputFileName());
    QCOMPARE(pages.size(), std::size_t{1});
    QString words;
    for (const auto& word : pages[0].Words)
    {
        words += word.Text + ' ';
    }
    QVERIFY2(words.contains(partNum + '(' + partNum + ')'), qPrintable(words));
}

QTEST_MAIN(ForeignTextTest)
#include "ForeignTextTest.moc"
