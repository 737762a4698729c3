#include "requests/ListJson.h"

#include <nlohmann/json.hpp>

void JsonList::Add(const nlohmann::ordered_json& object)
{
    text += (text.size() == 1 ? "\n" : ",\n") +
            object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}
