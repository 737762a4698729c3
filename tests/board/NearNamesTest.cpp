/// Names that a mistyped one may mean.

#include "board/NearNames.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
using Names = std::vector<std::string>;

/// The whole table of changes, additions and drops.
std::size_t PlainSteps(const std::string& name, const std::string& other)
{
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < name.size(); ++i)
    {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < other.size(); ++j)
        {
            const auto changed = diagonal + (name[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

/// Every name compared with the whole list.
Names PlainlyNear(const std::string& name, const Names& list)
{
    Names near;
    for (std::size_t steps = 0; steps <= 2; ++steps)
    {
        std::ranges::copy_if(list, std::back_inserter(near),
                             [&](const std::string& listed) {
                                 return listed.starts_with(name.substr(0, 3)) &&
                                        PlainSteps(name, listed) == steps;
                             });
    }
    near.resize(std::min<std::size_t>(near.size(), 3));
    return near;
}

/// Few letters, so that many names lie near each other.
std::string RandomName(std::mt19937& random)
{
    std::string name(random() % 9, ' ');
    std::ranges::generate(name, [&] { return static_cast<char>('A' + random() % 3); });
    return name;
}

Names RandomNames(std::mt19937& random, std::size_t count)
{
    Names names(count);
    std::ranges::generate(names, [&] { return RandomName(random); });
    return names;
}

/// Names that differ in their last letters, as those of a range do.
Names NumberedNames()
{
    Names names;
    for (int i = 10000; i < 12000; ++i)
    {
        names.push_back("KTS21J" + std::to_string(i));
    }
    return names;
}
} // namespace

TEST(NearNames, AreThoseOfTheWholeComparison)
{
    std::mt19937 random(7);
    std::size_t found = 0;
    for (int i = 0; i < 40; ++i)
    {
        const Names list = RandomNames(random, 60);
        NearNames near(list);
        for (const std::string& name : RandomNames(random, 60))
        {
            const auto& answer = near.Of(name);
            EXPECT_EQ(answer, PlainlyNear(name, list)) << name;
            found += answer.size();
        }
    }
    EXPECT_GT(found, 1000U);
}

TEST(NearNames, StandTheNearestFirstAndThenAsInTheList)
{
    NearNames near({"ABCDXY", "ABCDEX", "ABCD", "ABCDE", "XBCDEF", "ABCDEFGHI", "ABCDEFGH"});
    EXPECT_THAT(near.Of("ABCDEF"), ElementsAre("ABCDEX", "ABCDE", "ABCDXY"));
    EXPECT_THAT(near.Of("XXX"), IsEmpty());
    EXPECT_THAT(NearNames({}).Of("ABC"), IsEmpty());
}

TEST(NearNames, AreFoundInASmallShareOfAllLetters)
{
    const Names list = NumberedNames();
    const auto letters = list.size() * list[0].size();
    NearNames near(list);
    near.Of("KTT99X11000");
    EXPECT_LT(near.LettersRead(), letters / 100);
    near.Of("KTS21J11X00");
    EXPECT_LT(near.LettersRead(), letters / 5);
}

TEST(NearNames, AreLookedForOnce)
{
    NearNames near(NumberedNames());
    const auto first = near.Of("KTS21J1X000");
    const auto read = near.LettersRead();
    EXPECT_EQ(near.Of("KTS21J1X000"), first);
    EXPECT_EQ(near.LettersRead(), read);
}
