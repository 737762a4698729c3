#include "cli/Commands.h"

void AddCommands(CLI::App& app)
{
    AddPartsCommand(app);
    AddCurveCommand(app);
    AddChartCommand(app);
}
