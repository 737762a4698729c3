#include "selection/frmLibrary.h"

#include "app/HelpLanguages.h"
#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/ChartKinds.h"
#include "formkit/Messages.h"
#include "formkit/Texts.h"
#include "formkit/Twips.h"
#include "selection/LastControl.h"
#include "selection/ListBoxes.h"
#include "ui_frmLibrary.h"

#include <QCloseEvent>
#include <QMdiArea>

static constexpr int FormWidth = Twips(3000);

/// The buttons of a control array by their indices.
static std::vector<QRadioButton*> ButtonsOf(const QWidget& form, const char* name, std::size_t count)
{
    std::vector<QRadioButton*> buttons;
    buttons.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
    {
        buttons.push_back(form.findChild<QRadioButton*>(QString::fromLatin1(name).arg(i)));
    }
    return buttons;
}

frmLibrary::frmLibrary(ChartWindows& chartWindows, QWidget* parent)
    : QMdiSubWindow(parent, Qt::SubWindow | Qt::FramelessWindowHint)
    , ui(std::make_unique<Ui::frmLibrary>())
    , windows(chartWindows)
    , selection(mdlPublic.Parts)
{
    setObjectName("frmLibrary");
    setWindowTitle(ProgramTitle());
    auto* contents = new QWidget;
    ui->setupUi(contents);
    optChartType = ButtonsOf(*contents, "optChartType_%1", FormChartKinds().size());
    optParameter = ButtonsOf(*contents, "optParameter_%1", Parameters.size());
    for (const ConditionKind& kind : ConditionKinds())
    {
        const auto name =
            QString::fromLatin1(kind.ControlName.data(), static_cast<qsizetype>(kind.ControlName.size()));
        conditions.push_back({kind.Id, contents->findChild<QLabel*>("lbl" + name),
                              contents->findChild<QLineEdit*>("txt" + name)});
    }

    ui->cmbPartNum->lineEdit()->setAccessibleName(ui->cmbPartNum->accessibleName());
    setWidget(contents);
    // The form never takes more than its share of the width.
    setFixedWidth(FormWidth);
    // A click on empty ground leaves the focus in its box, and no menu moves the form from its place.
    setFocusPolicy(Qt::NoFocus);
    setSystemMenu(nullptr);
    Connect();
}

frmLibrary::~frmLibrary() = default;

void frmLibrary::ConnectButtons(const std::vector<QRadioButton*>& buttons, void (frmLibrary::*click)(int))
{
    for (std::size_t i = 0; i < buttons.size(); ++i)
    {
        const auto index = static_cast<int>(i);
        connect(buttons[i], &QRadioButton::clicked, this, [this, click, index] { (this->*click)(index); });
    }
}

void frmLibrary::Connect()
{
    ConnectButtons(optChartType, &frmLibrary::optChartType_Click);
    ConnectButtons(optParameter, &frmLibrary::optParameter_Click);
    connect(ui->cmbSizeCode, &QComboBox::activated, this, &frmLibrary::cmbSizeCode_Click);
    connect(ui->cmbTcc, &QComboBox::activated, this, &frmLibrary::cmbTcc_Click);
    connect(ui->cmbCap, &QComboBox::activated, this, &frmLibrary::cmbCap_Click);
    connect(ui->cmbRatedVol, &QComboBox::activated, this, &frmLibrary::cmbRatedVol_Click);
    connect(ui->cmbPartNum, &QComboBox::activated, this, &frmLibrary::cmbPartNum_Click);
    connect(ui->cmbPartNum->lineEdit(), &QLineEdit::textEdited, this, &frmLibrary::cmbPartNum_Change);
    connect(ui->cmbXaxis, &QComboBox::activated, this, &frmLibrary::cmbXaxis_Click);
    connect(ui->cmdPlot, &QPushButton::clicked, this, &frmLibrary::cmdPlot_Click);
    for (const ConditionControls& condition : conditions)
    {
        connect(condition.Box, &QLineEdit::returnPressed, ui->cmdPlot, &QPushButton::click);
        connect(condition.Box, &QLineEdit::textChanged, this, &frmLibrary::TellHintLater);
    }
    for (QComboBox* list : findChildren<QComboBox*>())
    {
        list->installEventFilter(this);
    }
    GuardEntries();
    lastControl = new LastControl(this);
}

void frmLibrary::Form_Load()
{
    SelectChartType(0);
    mdlPublic.Charts = ChartStore{};
    if (HelpLanguageOf(mdlPublic.HelpLanguage).StartView == CodeView::Jis)
    {
        windows.SwitchCodeView(1);
    }
}

void frmLibrary::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

/// The wheel over a list that is not in use scrolls the form; the list only lies in its way.
bool frmLibrary::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
    {
        TellHintLater();
    }
    const auto* list = qobject_cast<const QComboBox*>(watched);
    if (event->type() == QEvent::Wheel && list != nullptr && !list->hasFocus())
    {
        event->ignore();
        return true;
    }
    return QMdiSubWindow::eventFilter(watched, event);
}

/// A click on empty ground brings the form to the front.
void frmLibrary::mousePressEvent(QMouseEvent*)
{
    if (mdiArea() != nullptr)
    {
        mdiArea()->setActiveSubWindow(this);
    }
}

void frmLibrary::SelectChartType(int index)
{
    optChartType[static_cast<std::size_t>(index)]->setChecked(true);
    ComeToFront(optChartType[static_cast<std::size_t>(index)]);
    optChartType_Click(index);
}

void frmLibrary::ComeToFront(QWidget* control)
{
    if (mdiArea() != nullptr)
    {
        mdiArea()->setActiveSubWindow(this);
    }
    control->setFocus();
    if (control->isEnabled())
    {
        // A window that is not in front yet tells of no focus.
        lastControl->Remember(control);
    }
}

void frmLibrary::KeepFocus()
{
    QWidget* const last = lastControl->Control();
    QWidget* const next = last != nullptr ? last : optChartType[static_cast<std::size_t>(GetChartType())];
    lastControl->Settle();
    if (window()->focusWidget() != next)
    {
        next->setFocus(Qt::ActiveWindowFocusReason);
    }
}

// ---- The selection cascade ----

/// Shows the upper four lists and their choices; the part-number box is filled by its own callers.
void frmLibrary::ShowSelection()
{
    const UpdatingScope updating;
    const PartChoice& choice = selection.Choice();
    ShowTexts(ui->cmbSizeCode, selection.SizeCodes(), choice.SizeCode);
    ShowTexts(ui->cmbTcc, selection.Tccs(), choice.Tcc);
    ShowNumbers(ui->cmbCap, selection.Capacitances(), choice.Capacitance);
    ShowNumbers(ui->cmbRatedVol, selection.RatedVoltages(), choice.RatedVoltage);
}

void frmLibrary::AllClear()
{
    selection.AllClear();
    ShowSelection();
    ui->cmbPartNum->SetParts({}, GetPartNumForm());
    ui->cmbXaxis->clear();
    ui->cmbYaxis->clear();
    IncompletePart();
}

void frmLibrary::AddPartNum(int chartType)
{
    selection.AddPartNum(static_cast<std::int16_t>(chartType), GetCodeView());
    ShowSelection();
    ui->cmbPartNum->SetParts(selection.PartNums(), GetPartNumForm());
}

void frmLibrary::FillTccList()
{
    if (const auto* chosen = ChosenOf(selection.SizeCodes(), ui->cmbSizeCode))
    {
        selection.FillTccList(*chosen);
        ShowStep();
    }
}

void frmLibrary::FillCapList()
{
    if (const auto* chosen = ChosenOf(selection.Tccs(), ui->cmbTcc))
    {
        selection.FillCapList(*chosen);
        ShowStep();
    }
}

void frmLibrary::FillRatedVolList()
{
    if (const auto* chosen = ChosenOf(selection.Capacitances(), ui->cmbCap))
    {
        selection.FillRatedVolList(*chosen);
        ShowStep();
    }
}

void frmLibrary::FillPartNumList()
{
    const auto* chosen = ChosenOf(selection.RatedVoltages(), ui->cmbRatedVol);
    if (chosen == nullptr)
    {
        return;
    }
    selection.FillPartNumList(*chosen);
    ShowStep();
    // The box shows the last part that is left: with the rated voltage chosen the selection is complete.
    if (!selection.PartNums().empty())
    {
        ui->cmbPartNum->setEditText(PartNumText(selection.PartNums().back(), GetPartNumForm()));
    }
}

/// Shows the lists after a choice at one of the upper four levels.
void frmLibrary::ShowStep()
{
    ShowSelection();
    ui->cmbPartNum->SetParts(selection.PartNums(), GetPartNumForm());
}

static bool IsChosen(const QComboBox* box)
{
    return !mdlPublic.Updating && !box->currentText().isEmpty();
}

void frmLibrary::cmbSizeCode_Click()
{
    if (IsChosen(ui->cmbSizeCode))
    {
        FillTccList();
        IncompletePart();
    }
}

void frmLibrary::cmbTcc_Click()
{
    if (IsChosen(ui->cmbTcc))
    {
        FillCapList();
        IncompletePart();
    }
}

void frmLibrary::cmbCap_Click()
{
    if (IsChosen(ui->cmbCap))
    {
        FillRatedVolList();
        IncompletePart();
    }
}

void frmLibrary::cmbRatedVol_Click()
{
    if (IsChosen(ui->cmbRatedVol))
    {
        const UpdatingScope updating;
        FillPartNumList();
        CompletePart();
    }
}

void frmLibrary::cmbPartNum_Click()
{
    if (mdlPublic.Updating)
    {
        return;
    }
    if (!ui->cmbPartNum->Holds(ui->cmbPartNum->currentText()))
    {
        IncompletePart();
        return;
    }
    const UpdatingScope updating;
    selection.ShowPart(GetSelectedPart());
    ShowSelection();
    CompletePart();
}

void frmLibrary::cmbPartNum_Change()
{
    if (mdlPublic.Updating)
    {
        return;
    }
    IncompletePart();
    if (ui->cmbPartNum->Holds(ui->cmbPartNum->currentText()))
    {
        cmbPartNum_Click();
    }
}

std::int16_t frmLibrary::GetSelectedPart() const
{
    const auto form = static_cast<std::size_t>(GetPartNumForm());
    const auto* part = mdlPublic.Parts.PartIndex[form].Find(ToAnsi(ui->cmbPartNum->currentText()));
    return part != nullptr ? *part : std::int16_t{-1};
}

QString frmLibrary::ShownPartNum() const
{
    return ui->cmbPartNum->currentText();
}

const PartRecord& frmLibrary::SelectedPart() const
{
    static const PartRecord none;
    const auto part = GetSelectedPart();
    return part >= 0 ? mdlPublic.Parts.PartData[static_cast<std::size_t>(part)] : none;
}

void frmLibrary::IncompletePart()
{
    selection.LeavePart();
    ShowCanPlot();
    DisableConditions();
}

void frmLibrary::CompletePart()
{
    ShowCanPlot();
    EnableConditions(GetChartType());
}

/// Plot, and all that goes with it, is offered while a part is chosen.
void frmLibrary::ShowCanPlot()
{
    ui->cmdPlot->setEnabled(CanPlot());
    Q_EMIT CanPlotChanged(CanPlot());
    TellHintLater();
}

bool frmLibrary::CanPlot() const
{
    return selection.IsPartChosen();
}

// ---- The naming on display ----

void frmLibrary::ChangePartNum(int partNumForm)
{
    const auto selected = GetSelectedPart();
    const UpdatingScope updating;
    selection.ChangeNaming(static_cast<CodeView>(partNumForm % 2));
    ui->cmbPartNum->SetParts(selection.PartNums(), partNumForm);
    if (selected >= 0)
    {
        ui->cmbPartNum->setEditText(PartNumText(selected, partNumForm));
    }
    TellHintLater();
}

void frmLibrary::ChangeSize()
{
    const UpdatingScope updating;
    ShowTexts(ui->cmbSizeCode, selection.SizeCodes(), selection.Choice().SizeCode);
}

void frmLibrary::ChangeTcc()
{
    ShowSelection();
}
