#include "cli/Commands.h"

void AddCommands(CLI::App&)
{
}
