#pragma once

/// The largest possible part range.

#include <string>

/// Part files of 32,767 parts in a folder of their own, which goes with the object: the sample range over and
/// over, with a running number in each name.
class LargestRange
{
public:
    LargestRange();
    ~LargestRange();
    LargestRange(const LargestRange&) = delete;
    LargestRange& operator=(const LargestRange&) = delete;

    const std::string& Folder() const { return folder; }

private:
    std::string folder;
};
