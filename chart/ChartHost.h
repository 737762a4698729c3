#pragma once

/// What a chart window asks of the main window.

#include "chart/drawing/ChartPage.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

class QWidget;

/// Draws a page for a colour or a monochrome printer.
using DrawSheet = std::function<void(QPainter&, const PageArea&, SurfaceKind)>;

/// A file to write that is asked for.
struct FileQuestion
{
    /// Tells the dialogs apart that each start in their own last folder.
    QString Dialog;
    /// As `clsComdlg` takes it.
    QString Filter;
    QString ProposedName;
    /// Why a name does not do, or an empty text; the dialog stays open until a name does.
    std::function<QString(const QString& path)> Refuse = [](const QString&) { return QString(); };
};

/// The main window as its chart windows know it: the commands that they forward, and the loaded forms.
class ChartHost
{
public:
    virtual ~ChartHost() = default;

    /// The loaded forms: main window, selection form, chart windows, and the about box while it is shown.
    virtual int OpenForms() const = 0;
    /// A chart window is gone from the screen and its lines from the store.
    virtual void ChartUnloaded(QWidget* chart) = 0;

    /// A complete part is selected, so that its data can be saved or printed.
    virtual bool CanPlot() const = 0;
    virtual void mnuResetSelction_Click() = 0;
    virtual void mnuFilePageSetup_Click() = 0;
    virtual void mnuSaveDataToFile_Click() = 0;
    virtual void mnuPrintData_Click() = 0;
    virtual void mnuContents_Click() = 0;
    virtual void mnuAbout_Click() = 0;
    virtual void mnuViewCode_Click(int index) = 0;
    virtual void mnuPartNum_Click(int index) = 0;
    virtual void mnuCloseAllChartWindows_Click() = 0;
    virtual void mnuExit_Click() = 0;

    /// Asks for the printer and prints a chart on one page, with the notice on the screen meanwhile. A
    /// cancelled dialog ends it silently; what goes wrong is shown.
    virtual void PrintChart(const ChartPage& page) = 0;

    // What chart views ask for.

    /// The window that all others go with.
    virtual QWidget* MainWindow() = 0;
    /// Asks for the printer and prints one page under a title; ends as `PrintChart` does.
    virtual void PrintSheet(const DrawSheet& draw, const QString& title) = 0;
    /// Asks for a file to write; a dialog starts in its own last folder, the first time in that of the last
    /// dialog. Nothing when it is cancelled.
    virtual std::optional<QString> AskForFile(QWidget* window, const FileQuestion& question) = 0;
    /// Fills the condition boxes of the selection form from a line, No. 1 to 6 of its chart, and brings the
    /// main window to the front.
    virtual void UseConditions(const ChartRecord& line, int number) = 0;
    /// Opens the help book at a topic's anchor.
    virtual void ShowHelpTopic(const QString& anchor) = 0;
    /// Keeps a choice of the user's under a name until the program ends.
    virtual void Keep(const QString& name, const QVariant& value) = 0;
    /// A choice that is kept, or a value that is not valid.
    virtual QVariant Kept(const QString& name) const = 0;
};
