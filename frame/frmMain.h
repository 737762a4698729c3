#pragma once

/// The main window: the selection form, the chart windows, and the menus over both.

#include "chart/ChartHost.h"
#include "formkit/PlainTexts.h"
#include "frame/FindHost.h"
#include "frame/PrintJob.h"
#include "frame/PrinterHost.h"
#include "selection/frmLibrary.h"

#include <QMainWindow>
#include <QPointer>
#include <QVariantHash>

#include <memory>
#include <optional>
#include <vector>

class FormAccessKeys;
class clsComdlg;
class frmBom;
class frmFind;
class frmGraph;
class QMdiSubWindow;

namespace Ui
{
class frmMain;
}

/// The main window. The check marks of its View menu are the only store of the code system and the
/// part-number generation on display.
class frmMain : public QMainWindow, public ChartHost, public ChartWindows, public FindHost, public PrinterHost
{
    Q_OBJECT

public:
    explicit frmMain(QWidget* parent = nullptr);
    ~frmMain() override;

    /// True while global part numbers are shown.
    bool GetPartNewOld() const;

    /// Names the folder that the part files were taken from, for good, at the right of the status bar.
    void ShowPartFolder(const QString& folder);

    // What chart windows and the selection form ask for.
    int OpenForms() const override;
    void ChartUnloaded(QWidget* chart) override;
    bool CanPlot() const override;
    void ShowNewChart() override;
    bool ShowSameChart(const ChartKey& chart) override;
    void SwitchCodeView(int index) override;
    void PrintChart(const ChartPage& page) override;
    QPrinter& Printer() override;

    // What chart views ask for.
    QWidget* MainWindow() override { return this; }
    void PrintSheet(const DrawSheet& draw, const QString& title) override;
    std::optional<QString> AskForFile(QWidget* window, const FileQuestion& question) override;
    std::optional<QString> AskForFileToOpen(QWidget* window, const FileQuestion& question) override;
    void UseConditions(const ChartRecord& line, int number) override;
    void ShowHelpTopic(const QString& anchor) override;
    void Keep(const QString& name, const QVariant& value) override;
    QVariant Kept(const QString& name) const override;

    // What the windows that find and judge parts ask for.
    void OpenFind(const FindEntries& entries, const PartRecord* replaced) override;
    void SelectPart(const SelectedPart& part) override;
    void TellInStatusBar(const QString& text) override;
    bool PlotPart(const SelectedPart& part) override;
    bool ViewParts(const std::vector<SelectedPart>& parts) override;

    // The button beside the menus.
    void cmdFind_Click();
    void mnuCheckBom_Click();

    // The commands of the menus.
    void mnuFile_Click();
    void mnuResetSelction_Click() override;
    void mnuSaveDataToFile_Click() override;
    void mnuPrintData_Click() override;
    void mnuFilePageSetup_Click() override;
    void mnuContents_Click() override;
    void mnuAbout_Click() override;
    void mnuExit_Click() override;
    void mnuViewCode_Click(int index) override;
    void mnuPartNum_Click(int index) override;
    void mnuCloseAllChartWindows_Click() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Connect();
    void ShowMenusOf(QMdiSubWindow* window);
    void AddFindButton();
    void ComeToFront();
    void ShowNamingOfFound();
    void PlaceSelectionForm();
    void ArrangeIcons();
    void WatchChildArea();
    void UpdateChartPartLabels(int newForm);
    std::vector<frmGraph*> Charts() const;
    void EnableOutput(bool enabled);
    std::optional<ChartRecord> CurrentCurve();
    void SaveData(const ChartRecord& line);
    void BeginDialog(clsComdlg& dialog, QWidget* window, const FileQuestion& question);
    void NoteFolder(const QString& dialog, const QString& file);
    void PrintData(const ChartRecord& line);
    bool MayReplaceFile();
    void PrintWithNotice(const DrawPage& drawPage, const QString& title, PageTurn turn = PageTurn::Portrait);

    PlainTexts plainTexts;
    std::unique_ptr<Ui::frmMain> ui;
    frmLibrary* library;
    /// The form's access keys while a chart is in front.
    FormAccessKeys* formKeys = nullptr;
    /// The loaded forms in the order of loading: this window, the selection form, then chart windows.
    std::vector<QWidget*> forms;
    QList<QAction*> mainMenus;
    /// The window that finds parts, once it has been opened; it goes with this one.
    QPointer<frmFind> findWindow;
    /// The same of the window that checks boards.
    QPointer<frmBom> bomWindow;
    std::unique_ptr<QPrinter> printer;
    /// What the user has chosen in this run: the folders of dialogs, places and looks of windows.
    QVariantHash kept;
};
