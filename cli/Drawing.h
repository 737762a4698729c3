#pragma once

/// What it takes to draw without a display.

#include <QByteArray>

#include <functional>

/// What `draw` makes, with fonts at hand. Throws Failure where no font is installed.
QByteArray Drawn(const std::function<QByteArray()>& draw);
