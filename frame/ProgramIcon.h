#pragma once

/// The program's icon.

#include <QIcon>

/// A multilayer chip capacitor, drawn at any size.
QIcon ProgramIcon();
