#pragma once

/// The picture of a fit in a file format.

#include "ownparts/FittedPart.h"

#include <string>

/// Throws UsageError for a name that ends in no format of pictures.
void RequirePictureName(const std::string& fileName);

/// The bytes of a PNG, SVG or PDF file, as its name ends. Throws UsageError for another name, Failure for a
/// picture that there is no memory for.
std::string FitPicture(const FittedPart& fitted, const std::string& fileName);
