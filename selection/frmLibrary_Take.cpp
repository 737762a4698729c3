#include "selection/frmLibrary.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "formkit/Texts.h"
#include "selection/ConditionsOf.h"
#include "ui_frmLibrary.h"

#include <QKeyEvent>

/// Puts an entry into a box; one that is being worked in is ready to be replaced, as if it was just come to.
static void PutInto(QLineEdit* box, const std::string& entry)
{
    box->setText(QString::fromStdString(entry));
    if (box->hasFocus())
    {
        box->selectAll();
    }
}

QString frmLibrary::TakeConditions(const ChartRecord& line, int number)
{
    if (!CanPlot())
    {
        return QStringLiteral("Choose a part first.");
    }
    const PartRecord& part = mdlPublic.Parts.PartData[static_cast<std::size_t>(line.PartDataIndex)];
    auto taken = ConditionsOf(line, part, Utf8FromWindows1252(mdlPublic.DegreeSign));
    std::erase_if(taken, [this](const TakenCondition& condition)
                  { return !ControlsOf(condition.Id).Box->isEnabled(); });
    PutIntoBoxes(taken);
    return QString::fromStdString(TakenText(number, taken));
}

/// Fills the boxes that are in use.
void frmLibrary::PutIntoBoxes(std::span<const TakenCondition> taken)
{
    for (const TakenCondition& condition : taken)
    {
        QLineEdit* const box = ControlsOf(condition.Id).Box;
        if (condition.Id == Condition::Parameter && box->isEnabled())
        {
            optParameter[condition.Parameter]->setChecked(true);
            optParameter_Click(static_cast<int>(condition.Parameter));
        }
        if (box->isEnabled())
        {
            PutInto(box, condition.Entry);
        }
    }
}

void frmLibrary::TakePart(std::int16_t part, int chartType, std::span<const TakenCondition> taken)
{
    SelectChartType(chartType);
    ui->cmbPartNum->setEditText(PartNumText(part, GetPartNumForm()));
    cmbPartNum_Change();
    PutIntoBoxes(taken);
}

/// Takes the conditions of the line that was plotted last with the chosen chart type, whatever its axes.
QString frmLibrary::TakeLastConditions()
{
    const auto lines = mdlPublic.Charts.Lines();
    const auto last =
        std::find_if(lines.rbegin(), lines.rend(),
                     [this](const ChartRecord& line) { return line.ChartType == GetChartType(); });
    if (last == lines.rend())
    {
        return QStringLiteral("No line of this chart type is plotted yet.");
    }
    const auto ofItsChart = [&](const ChartRecord& line) { return BelongsTo(line, KeyOf(*last)); };
    return TakeConditions(*last, static_cast<int>(std::ranges::count_if(lines, ofItsChart)));
}

void frmLibrary::FocusPlot()
{
    ComeToFront(ui->cmdPlot);
    KeepFocus();
}

/// F4 takes conditions wherever no list opens by it.
void frmLibrary::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier)
    {
        Q_EMIT ConditionsTaken(TakeLastConditions());
        return;
    }
    QMdiSubWindow::keyPressEvent(event);
}
