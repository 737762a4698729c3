#include "selection/frmLibrary.h"

#include "app/mdlPublic.h"
#include "calc/Bounds.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "formkit/Entries.h"
#include "formkit/Messages.h"
#include "formkit/Texts.h"
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

/// Runs the check of a condition; false when it refuses. The ambient temperature has a check for each kind of
/// chart.
bool frmLibrary::Passes(Condition condition)
{
    const ConditionRule rule = RuleOf(ChartKindOf(GetChartType()), condition);
    bool ok = true;
    switch (condition)
    {
    case Condition::DCBias:
        CheckDCBiasVol(ok);
        break;
    case Condition::HeatResistance:
        CheckHeatResistance(ok);
        break;
    case Condition::AmbientTemperature:
        rule == &RefuseClassAmbient ? CheckAmbientTemp2(ok) : CheckAmbientTemp1(ok);
        break;
    case Condition::Frequency:
        CheckFrequency(ok);
        break;
    case Condition::Parameter:
        CheckParameter1(ok);
        break;
    default:
        Report(ControlsOf(condition).Box, rule, ok);
    }
    return ok;
}

bool frmLibrary::CheckChartConditions()
{
    const ChartSweep& sweep = ShownSweep();
    return std::ranges::all_of(JudgingOrder, [&](Condition condition)
                               { return !sweep.Uses(condition) || Passes(condition); });
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
    return Passes(Condition::DCBias);
}

bool frmLibrary::txtFrequency_LostFocus()
{
    return Passes(Condition::Frequency);
}

bool frmLibrary::txtHeatResistance_LostFocus()
{
    return Passes(Condition::HeatResistance);
}

bool frmLibrary::txtAmbientTemp_LostFocus()
{
    return Passes(Condition::AmbientTemperature);
}

bool frmLibrary::txtParameter_LostFocus()
{
    return Passes(Condition::Parameter);
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
        Condition Id;
        void (frmLibrary::*GotFocus)();
        bool (frmLibrary::*LostFocus)();
    };
    static constexpr std::array<Procedures, 5> named = {{
        {Condition::DCBias, &frmLibrary::txtDCBiasVol_GotFocus, &frmLibrary::txtDCBiasVol_LostFocus},
        {Condition::Frequency, &frmLibrary::txtFrequency_GotFocus, &frmLibrary::txtFrequency_LostFocus},
        {Condition::HeatResistance, &frmLibrary::txtHeatResistance_GotFocus,
         &frmLibrary::txtHeatResistance_LostFocus},
        {Condition::AmbientTemperature, &frmLibrary::txtAmbientTemp_GotFocus,
         &frmLibrary::txtAmbientTemp_LostFocus},
        {Condition::Parameter, &frmLibrary::txtParameter_GotFocus, &frmLibrary::txtParameter_LostFocus},
    }};
    std::vector<GuardedBox> boxes;
    for (const ConditionControls& controls : conditions)
    {
        GuardedBox box{.Box = controls.Box,
                       .GotFocus = [entry = controls.Box] { entry->selectAll(); },
                       .LostFocus = [this, id = controls.Id] { return Passes(id); },
                       .ActingControls = ControlsThatChange(controls.Id)};
        const auto* const own = std::ranges::find(named, controls.Id, &Procedures::Id);
        if (own != named.end())
        {
            box.GotFocus = [this, own] { (this->*own->GotFocus)(); };
            box.LostFocus = [this, own] { return (this->*own->LostFocus)(); };
        }
        boxes.push_back(std::move(box));
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
    const Quantity parameter = Parameters.at(static_cast<std::size_t>(index));
    const QString unit = QString::fromStdString(UnitOf(parameter));
    ui->lblParameter->setText(unit);
    ui->txtParameter->setAccessibleName(
        QStringLiteral("Parameter: %1 in %2").arg(FromAnsi(NameOf(parameter)), unit.mid(1, unit.size() - 2)));
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
