#include "frame/PrintJob.h"

#include "files/WholeFile.h"
#include "frame/FileNames.h"
#include "partdata/RunTimeError.h"

#include <QFile>
#include <QImage>
#include <QLibrary>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <algorithm>

namespace
{

constexpr double marginMillimetres = 5;

/// Sets narrow margins, and portrait where it is asked for, and puts the former layout back at the end of its
/// life.
class LayoutScope
{
public:
    LayoutScope(QPrinter& jobPrinter, PageTurn turn)
        : printer(jobPrinter)
        , former(jobPrinter.pageLayout())
    {
        auto layout = former;
        layout.setMode(QPageLayout::StandardMode);
        if (turn == PageTurn::Portrait)
        {
            layout.setOrientation(QPageLayout::Portrait);
        }
        layout.setUnits(QPageLayout::Millimeter);
        const auto least = layout.minimumMargins();
        layout.setMargins(
            {std::max(marginMillimetres, least.left()), std::max(marginMillimetres, least.top()),
             std::max(marginMillimetres, least.right()), std::max(marginMillimetres, least.bottom())});
        printer.setPageLayout(layout);
    }
    ~LayoutScope() { printer.setPageLayout(former); }
    LayoutScope(const LayoutScope&) = delete;
    LayoutScope& operator=(const LayoutScope&) = delete;

private:
    QPrinter& printer;
    QPageLayout former;
};

bool PrintsToFile(const QPrinter& printer)
{
    return !printer.outputFileName().isEmpty();
}

/// What users know the printer by: its file or its name.
std::string NameOf(const QPrinter& printer)
{
    return (PrintsToFile(printer) ? printer.outputFileName() : printer.printerName()).toStdString();
}

RunTimeError PrinterError(const QPrinter& printer)
{
    constexpr auto number = RunTimeErrorNumber::DeviceIoError;
    return {number, std::string(DescriptionOf(number)) + ": " + NameOf(printer)};
}

/// A queue that is gone or stopped would swallow the job without a word.
void CheckPrinter(const QPrinter& printer)
{
    if (PrintsToFile(printer))
    {
        return;
    }
    // Without a printer the toolkit falls back to a PDF file without a name.
    if (printer.outputFormat() != QPrinter::NativeFormat || QPrinterInfo::availablePrinterNames().isEmpty())
    {
        throw RunTimeError(RunTimeErrorNumber::NoPrinter);
    }
    const auto queue = QPrinterInfo::printerInfo(printer.printerName());
    if (queue.isNull() || queue.state() == QPrinter::Error || queue.state() == QPrinter::Aborted)
    {
        throw PrinterError(printer);
    }
}

/// A started job cannot be taken back, so an error in the drawing has to show before.
void Rehearse(const DrawPage& drawPage, const PageArea& area)
{
    QImage scratch(1, 1, QImage::Format_RGB32);
    QPainter painter(&scratch);
    drawPage(painter, area);
}

/// True when the print server took the last job. The toolkit does not tell, but its library remembers.
bool ServerTookJob()
{
    constexpr int firstErrorStatus = 0x400;
    using LastError = int (*)();
    const auto lastError = reinterpret_cast<LastError>(QLibrary::resolve("cups", 2, "cupsLastError"));
    return lastError == nullptr || lastError() < firstErrorStatus;
}

/// True when a PDF file was written to its end.
bool IsWhole(const QByteArray& contents)
{
    constexpr qsizetype tailSize = 32;
    return contents.last(std::min(contents.size(), tailSize)).contains("%%EOF");
}

/// Names the printer's jobs while it lives.
class TitleScope
{
public:
    TitleScope(QPrinter& jobPrinter, const QString& title)
        : printer(jobPrinter)
        , former(jobPrinter.docName())
    {
        printer.setDocName(title);
    }
    ~TitleScope() { printer.setDocName(former); }
    TitleScope(const TitleScope&) = delete;
    TitleScope& operator=(const TitleScope&) = delete;

private:
    QPrinter& printer;
    QString former;
};

/// Lets a printer write another file while it lives.
class OutputFileScope
{
public:
    OutputFileScope(QPrinter& jobPrinter, const QString& fileName)
        : printer(jobPrinter)
        , former(jobPrinter.outputFileName())
    {
        printer.setOutputFileName(fileName);
    }
    ~OutputFileScope() { printer.setOutputFileName(former); }
    OutputFileScope(const OutputFileScope&) = delete;
    OutputFileScope& operator=(const OutputFileScope&) = delete;

private:
    QPrinter& printer;
    QString former;
};

/// Prints a whole job; false when it could not be started or finished.
using RunJob = std::function<bool()>;

bool DrawOn(QPrinter& printer, const DrawPage& drawPage, const PageArea& area)
{
    QPainter painter;
    if (!painter.begin(&printer))
    {
        return false;
    }
    drawPage(painter, area);
    return painter.end() && printer.printerState() != QPrinter::Error;
}

/// Prints elsewhere first, so that the user's file is the old or the new one.
void PrintFile(QPrinter& printer, const RunJob& run)
{
    const QString target = printer.outputFileName();
    if (!CanBeWritten(target))
    {
        throw PrinterError(printer);
    }
    const QTemporaryDir folder;
    QFile page(folder.filePath(QStringLiteral("page")));
    bool drawn = false;
    {
        const OutputFileScope output(printer, page.fileName());
        drawn = run();
    }
    if (!drawn || !page.open(QIODevice::ReadOnly))
    {
        throw PrinterError(printer);
    }
    const QByteArray contents = page.readAll();
    if (!IsWhole(contents))
    {
        throw RunTimeError(RunTimeErrorNumber::DiskFull).At(target.toStdString());
    }
    try
    {
        WriteWholeFile(target.toStdString(), contents.toStdString());
    }
    catch (const RunTimeError& error)
    {
        if (error.Number() == static_cast<int>(RunTimeErrorNumber::DiskFull))
        {
            throw;
        }
        throw PrinterError(printer);
    }
}

void Print(QPrinter& printer, const RunJob& run)
{
    if (PrintsToFile(printer))
    {
        PrintFile(printer, run);
        return;
    }
    if (!run() || !ServerTookJob())
    {
        throw PrinterError(printer);
    }
}

} // namespace

void PrintPage(QPrinter& printer, const DrawPage& drawPage, const QString& title, PageTurn turn)
{
    CheckPrinter(printer);
    const LayoutScope layout(printer, turn);
    const TitleScope named(printer, title);
    const auto page = printer.pageLayout().paintRectPixels(printer.resolution());
    const PageArea area = {{QPointF(0, 0), page.size()}, static_cast<double>(printer.resolution())};
    Rehearse(drawPage, area);
    Print(printer, [&] { return DrawOn(printer, drawPage, area); });
}

void PrintPages(QPrinter& printer, const std::function<void(QPrinter&)>& printPages, const QString& title)
{
    CheckPrinter(printer);
    const TitleScope named(printer, title);
    Print(printer,
          [&]
          {
              printPages(printer);
              return printer.printerState() != QPrinter::Error;
          });
}

SurfaceKind KindOf(const QPrinter& printer)
{
    return printer.colorMode() == QPrinter::GrayScale ? SurfaceKind::MonochromePrinter
                                                      : SurfaceKind::ColorPrinter;
}
