#pragma once

/// Runs the built program as a shell does.

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What a run left behind.
struct Run
{
    int Status = -1;
    QByteArray Output;
    QByteArray Messages;
};

/// The path of the program.
QString CommandLineProgram();

/// Runs the program without a display and waits for its end; a crash or a run of more than a minute has
/// status -1.
Run RunCommandLine(const QStringList& arguments, const QByteArray& input = {});
