#pragma once

/// Findings about the values of one part.

#include "partdata/PartRecord.h"
#include "partfiles/Finding.h"

#include <cstddef>
#include <string>
#include <vector>

/// Where a part stands.
struct PartPlace
{
    const std::string& IndexFile;
    const std::string& DataFile;
    /// Counted from 1.
    std::size_t Record;
    const PartRecord& Part;
};

/// Collects what is wrong with the values of one part, and tells its place with each finding.
class ValueFindings
{
public:
    ValueFindings(std::vector<Finding>& found, const PartPlace& where)
        : findings(found)
        , place(where)
    {
    }

    /// A finding about the part's data: a value, several of them, or what was worked out from them.
    void Add(Severity level, std::string rule, std::string field, std::string value, std::string message);

    /// A finding about `Data(index)` with its value.
    void AddValue(Severity level, std::string rule, std::size_t index, std::string message);

    /// A finding about one of the part's names, in the order of the index, with its text.
    void AddName(Severity level, std::string rule, std::size_t field, std::string message);

private:
    void Push(Finding finding, const std::string& file);

    std::vector<Finding>& findings;
    PartPlace place;
};
