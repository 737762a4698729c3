#include "chart/frmSetAxis.h"

#include "calc/NumberText.h"
#include "calc/Quantities.h"
#include "chart/layout/AxisLimits.h"
#include "formkit/Entries.h"
#include "formkit/Messages.h"
#include "formkit/WindowFrame.h"
#include "ui_frmSetAxis.h"

#include <QFocusEvent>
#include <QLineEdit>

#include <algorithm>

static float ShownFactor(const std::string& axisName)
{
    return KindOf(QuantityNamed(axisName)).StoredPerShown;
}

static QString ShownText(float value, const std::string& quantity)
{
    return QString::fromStdString(NumberText(value / ShownFactor(quantity)));
}

frmSetAxis::frmSetAxis(const ChartView& shown, const AxisRange& chartDefaults, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::frmSetAxis>())
    , view(shown)
    , defaults(chartDefaults)
{
    ui->setupUi(this);
    setWindowTitle(ProgramTitle());
    txtX = {ui->txtX_0, ui->txtX_1};
    txtY = {ui->txtY_0, ui->txtY_1};
    const std::string& xName = view.Chart.XAxisName;
    const std::string& yName = view.Chart.YAxisName;
    txtX[0]->setText(ShownText(view.Range.XMin, xName));
    txtX[1]->setText(ShownText(view.Range.XMax, xName));
    txtY[0]->setText(ShownText(view.Range.YMin, yName));
    txtY[1]->setText(ShownText(view.Range.YMax, yName));
    ui->lblXunit->setText(QString::fromStdString(GetUnit(xName, view.DegreeSign)));
    ui->lblYunit->setText(QString::fromStdString(GetUnit(yName, view.DegreeSign)));
    // The boxes of both axes stand in line, however long their units are.
    const int unitWidth = std::max(ui->lblXunit->sizeHint().width(), ui->lblYunit->sizeHint().width());
    ui->lblXunit->setMinimumWidth(unitWidth);
    ui->lblYunit->setMinimumWidth(unitWidth);
    // Both frames have the same labels.
    ui->lblYFrom->setObjectName(ui->lblFrom->objectName());
    ui->lblYTo->setObjectName(ui->lblTo->objectName());
    for (QLineEdit* box : {txtX[0], txtX[1], txtY[0], txtY[1]})
    {
        box->installEventFilter(this);
    }
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmSetAxis::cmdOK_Click);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmSetAxis::cmdCancel_Click);
}

frmSetAxis::~frmSetAxis() = default;

/// Centres the dialog over the main window.
void frmSetAxis::Form_Load()
{
    if (const QWidget* mainWindow = parentWidget() != nullptr ? parentWidget()->window() : nullptr)
    {
        setGeometry(CentredOver(*mainWindow, size(), FrameOf(*this)));
    }
}

void frmSetAxis::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Form_Load();
}

// A box selects its whole text as it gets the focus, so that typing replaces it.

void frmSetAxis::txtX_GotFocus(int index)
{
    txtX.at(static_cast<std::size_t>(index))->selectAll();
}

void frmSetAxis::txtY_GotFocus(int index)
{
    txtY.at(static_cast<std::size_t>(index))->selectAll();
}

void frmSetAxis::GotFocus(const QObject* box)
{
    for (int index = 0; index < 2; ++index)
    {
        if (box == txtX.at(static_cast<std::size_t>(index)))
        {
            txtX_GotFocus(index);
        }
        if (box == txtY.at(static_cast<std::size_t>(index)))
        {
            txtY_GotFocus(index);
        }
    }
}

bool frmSetAxis::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
    {
        GotFocus(watched);
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
        {
            // The click sets the cursor afterwards.
            QMetaObject::invokeMethod(
                this, [this, watched] { GotFocus(watched); }, Qt::QueuedConnection);
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmSetAxis::cmdCancel_Click()
{
    reject();
}

/// The number of a box that has been found to hold one.
static float NumberOf(const QLineEdit* box)
{
    return EntryOf(box).value_or(0);
}

void frmSetAxis::cmdOK_Click()
{
    if (!AreEntriesNumeric() || !CheckAxisRange())
    {
        return;
    }
    const float xFactor = ShownFactor(view.Chart.XAxisName);
    const float yFactor = ShownFactor(view.Chart.YAxisName);
    range = {.XMax = NumberOf(txtX[1]) * xFactor,
             .YMax = NumberOf(txtY[1]) * yFactor,
             .XMin = NumberOf(txtX[0]) * xFactor,
             .YMin = NumberOf(txtY[0]) * yFactor};
    accept();
}

void frmSetAxis::Refuse(QLineEdit* box, const QString& message)
{
    ShowExclamation(this, message);
    box->setFocus();
    box->selectAll();
}

bool frmSetAxis::AreEntriesNumeric()
{
    for (QLineEdit* box : {txtX[0], txtX[1], txtY[0], txtY[1]})
    {
        if (!EntryOf(box))
        {
            Refuse(box, QStringLiteral("A Non-numerical value exits where numerical value should be in."));
            return false;
        }
    }
    return true;
}

bool frmSetAxis::CheckAxisRange()
{
    return CheckAxis("X", view.Chart.XAxisName, txtX, PermittedXRange(view.Chart, defaults)) &&
           CheckAxis("Y", view.Chart.YAxisName, txtY, PermittedYRange(view.Chart, defaults));
}

/// Both entries of an axis must be permitted, and the first below the second.
bool frmSetAxis::CheckAxis(const char* axis, const std::string& quantity,
                           const std::array<QLineEdit*, 2>& boxes, const PermittedRange& permitted)
{
    const float from = NumberOf(boxes[0]);
    const float to = NumberOf(boxes[1]);
    const auto refusal = RefusalOfRange(axis, quantity, permitted, from, to);
    if (refusal)
    {
        Refuse(permitted.Contains(from) ? boxes[1] : boxes[0], QString::fromStdString(*refusal));
    }
    return !refusal;
}
