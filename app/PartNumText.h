#pragma once

/// A part's number as the forms show it.

#include <QString>

#include <cstdint>

/// The number of the part at an index of the part table, in a part-number form, 0 to 3.
QString PartNumText(std::int32_t part, int form);
