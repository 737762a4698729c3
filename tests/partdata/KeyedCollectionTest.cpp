#include "partdata/KeyedCollection.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
TEST(FoldCase, ChangesAsciiAndLatin1LettersOnly)
{
    EXPECT_EQ(FoldCase('a'), 'A');
    EXPECT_EQ(FoldCase('z'), 'Z');
    EXPECT_EQ(FoldCase('A'), 'A');
    EXPECT_EQ(FoldCase('`'), '`');
    EXPECT_EQ(FoldCase('{'), '{');
    EXPECT_EQ(FoldCase('0'), '0');
    EXPECT_EQ(FoldCase('\xE0'), '\xC0');
    EXPECT_EQ(FoldCase('\xE4'), '\xC4');
    EXPECT_EQ(FoldCase('\xFE'), '\xDE');
    EXPECT_EQ(FoldCase('\xF7'), '\xF7'); // the division sign
    EXPECT_EQ(FoldCase('\xFF'), '\xFF');
    EXPECT_EQ(FoldCase('\xB0'), '\xB0'); // the degree sign
}

TEST(FoldedKey, IsTheSameForEveryLetterCase)
{
    EXPECT_EQ(FoldedKey("kts31-\xE4/\xF7"), "KTS31-\xC4/\xF7");
    EXPECT_EQ(FoldedKey("KTS31-\xC4/\xF7"), "KTS31-\xC4/\xF7");
    EXPECT_EQ(FoldedKey(""), "");
}

TEST(HashKey, IsTheSameForEveryLetterCaseAndLength)
{
    const std::string lower = "abcdefghij\xE4\xF6\xFCklmnopqrstuvwxyz";
    std::string upper = lower;
    for (char& c : upper)
    {
        c = FoldCase(c);
    }
    for (std::size_t length = 0; length <= lower.size(); ++length)
    {
        EXPECT_EQ(HashKey(std::string_view(lower).substr(0, length)),
                  HashKey(std::string_view(upper).substr(0, length)))
            << length;
    }
}

TEST(HashKey, TellsApartWhatDiffersLikeTheCasesOfALetter)
{
    for (int code = 0; code < 256; ++code)
    {
        const std::string one(8, static_cast<char>(code));
        const std::string other(8, static_cast<char>(code ^ 0x20));
        EXPECT_EQ(HashKey(one) == HashKey(other), EqualKeys(one, other)) << code;
        EXPECT_EQ(HashKey(one.substr(0, 3)) == HashKey(other.substr(0, 3)), EqualKeys(one, other)) << code;
    }
}

TEST(KeyedCollection, FindsNothingWhenEmpty)
{
    const KeyedCollection<int> collection;
    EXPECT_EQ(collection.size(), 0U);
    EXPECT_EQ(collection.Find(""), nullptr);
    EXPECT_EQ(collection.Find("X7R"), nullptr);
}

TEST(KeyedCollection, FindsAKeyInAnyLetterCase)
{
    KeyedCollection<int> collection;
    EXPECT_TRUE(collection.Add(7, "Gr\xFC"
                                  "n-x7r"));
    ASSERT_NE(collection.Find("GR\xDCN-X7R"), nullptr);
    EXPECT_EQ(*collection.Find("GR\xDCN-X7R"), 7);
    EXPECT_EQ(collection.Find("GR\xDCN-X7"), nullptr);
}

TEST(KeyedCollection, RefusesAKeyInOtherLetterCaseAndKeepsTheFirst)
{
    KeyedCollection<int> collection;
    EXPECT_TRUE(collection.Add(1, "\xC4"));
    EXPECT_FALSE(collection.Add(2, "\xE4"));
    EXPECT_EQ(collection.size(), 1U);
    EXPECT_EQ(*collection.Find("\xE4"), 1);
}

TEST(KeyedCollection, TellsCharactersApartThatAreNoCasesOfALetter)
{
    // These pairs differ in the bit that tells upper from lower case, but are no letters.
    KeyedCollection<int> collection;
    EXPECT_TRUE(collection.Add(1, "["));
    EXPECT_TRUE(collection.Add(2, "{"));
    EXPECT_TRUE(collection.Add(3, "\xD7"));
    EXPECT_TRUE(collection.Add(4, "\xF7"));
    EXPECT_EQ(*collection.Find("["), 1);
    EXPECT_EQ(*collection.Find("{"), 2);
    EXPECT_EQ(*collection.Find("\xF7"), 4);
}

TEST(KeyedCollection, TakesTheEmptyKey)
{
    KeyedCollection<int> collection;
    EXPECT_TRUE(collection.Add(5, ""));
    EXPECT_FALSE(collection.Add(6, ""));
    EXPECT_EQ(*collection.Find(""), 5);
}

TEST(KeyedCollection, KeepsItsEntriesWhenRoomIsMade)
{
    KeyedCollection<int> collection;
    EXPECT_TRUE(collection.Add(1, "X7R"));
    collection.Reserve(1000);
    collection.Reserve(1);
    EXPECT_TRUE(collection.Add(2, "X5R"));
    EXPECT_FALSE(collection.Add(3, "x7r"));
    EXPECT_EQ(collection.size(), 2U);
    EXPECT_EQ(*collection.Find("X7R"), 1);
    EXPECT_EQ(*collection.Find("X5R"), 2);
}

TEST(KeyedCollection, GrowsToItsLimit)
{
    constexpr int count = 65535;
    std::vector<std::string> keys;
    for (int i = 0; i <= count; ++i)
    {
        keys.push_back("Key" + std::to_string(i));
    }
    KeyedCollection<int> collection;
    for (int i = 0; i < count; ++i)
    {
        ASSERT_TRUE(collection.Add(i, keys[static_cast<std::size_t>(i)]));
    }
    EXPECT_EQ(collection.size(), 65535U);
    for (int i = 0; i < count; ++i)
    {
        const auto* const value = collection.Find("kEY" + std::to_string(i));
        ASSERT_NE(value, nullptr) << i;
        ASSERT_EQ(*value, i);
    }
    EXPECT_EQ(collection.Find(keys.back()), nullptr);
}
} // namespace
