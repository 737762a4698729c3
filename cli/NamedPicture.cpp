#include "cli/NamedPicture.h"

#include "chart/drawing/PainterSheet.h"
#include "chart/drawing/PdfDate.h"
#include "chart/drawing/PictureFile.h"
#include "cli/CommandError.h"
#include "cli/Drawing.h"

/// A bitmap is as fine as the clipboard's.
static constexpr double BitmapScale = 2;

static const PictureType& TypeOf(const std::string& fileName)
{
    const auto* const type = PictureTypeOf(QString::fromLocal8Bit(fileName.c_str()));
    return type != nullptr
               ? *type
               : throw UsageError("--picture \"" + fileName + "\" ends in none of: .png, .svg, .pdf");
}

void RequirePictureName(const std::string& fileName)
{
    TypeOf(fileName);
}

std::string NamedPicture(const std::string& fileName, const std::string& title, const QSizeF& extent,
                         const std::function<void(SheetSurface&)>& drawSheet)
{
    const auto& type = TypeOf(fileName);
    const double scale = type.Name == "png" ? BitmapScale : 1;
    const Picture picture = {.Extent = extent * scale,
                             .Title = QString::fromStdString(title),
                             .Draw = [&](QPainter& painter)
                             {
                                 painter.scale(scale, scale);
                                 PainterSheet sheet(painter);
                                 drawSheet(sheet);
                             }};
    const auto draw = [&] { return Drawn([&] { return type.Write(picture); }); };
    const auto bytes = type.Name == "pdf" ? PdfOfSourceDate(draw) : draw();
    return bytes.isEmpty() ? throw Failure("there is no memory for a picture of this size")
                           : bytes.toStdString();
}
