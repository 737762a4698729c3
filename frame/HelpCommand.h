#pragma once

/// The help command of the main window.

class QWidget;

/// Opens the help book of the program's help language, which lies in the program folder. Tells the user where
/// there is no book, and what is wrong with one that cannot be read.
void ShowHelpContents(QWidget* owner);
