#pragma once

/// Numbers on a picture that its legend tells of.

#include <QStringList>

class QPixmap;
class QWidget;

/// Sets 1, 2, 3... at the upper right corners of the controls that are named, as large on the page of every
/// picture.
///
/// @param scale pixels of the picture for one of the window
/// @param placeScale pixels of the picture for one of its place on the page
void DrawCallOuts(QPixmap& picture, const QWidget& window, const QStringList& controls, double scale,
                  double placeScale);
