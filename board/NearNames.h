#pragma once

/// Which names of a list a mistyped one may mean.

#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// Finds the names of a list that differ from another in at most two letters. An answer is kept: a bill may
/// tell one unknown part in thousands of rows.
class NearNames
{
public:
    explicit NearNames(std::vector<std::string> names);

    /// At most three names that begin with the same three letters and are made from this one by changing,
    /// adding or dropping at most two: the nearest first, equally near ones in the order of the list.
    const std::vector<std::string>& Of(const std::string& name);

    /// How many letters of the list have been looked at for all answers so far.
    std::size_t LettersRead() const { return lettersRead; }

private:
    struct Near
    {
        std::size_t Steps = 0;
        /// Index of the name in the list.
        std::size_t Name = 0;
    };

    std::vector<Near> Search(const std::string& name);

    std::vector<std::string> list;
    /// Indices of the names from the least to the greatest.
    std::vector<std::size_t> sorted;
    /// How many letters each sorted name begins with that the one before it begins with, too.
    std::vector<std::size_t> shared;
    std::map<std::string, std::vector<std::string>> answers;
    std::size_t lettersRead = 0;
};
