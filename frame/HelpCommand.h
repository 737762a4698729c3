#pragma once

/// The help commands of the main window.

#include <QString>

class QWidget;

/// Opens the help book of the program's help language, which lies in the program folder. Tells the user where
/// there is no book, and what is wrong with one that cannot be read.
///
/// @param anchor the heading that is turned to; the book's start without one
void ShowHelpContents(QWidget* owner, const QString& anchor = {});

/// The same, at the line that explains a message; at the chapter of messages where none does.
void ShowHelpOnMessage(QWidget* owner, const QString& message);
