#pragma once

/// Locks of settings files.

class QSettings;

/// Removes the lock of a settings file that names nobody: a program killed while it took the lock leaves it,
/// and whoever saves these settings next would wait half a minute for it.
void RemoveEmptyLock(const QSettings& settings);
