#pragma once

/// The one door for the platform's common dialogs: open, save, help, printer, font and colour.

#include <QString>

#include <cstdint>
#include <functional>

class QFileDialog;
class QFont;
class QPrinter;
class QWidget;

/// Common dialogs behind properties: set them, call `Show...`, read the answer from them.
///
///     clsComdlg dialog;
///     dialog.Flags = 6;
///     dialog.Filter("tavik Data Files (*.tvk)|*.tvk|All Files (*.*)|*.*|");
///     dialog.FileName = "GC21B105K16.tvk";
///     dialog.ShowSave();
///     dialog.FileName;    // "/home/ann/GC21B105K16.tvk"
///     dialog.FileTitle;   // "GC21B105K16.tvk"
///
/// Every `Show...` that ends with Cancel throws RunTimeError 65535 "Cancel button is clicked." while
/// `CancelError` is set, and leaves all properties as they were. Errors carry the place "COMDLG32.DLL".
/// A property that the platform's dialog has no counterpart for keeps its value.
class clsComdlg
{
public:
    /// `printer` is the one that `ShowPrinter` sets up; it has to outlive this object. Without one the
    /// choices reach the properties only.
    explicit clsComdlg(QPrinter* printer = nullptr);

    /// Asks for a file to open. Throws RunTimeError 65533 with the extended code 12291 when the chosen
    /// name does not fit in `MaxFileSize` characters, closing null included.
    void ShowOpen();
    /// Asks for a file to write; a name in a folder that does not exist is asked for again. Throws as
    /// `ShowOpen` does.
    void ShowSave();
    /// Opens `HelpFile` in the help viewer; see `OpenHelp` for its errors.
    void ShowHelp();
    /// Lets the user set up the printer. Throws RunTimeError 65534 "There is no printer in this system."
    void ShowPrinter();
    void ShowFont();
    void ShowColor();

    /// Runs the dialog of a number: 1 open, 2 save, 3 colour, 4 font, 5 printer, 6 help. Any other number
    /// throws RunTimeError 65532 "This action is not supported." with the place "clsCOMDLG".
    void Action(int number);

    // File dialogs.

    /// Description, bar, pattern, bar and so on, ending with a bar. Several patterns of one description
    /// are separated by semicolons.
    QString Filter() const;
    void Filter(const QString& bars);
    /// The filter on display, from 1; the first one while it is out of range.
    std::int32_t FilterIndex = 0;
    /// Folder shown first; the current folder while it does not exist.
    QString InitDir;
    /// Proposed name before a dialog, full path after it.
    QString FileName;
    /// Name without its folder.
    QString FileTitle;
    QString DialogTitle;
    /// What is wrong with a chosen name for this command, or an empty text; the dialog then asks again.
    std::function<QString(const QString& path)> Refuse;
    /// File dialogs: 2 asks before overwriting, 4 hides the read-only box (there is none), 4096 accepts
    /// only a file that exists. Printer dialog: 2 starts with the page range, 8 offers no page range,
    /// 64 is print set-up.
    std::int32_t Flags = 0;
    std::int32_t MaxFileSize = 1024;
    /// Extension for a typed name without one; nothing is appended while it is empty.
    QString DefaultExt;
    bool CancelError = true;
    /// Window that the dialog belongs to; null is the desktop.
    QWidget* hWndOwner = nullptr;

    // Printer dialog.

    /// Always 0: there is no device context here.
    std::intptr_t hdc() const { return 0; }
    /// Number of copies; 0 keeps the printer's own.
    std::int32_t Copies = 0;
    std::int32_t FromPage = 0;
    std::int32_t ToPage = 0;
    /// Limits of the page range; both 0 for no limits.
    std::int32_t Min = 0;
    std::int32_t Max = 0;
    /// Whether the choices reach the printer, or the properties only.
    bool PrinterDefault = true;

    // Font dialog: at first the system's font.

    bool FontBold = false;
    bool FontItalic = false;
    QString FontName;
    /// In points, kept in tenths of a point.
    float FontSize() const;
    void FontSize(float points);
    bool FontStrikethru = false;
    bool FontUnderline = false;

    // Help.

    /// 2 closes the viewer, 257 searches for `HelpKey`; any other command shows the contents.
    std::int32_t HelpCommand = 0;
    std::int32_t HelpContext = 0;
    QString HelpFile;
    QString HelpKey;

    /// Colour dialog: red in the lowest byte, then green, then blue.
    std::int32_t Color = 0;

private:
    QString FaultOf(const QString& path) const;
    QString RunFileDialog(QFileDialog& dialog);
    void TakeFile(QFileDialog& dialog, const QString& path);
    void TakeFont(const QFont& font);
    QFont Font() const;
    void RaiseCancel() const;

    QPrinter* printer;
    /// `Filter` as the dialog takes it: null characters instead of bars.
    QString filterNulls;
    std::int32_t fontTenths = 0;
};
