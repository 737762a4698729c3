#include "selection/frmLibrary.h"

#include "app/mdlPublic.h"
#include "calc/Bounds.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "formkit/Entries.h"
#include "formkit/Messages.h"
#include "selection/EntryGuard.h"
#include "ui_frmLibrary.h"

#include <algorithm>
#include <array>

/// Entries as the user's locale writes them.
static EntryLocale UserLocale()
{
    return {.CommaIsDecimal = CommaIsDecimal()};
}

static std::string TextOf(const QLineEdit* box)
{
    return box->text().toStdString();
}

// ---- The checks ----

/// Judges a box by a rule; where it refuses, shows what is wrong and puts the focus back into the box.
void frmLibrary::Report(QLineEdit* box, ConditionRule rule, bool& ok)
{
    const Refusal refusal = rule(TextOf(box), SelectedPart(), GetCodeView(), UserLocale());
    ok = !refusal;
    if (refusal)
    {
        ShowExclamation(this, QString::fromStdString(*refusal));
        OfferForCorrection(box);
    }
}

void frmLibrary::OfferForCorrection(QLineEdit* box)
{
    ComeToFront(box);
    box->selectAll();
}

void frmLibrary::CheckDCBiasVol(bool& ok)
{
    Report(ui->txtDCBiasVol, RuleOf(ChartKindOf(GetChartType()), Condition::DCBias), ok);
}

void frmLibrary::CheckFrequency(bool& ok)
{
    Report(ui->txtFrequency, RefuseFrequency, ok);
}

void frmLibrary::CheckHeatResistance(bool& ok)
{
    Report(ui->txtHeatResistance, RefuseHeatResistance, ok);
}

void frmLibrary::CheckAmbientTemp1(bool& ok)
{
    Report(ui->txtAmbientTemp, RefuseHeatingAmbient, ok);
}

void frmLibrary::CheckAmbientTemp2(bool& ok)
{
    Report(ui->txtAmbientTemp, RefuseClassAmbient, ok);
}

void frmLibrary::CheckParameter1(bool& ok)
{
    Report(ui->txtParameter, RefuseNoNumber, ok);
}

/// Runs one check; false when it refuses.
bool frmLibrary::Passes(Check check)
{
    bool ok = true;
    (this->*check)(ok);
    return ok;
}

/// The check of a condition; the ambient temperature has one for each kind of chart.
frmLibrary::Check frmLibrary::CheckOf(Condition condition) const
{
    switch (condition)
    {
    case Condition::DCBias:
        return &frmLibrary::CheckDCBiasVol;
    case Condition::HeatResistance:
        return &frmLibrary::CheckHeatResistance;
    case Condition::AmbientTemperature:
        return RuleOf(ChartKindOf(GetChartType()), condition) == &RefuseClassAmbient
                   ? &frmLibrary::CheckAmbientTemp2
                   : &frmLibrary::CheckAmbientTemp1;
    case Condition::Frequency:
        return &frmLibrary::CheckFrequency;
    case Condition::Parameter:
        break;
    }
    return &frmLibrary::CheckParameter1;
}

bool frmLibrary::CheckChartConditions()
{
    const ChartSweep& sweep = ShownSweep();
    return std::ranges::all_of(JudgingOrder, [&](Condition condition)
                               { return !sweep.Uses(condition) || Passes(CheckOf(condition)); });
}

// ---- Entering and leaving a box ----

void frmLibrary::txtDCBiasVol_GotFocus()
{
    ui->txtDCBiasVol->selectAll();
}

void frmLibrary::txtFrequency_GotFocus()
{
    ui->txtFrequency->selectAll();
}

void frmLibrary::txtHeatResistance_GotFocus()
{
    ui->txtHeatResistance->selectAll();
}

void frmLibrary::txtAmbientTemp_GotFocus()
{
    ui->txtAmbientTemp->selectAll();
}

void frmLibrary::txtParameter_GotFocus()
{
    ui->txtParameter->selectAll();
}

bool frmLibrary::txtDCBiasVol_LostFocus()
{
    return Passes(&frmLibrary::CheckDCBiasVol);
}

bool frmLibrary::txtFrequency_LostFocus()
{
    return Passes(&frmLibrary::CheckFrequency);
}

bool frmLibrary::txtHeatResistance_LostFocus()
{
    return Passes(&frmLibrary::CheckHeatResistance);
}

bool frmLibrary::txtAmbientTemp_LostFocus()
{
    return Passes(CheckOf(Condition::AmbientTemperature));
}

bool frmLibrary::txtParameter_LostFocus()
{
    return Passes(&frmLibrary::CheckParameter1);
}

/// A condition is emptied with the part; one that only some X axes use goes with the axis, too.
std::vector<const QWidget*> frmLibrary::ControlsThatChange(Condition condition) const
{
    std::vector<const QWidget*> controls = {ui->fraChartType, ui->cmbSizeCode, ui->cmbTcc,
                                            ui->cmbCap,       ui->cmbRatedVol, ui->cmbPartNum};
    if (condition == Condition::Frequency || condition == Condition::Parameter)
    {
        controls.push_back(ui->cmbXaxis);
    }
    if (condition == Condition::Parameter)
    {
        controls.insert(controls.end(), optParameter.begin(), optParameter.end());
    }
    return controls;
}

void frmLibrary::GuardEntries()
{
    struct Procedures
    {
        void (frmLibrary::*GotFocus)();
        bool (frmLibrary::*LostFocus)();
    };
    // In the order of `Condition`.
    static constexpr std::array<Procedures, ConditionCount> procedures = {{
        {&frmLibrary::txtDCBiasVol_GotFocus, &frmLibrary::txtDCBiasVol_LostFocus},
        {&frmLibrary::txtFrequency_GotFocus, &frmLibrary::txtFrequency_LostFocus},
        {&frmLibrary::txtHeatResistance_GotFocus, &frmLibrary::txtHeatResistance_LostFocus},
        {&frmLibrary::txtAmbientTemp_GotFocus, &frmLibrary::txtAmbientTemp_LostFocus},
        {&frmLibrary::txtParameter_GotFocus, &frmLibrary::txtParameter_LostFocus},
    }};
    std::vector<GuardedBox> boxes;
    for (const ConditionControls& controls : conditions)
    {
        const Procedures of = procedures.at(static_cast<std::size_t>(controls.Id));
        boxes.push_back({.Box = controls.Box,
                         .GotFocus = [this, of] { (this->*of.GotFocus)(); },
                         .LostFocus = [this, of] { return (this->*of.LostFocus)(); },
                         .ActingControls = ControlsThatChange(controls.Id)});
    }
    new EntryGuard(this, std::move(boxes));
}

// ---- Which conditions the chart needs ----

void frmLibrary::SetEnabled(const ConditionControls& condition, bool enabled)
{
    condition.Label->setEnabled(enabled);
    condition.Box->setEnabled(enabled);
    if (condition.Id == Condition::Parameter)
    {
        ui->fraParameter->setEnabled(enabled);
        std::ranges::for_each(optParameter, [=](QRadioButton* button) { button->setEnabled(enabled); });
    }
}

void frmLibrary::ResetParameter()
{
    optParameter.front()->setChecked(true);
    optParameter_Click(0);
}

/// Empties a box for good. `clear` would keep the entry for Undo, and with it the entries of every part
/// before.
static void Empty(QLineEdit* box)
{
    box->setText({});
}

void frmLibrary::optParameter_Click(int index)
{
    Empty(ui->txtParameter);
    ui->lblParameter->setText(QString::fromStdString(UnitOf(Parameters.at(static_cast<std::size_t>(index)))));
}

void frmLibrary::ResetAmbientTemp(int codeForm)
{
    ui->txtAmbientTemp->setText(
        QString::fromStdString(NumberText(ReferenceC(static_cast<CodeView>(codeForm)))));
}

void frmLibrary::DisableConditions()
{
    ui->fraCondition->setEnabled(false);
    for (const ConditionControls& condition : conditions)
    {
        SetEnabled(condition, false);
        Empty(condition.Box);
    }
    ResetAmbientTemp(GetCodeForm());
    ResetParameter();
}

void frmLibrary::EnableConditions(int chartType)
{
    ui->fraCondition->setEnabled(true);
    if (FindChartKind(chartType) == nullptr)
    {
        return;
    }
    const ChartSweep& sweep = ShownSweep();
    for (const ConditionControls& condition : conditions)
    {
        SetEnabled(condition, sweep.Uses(condition.Id));
    }
    if (sweep.Uses(Condition::HeatResistance))
    {
        ui->txtHeatResistance->setText(
            QString::fromStdString(FirstEntry(Condition::HeatResistance, SelectedPart(), GetCodeView())));
    }
}
