#pragma once

/// Turns a table into the bytes of a pair of part files.

#include "partfiles/PairBytes.h"
#include "partfiles/TableReader.h"

/// Both files of a table without errors. The index is read back before it is let out: throws RunTimeError 5
/// for names that no index can hold.
PairBytes PairOf(const TableContents& table);
