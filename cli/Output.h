#pragma once

/// Where a command's results go: standard output, or a file that is written whole or not at all.

#include "files/WholeFile.h"

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Results in order. A file takes its place at `Finish`; without it a file that stood there is as it was. A
/// device or pipe gets them as they come, and a terminal without commands to it.
class Output
{
public:
    /// Standard output for an empty name and for "-". Throws RunTimeError when a file cannot be opened,
    /// Failure for a device.
    explicit Output(const std::string& fileName);

    /// Throws RunTimeError for a file and on a full disk, Failure for anything else, when it cannot be
    /// written.
    void Write(std::string_view text);
    /// Hands over what was written so far to a reader of standard output.
    void Flush();
    /// Puts the file in its place.
    void Finish();

private:
    std::string name;
    std::unique_ptr<WholeFile> file;
    std::optional<std::ofstream> special;
    bool isTerminal = false;
};
