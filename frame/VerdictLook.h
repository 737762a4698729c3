#pragma once

/// The colours of verdicts in tables.

#include "board/BomVerdict.h"

#include <QVariant>

/// What a cell with the word of a verdict gives for a role of a colour; nothing for any other role.
QVariant VerdictLook(BomVerdict verdict, int role);
