#pragma once

/// The folder in which the user last saved a data file, kept per user between runs.

#include <QString>

/// The last folder; the current folder before the first save, and when the last one is gone.
QString LastFolder();

/// Remembers the folder of a saved file: its full path without its name and the separator before it. A file
/// in the root folder stores "/".
void RememberFolder(const QString& fileName, const QString& fileTitle);
