#pragma once

/// Values looked up by a text key without regard to letter case.

#include <cstddef>
#include <string_view>
#include <vector>

/// Upper-case form of an ASCII or Latin-1 letter; any other character as it is.
char FoldCase(char c);

/// True when two keys are equal without regard to letter case.
bool EqualKeys(std::string_view a, std::string_view b);

/// An insertion-ordered collection of values with unique, case-insensitive keys. The keys' texts must
/// outlive the collection.
template <class Value> class KeyedCollection
{
public:
    /// Makes room for `count` entries.
    void Reserve(std::size_t count);

    /// Adds a value; false, and nothing changed, when the key is present already.
    bool Add(Value value, std::string_view key);

    /// The value of the key, or null.
    const Value* Find(std::string_view key) const;

    std::size_t size() const;
};
