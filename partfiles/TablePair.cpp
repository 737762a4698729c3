#include "partfiles/TablePair.h"

#include "partdata/IndexReader.h"
#include "partdata/RunTimeError.h"

#include <algorithm>

PairBytes PairOf(const TableContents& table)
{
    PairBytes pair;
    std::vector<PartNames> names;
    for (const auto& part : table.Parts)
    {
        std::ranges::copy(part.Names, names.emplace_back().begin());
        AddDataRecord(pair.Data, part.Data);
    }
    pair.Index = IndexText(names, table.LineEnd);

    IndexReader reader(pair.Index, "index");
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        PartRecord part;
        if (!reader.FindRecord() || (reader.ReadRecord(part), NamesOf(part) != names[i]))
        {
            throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall,
                               "part " + std::to_string(i + 1) + " has names that no index can hold");
        }
    }
    return pair;
}
