/// The command line: lists parts, computes curves and draws charts without a window.

#include "cli/Program.h"

#include <ios>

int main(int argc, char* argv[])
{
    std::ios::sync_with_stdio(false);
    return RunProgram(argc, argv);
}
