#pragma once

/// Keeps the program to one instance per user and login session.

#include <string>

/// Claims the place of the running instance for the rest of this process. False when another process of
/// the same user and login session holds it. Nothing is left behind when the process ends, however it ends.
bool ClaimSingleInstance();

/// The name under which the instances of one login meet: it holds user and login session.
std::string SingleInstanceName();
