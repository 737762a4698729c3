#pragma once

/// What a picture of a window says, as text.

#include <QString>

class QSize;
class QWidget;

/// The size of a picture in pixels and, line by line, the names and values that the window's controls tell
/// assistive technology: captions, entries, cells of tables, the words of charts. What is hidden says
/// nothing.
QString PictureText(QWidget& window, const QSize& pixels);
