#pragma once

/// What a saved data file must hold.

#include "tests/frame/randomuser/PlainCharts.h"

#include <QByteArray>

/// What is wrong with a file saved today of a line in a code, 0 EIA or 1 JIS; "" when nothing is. Every byte
/// but the values of the 200 points must be as told; the values may be off by their rounding.
QString FaultOf(const QByteArray& file, const PlainLine& line, int code);
