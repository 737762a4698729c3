#include "selection/frmLibrary.h"

#include "app/mdlPublic.h"
#include "calc/Bounds.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "formkit/Entries.h"
#include "formkit/Messages.h"
#include "formkit/Texts.h"
#include "ui_frmLibrary.h"

#include <QApplication>
#include <QFocusEvent>
#include <QTimer>

#include <algorithm>
#include <array>
#include <utility>

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

// ---- Leaving and entering a box ----

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

/// True for a control whose action empties, refills or disables the box.
bool frmLibrary::ActsOnBox(const QWidget* control, const QLineEdit* box) const
{
    const auto is = [control](const QWidget* other)
    { return control == other || other->isAncestorOf(control); };
    const std::array<const QWidget*, 6> restarting = {ui->fraChartType, ui->cmbSizeCode, ui->cmbTcc,
                                                      ui->cmbCap,       ui->cmbRatedVol, ui->cmbPartNum};
    if (std::ranges::any_of(restarting, is))
    {
        return true;
    }
    const bool fixesLoad = box == ui->txtFrequency || box == ui->txtParameter;
    return (fixesLoad && is(ui->cmbXaxis)) ||
           (box == ui->txtParameter && std::ranges::any_of(optParameter, is));
}

/// A box is checked when the user leaves it for another control of this form, by key or by click, unless
/// the click itself is going to change the box.
bool frmLibrary::IsCauseToCheck(const QLineEdit* box, Qt::FocusReason reason) const
{
    const QWidget* next = QApplication::focusWidget();
    if (!box->isEnabled() || next == nullptr || next == box || !isAncestorOf(next))
    {
        return false;
    }
    switch (reason)
    {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::MouseFocusReason:
        return !ActsOnBox(next, box);
    default:
        return false;
    }
}

bool frmLibrary::LostFocus(const QLineEdit* box)
{
    if (box == ui->txtDCBiasVol)
    {
        return txtDCBiasVol_LostFocus();
    }
    if (box == ui->txtFrequency)
    {
        return txtFrequency_LostFocus();
    }
    if (box == ui->txtHeatResistance)
    {
        return txtHeatResistance_LostFocus();
    }
    if (box == ui->txtAmbientTemp)
    {
        return txtAmbientTemp_LostFocus();
    }
    return txtParameter_LostFocus();
}

/// Selects the whole text, so that typing replaces it. A click takes the selection away again until its
/// button is released. Coming back from a menu or another window leaves the text as it was.
void frmLibrary::GotFocus(QLineEdit* box, Qt::FocusReason reason)
{
    if (reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
        reason != Qt::ActiveWindowFocusReason)
    {
        box->selectAll();
        enteredByClick = reason == Qt::MouseFocusReason ? box : nullptr;
    }
}

/// Runs the check of a box that is left, if this way of leaving asks for it; false when the box is refused
/// and has the focus again.
bool frmLibrary::MayLeave(const QLineEdit* box, Qt::FocusReason reason)
{
    if (!IsCauseToCheck(box, reason) || LostFocus(box))
    {
        return true;
    }
    if (reason == Qt::MouseFocusReason)
    {
        swallowPress = true;
        QTimer::singleShot(0, this, [this] { swallowPress = false; });
    }
    return false;
}

/// The condition box or parameter box that an event is for, or null.
QLineEdit* frmLibrary::ConditionBox(QObject* watched) const
{
    auto* box = qobject_cast<QLineEdit*>(watched);
    return box != ui->cmbPartNum->lineEdit() ? box : nullptr;
}

/// True for a list that the wheel is not to change, since it only lies in the way of scrolling.
static bool IsListWithoutFocus(const QObject* watched)
{
    const auto* list = qobject_cast<const QComboBox*>(watched);
    return list != nullptr && !list->hasFocus();
}

bool frmLibrary::eventFilter(QObject* watched, QEvent* event)
{
    QLineEdit* box = ConditionBox(watched);
    switch (event->type())
    {
    case QEvent::MouseButtonPress:
        if (std::exchange(swallowPress, false))
        {
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
        if (box != nullptr && std::exchange(enteredByClick, nullptr) == box && !box->hasSelectedText())
        {
            box->selectAll();
        }
        break;
    case QEvent::Wheel:
        if (IsListWithoutFocus(watched))
        {
            event->ignore();
            return true;
        }
        break;
    case QEvent::FocusIn:
        if (box != nullptr)
        {
            GotFocus(box, static_cast<QFocusEvent*>(event)->reason());
        }
        break;
    case QEvent::FocusOut:
        // A refused box has the focus again by now, and is not to hear that it lost it.
        if (box != nullptr && !MayLeave(box, static_cast<QFocusEvent*>(event)->reason()))
        {
            return true;
        }
        break;
    default:
        break;
    }
    return QMdiSubWindow::eventFilter(watched, event);
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
