#include "partdata/PlaceInFile.h"

static std::string FieldOf(const PlaceInFile& place)
{
    if (place.FieldName.empty())
    {
        return "field " + std::to_string(place.Field);
    }
    return place.FieldName + " \"" + place.FieldText + "\"";
}

std::string TextOf(const PlaceInFile& place)
{
    std::string text = place.File;
    if (place.Record != 0)
    {
        text += ": record " + std::to_string(place.Record);
    }
    if (place.Field != 0)
    {
        text += ": " + FieldOf(place);
    }
    return text;
}
