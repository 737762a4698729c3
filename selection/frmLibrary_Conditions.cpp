#include "selection/frmLibrary.h"

#include "app/mdlPublic.h"
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

/// Shows what is wrong with a box and puts the focus back into it.
void frmLibrary::Report(QLineEdit* box, const Refusal& refusal, bool& ok)
{
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
    Report(ui->txtDCBiasVol,
           RefuseDCBiasVol(TextOf(ui->txtDCBiasVol), SelectedPart(), GetChartType(), UserLocale()), ok);
}

void frmLibrary::CheckFrequency(bool& ok)
{
    Report(ui->txtFrequency, RefuseFrequency(TextOf(ui->txtFrequency), UserLocale()), ok);
}

void frmLibrary::CheckHeatResistance(bool& ok)
{
    Report(ui->txtHeatResistance, RefuseHeatResistance(TextOf(ui->txtHeatResistance), UserLocale()), ok);
}

void frmLibrary::CheckAmbientTemp1(bool& ok)
{
    Report(ui->txtAmbientTemp, RefuseAmbientTemp1(TextOf(ui->txtAmbientTemp), SelectedPart(), UserLocale()),
           ok);
}

void frmLibrary::CheckAmbientTemp2(bool& ok)
{
    Report(ui->txtAmbientTemp,
           RefuseAmbientTemp2(TextOf(ui->txtAmbientTemp), SelectedPart(), GetCodeView(), UserLocale()), ok);
}

void frmLibrary::CheckParameter1(bool& ok)
{
    Report(ui->txtParameter, RefuseParameter(TextOf(ui->txtParameter), UserLocale()), ok);
}

/// Runs one check; false when it refuses.
bool frmLibrary::Passes(Check check)
{
    bool ok = true;
    (this->*check)(ok);
    return ok;
}

bool frmLibrary::CheckChartConditions()
{
    std::vector<Check> checks;
    switch (GetChartType())
    {
    case 0:
        checks = {&frmLibrary::CheckDCBiasVol, &frmLibrary::CheckHeatResistance,
                  &frmLibrary::CheckAmbientTemp1,
                  IsFrequencySweep() ? &frmLibrary::CheckParameter1 : &frmLibrary::CheckFrequency};
        break;
    case 1:
        checks = {&frmLibrary::CheckDCBiasVol, &frmLibrary::CheckHeatResistance,
                  &frmLibrary::CheckAmbientTemp1};
        break;
    case 2:
        checks = {&frmLibrary::CheckDCBiasVol};
        break;
    default:
        checks = {&frmLibrary::CheckAmbientTemp2};
        break;
    }
    return std::ranges::all_of(checks, [this](Check check) { return Passes(check); });
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
    return Passes(GetChartType() <= 1 ? &frmLibrary::CheckAmbientTemp1 : &frmLibrary::CheckAmbientTemp2);
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
    static constexpr std::array<const char*, 4> Units = {"[Arms]", "[Vrms]", "[W]", "[VA]"};
    Empty(ui->txtParameter);
    ui->lblParameter->setText(QString::fromLatin1(Units[static_cast<std::size_t>(index)]));
}

void frmLibrary::ResetAmbientTemp(int codeForm)
{
    ui->txtAmbientTemp->setText(codeForm == 0 ? QStringLiteral("25") : QStringLiteral("20"));
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
    const bool power = chartType == 0 || chartType == 1;
    if (power || chartType == 2)
    {
        SetConditionEnabled(ui->lblDCBiasVol, ui->txtDCBiasVol, true);
    }
    if (power || chartType == 3)
    {
        SetConditionEnabled(ui->lblAmbientTemp, ui->txtAmbientTemp, true);
    }
    if (power)
    {
        SetConditionEnabled(ui->lblHeatResistance, ui->txtHeatResistance, true);
        ui->txtHeatResistance->setText(
            QString::fromStdString(NumberText(SelectedPart().Data[Value::HeatResistance])));
    }
    if (chartType == 0)
    {
        SetFrequencyEnabled(!IsFrequencySweep());
        if (IsFrequencySweep())
        {
            SetParameterEnabled(true);
        }
    }
}
