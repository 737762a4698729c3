#pragma once

/// Numbers as the user types them into boxes.

#include <optional>

class QLineEdit;

/// True where the user's locale writes a decimal comma.
bool CommaIsDecimal();

/// The number in a box, or nothing when its text is not numeric; see `ReadEntry`.
std::optional<float> EntryOf(const QLineEdit* box);
