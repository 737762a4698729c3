#include "frame/clsComdlg.h"

#include "formkit/Messages.h"
#include "frame/AskForPrinter.h"
#include "frame/FileNames.h"
#include "frame/PrinterChoices.h"
#include "frame/SettingsLock.h"
#include "frame/frmHelp.h"
#include "partdata/RunTimeError.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QSettings>

#include <cmath>
#include <optional>

static constexpr int NameDoesNotFit = 12291;

namespace FileFlag
{
static constexpr int OverwritePrompt = 2;
static constexpr int FileMustExist = 4096;
} // namespace FileFlag

namespace Help
{
static constexpr int Quit = 2;
static constexpr int Key = 257;
} // namespace Help

clsComdlg::clsComdlg(QPrinter* printerToSetUp)
    : printer(printerToSetUp)
{
    TakeFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
}

void clsComdlg::Action(int number)
{
    switch (number)
    {
    case 1:
        return ShowOpen();
    case 2:
        return ShowSave();
    case 3:
        return ShowColor();
    case 4:
        return ShowFont();
    case 5:
        return ShowPrinter();
    case 6:
        return ShowHelp();
    default:
        throw RunTimeError(RunTimeErrorNumber::ActionNotSupported).At("clsCOMDLG");
    }
}

void clsComdlg::RaiseCancel() const
{
    if (CancelError)
    {
        throw RunTimeError(RunTimeErrorNumber::Cancelled).At(DialogsPlace);
    }
}

static RunTimeError DialogFailure(int extendedCode)
{
    const auto code = "\r\nError code = (" + std::to_string(extendedCode) + ")";
    return RunTimeError(RunTimeErrorNumber::DialogFailed,
                        DescriptionOf(RunTimeErrorNumber::DialogFailed) + code)
        .At(DialogsPlace);
}

// File dialogs.

QString clsComdlg::Filter() const
{
    return QString(filterNulls).replace(QChar(u'\0'), u'|');
}

void clsComdlg::Filter(const QString& bars)
{
    filterNulls = bars;
    if (!bars.isEmpty() && !bars.endsWith(u'|'))
    {
        filterNulls += u'|';
    }
    filterNulls.replace(u'|', QChar(u'\0'));
}

/// The filters as Qt's dialog takes them: "description (pattern pattern)".
static QStringList NameFilters(const QString& filterNulls)
{
    const auto parts = filterNulls.split(QChar(u'\0'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    {
        auto patterns = parts.at(i + 1).split(u';', Qt::SkipEmptyParts);
        // Every file is meant, also one without a point in its name.
        patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
        filters += QStringLiteral("%1 (%2)").arg(parts.at(i), patterns.join(u' '));
    }
    return filters;
}

static QString ExistingFolder(const QString& wanted)
{
    const bool usable = !wanted.isEmpty() && QDir(wanted).exists();
    return usable ? wanted : QDir::currentPath();
}

/// What is wrong with a chosen name; empty where nothing is.
QString clsComdlg::FaultOf(const QString& path) const
{
    if (!CanBeWritten(path))
    {
        return QStringLiteral("File name is not valid.\r\nPlease enter another name.");
    }
    if (!QFileInfo(path).absoluteDir().exists())
    {
        return QStringLiteral("Path does not exist.\r\nPlease verify the correct path was given.");
    }
    return Refuse ? Refuse(path) : QString();
}

/// Runs the dialog until a name is chosen that can be written and whose folder exists; empty for Cancel.
QString clsComdlg::RunFileDialog(QFileDialog& dialog)
{
    // Where the toolkit keeps its places and sizes when the dialog ends.
    RemoveEmptyLock(QSettings(QSettings::UserScope, QStringLiteral("QtProject")));
    // The descriptions name their patterns already.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, (Flags & FileFlag::OverwritePrompt) == 0);
    if (!DialogTitle.isEmpty())
    {
        dialog.setWindowTitle(DialogTitle);
    }
    dialog.setDefaultSuffix(DefaultExt);
    const auto filters = NameFilters(filterNulls);
    if (!filters.isEmpty())
    {
        const bool known = FilterIndex >= 1 && FilterIndex <= filters.size();
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.at(known ? FilterIndex - 1 : 0));
    }
    dialog.setDirectory(ExistingFolder(InitDir));
    if (!FileName.isEmpty())
    {
        dialog.selectFile(FileName);
    }

    while (dialog.exec() == QDialog::Accepted)
    {
        const auto path = dialog.selectedFiles().constFirst();
        const auto fault = FaultOf(path);
        if (fault.isEmpty())
        {
            return path;
        }
        ShowExclamation(hWndOwner, path + QStringLiteral("\r\n") + fault);
    }
    return {};
}

/// Number of the chosen filter, from 1. The dialog names it with or without the patterns behind it.
static std::optional<std::int32_t> ChosenFilter(const QStringList& filters, const QString& chosen)
{
    for (qsizetype i = 0; i < filters.size(); ++i)
    {
        if (filters.at(i) == chosen || filters.at(i).startsWith(chosen + QStringLiteral(" (")))
        {
            return static_cast<std::int32_t>(i + 1);
        }
    }
    return std::nullopt;
}

void clsComdlg::TakeFile(QFileDialog& dialog, const QString& path)
{
    if (path.isEmpty())
    {
        return RaiseCancel();
    }
    const auto fullPath = QDir::toNativeSeparators(path);
    if (fullPath.size() + 1 > MaxFileSize)
    {
        throw DialogFailure(NameDoesNotFit);
    }
    FileName = fullPath;
    FileTitle = QFileInfo(path).fileName();
    FilterIndex = ChosenFilter(NameFilters(filterNulls), dialog.selectedNameFilter()).value_or(FilterIndex);
}

void clsComdlg::ShowOpen()
{
    QFileDialog dialog(hWndOwner);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    const bool mustExist = (Flags & FileFlag::FileMustExist) != 0;
    dialog.setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    TakeFile(dialog, RunFileDialog(dialog));
}

void clsComdlg::ShowSave()
{
    QFileDialog dialog(hWndOwner);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    TakeFile(dialog, RunFileDialog(dialog));
}

// Printer dialog.

void clsComdlg::ShowPrinter()
{
    QPrinter ownPrinter;
    QPrinter& target = printer != nullptr ? *printer : ownPrinter;
    const auto before = ChoicesOf(target);

    PrinterLimits pages{.copies = Copies, .fromPage = FromPage, .toPage = ToPage, .min = Min, .max = Max};
    if (!AskForPrinter(target, pages, Flags, DialogTitle, hWndOwner))
    {
        return RaiseCancel();
    }
    Copies = target.copyCount();
    FromPage = target.fromPage();
    ToPage = target.toPage();
    if (!PrinterDefault)
    {
        SetChoices(target, before);
    }
}

// Font and colour dialogs.

float clsComdlg::FontSize() const
{
    return static_cast<float>(fontTenths) / 10.0F;
}

void clsComdlg::FontSize(float points)
{
    fontTenths = static_cast<std::int32_t>(std::lround(points * 10.0F));
}

void clsComdlg::TakeFont(const QFont& font)
{
    FontName = font.family();
    FontSize(static_cast<float>(font.pointSizeF()));
    FontBold = font.bold();
    FontItalic = font.italic();
    FontStrikethru = font.strikeOut();
    FontUnderline = font.underline();
}

QFont clsComdlg::Font() const
{
    QFont font(FontName);
    if (fontTenths > 0)
    {
        font.setPointSizeF(fontTenths / 10.0);
    }
    font.setBold(FontBold);
    font.setItalic(FontItalic);
    font.setStrikeOut(FontStrikethru);
    font.setUnderline(FontUnderline);
    return font;
}

void clsComdlg::ShowFont()
{
    QFontDialog dialog(Font(), hWndOwner);
    if (!DialogTitle.isEmpty())
    {
        dialog.setWindowTitle(DialogTitle);
    }
    if (dialog.exec() != QDialog::Accepted)
    {
        return RaiseCancel();
    }
    TakeFont(dialog.selectedFont());
}

void clsComdlg::ShowColor()
{
    QColorDialog dialog(QColor(Color & 0xFF, (Color >> 8) & 0xFF, (Color >> 16) & 0xFF), hWndOwner);
    if (!DialogTitle.isEmpty())
    {
        dialog.setWindowTitle(DialogTitle);
    }
    if (dialog.exec() != QDialog::Accepted)
    {
        return RaiseCancel();
    }
    const auto chosen = dialog.selectedColor();
    Color = chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16);
}

// Help.

void clsComdlg::ShowHelp()
{
    switch (HelpCommand)
    {
    case Help::Quit:
        return CloseHelp();
    case Help::Key:
        return OpenHelp(HelpFile, hWndOwner, HelpKey);
    default:
        return OpenHelp(HelpFile, hWndOwner);
    }
}
