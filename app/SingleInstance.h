#pragma once

/// Keeps the program to one instance per user and login session.

#include <cstddef>
#include <string>

/// How many names the instances of one login may meet under. Strangers can take some of them away.
inline constexpr std::size_t InstanceNames = 8;

/// Claims the place of the running instance for the rest of this process. False when another process of
/// the same user and login session holds it; whoever else sits on its names does not count, and where all of
/// them are taken by strangers the program runs without a place. Nothing is left behind when the process
/// ends, however it ends.
bool ClaimSingleInstance();

/// A name under which the instances of one login meet, 0 to `InstanceNames` - 1: it holds user and login
/// session.
std::string SingleInstanceName(std::size_t number);
