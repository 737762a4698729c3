#include "app/PartNumText.h"

#include "app/mdlPublic.h"
#include "formkit/Texts.h"

QString PartNumText(std::int32_t part, int form)
{
    const PartRecord& record = mdlPublic.Parts.PartData[static_cast<std::size_t>(part)];
    return FromAnsi(record.PartNum[static_cast<std::size_t>(form)]);
}
