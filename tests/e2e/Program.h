#pragma once

/// The built program in a folder of its own.

#include "tests/e2e/Display.h"

#include <memory>

/// Puts the program into a folder and, if wanted, the sample part files.
void FillWithProgram(const QTemporaryDir& folder, bool withParts);

/// A folder with the program and the sample part files.
class ProgramFolder
{
public:
    ProgramFolder() { FillWithProgram(folder, true); }
    QString File(const QString& name) const { return folder.filePath(name); }
    std::unique_ptr<QProcess> Start(const QProcessEnvironment& environment) const;

private:
    QTemporaryDir folder;
};

/// Plots the capacitance of the first part over temperature by keyboard in the main window, without bias.
void PlotByKeyboard(const TestDisplay& display, const QString& window);

/// Saves the current selection of the main window under a full path by keyboard. Returns the box that then
/// tells how it went; nothing when no dialog or no box comes.
QString SaveByKeyboard(const TestDisplay& display, const QString& window, const QProcess& program,
                       const QString& file);

/// Chooses Exit in the File menu; true when the program then ends as it should.
bool EndsByExit(const TestDisplay& display, const QString& window, QProcess& program);

/// Makes the program of a process be killed without a word, as by a crash or a power cut, and waits for its
/// end.
void Kill(QProcess& program);
