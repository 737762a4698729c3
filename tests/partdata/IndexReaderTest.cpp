#include "partdata/IndexReader.h"
#include "partdata/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace
{
using Fields = std::vector<std::string>;
using testing::ElementsAre;

/// The eight fields of every record.
std::vector<Fields> RecordsOf(std::string_view text)
{
    std::vector<Fields> records;
    IndexReader reader(text, "parts.idx");
    while (reader.FindRecord())
    {
        PartRecord part;
        reader.ReadRecord(part);
        Fields fields(part.PartNum.begin(), part.PartNum.end());
        fields.insert(fields.end(), part.SizeCode.begin(), part.SizeCode.end());
        fields.insert(fields.end(), part.Tcc.begin(), part.Tcc.end());
        records.push_back(fields);
    }
    return records;
}

const Fields First = {"a", "b", "c", "d", "e", "f", "g", "h"};
const Fields Second = {"i", "j", "k", "l", "m", "n", "o", "p"};

struct TwoRecordsRow
{
    const char* Name;
    std::string Text;
};

class TwoRecords : public testing::TestWithParam<TwoRecordsRow>
{
};

TEST_P(TwoRecords, AreRead)
{
    EXPECT_THAT(RecordsOf(GetParam().Text), ElementsAre(First, Second));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TwoRecords,
    testing::Values(
        TwoRecordsRow{"Crlf", "a,b,c,d,e,f,g,h\r\ni,j,k,l,m,n,o,p\r\n"},
        TwoRecordsRow{"Lf", "a,b,c,d,e,f,g,h\ni,j,k,l,m,n,o,p\n"},
        TwoRecordsRow{"Cr", "a,b,c,d,e,f,g,h\ri,j,k,l,m,n,o,p\r"},
        TwoRecordsRow{"NoLastLineEnd", "a,b,c,d,e,f,g,h\r\ni,j,k,l,m,n,o,p"},
        TwoRecordsRow{"ByteOrderMark", "\xEF\xBB\xBF"
                                       "a,b,c,d,e,f,g,h\ni,j,k,l,m,n,o,p\n"},
        TwoRecordsRow{"FinalCtrlZ", "a,b,c,d,e,f,g,h\r\ni,j,k,l,m,n,o,p\r\n\x1A"},
        TwoRecordsRow{"CtrlZBehindTheLastField", "a,b,c,d,e,f,g,h\r\ni,j,k,l,m,n,o,p\x1A"},
        TwoRecordsRow{"EmptyLinesBetween", "\r\n\r\na,b,c,d,e,f,g,h\r\n\r\n \t\r\ni,j,k,l,m,n,o,p\r\n\r\n"},
        TwoRecordsRow{"SpanningLines", "a\nb,c\r\nd\re,f,g,h\ni\nj\nk\nl\nm\nn\no\np"},
        TwoRecordsRow{"OnOneLine", "a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p"},
        TwoRecordsRow{"Blanks", "  a ,\tb\t, c,d  ,e , f,g,  h  \r\n i,j,k,l,m,n,o,p \t"},
        TwoRecordsRow{"Quoted", "\"a\",\"b\",c,\"d\" ,e,f, \"g\",\"h\"\r\n\"i\",j,k,l,m,n,o,\"p\"\r\n"}),
    [](const auto& row) { return row.param.Name; });

TEST(IndexReader, FindsNoRecordInNothing)
{
    EXPECT_TRUE(RecordsOf("").empty());
    EXPECT_TRUE(RecordsOf("\xEF\xBB\xBF").empty());
    EXPECT_TRUE(RecordsOf("\x1A").empty());
    EXPECT_TRUE(RecordsOf(" \r\n\n\r \t").empty());
}

TEST(IndexReader, KeepsCommasBlanksAndLineBreaksInQuotes)
{
    EXPECT_THAT(RecordsOf("\"a,1\",\" b \",\"c\r\nc\",\"\",e,f,g,h"),
                ElementsAre(ElementsAre("a,1", " b ", "c\r\nc", "", "e", "f", "g", "h")));
}

TEST(IndexReader, KeepsQuotesAndBlanksInsideAPlainField)
{
    EXPECT_THAT(RecordsOf("a\"b\",c d,c,d,e,f,g,h"),
                ElementsAre(ElementsAre("a\"b\"", "c d", "c", "d", "e", "f", "g", "h")));
}

TEST(IndexReader, StartsANewFieldBehindAClosingQuote)
{
    EXPECT_THAT(RecordsOf("\"a\"b,\"c\"\"d\",e,f,g,h"),
                ElementsAre(ElementsAre("a", "b", "c", "d", "e", "f", "g", "h")));
}

TEST(IndexReader, TakesAnEmptyLineWithinARecordAsAnEmptyField)
{
    EXPECT_THAT(RecordsOf("a,b\r\n\r\nd,,f,g,h\r\n"),
                ElementsAre(ElementsAre("a", "b", "", "d", "", "f", "g", "h")));
    EXPECT_THAT(RecordsOf(",b,c,d,e,f,g,\r\n"),
                ElementsAre(ElementsAre("", "b", "c", "d", "e", "f", "g", "")));
}

/// The place of the fault, which must be an end within a record, or "" when the text is read.
std::string PlaceOfEnd(std::string_view text)
{
    try
    {
        RecordsOf(text);
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 62);
        return error.Place();
    }
    return "";
}

TEST(IndexReader, FailsAtTheFieldThatIsMissing)
{
    EXPECT_EQ(PlaceOfEnd("a"), "parts.idx: record 1: field 2");
    EXPECT_EQ(PlaceOfEnd("a,b,c,d,e,f,g\r\n"), "parts.idx: record 1: field 8");
    EXPECT_EQ(PlaceOfEnd("a,b,c,d,e,f,g,"), "parts.idx: record 1: field 8");
    EXPECT_EQ(PlaceOfEnd("a,b,c,d,e,f,g,h\r\ni,j,\x1A"), "parts.idx: record 2: field 3");
}

TEST(IndexReader, FailsAtAnUnclosedQuote)
{
    EXPECT_EQ(PlaceOfEnd("a,b,\"c,d,e,f,g,h\r\n"), "parts.idx: record 1: field 3");
    EXPECT_EQ(PlaceOfEnd("a,b,c,d,e,f,g,\""), "parts.idx: record 1: field 8");
}

/// The place of the fault in numbers: record, field and offset.
std::vector<std::uintmax_t> NumbersOfEnd(std::string_view text)
{
    try
    {
        RecordsOf(text);
    }
    catch (const RunTimeError& error)
    {
        const auto& where = error.Where();
        return {where.Record, where.Field, where.Offset.value_or(9999)};
    }
    return {};
}

TEST(IndexReader, TellsWhereInTheTextItFails)
{
    EXPECT_THAT(NumbersOfEnd("a,b,c"), ElementsAre(1, 4, 5));
    EXPECT_THAT(NumbersOfEnd("a,b,c,\x1A"), ElementsAre(1, 4, 6));
    EXPECT_THAT(NumbersOfEnd("a,b, \"c,d,e,f,g,h\r\n"), ElementsAre(1, 3, 5));
    EXPECT_THAT(NumbersOfEnd("\xEF\xBB\xBF"
                             "a,b,c,d,e,f,g,h\r\ni,j,\"k"),
                ElementsAre(2, 3, 24));
}

TEST(IndexReader, ReadsOrRefusesATextCutShortAnywhere)
{
    const std::string text = "\xEF\xBB\xBF"
                             "a1,\"b,1\",c1,d1,e1,f1,g1,\"h1\"\r\ni,j,k,l,m,n,o,p1\r\n\x1A";
    const auto endOfFirst = text.find('\r') - 1;
    const auto secondStart = text.find('i');
    const auto startOfLast = text.find("p1") + 1;
    for (std::size_t length = 0; length <= text.size(); ++length)
    {
        const auto cut = text.substr(0, length);
        const bool betweenRecords =
            length == 0 || length == 3 || (length > endOfFirst && length <= secondStart);
        const bool whole = betweenRecords || length >= startOfLast;
        EXPECT_EQ(PlaceOfEnd(cut).empty(), whole) << "cut to " << length;
    }
}

TEST(IndexReader, ReadsOrRefusesATextWithAnyByteChanged)
{
    const std::string text = "a,\"b\",c,d,e,f,g,h\r\ni,j,k,l,m,n,o,p\r\n";
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        for (int value = 0; value < 256; ++value)
        {
            auto changed = text;
            changed[at] = static_cast<char>(value);
            if (PlaceOfEnd(changed).empty())
            {
                const auto count = RecordsOf(changed).size();
                EXPECT_TRUE(count == 1 || count == 2) << at << " " << value;
            }
        }
    }
}
} // namespace
