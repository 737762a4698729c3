#pragma once

/// The frame that the desktop draws around a window.

#include <QMargins>
#include <QRect>

class QWidget;

/// How far a window's frame reaches beyond its contents; nothing before the desktop has drawn it.
QMargins FrameOf(const QWidget& window);

/// The place of a window's contents of this size when it stands centred over another window, both with their
/// frames. A window that has no frame yet is reckoned to get one like the other's.
QRect CentredOver(const QWidget& other, const QSize& size, const QMargins& frame);
