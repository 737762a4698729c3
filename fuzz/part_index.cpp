/// The text of an index file: read to its end or refused with a clear error, with every field a view into it.

#include "fuzz/Require.h"
#include "partdata/IndexReader.h"
#include "partdata/KeyedCollection.h"
#include "partdata/RunTimeError.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

static void RequireView(std::string_view field, std::string_view text)
{
    const std::less_equal<> notBehind;
    Require(field.empty() || (notBehind(text.data(), field.data()) &&
                              notBehind(field.data() + field.size(), text.data() + text.size())),
            "a field is a view into the text");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::vector<PartRecord> parts;
    try
    {
        IndexReader reader(text, "parts.idx");
        while (reader.FindRecord())
        {
            reader.ReadRecord(parts.emplace_back());
        }
    }
    catch (const RunTimeError& error)
    {
        Require(error.Number() == 62, "an index ends within a record or is whole");
        const auto& where = error.Where();
        Require(where.File == "parts.idx" && where.Record >= 1 && where.Field >= 1 && where.Field <= 8,
                "the error names file, record and field");
        Require(where.Offset && *where.Offset <= size, "the error tells where in the text it lies");
        return 0;
    }
    Require(parts.size() <= size / 8 + 1, "eight fields take eight bytes");
    KeyedCollection<std::int16_t> index;
    for (std::size_t i = 0; i < parts.size() && i < 1000; ++i)
    {
        for (const auto partNum : parts[i].PartNum)
        {
            RequireView(partNum, text);
        }
        const bool known = index.Find(parts[i].PartNum[0]) != nullptr;
        Require(index.Add(static_cast<std::int16_t>(i), parts[i].PartNum[0]) != known,
                "a key is added exactly when it is new");
        Require(index.Find(parts[i].PartNum[0]) != nullptr, "an added key is found");
    }
    return 0;
}
