#pragma once

/// The selection form: one part out of the range, the conditions it works under, and Plot.

#include "calc/Calculate.h"
#include "calc/ChartRecord.h"
#include "calc/ChartStore.h"
#include "calc/Conditions.h"
#include "selection/ConditionsOf.h"
#include "selection/PartSelection.h"

#include <QMdiSubWindow>

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

struct ChartSweep;
class LastControl;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace Ui
{
class frmLibrary;
}

/// What the selection form asks of the main window.
class ChartWindows
{
public:
    virtual ~ChartWindows() = default;

    /// Opens a new chart window for the line just written.
    virtual void ShowNewChart() = 0;
    /// Draws the open window of this chart again and gives it the focus; false without one.
    virtual bool ShowSameChart(const ChartKey& chart) = 0;
    /// Switches the code view as the menu entry of that index does.
    virtual void SwitchCodeView(int index) = 0;
};

/// The selection form. Its caption is the main window's; it stands at the left edge and stays open.
class frmLibrary : public QMdiSubWindow
{
    Q_OBJECT

public:
    explicit frmLibrary(ChartWindows& chartWindows, QWidget* parent = nullptr);
    ~frmLibrary() override;

    /// Start state: chart type 0, an empty chart store, and the JIS view with the Japanese help book.
    void Form_Load();

    // The selection cascade.
    void AllClear();
    void AddPartNum(int chartType);
    // Each fills the lists below a box from the entry chosen there; nothing changes where none is chosen.
    void FillTccList();
    void FillCapList();
    void FillRatedVolList();
    void FillPartNumList();
    /// Shows the part-number list in the given form, and names the selection in its code;
    /// `GetPartNumForm` is still the form shown before.
    void ChangePartNum(int partNumForm);
    /// Show the list of sizes, of characteristics, in the naming of the last `ChangePartNum`.
    void ChangeSize();
    void ChangeTcc();
    /// Index of the part whose number is shown, or -1.
    std::int16_t GetSelectedPart() const;
    /// The text of the part-number box.
    QString ShownPartNum() const;

    // Chart type, axes and parameter.
    std::int16_t GetChartType() const;
    std::int16_t GetParameterType() const;
    std::string_view GetChartTypeName() const;
    std::string_view GetParameterName() const;
    void SelectChartType(int index);

    // Conditions. Each check sets its flag and, when it refuses, shows its message and puts the focus back.
    void CheckDCBiasVol(bool& ok);
    void CheckFrequency(bool& ok);
    void CheckHeatResistance(bool& ok);
    void CheckAmbientTemp1(bool& ok);
    void CheckAmbientTemp2(bool& ok);
    void CheckParameter1(bool& ok);
    /// The checks that the chart type needs, up to the first that fails.
    bool CheckChartConditions();
    void DisableConditions();
    void EnableConditions(int chartType);
    /// "25" in the EIA view, "20" in the JIS view: the reference temperature of the view.
    void ResetAmbientTemp(int codeForm);

    // The line that the form describes.
    /// A record without its curve: part, axes, conditions and parameter as the form shows them. A disabled
    /// or empty box is 0.
    ChartRecord WriteChartData(std::int16_t part, std::int16_t chartType) const;
    void IsNewChart(bool& isNew) const;
    int CountSameCharts() const;
    void ShowSameChart();
    /// Shows why a parameter is refused and puts the focus into its box.
    void ReportParameter(const ParameterRefusal& refusal);

    /// Fills the condition boxes that are in use from a plotted line, No. 1 to 6 of its chart; what the line
    /// was not computed under stays. Nothing is judged: Plot does that. Returns what the user is told.
    QString TakeConditions(const ChartRecord& line, int number);
    /// Chooses chart type and part as if they were clicked and typed, and fills the condition boxes that are
    /// in use; the others stay as the part leaves them. Nothing is judged, nothing plotted. `part` is an
    /// index into the part table; it needs data for the chart type.
    void TakePart(std::int16_t part, int chartType, std::span<const TakenCondition> taken);
    /// Plots what the form shows, as its button does; false when it was refused or went wrong.
    bool PlotShown();
    /// The chart that the form describes.
    ChartKey ShownChart() const;
    /// Comes to the front with the focus on Plot, or where it was while Plot is not offered.
    void FocusPlot();

    /// Gives the focus back to the control that had it last, with its text as it was left, or else to the
    /// chosen chart type: keys reach the form that is in front, and go on where the user was.
    void KeepFocus();

    /// A complete part is selected, so that it can be plotted; Plot is enabled just then.
    bool CanPlot() const;

Q_SIGNALS:
    /// A part has become complete or incomplete, and Plot with it.
    void CanPlotChanged(bool canPlot);
    /// What the user is to be told has changed: why Plot cannot be pressed, or what it still needs, in one
    /// line; empty when it needs nothing.
    void HintChanged(const QString& hint);
    /// Conditions of a plotted line were asked for by key; `told` says which were taken, or why none.
    void ConditionsTaken(QString told);

protected:
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct ConditionControls
    {
        Condition Id;
        QLabel* Label;
        QLineEdit* Box;
    };

    void Connect();
    void ConnectButtons(const std::vector<QRadioButton*>& buttons, void (frmLibrary::*click)(int));
    void GuardEntries();
    bool Passes(Condition condition);
    void optChartType_Click(int index);
    void optParameter_Click(int index);
    void cmbSizeCode_Click();
    void cmbTcc_Click();
    void cmbCap_Click();
    void cmbRatedVol_Click();
    void cmbPartNum_Click();
    void cmbPartNum_Change();
    void cmbXaxis_Click();
    void cmdPlot_Click();
    bool Plot(int lines);
    std::optional<ParameterRefusal> PlotLine(int lines);

    // Coming to a box: its text is selected, so that typing replaces it.
    void txtDCBiasVol_GotFocus();
    void txtFrequency_GotFocus();
    void txtHeatResistance_GotFocus();
    void txtAmbientTemp_GotFocus();
    void txtParameter_GotFocus();
    // Leaving a box: false when its entry is refused.
    bool txtDCBiasVol_LostFocus();
    bool txtFrequency_LostFocus();
    bool txtHeatResistance_LostFocus();
    bool txtAmbientTemp_LostFocus();
    bool txtParameter_LostFocus();

    void FillAxisLists(int chartType);
    void ShowSelection();
    void ShowStep();
    void IncompletePart();
    void CompletePart();
    void ShowCanPlot();
    void TellHintLater();
    QString Hint() const;
    std::vector<Condition> EmptyConditions() const;
    const ConditionControls& ControlsOf(Condition condition) const
    {
        return conditions[static_cast<std::size_t>(condition)];
    }
    void SetEnabled(const ConditionControls& condition, bool enabled);
    std::vector<const QWidget*> ControlsThatChange(Condition condition) const;
    void ResetParameter();
    bool IsFrequencySweep() const;
    const ChartSweep& ShownSweep() const;
    const PartRecord& SelectedPart() const;
    void Report(QLineEdit* box, ConditionRule rule, bool& ok);
    /// Puts the focus into a refused box, with its text ready to be replaced.
    void OfferForCorrection(QLineEdit* box);
    void ComeToFront(QWidget* control);
    void PutIntoBoxes(std::span<const TakenCondition> taken);
    QString TakeLastConditions();

    std::unique_ptr<Ui::frmLibrary> ui;
    ChartWindows& windows;
    PartSelection selection;
    LastControl* lastControl = nullptr;
    std::vector<QRadioButton*> optChartType;
    std::vector<QRadioButton*> optParameter;
    /// In the order of `Condition`.
    std::vector<ConditionControls> conditions;
    bool hintIsDue = false;
};
