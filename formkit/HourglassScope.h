#pragma once

/// The hourglass pointer of long commands.

#include <QCursor>
#include <QGuiApplication>

/// Shows the hourglass for its lifetime, whichever way the command ends.
class HourglassScope
{
public:
    HourglassScope() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~HourglassScope() { QGuiApplication::restoreOverrideCursor(); }
    HourglassScope(const HourglassScope&) = delete;
    HourglassScope& operator=(const HourglassScope&) = delete;
};
