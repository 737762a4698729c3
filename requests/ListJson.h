#pragma once

/// Lists in JSON, and the numbers in them.

#include <nlohmann/json_fwd.hpp>

#include <string>

/// The number as a single, in its shortest text.
nlohmann::ordered_json JsonNumber(double value);

/// An object a line within the brackets of the list. UTF-8; what is not is replaced.
class JsonList
{
public:
    void Add(const nlohmann::ordered_json& object);
    std::string Text() const { return text + "\n]\n"; }

private:
    std::string text = "[";
};
