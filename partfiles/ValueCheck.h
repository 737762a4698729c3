#pragma once

/// Whether the values of one part make sense: the ratings, the capacitance coefficients, and what is missing.

#include "partdata/PartRecord.h"
#include "partfiles/Finding.h"

#include <cstddef>
#include <string>
#include <vector>

/// What is wrong with the values of one part; the place is added by the caller.
class ValueFindings
{
public:
    explicit ValueFindings(std::vector<Finding>& found)
        : findings(found)
    {
    }

    void Add(Severity level, std::string rule, std::string field, std::string value, std::string message);

    /// A finding about `Data(index)` with its value.
    void AddValue(Severity level, std::string rule, const PartRecord& part, std::size_t index,
                  std::string message);

private:
    std::vector<Finding>& findings;
};

/// Judges all values of a part. A value that is not finite, or a rated voltage that is not positive, leaves
/// the curves unjudged, since they all need it.
void CheckValues(const PartRecord& part, ValueFindings& findings);
