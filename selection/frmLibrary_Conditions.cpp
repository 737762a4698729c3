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

/// A condition is emptied with the part; frequency and parameter with the X axis, too.
void frmLibrary::GuardEntries()
{
    const std::vector<const QWidget*> part = {ui->fraChartType, ui->cmbSizeCode, ui->cmbTcc,
                                              ui->cmbCap,       ui->cmbRatedVol, ui->cmbPartNum};
    auto axis = part;
    axis.push_back(ui->cmbXaxis);
    auto load = axis;
    load.insert(load.end(), optParameter.begin(), optParameter.end());

    const auto guarded = [this](QLineEdit* box, void (frmLibrary::*gotFocus)(),
                                bool (frmLibrary::*lostFocus)(), const std::vector<const QWidget*>& acting)
    {
        return GuardedBox{box, [=, this] { (this->*gotFocus)(); }, [=, this] { return (this->*lostFocus)(); },
                          acting};
    };
    using Form = frmLibrary;
    new EntryGuard(
        this,
        {guarded(ui->txtDCBiasVol, &Form::txtDCBiasVol_GotFocus, &Form::txtDCBiasVol_LostFocus, part),
         guarded(ui->txtFrequency, &Form::txtFrequency_GotFocus, &Form::txtFrequency_LostFocus, axis),
         guarded(ui->txtHeatResistance, &Form::txtHeatResistance_GotFocus, &Form::txtHeatResistance_LostFocus,
                 part),
         guarded(ui->txtAmbientTemp, &Form::txtAmbientTemp_GotFocus, &Form::txtAmbientTemp_LostFocus, part),
         guarded(ui->txtParameter, &Form::txtParameter_GotFocus, &Form::txtParameter_LostFocus, load)});
}

// ---- Which conditions the chart needs ----

static void SetConditionEnabled(QLabel* label, QLineEdit* box, bool enabled)
{
    label->setEnabled(enabled);
    box->setEnabled(enabled);
}

void frmLibrary::SetFrequencyEnabled(bool enabled)
{
    SetConditionEnabled(ui->lblFrequency, ui->txtFrequency, enabled);
}

void frmLibrary::SetParameterEnabled(bool enabled)
{
    ui->fraParameter->setEnabled(enabled);
    for (QRadioButton* button : optParameter)
    {
        button->setEnabled(enabled);
    }
    SetConditionEnabled(ui->lblParameter, ui->txtParameter, enabled);
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
    SetConditionEnabled(ui->lblDCBiasVol, ui->txtDCBiasVol, false);
    SetConditionEnabled(ui->lblFrequency, ui->txtFrequency, false);
    SetConditionEnabled(ui->lblHeatResistance, ui->txtHeatResistance, false);
    SetConditionEnabled(ui->lblAmbientTemp, ui->txtAmbientTemp, false);
    Empty(ui->txtDCBiasVol);
    Empty(ui->txtFrequency);
    Empty(ui->txtHeatResistance);
    ResetAmbientTemp(GetCodeForm());
    ResetParameter();
    SetParameterEnabled(false);
}

void frmLibrary::EnableConditions(int chartType)
{
    ui->fraCondition->setEnabled(true);
    const ChartKind* kind = FindChartKind(chartType);
    if (kind == nullptr)
    {
        return;
    }
    // What every way through the chart type uses; frequency and parameter go by the X axis.
    const ChartSweep& common = kind->Sweeps.front();
    if (common.Uses(Condition::DCBias))
    {
        SetConditionEnabled(ui->lblDCBiasVol, ui->txtDCBiasVol, true);
    }
    if (common.Uses(Condition::AmbientTemperature))
    {
        SetConditionEnabled(ui->lblAmbientTemp, ui->txtAmbientTemp, true);
    }
    if (common.Uses(Condition::HeatResistance))
    {
        SetConditionEnabled(ui->lblHeatResistance, ui->txtHeatResistance, true);
        ui->txtHeatResistance->setText(
            QString::fromStdString(FirstEntry(Condition::HeatResistance, SelectedPart(), GetCodeView())));
    }
    if (common.Uses(Condition::Frequency))
    {
        SetFrequencyEnabled(!IsFrequencySweep());
        if (IsFrequencySweep())
        {
            SetParameterEnabled(true);
        }
    }
}
