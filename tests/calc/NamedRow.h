#pragma once

/// Names the rows of a parameterised test after what they show.

#include <gtest/gtest.h>

#include <cctype>
#include <string>

/// The row's `Name` with every character that a test name must not hold replaced by "_".
template <class Row> std::string RowName(const testing::TestParamInfo<Row>& info)
{
    std::string name = info.param.Name;
    for (char& c : name)
    {
        c = std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    }
    return name;
}
