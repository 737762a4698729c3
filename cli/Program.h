#pragma once

/// The program behind `main`: from the command line to the exit status.

/// Runs the command that the arguments name. What is asked for goes to standard output, and one line that
/// says what went wrong to standard error, last.
///
/// @return 0 when it was done, 1 when it could not be done, 2 for a command line that makes no sense
int RunProgram(int argc, const char* const* argv);
