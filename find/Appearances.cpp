#include "find/Appearances.h"

Appearances::Appearances(const PartTable& parts, Names ofPart, CodeView view)
    : names(ofPart)
    , code(static_cast<std::size_t>(view))
{
    for (const PartRecord& part : parts.PartData)
    {
        places.emplace((part.*names)[code], places.size());
    }
}
