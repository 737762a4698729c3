#include "cli/Commands.h"

void AddCommands(CLI::App& app)
{
    AddCurveCommand(app);
}
