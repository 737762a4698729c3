#pragma once

/// The one door for message boxes: each bears the program's title.

#include "partdata/RunTimeError.h"

#include <QString>

class QWidget;

/// "Halvex Chip Capacitor Characteristics Data Library".
QString ProgramTitle();

/// Refused input.
void ShowExclamation(QWidget* parent, const QString& text);
/// A notice.
void ShowInformation(QWidget* parent, const QString& text);
/// A plain text, without an icon.
void ShowPlain(QWidget* parent, const QString& text);
/// A failure.
void ShowCritical(QWidget* parent, const QString& text);
/// "Unexpected Error ", the number, a line break and the description.
void ShowUnexpectedError(QWidget* parent, const RunTimeError& error);
/// A question with OK and Cancel; true for OK.
bool AskOkCancel(QWidget* parent, const QString& question);
