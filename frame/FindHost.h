#pragma once

/// What the windows that find and judge parts ask of the main window.

#include "chart/ChartHost.h"
#include "selection/ConditionsOf.h"

#include <QString>

#include <cstdint>
#include <vector>

class QWidget;
struct FindEntries;
struct PartRecord;

/// A found part as it goes into the selection form.
struct SelectedPart
{
    /// Index into the part table.
    std::int16_t Part = 0;
    /// One that the part has data for.
    std::int16_t ChartType = 0;
    std::vector<TakenCondition> Conditions;
};

/// The main window as the windows that find and judge parts know it.
class FindHost
{
public:
    virtual ~FindHost() = default;

    /// The window that all others go with.
    virtual QWidget* MainWindow() = 0;
    /// Asks for a file to write, as chart windows do.
    virtual std::optional<QString> AskForFile(QWidget* window, const FileQuestion& question) = 0;
    /// Asks for a file to read, in the folder that such a file was last taken from.
    virtual std::optional<QString> AskForFileToOpen(QWidget* window, const FileQuestion& question) = 0;
    /// Opens the help book at a topic's anchor.
    virtual void ShowHelpTopic(const QString& anchor) = 0;
    /// Opens the window that finds parts with these entries, and with the replacements of a part where one is
    /// given.
    virtual void OpenFind(const FindEntries& entries, const PartRecord* replaced) = 0;
    /// Fills the selection form, and brings the main window to the front with the focus on Plot.
    virtual void SelectPart(const SelectedPart& part) = 0;
    /// Tells the user something for a while.
    virtual void TellInStatusBar(const QString& text) = 0;
    /// Selects the part, and plots it as the form does; false when that is refused.
    virtual bool PlotPart(const SelectedPart& part) = 0;
    /// Opens the view of the chart that the selection form describes, if it has lines; `parts` that are not
    /// among them are plotted first, up to the first refusal; false when there is one.
    virtual bool ViewParts(const std::vector<SelectedPart>& parts) = 0;
};
