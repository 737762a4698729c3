#pragma once

/// What the program makes of a folder with part files, held against the plain reading: each check tells how
/// the two differ, or nothing when they agree.

#include "tests/e2e/mutated/Child.h"
#include "tests/e2e/mutated/PlainPair.h"

#include <filesystem>
#include <string>

/// Where the error lies as a message tells it, from the file on: "halvex.idx: record 17".
std::string PlaceOf(const PlainPair& plain);
/// "Run-time error '62': Input past end of file: halvex.idx: record 17": how the message of a pair begins.
std::string MessageOf(const PlainPair& plain);

/// The part table in this process.
std::string LoaderDifference(const std::filesystem::path& folder, const PlainPair& plain);

/// `tavik-cli parts`, `data check` and `curve` as they ended.
std::string PartsDifference(const ChildEnd& end, const PlainPair& plain);
std::string CheckDifference(const ChildEnd& end, const PlainPair& plain);
std::string CurveDifference(const ChildEnd& end, const PlainPair& plain);

/// The built program, asked to end after a while.
std::string ProgramDifference(const ChildEnd& end, const PlainPair& plain);
