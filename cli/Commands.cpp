#include "cli/Commands.h"

#include "cli/data/DataCommands.h"

void AddCommands(CLI::App& app)
{
    AddPartsCommand(app);
    AddCurveCommand(app);
    AddChartCommand(app);
    AddDataCommands(app);
}
