#include "tests/selection/PlainSelection.h"
#include "calc/NumberText.h"
#include "selection/PartSelection.h"
#include "tests/Seed.h"
#include "tests/calc/NamedRow.h"
#include "tests/selection/Ranges.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

Texts TextsOf(const std::vector<std::string_view>& names)
{
    return {names.begin(), names.end()};
}

Texts TextsOf(const std::vector<float>& values)
{
    Texts texts;
    for (const float value : values)
    {
        texts.push_back(NumberText(value));
    }
    return texts;
}

std::string TextOf(const std::optional<std::string_view>& name)
{
    return std::string(name.value_or(""));
}

std::string TextOf(const std::optional<float>& value)
{
    return value ? NumberText(*value) : "";
}

struct Row
{
    const char* Name;
    PartTable (*Range)();
    unsigned Seed;
};

/// Does the same random actions to the program's selection and to the plain one.
class RandomChoices : public testing::TestWithParam<Row>
{
protected:
    void Do()
    {
        switch (Number(10))
        {
        case 0:
            ChooseChartType();
            break;
        case 1:
            SwitchCode();
            break;
        case 2:
        case 3:
            PickPart();
            break;
        default:
            PickLevel(Number(4));
            break;
        }
    }

    void Compare() const
    {
        ASSERT_EQ(TextsOf(selection.SizeCodes()), plain.Sizes());
        ASSERT_EQ(TextsOf(selection.Tccs()), plain.Tccs());
        ASSERT_EQ(TextsOf(selection.Capacitances()), plain.Caps());
        ASSERT_EQ(TextsOf(selection.RatedVoltages()), plain.Volts());
        ASSERT_EQ(std::vector<std::size_t>(selection.PartNums().begin(), selection.PartNums().end()),
                  plain.Parts);
        ASSERT_EQ(TextOf(selection.Choice().SizeCode), plain.Size);
        ASSERT_EQ(TextOf(selection.Choice().Tcc), plain.Tcc);
        ASSERT_EQ(TextOf(selection.Choice().Capacitance), plain.Cap);
        ASSERT_EQ(TextOf(selection.Choice().RatedVoltage), plain.Volt);
    }

private:
    std::size_t Number(std::size_t below)
    {
        return std::uniform_int_distribution<std::size_t>(0, below - 1)(random);
    }

    template <class Item> const Item* AnyOf(const std::vector<Item>& list)
    {
        return list.empty() ? nullptr : &list[Number(list.size())];
    }

    void ChooseChartType()
    {
        const auto type = static_cast<int>(Number(4));
        selection.AddPartNum(static_cast<std::int16_t>(type), static_cast<CodeView>(plain.Code));
        plain.ChooseChartType(type);
    }

    void SwitchCode()
    {
        const auto code = Number(2);
        selection.ChangeNaming(static_cast<CodeView>(code));
        plain.SwitchCode(code);
    }

    void PickPart()
    {
        if (const auto* part = AnyOf(selection.PartNums()))
        {
            const auto chosen = *part;
            selection.ShowPart(chosen);
            plain.PickPart(static_cast<std::size_t>(chosen));
        }
    }

    void PickLevel(std::size_t level)
    {
        const auto pick = [this](const auto* entry, auto fill, auto pickPlain)
        {
            if (entry != nullptr)
            {
                const auto chosen = *entry;
                (selection.*fill)(chosen);
                (plain.*pickPlain)(TextsOf(std::vector{chosen}).front());
            }
        };
        switch (level)
        {
        case 0:
            return pick(AnyOf(selection.SizeCodes()), &PartSelection::FillTccList, &PlainSelection::PickSize);
        case 1:
            return pick(AnyOf(selection.Tccs()), &PartSelection::FillCapList, &PlainSelection::PickTcc);
        case 2:
            return pick(AnyOf(selection.Capacitances()), &PartSelection::FillRatedVolList,
                        &PlainSelection::PickCap);
        default:
            return pick(AnyOf(selection.RatedVoltages()), &PartSelection::FillPartNumList,
                        &PlainSelection::PickVolt);
        }
    }

    PartTable range = GetParam().Range();
    PartSelection selection{range};
    PlainSelection plain{range};
    std::mt19937 random{TestSeed(GetParam().Seed)};
};

TEST_P(RandomChoices, GiveTheListsOfThePlainSelection)
{
    for (int action = 0; action < 3000 && !HasFatalFailure(); ++action)
    {
        SCOPED_TRACE(action);
        Do();
        Compare();
    }
}

INSTANTIATE_TEST_SUITE_P(All, RandomChoices,
                         testing::Values(Row{"sample range", SampleRange, 1},
                                         Row{"range of the curve vectors", VectorRange, 2},
                                         Row{"crossed range", CrossedRange, 3},
                                         Row{"crossed range again", CrossedRange, 4}),
                         RowName<Row>);

} // namespace
