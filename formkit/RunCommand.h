#pragma once

/// How a command of the user's ends.

#include <functional>

class QWidget;

/// Runs the steps of a command; whatever they throw on the way puts back what they had begun. A cancelled
/// dialog ends the command silently. Any other RunTimeError is shown over `window`, and memory that has run
/// out as number 7.
void RunCommand(QWidget* window, const std::function<void()>& steps);
