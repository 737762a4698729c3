#include "frame/PrintJob.h"

#include "partdata/RunTimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLibrary>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace
{

constexpr double marginMillimetres = 5;

/// Sets portrait and narrow margins, and puts the former layout back at the end of its life.
class LayoutScope
{
public:
    explicit LayoutScope(QPrinter& jobPrinter)
        : printer(jobPrinter)
        , former(jobPrinter.pageLayout())
    {
        auto layout = former;
        layout.setMode(QPageLayout::StandardMode);
        layout.setOrientation(QPageLayout::Portrait);
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
bool IsWhole(const QString& fileName)
{
    constexpr qint64 tailSize = 32;
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - tailSize)) &&
           file.read(tailSize).contains("%%EOF");
}

void CheckFile(const QString& fileName)
{
    if (!IsWhole(fileName))
    {
        if (QFileInfo(fileName).isFile())
        {
            QFile::remove(fileName);
        }
        throw RunTimeError(RunTimeErrorNumber::DiskFull).At(fileName.toStdString());
    }
}

} // namespace

void PrintPage(QPrinter& printer, const DrawPage& drawPage)
{
    CheckPrinter(printer);
    const LayoutScope layout(printer);
    const auto page = printer.pageLayout().paintRectPixels(printer.resolution());
    const PageArea area = {{QPointF(0, 0), page.size()}, static_cast<double>(printer.resolution())};
    Rehearse(drawPage, area);

    QPainter painter;
    if (!painter.begin(&printer))
    {
        throw PrinterError(printer);
    }
    drawPage(painter, area);
    if (!painter.end() || printer.printerState() == QPrinter::Error)
    {
        throw PrinterError(printer);
    }
    if (PrintsToFile(printer))
    {
        CheckFile(printer.outputFileName());
    }
    else if (!ServerTookJob())
    {
        throw PrinterError(printer);
    }
}

SurfaceKind KindOf(const QPrinter& printer)
{
    return printer.colorMode() == QPrinter::GrayScale ? SurfaceKind::MonochromePrinter
                                                      : SurfaceKind::ColorPrinter;
}
