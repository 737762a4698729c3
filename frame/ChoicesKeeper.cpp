#include "frame/ChoicesKeeper.h"

#include "frame/PrinterChoices.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QRadioButton>

#include <algorithm>
#include <utility>

ChoicesKeeper::ChoicesKeeper(QPrintDialog& printDialog, const PrinterChoices& choices)
    : dialog(printDialog)
    , former(choices)
{
    QCoreApplication::instance()->installEventFilter(this);
}

/// A dialog that belongs to another is a window of its own, but descends from it.
static bool DescendsFrom(const QObject& ancestor, const QObject* object)
{
    while (object != nullptr && object != &ancestor)
    {
        object = object->parent();
    }
    return object != nullptr;
}

/// The list of papers in the properties of a printer; null in any other dialog.
static QComboBox* PapersOf(const QDialog* properties)
{
    return properties->findChild<QComboBox*>(QStringLiteral("pageSizeCombo"));
}

bool ChoicesKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
    {
        auto* const shown = qobject_cast<QDialog*>(watched);
        if (shown == &dialog)
        {
            StartFromChoices();
        }
        else if (shown != nullptr && shown != properties && DescendsFrom(dialog, shown) &&
                 PapersOf(shown) != nullptr)
        {
            properties = shown;
            ChoosePaper(shown);
        }
    }
    return QObject::eventFilter(watched, event);
}

static QRadioButton* ButtonOf(const QDialog& dialog, const char* name)
{
    return dialog.findChild<QRadioButton*>(QLatin1String(name));
}

static void Check(const QDialog& dialog, const char* button)
{
    auto* const found = ButtonOf(dialog, button);
    if (found != nullptr && found->isEnabled())
    {
        found->setChecked(true);
    }
}

void ChoicesKeeper::StartFromChoices() const
{
    auto* const printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
    if (printers != nullptr && !former.outputFileName.isEmpty())
    {
        // The last printer in the list is the file.
        printers->setCurrentIndex(printers->count() - 1);
    }
    if (printers != nullptr)
    {
        // Shades of grey were chosen for the former printer.
        connect(printers, &QComboBox::currentIndexChanged, this, [this] { Check(dialog, "color"); });
    }
    Check(dialog, former.colorMode == QPrinter::GrayScale ? "grayscale" : "color");
    Check(dialog, former.duplex == QPrinter::DuplexLongSide    ? "duplexLong"
                  : former.duplex == QPrinter::DuplexShortSide ? "duplexShort"
                                                               : "noDuplex");
}

static int IndexOf(const QComboBox& papers, const QPageSize& paper)
{
    for (int i = 0; i < papers.count(); ++i)
    {
        if (papers.itemData(i).value<QPageSize>().isEquivalentTo(paper))
        {
            return i;
        }
    }
    return -1;
}

void ChoicesKeeper::ChoosePaper(QDialog* shown)
{
    auto* const papers = PapersOf(shown);
    const int index = IndexOf(*papers, former.layout.pageSize());
    if (index < 0)
    {
        return;
    }
    papers->setCurrentIndex(index);
    const auto* const units = shown->findChild<QComboBox*>(QStringLiteral("unitCombo"));
    if (units == nullptr)
    {
        return;
    }
    // Another paper has set its own margins.
    const auto margins = former.layout.margins(units->currentData().value<QPageLayout::Unit>());
    for (const auto& [name, value] : {std::pair{"topMargin", margins.top()},
                                      {"bottomMargin", margins.bottom()},
                                      {"leftMargin", margins.left()},
                                      {"rightMargin", margins.right()}})
    {
        if (auto* const box = shown->findChild<QDoubleSpinBox*>(QLatin1String(name)))
        {
            box->setValue(value);
        }
    }
}

/// A file takes any paper.
static bool Takes(const QPrinter& printer, const QPageSize& paper)
{
    if (printer.outputFormat() != QPrinter::NativeFormat)
    {
        return true;
    }
    const auto papers = QPrinterInfo::printerInfo(printer.printerName()).supportedPageSizes();
    return std::ranges::any_of(papers, [&](const QPageSize& other) { return other.isEquivalentTo(paper); });
}

void ChoicesKeeper::GiveTo(QPrinter& printer) const
{
    const auto* const grayscale = ButtonOf(dialog, "grayscale");
    if (grayscale == nullptr)
    {
        // A dialog of the desktop's own, which forgets nothing.
        return;
    }
    if (grayscale->isChecked())
    {
        printer.setColorMode(QPrinter::GrayScale);
    }
    if (properties.isNull() && Takes(printer, former.layout.pageSize()))
    {
        printer.setPageLayout(former.layout);
    }
}
