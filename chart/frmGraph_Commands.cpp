#include "chart/frmGraph.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/ChartKinds.h"
#include "chart/FittedLabel.h"
#include "chart/drawing/TitledSheet.h"
#include "chart/frmSetAxis.h"
#include "chart/layout/ReadOut.h"
#include "formkit/Messages.h"
#include "formkit/Texts.h"
#include "ui_frmGraph.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

/// How long the status bar tells that a chart is copied, unless the pointer reads it out before.
static constexpr int CopiedShownMs = 3000;

// ---- Mouse read-out ----

void frmGraph::picGraph_MouseMove(const QPointF& position, const QPoint& twips)
{
    const ChartView& view = ui->picGraph->View();
    const auto lines = Lines();
    // The values of this very place stand there already, unless the chart has been drawn afresh.
    const bool isReadOut = twips == QPoint(MouseX, MouseY);
    if (lines.empty() || isReadOut)
    {
        return;
    }
    MouseX = static_cast<std::int16_t>(twips.x());
    MouseY = static_cast<std::int16_t>(twips.y());
    ui->sbr1->clearMessage();
    panels[0]->setText(QString::fromStdString(XReadOut(view, position.x())));
    panels[1]->setText(QString::fromStdString(YReadOut(view, position.y())));
    for (std::size_t p = 0; p < std::min<std::size_t>(lines.size(), MaximumLines); ++p)
    {
        lblPara[p]->setText(QString::fromStdString(LineReadOut(view, *lines[p], position.x())));
    }
}

void frmGraph::picGraph_MouseLeave()
{
    ClearReadOut();
    FillStatusPanes();
}

// ---- The Chart menu ----

void frmGraph::mnuChartExpand_Click()
{
    const AxisRange defaults = DefaultRange(key, mdlPublic.Charts.Lines());
    frmSetAxis dialog(ui->picGraph->View(), defaults, this);
    if (dialog.exec() == QDialog::Accepted)
    {
        const AxisRange& range = dialog.Range();
        WriteMagnification(range.XMax, range.YMax, range.XMin, range.YMin);
    }
}

/// Puts a picture of chart and panes on the clipboard, at twice the screen's resolution.
void frmGraph::mnuChartClipboard_Click()
{
    std::vector<std::string> partNums;
    for (const QString& partNum : PartNums(GetPartNumForm()))
    {
        partNums.push_back(partNum.toStdString());
    }
    const double scale = 2 * devicePixelRatioF();
    QImage picture((TitledSheetSize() * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    QPainter painter(&picture);
    DrawTitledSheet(ui->picGraph->View(), mdlPublic.Charts.Lines(), partNums, painter);
    painter.end();
    QGuiApplication::clipboard()->setImage(picture);
    ui->sbr1->showMessage(QStringLiteral("Copied"), CopiedShownMs);
}

// ---- Printing ----

void frmGraph::mnuFilePrint_Click()
{
    const auto name = ChartKindOf(key.ChartType).Caption;
    const auto question = QStringLiteral("Would you print %1 Chart ?").arg(FromAnsi(name));
    if (!AskOkCancel(this, question))
    {
        return;
    }
    const auto partNumber = [](std::int32_t part) { return PartNumText(part, GetPartNumForm()); };
    // The command may move the store's records, so the page has lines of its own.
    const auto plotted = mdlPublic.Charts.Lines();
    const std::vector<ChartRecord> lines(plotted.begin(), plotted.end());
    host.PrintChart({.View = ui->picGraph->View(),
                     .Lines = lines,
                     .Title = ProgramTitle() + QStringLiteral("  ") + Today(),
                     .PartNumber = partNumber});
}
