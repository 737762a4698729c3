#include "selection/frmLibrary.h"

#include "app/CalculateData.h"
#include "app/mdlPublic.h"
#include "calc/ChartKinds.h"
#include "calc/ChartNames.h"
#include "formkit/Entries.h"
#include "formkit/HourglassScope.h"
#include "formkit/Messages.h"
#include "formkit/RunCommand.h"
#include "formkit/Texts.h"
#include "selection/ListBoxes.h"
#include "selection/PlotNeeds.h"
#include "ui_frmLibrary.h"

#include <algorithm>
#include <utility>

// ---- Chart type, axes and parameter ----

/// Index of the first button that is on; 0 when none is.
static std::int16_t CheckedIndex(const std::vector<QRadioButton*>& buttons)
{
    const auto on = std::ranges::find_if(buttons, &QRadioButton::isChecked);
    return on != buttons.end() ? static_cast<std::int16_t>(on - buttons.begin()) : std::int16_t{0};
}

std::int16_t frmLibrary::GetChartType() const
{
    return CheckedIndex(optChartType);
}

std::int16_t frmLibrary::GetParameterType() const
{
    return CheckedIndex(optParameter);
}

std::string_view frmLibrary::GetChartTypeName() const
{
    return ChartKindOf(GetChartType()).Caption;
}

std::string_view frmLibrary::GetParameterName() const
{
    return NameOf(Parameters[static_cast<std::size_t>(GetParameterType())]);
}

/// The sweep over the X axis that is shown.
const ChartSweep& frmLibrary::ShownSweep() const
{
    const ChartKind& kind = ChartKindOf(GetChartType());
    const auto x = FindQuantity(ui->cmbXaxis->currentText().toStdString());
    const ChartSweep* sweep = x ? FindSweep(kind, *x) : nullptr;
    return sweep != nullptr ? *sweep : kind.Sweeps.front();
}

bool frmLibrary::IsFrequencySweep() const
{
    return ShownSweep().Uses(Condition::Parameter);
}

void frmLibrary::FillAxisLists(int chartType)
{
    const ChartKind& kind = ChartKindOf(chartType);
    ShowAxes(ui->cmbXaxis, XAxesOf(kind));
    ShowAxes(ui->cmbYaxis, kind.YAxes);
}

void frmLibrary::optChartType_Click(int index)
{
    const QString remembered = ui->cmbPartNum->currentText();
    AllClear();
    AddPartNum(index);
    FillAxisLists(index);
    if (ui->cmbPartNum->Holds(remembered))
    {
        ui->cmbPartNum->setEditText(remembered);
        cmbPartNum_Change();
    }
}

void frmLibrary::cmbXaxis_Click()
{
    // Only where the X axis decides which conditions count.
    if (ChartKindOf(GetChartType()).Sweeps.size() < 2)
    {
        return;
    }
    const bool overFrequency = IsFrequencySweep();
    if (!overFrequency)
    {
        ResetParameter();
    }
    SetEnabled(ControlsOf(Condition::Parameter), overFrequency);
    SetEnabled(ControlsOf(Condition::Frequency), !overFrequency && CanPlot());
}

// ---- The line that the form describes ----

/// The number in a box; a disabled or empty box is 0.
static float ValueOf(const QLineEdit* box)
{
    return box->isEnabled() ? EntryOf(box).value_or(0.0F) : 0.0F;
}

ChartKey frmLibrary::ShownChart() const
{
    return {GetChartType(), ui->cmbXaxis->currentText().toStdString(),
            ui->cmbYaxis->currentText().toStdString()};
}

ChartRecord frmLibrary::WriteChartData(std::int16_t part, std::int16_t chartType) const
{
    const ChartKey chart = ShownChart();
    ChartRecord record;
    record.ChartType = chartType;
    record.XAxisName = chart.XAxisName;
    record.YAxisName = chart.YAxisName;
    record.PartDataIndex = part;
    record.ParameterName = GetParameterName();
    for (const ConditionControls& condition : conditions)
    {
        record.*KindOf(condition.Id).Value = ValueOf(condition.Box);
    }
    return record;
}

void frmLibrary::IsNewChart(bool& isNew) const
{
    const ChartRecord shown = WriteChartData(GetSelectedPart(), GetChartType());
    const auto lines = mdlPublic.Charts.Lines();
    isNew = std::ranges::none_of(lines, [&](const ChartRecord& line) { return SameLine(line, shown); });
}

int frmLibrary::CountSameCharts() const
{
    return mdlPublic.Charts.CountSameCharts(ShownChart());
}

void frmLibrary::ShowSameChart()
{
    if (!windows.ShowSameChart(ShownChart()))
    {
        windows.ShowNewChart();
    }
}

void frmLibrary::ReportParameter(const ParameterRefusal& refusal)
{
    ShowExclamation(this, QString::fromStdString(refusal.Message));
    OfferForCorrection(ui->txtParameter);
}

void frmLibrary::cmdPlot_Click()
{
    PlotShown();
}

bool frmLibrary::PlotShown()
{
    if (!CheckChartConditions())
    {
        return false;
    }
    bool isNew = true;
    IsNewChart(isNew);
    const int lines = CountSameCharts();
    if (const auto refusal = RefusalOfPlot(isNew, lines))
    {
        ShowExclamation(this, QString::fromStdString(*refusal));
        return false;
    }
    return Plot(lines);
}

/// Computes the line that the form describes and shows it in a window that holds so many lines already;
/// false when it does not.
bool frmLibrary::Plot(int lines)
{
    bool isPlotted = false;
    std::optional<ParameterRefusal> refusal;
    RunCommand(this,
               [&]
               {
                   refusal = PlotLine(lines);
                   isPlotted = !refusal;
               });
    if (refusal)
    {
        ReportParameter(*refusal);
    }
    return isPlotted;
}

std::optional<ParameterRefusal> frmLibrary::PlotLine(int lines)
{
    const HourglassScope hourglass;
    const std::int16_t part = GetSelectedPart();
    const Plotting plotting(mdlPublic.Charts, WriteChartData(part, GetChartType()));
    // Each computes the chart types of its own.
    CalculateDataS(part);
    if (auto refusal = CalculateDataT(part))
    {
        return refusal;
    }
    lines == 0 ? windows.ShowNewChart() : ShowSameChart();
    return std::nullopt;
}

// ---- What Plot still needs ----

/// Once all that one step of the user's changes has changed.
void frmLibrary::TellHintLater()
{
    if (!std::exchange(hintIsDue, true))
    {
        QMetaObject::invokeMethod(
            this,
            [this]
            {
                hintIsDue = false;
                Q_EMIT HintChanged(Hint());
            },
            Qt::QueuedConnection);
    }
}

/// The conditions that the chart uses and that nothing is entered for.
std::vector<Condition> frmLibrary::EmptyConditions() const
{
    std::vector<Condition> empty;
    for (const ConditionControls& condition : conditions)
    {
        if (condition.Box->isEnabled() && condition.Box->text().isEmpty())
        {
            empty.push_back(condition.Id);
        }
    }
    return empty;
}

QString frmLibrary::Hint() const
{
    const std::array<const QComboBox*, 4> lists = {ui->cmbSizeCode, ui->cmbTcc, ui->cmbCap, ui->cmbRatedVol};
    const auto inUse = std::ranges::find_if(lists, &QComboBox::hasFocus);
    std::string hint =
        inUse != lists.end() ? WhyListIsEmpty(selection, static_cast<int>(inUse - lists.begin())) : "";
    if (hint.empty())
    {
        hint = CanPlot() ? WhichConditionsAreEmpty(EmptyConditions())
                         : WhyNoPart(mdlPublic.Parts, selection, ToAnsi(ui->cmbPartNum->currentText()),
                                     GetPartNumForm());
    }
    return QString::fromStdString(hint);
}
