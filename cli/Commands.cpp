#include "cli/Commands.h"

#include "cli/DataCommands.h"

void AddCommands(CLI::App& app)
{
    AddPartsCommand(app);
    AddCurveCommand(app);
    AddChartCommand(app);
    AddDataCommands(app);
}
