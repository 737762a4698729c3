#include "tests/cli/CommandLine.h"

#include <QProcess>

QString CommandLineProgram()
{
    return QStringLiteral(PROGRAM);
}

Run RunCommandLine(const QStringList& arguments, const QByteArray& input)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    {
        environment.remove(QString::fromLatin1(name));
    }
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(CommandLineProgram(), arguments);
    program.write(input);
    program.closeWriteChannel();
    if (!program.waitForFinished(60000))
    {
        program.kill();
        program.waitForFinished();
        return {};
    }
    const bool ended = program.exitStatus() == QProcess::NormalExit;
    return {.Status = ended ? program.exitCode() : -1,
            .Output = program.readAllStandardOutput(),
            .Messages = program.readAllStandardError()};
}
