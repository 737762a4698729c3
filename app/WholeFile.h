#pragma once

/// Writing a file so that it is the old or the new one, never half of either.

#include <QByteArray>
#include <QString>

/// Writes a file beside its target and then puts it in the target's place. Whatever goes wrong on the way, a
/// file that stood there is as it was.
///
/// Throws RunTimeError with the file's name: 76 for a folder that is not there, 70 without permission, 61
/// when the disk is full, 75 for anything else.
void WriteWholeFile(const QString& file, const QByteArray& contents);
