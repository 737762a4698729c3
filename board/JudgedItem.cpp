#include "board/JudgedItem.h"

#include <algorithm>

std::optional<double> JudgedItem::Figure(FoundColumn column) const
{
    return Judged ? Judged->Figures.ValueOf(column) : std::nullopt;
}

bool JudgedItem::IsLoaded() const
{
    return Question.Asked.At.Load || !Question.NetRipple.empty();
}

FindQuestion JudgedItem::ToldQuestion() const
{
    auto told = Question.Asked;
    if (Share)
    {
        told.At.Load = AcLoad{.Kind = Quantity::Current, .Value = static_cast<float>(Share->Arms)};
    }
    return told;
}

const BomLimit* JudgedItem::Limit(std::string_view name) const
{
    static const std::vector<BomLimit> none;
    const auto& limits = Judged ? Judged->Limits : none;
    const auto found = std::ranges::find(limits, name, &BomLimit::Name);
    return found == limits.end() ? nullptr : &*found;
}
