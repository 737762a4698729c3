#pragma once

/// What makes a row of a board a warning though all its limits are held.

#include "board/JudgedItem.h"

#include <string>
#include <vector>

/// All warnings of a row whose part is judged: another quantity than references, ripple that reaches above
/// the rated voltage, a capacitance that is another while warm, and of a waveform or a converter what makes
/// its load less sure.
std::vector<std::string> RowWarnings(const JudgedItem& item);
