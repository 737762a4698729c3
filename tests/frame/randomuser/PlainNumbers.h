#pragma once

/// Numbers as users type and read them, told once more in the plainest way.

#include <QString>

#include <optional>

/// What an entry is worth, or nothing when it is no number; the decimal sign is a point, or the comma as well
/// where users write it. A number that is too large for a single is infinite.
std::optional<float> PlainEntry(const QString& text);

/// The shortest decimal that reads back to the same single, as lists, panes and messages show it.
QString PlainText(float value);

/// A value with at most three decimals and no zero before the point, as the panes show the largest load.
QString PlainPaneValue(float value);

/// True when two singles are the same but for the rounding of calculations whose values go up to `largest`.
bool NearlyEqual(float a, float b, float largest);
