#pragma once

/// A sheet as a picture in the format that a file's name ends in.

#include "chart/layout/SheetSurface.h"

#include <QSizeF>

#include <functional>
#include <string>

/// Throws UsageError for a name that ends in no format of pictures.
void RequirePictureName(const std::string& fileName);

/// The bytes of a PNG, SVG or PDF file, as its name ends. Throws UsageError for another name, Failure for a
/// picture that there is no memory for.
///
/// @param extent of the sheet, in device-independent pixels
std::string NamedPicture(const std::string& fileName, const std::string& title, const QSizeF& extent,
                         const std::function<void(SheetSurface&)>& drawSheet);
