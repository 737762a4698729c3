#include "chart/frmChartView.h"

#include "calc/ChartKinds.h"
#include "calc/CurveCsv.h"
#include "chart/LineTable.h"
#include "chart/ModelSaving.h"
#include "chart/drawing/PictureFile.h"
#include "chart/drawing/ViewSheet.h"
#include "chart/frmPicture.h"
#include "files/WholeFile.h"
#include "formkit/HourglassScope.h"
#include "formkit/RunCommand.h"
#include "formkit/Texts.h"
#include "partdata/RunTimeError.h"
#include "ui_frmChartView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

namespace Kept
{
static const QString PictureEntry = QStringLiteral("size of pictures");
static const QString PictureExtent = QStringLiteral("own size of pictures");
} // namespace Kept

// ---- The picture ----

/// The table as it is seen, its first column left to the badges.
static LegendTable LegendOf(const LineTable& table)
{
    LegendTable legend;
    for (int column = 1; column < table.columnCount(); ++column)
    {
        const CursorHeading& heading = table.Table().Headings.at(static_cast<std::size_t>(column));
        const bool isText = IsText(heading.Column);
        legend.Columns.push_back({.Heading = QString::fromStdString(heading.Text),
                                  .Short = QString::fromStdString(heading.Short),
                                  .RightAligned = !isText});
    }
    for (int row = 0; row < table.rowCount(); ++row)
    {
        LegendTable::Row line{.Line = table.LineOf(row), .Texts = {}};
        for (int column = 1; column < table.columnCount(); ++column)
        {
            line.Texts.push_back(table.index(row, column).data().toString());
        }
        legend.Rows.push_back(std::move(line));
    }
    return legend;
}

/// Title, chart and table as they are seen, cursors included; no line stands out because the pointer is
/// there.
ViewSheet frmChartView::Sheet() const
{
    ViewScene seen = scene;
    seen.Hovered.reset();
    return {.Title = Caption(),
            .View = scene.View,
            .Lines = scene.Lines,
            .Code = scene.Code,
            .Overlay = OverlayOf(seen),
            .Legend = LegendOf(*table),
            .Dashed = scene.Marks.Dashed,
            .TextScale = textScale};
}

QString frmChartView::Caption() const
{
    return windowTitle().section(QStringLiteral(" - "), 1);
}

/// A name for a file of this chart: "temperature-rise.png".
static QString ProposedName(const ViewScene& scene, const char* ending)
{
    return FromAnsi(ChartKindOf(scene.View.Chart.ChartType).CommandName) + QLatin1String(ending);
}

void frmChartView::CopyPicture()
{
    const double scale = 2 * devicePixelRatioF();
    QImage picture((QSizeF(size()) * scale).toSize(), QImage::Format_RGB32);
    if (picture.isNull())
    {
        throw RunTimeError(RunTimeErrorNumber::OutOfMemory);
    }
    picture.setDevicePixelRatio(scale);
    QPainter painter(&picture);
    DrawViewSheet(Sheet(), size(), painter);
    painter.end();
    QGuiApplication::clipboard()->setImage(picture);
}

std::optional<PictureChoice> frmChartView::AskForPictureSize()
{
    ChartHost& host = chart.Host();
    const PictureChoice former{.Entry = host.Kept(Kept::PictureEntry).toInt(),
                               .Extent = host.Kept(Kept::PictureExtent).toSize()};
    frmPicture dialog(size(), former, this);
    if (dialog.exec() != QDialog::Accepted)
    {
        return std::nullopt;
    }
    const PictureChoice choice = dialog.Choice();
    host.Keep(Kept::PictureEntry, choice.Entry);
    host.Keep(Kept::PictureExtent, choice.Extent);
    return choice;
}

/// What is wrong with a picture's name.
static QString RefusalOfPicture(const QString& path)
{
    return PictureTypeOf(path) != nullptr
               ? QString()
               : QStringLiteral(
                     "The name of a picture ends in .png, .svg or .pdf.\r\nPlease enter another name.");
}

/// The bytes of the file of this name. A bitmap of paper has more pixels than the paper has units.
static QByteArray PictureBytes(const QString& path, const ViewSheet& sheet, const PictureChoice& choice)
{
    const PictureType* const type = PictureTypeOf(path);
    const double scale = type->Name == "png" ? choice.Scale : 1;
    const Picture picture{.Extent = (QSizeF(choice.Extent) * scale).toSize(),
                          .Title = sheet.Title,
                          .Draw = [&](QPainter& painter)
                          {
                              painter.scale(scale, scale);
                              DrawViewSheet(sheet, choice.Extent, painter);
                          }};
    QByteArray bytes = type->Write(picture);
    if (bytes.isEmpty())
    {
        throw RunTimeError(RunTimeErrorNumber::OutOfMemory);
    }
    return bytes;
}

void frmChartView::mnuSavePicture_Click()
{
    const auto choice = AskForPictureSize();
    if (!choice)
    {
        return;
    }
    const auto path = chart.Host().AskForFile(
        this, {.Dialog = QStringLiteral("pictures"),
               .Filter = QStringLiteral("PNG Pictures (*.png)|*.png|SVG Drawings (*.svg)|*.svg|"
                                        "PDF Documents (*.pdf)|*.pdf|All Files (*.*)|*.*|"),
               .ProposedName = ProposedName(scene, ".png"),
               .Refuse = RefusalOfPicture});
    if (path)
    {
        const HourglassScope hourglass;
        const QByteArray bytes = PictureBytes(*path, Sheet(), *choice);
        WriteWholeFile(path->toStdString(), {bytes.data(), static_cast<std::size_t>(bytes.size())});
        ShowTold(QStringLiteral("Picture saved to ") + *path, false);
    }
}

// ---- Data and print ----

void frmChartView::mnuSaveData_Click()
{
    const auto path = chart.Host().AskForFile(
        this, {.Dialog = QStringLiteral("curves"),
               .Filter = QStringLiteral("Comma-separated Values (*.csv)|*.csv|All Files (*.*)|*.*|"),
               .ProposedName = ProposedName(scene, ".csv")});
    if (!path)
    {
        return;
    }
    const HourglassScope hourglass;
    std::vector<NamedLine> lines;
    lines.reserve(scene.Lines.size());
    for (const ViewedLine& line : scene.Lines)
    {
        lines.push_back({.Line = line.Line, .PartNumber = line.PartNumber});
    }
    WriteWholeFile(path->toStdString(), CurvesCsv(lines));
    ShowTold(QStringLiteral("Data saved to ") + *path, false);
}

std::vector<std::int32_t> frmChartView::PartsOfChosen() const
{
    if (scene.Chosen)
    {
        return {scene.Lines.at(static_cast<std::size_t>(*scene.Chosen)).Line.PartDataIndex};
    }
    std::vector<std::int32_t> parts;
    for (const ViewedLine& line : scene.Lines)
    {
        parts.push_back(line.Line.PartDataIndex);
    }
    return parts;
}

void frmChartView::OfferModel()
{
    ui->mnuSaveModel->setEnabled(CanHaveModel(PartsOfChosen()));
}

void frmChartView::mnuSaveModel_Click()
{
    const auto ask = [this](const FileQuestion& question) { return chart.Host().AskForFile(this, question); };
    if (const auto path = SaveModels(this, PartsOfChosen(), ask))
    {
        ShowTold(QStringLiteral("Model saved to ") + *path, false);
    }
}

/// Prints the picture as large as the page has room for it.
void frmChartView::mnuPrint_Click()
{
    static constexpr double UnitsPerInch = 96;
    const ViewSheet sheet = Sheet();
    chart.Host().PrintSheet(
        [&sheet](QPainter& painter, const PageArea& area, SurfaceKind kind)
        {
            const double scale = area.Resolution / UnitsPerInch;
            painter.translate(area.Printable.topLeft());
            painter.scale(scale, scale);
            DrawViewSheet(sheet, area.Printable.size() / scale, painter, kind);
        },
        Caption());
}
