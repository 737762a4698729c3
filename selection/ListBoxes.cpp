#include "selection/ListBoxes.h"

#include "calc/NumberText.h"
#include "formkit/Texts.h"

#include <QComboBox>

#include <algorithm>

static void ShowList(QComboBox* box, const QStringList& entries, int chosen)
{
    box->clear();
    box->addItems(entries);
    box->setCurrentIndex(chosen);
}

void ShowTexts(QComboBox* box, const std::vector<std::string_view>& texts,
               const std::optional<std::string_view>& choice)
{
    QStringList entries;
    for (const auto text : texts)
    {
        entries << FromAnsi(text);
    }
    ShowList(box, entries, choice ? static_cast<int>(entries.indexOf(FromAnsi(*choice))) : -1);
}

void ShowNumbers(QComboBox* box, const std::vector<float>& numbers, const std::optional<float>& choice)
{
    QStringList entries;
    for (const float number : numbers)
    {
        entries << QString::fromStdString(NumberText(number));
    }
    const auto chosen = choice ? std::find(numbers.begin(), numbers.end(), *choice) : numbers.end();
    ShowList(box, entries, chosen != numbers.end() ? static_cast<int>(chosen - numbers.begin()) : -1);
}

void ShowAxes(QComboBox* box, std::span<const Quantity> axes)
{
    QStringList entries;
    for (const Quantity axis : axes)
    {
        entries << FromAnsi(NameOf(axis));
    }
    ShowList(box, entries, 0);
}
