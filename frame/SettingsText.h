#pragma once

/// The user's settings file as plain text: groups in brackets, and a key, an equals sign and a text a line.

#include <QSettings>

/// A format for QSettings that reads and writes texts only, in the manner of the system's own settings files.
/// A file of that kind may tell a value of any type and size, which QSettings would build before anybody has
/// asked for it; here that is a text like any other. No more than the first 64 KiB of a file count.
QSettings::Format SettingsText();

/// The text of a value as it stands behind its equals sign, escapes and quotes resolved.
QString TextOfSetting(const QString& written);

/// How a text is written behind its equals sign: in quotes, as the system's own settings files do it.
QString WrittenSetting(const QString& text);
