#include "chart/frmChartView.h"

#include "calc/EngineeringText.h"
#include "calc/NumberText.h"
#include "chart/ChartAccessible.h"
#include "chart/layout/AxisLimits.h"
#include "chart/layout/FittingAxis.h"
#include "chart/layout/Mapping.h"
#include "formkit/Edges.h"
#include "formkit/Entries.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"
#include "ui_frmChartView.h"

#include <QKeyEvent>

#include <cmath>

static Quantity XOf(const ViewScene& scene)
{
    return QuantityNamed(scene.View.Chart.XAxisName);
}

QString frmChartView::AxisText(double x) const
{
    return QString::fromStdString(AxisValueText(XOf(scene), x, scene.View.DegreeSign));
}

/// A first stands in the middle of what is shown, at the round value nearest to it.
void frmChartView::StartCursor()
{
    scene.Cursors.Start(ui->picChartView->MiddleX());
    ShowCursors();
}

// ---- What they tell ----

void frmChartView::ShowCursors()
{
    ShowTable();
    ShowCursorTexts();
    ui->picChartView->ShowCursors();
}

/// "A 20 kHz   B 300 kHz   B − A +280 kHz   B / A 15.00", or what Enter does.
static QStringList TellingsOf(const ViewScene& scene, const QString& a, const QString& b)
{
    const ChartCursors& cursors = scene.Cursors;
    QStringList told = {QStringLiteral("A ") + a};
    if (!cursors.B())
    {
        return told << QStringLiteral("Enter pins it and brings a second cursor");
    }
    told << QStringLiteral("B ") + b;
    told << QStringLiteral("B \u2212 A ") +
                QString::fromStdString(
                    AxisDifferenceText(XOf(scene), *cursors.B() - cursors.A(), scene.View.DegreeSign));
    if (XAxisKind(scene.View.Chart) == AxisKind::Logarithmic)
    {
        told << QStringLiteral("B / A ") + QString::fromStdString(RatioText(*cursors.B(), cursors.A()));
    }
    return told;
}

static bool IsShown(const ViewScene& scene, double x)
{
    const auto at = static_cast<float>(x);
    return at >= scene.View.Range.XMin && at <= scene.View.Range.XMax;
}

void frmChartView::ShowCursorTexts()
{
    const ChartCursors& cursors = scene.Cursors;
    QStringList told = TellingsOf(scene, AxisText(cursors.A()), AxisText(cursors.B().value_or(0)));
    const bool allShown = IsShown(scene, cursors.A()) && IsShown(scene, cursors.B().value_or(cursors.A()));
    if (!allShown)
    {
        told << QStringLiteral("outside the range shown");
    }
    if (!unseen.isEmpty())
    {
        told << unseen.join(QStringLiteral(", ")) +
                    (unseen.size() == 1 ? QStringLiteral(" lies") : QStringLiteral(" lie")) +
                    QStringLiteral(" outside the range shown");
    }
    ShowTold(told.join(QStringLiteral("    ")), false);
    TellReader();
    const auto& x = KindOf(XOf(scene));
    if (!ui->txtCursorX->hasFocus() || !ui->txtCursorX->isModified())
    {
        ui->txtCursorX->setText(QString::fromStdString(NumberText(ShownValue(x.Id, cursors.Moving()))));
        ui->txtCursorX->setModified(false);
    }
    ui->lblCursorX->setText(QStringLiteral("C&ursor %1").arg(QString::fromLatin1(x.Name)));
    ui->lblCursorUnit->setText(QString::fromStdString(ShownUnitOf(x.Id)));
}

/// Tells a screen reader where the cursors stand, now or when it has been left alone for a moment.
void frmChartView::TellReader()
{
    isChangeUntold = telling.isActive();
    if (!isChangeUntold)
    {
        telling.start();
        ChartAccessible::TellChange(*ui->picChartView);
        Q_EMIT CursorsTold();
    }
}

/// Shows the line beside the entry, which has a red frame while it is refused.
void frmChartView::ShowTold(const QString& text, bool refusal)
{
    ui->lblCursor->setText(text);
    ui->lblCursor->setForegroundRole(QPalette::WindowText);
    ui->txtCursorX->setStyleSheet(refusal ? RefusedFrame(palette()) : QString());
}

// ---- Moving them ----

void frmChartView::PinCursor(double x)
{
    scene.Cursors.Pin(x);
    ShowTable();
    ShowCursorTexts();
    ui->picChartView->ShowOverlay();
}

/// The line whose points keys step along: the chosen one, else No.1.
const ViewedLine& frmChartView::SteppedLine() const
{
    return scene.Lines.at(static_cast<std::size_t>(scene.Chosen.value_or(0)));
}

void frmChartView::StepCursor(int points)
{
    scene.Cursors.MoveTo(SteppedX(SteppedLine().Line, scene.Cursors.Moving(), points));
    ShowCursors();
}

/// What was typed, in the unit of records; nothing, and why, for what is no number or has another unit.
static std::optional<float> TypedX(QString text, Quantity quantity, QString& why)
{
    if (CommaIsDecimal())
    {
        text.replace(u',', u'.');
    }
    try
    {
        return StoredValueInUnit(text.toStdString(), quantity);
    }
    catch (const RequestError& refusal)
    {
        why = QString::fromUtf8(refusal.what());
        return std::nullopt;
    }
}

/// Takes the typed X: the cursor stands there to the last digit, and is pinned.
void frmChartView::EnterX()
{
    QString why;
    const auto x = TypedX(ui->txtCursorX->text(), XOf(scene), why);
    const auto permitted = PermittedXRange(scene.View.Chart, defaults);
    if (x && !permitted.Contains(ShownValue(XOf(scene), *x)))
    {
        why = QStringLiteral("from %1 to %2")
                  .arg(AxisText(permitted.Lowest * KindOf(XOf(scene)).StoredPerShown),
                       AxisText(permitted.Highest * KindOf(XOf(scene)).StoredPerShown));
    }
    if (!x || !why.isEmpty())
    {
        ShowTold(why, true);
        ui->txtCursorX->selectAll();
        return;
    }
    scene.Cursors.Jump(*x);
    LeaveEntry();
    ShowTable();
    ui->picChartView->ShowOverlay();
}

/// Gives the focus back to the chart; the entry shows where the cursor stands.
void frmChartView::LeaveEntry()
{
    ui->txtCursorX->setModified(false);
    ui->picChartView->setFocus();
    ShowCursorTexts();
}

// ---- Keys ----

/// Left, Right, Home and End on the chart.
bool frmChartView::MoveByKey(const QKeyEvent& key)
{
    const int points = key.modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
    const int all = static_cast<int>(CurvePoints);
    switch (key.key())
    {
    case Qt::Key_Left:
        StepCursor(-points);
        return true;
    case Qt::Key_Right:
        StepCursor(points);
        return true;
    case Qt::Key_Home:
        StepCursor(-all);
        return true;
    case Qt::Key_End:
        StepCursor(all);
        return true;
    default:
        return false;
    }
}

/// Ctrl with an arrow pans by a tenth.
bool frmChartView::PanByKey(const QKeyEvent& key)
{
    static constexpr double Tenth = 10;
    const int x = (key.key() == Qt::Key_Right) - (key.key() == Qt::Key_Left);
    const int y = (key.key() == Qt::Key_Up) - (key.key() == Qt::Key_Down);
    if (key.modifiers() != Qt::ControlModifier || (x == 0 && y == 0))
    {
        return false;
    }
    Pan(x * Tenth, y * Tenth);
    return true;
}

/// True for what a number begins with.
static bool BeginsNumber(const QKeyEvent& key)
{
    const bool isText = key.text().size() == 1 && (key.modifiers() & ~Qt::KeypadModifier) == 0;
    return isText && (key.text()[0].isDigit() || QStringLiteral(".,-+").contains(key.text()[0]));
}

/// The keys of the chart.
bool frmChartView::PressOnChart(QKeyEvent* key)
{
    const auto plain = key->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (PanByKey(*key) || (plain == Qt::NoModifier && MoveByKey(*key)))
    {
        return true;
    }
    if (BeginsNumber(*key))
    {
        ui->txtCursorX->setFocus();
        ui->txtCursorX->setText(key->text());
        ui->txtCursorX->setModified(true);
        return true;
    }
    if (plain != Qt::NoModifier)
    {
        return false;
    }
    switch (key->key())
    {
    case Qt::Key_Up:
        ChooseNext(-1);
        return true;
    case Qt::Key_Down:
        ChooseNext(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        PinCursor(scene.Cursors.Moving());
        return true;
    default:
        return false;
    }
}

/// Escape in the entry goes back to the chart.
bool frmChartView::PressInEntry(QKeyEvent* key)
{
    if (key->key() != Qt::Key_Escape)
    {
        return false;
    }
    LeaveEntry();
    return true;
}

/// Frees B, then A, then closes the window.
void frmChartView::Escape()
{
    if (!scene.Cursors.Free())
    {
        close();
        return;
    }
    ShowTable();
    ShowCursorTexts();
    ui->picChartView->ShowOverlay();
}

void frmChartView::keyPressEvent(QKeyEvent* event)
{
    const bool asksForMenu = event->key() == Qt::Key_Menu ||
                             (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (asksForMenu)
    {
        ShowMenuByKey();
    }
    else if (event->key() == Qt::Key_Escape)
    {
        Escape();
    }
    else
    {
        QMainWindow::keyPressEvent(event);
    }
}

bool frmChartView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
    {
        auto* const key = static_cast<QKeyEvent*>(event);
        const bool taken = (watched == ui->picChartView && PressOnChart(key)) ||
                           (watched == ui->txtCursorX && PressInEntry(key));
        if (taken)
        {
            return true;
        }
    }
    if (watched == ui->tblLines->viewport() && event->type() == QEvent::Leave)
    {
        Hover({});
    }
    return QMainWindow::eventFilter(watched, event);
}
