#pragma once

/// Lists in JSON.

#include <nlohmann/json_fwd.hpp>

#include <string>

/// An object a line within the brackets of the list. UTF-8; what is not is replaced.
class JsonList
{
public:
    void Add(const nlohmann::ordered_json& object);
    std::string Text() const { return text + "\n]\n"; }

private:
    std::string text = "[";
};
