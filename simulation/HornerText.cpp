#include "simulation/HornerText.h"

std::vector<std::string> CoefficientTexts(const ModelNumbers& numbers, ValueGroup group)
{
    std::vector<std::string> texts;
    for (auto i = group.Last + 1; i-- > group.First;)
    {
        texts.push_back(NetlistNumber(numbers.at(i)));
    }
    return texts;
}

std::string HornerText(const std::vector<std::string>& coefficients, std::string_view variable)
{
    std::string text = coefficients.front();
    for (std::size_t i = 1; i < coefficients.size(); ++i)
    {
        text.append("+").append(variable).append("*(").append(coefficients[i]);
    }
    return text.append(coefficients.size() - 1, ')');
}

std::string HornerText(const ModelNumbers& numbers, ValueGroup group, std::string_view variable)
{
    return HornerText(CoefficientTexts(numbers, group), variable);
}

std::string MeanHornerText(const ModelNumbers& numbers, ValueGroup group, std::string_view variable)
{
    auto texts = CoefficientTexts(numbers, group);
    for (std::size_t i = 0; i < texts.size(); ++i)
    {
        texts[i] += "/" + std::to_string(i + 2);
    }
    return HornerText(texts, variable);
}
