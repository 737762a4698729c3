#pragma once

/// File names between the windows and the file system.

#include <QString>

/// A name for a file from a part number: what the file system or the file dialog forbids becomes "_".
QString FileNameOf(QString partNum);

/// False for a name that would be another one on the disk. It holds what stands for bytes that are no text,
/// as in a folder that was named in another code page.
bool CanBeWritten(const QString& path);
