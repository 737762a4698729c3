#include "requests/ListJson.h"

#include "calc/NumberText.h"

#include <nlohmann/json.hpp>

nlohmann::ordered_json JsonNumber(double value)
{
    return nlohmann::ordered_json::parse(NumberText(static_cast<float>(value)));
}

void JsonList::Add(const nlohmann::ordered_json& object)
{
    text += (text.size() == 1 ? "\n" : ",\n") +
            object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}
