#pragma once

/// How the lists of the selection form show what is on offer.

#include "calc/Quantities.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

class QComboBox;

/// Fills a box with texts of the part files; none is chosen where the choice is not among them.
void ShowTexts(QComboBox* box, const std::vector<std::string_view>& texts,
               const std::optional<std::string_view>& choice);

/// Fills a box with number texts; none is chosen where the choice is not among them.
void ShowNumbers(QComboBox* box, const std::vector<float>& numbers, const std::optional<float>& choice);

/// Fills a box with the names of axes, the first one shown.
void ShowAxes(QComboBox* box, std::span<const Quantity> axes);

/// The entry of a list that its box shows as chosen, or null.
template <class Item, class Box> const Item* ChosenOf(const std::vector<Item>& list, const Box* box)
{
    return box->currentIndex() >= 0 ? &list[static_cast<std::size_t>(box->currentIndex())] : nullptr;
}
