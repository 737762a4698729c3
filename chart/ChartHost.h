#pragma once

/// What a chart window asks of the main window.

#include "chart/drawing/ChartPage.h"

class QWidget;

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
};
