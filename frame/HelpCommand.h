#pragma once

/// The help command of the main window.

#include <QString>

class QWidget;

/// Opens the help book of the program's help language, which lies in the program folder. Tells the user where
/// there is no book, and what is wrong with one that cannot be read.
///
/// @param anchor the heading that is turned to; the book's start without one
void ShowHelpContents(QWidget* owner, const QString& anchor = {});
