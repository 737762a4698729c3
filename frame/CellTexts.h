#pragma once

/// Values as the cells of tables of parts show them.

#include "calc/Quantities.h"

#include <QString>
#include <QVariant>

#include <array>

/// A heading with the degree sign of the system where "%1" stands.
QString WithDegreeSign(const char* text);

/// How a heading stands: that of sentences where they begin, for their column may be wider than its table.
QVariant HeadingAlignment(bool isOfSentences);

/// A capacitance in pF in four digits: "10.46 µF".
QString CapacitanceText(float picofarads);

/// The unit that a quantity is shown in: "°C".
QString ShownUnit(Quantity quantity);

/// Two conditions, in the units that they are entered in, that tell a place: "13.2 V, 85 °C".
QString PlaceText(const std::array<float, 2>& conditions, const std::array<Quantity, 2>& quantities);

/// The same as numbers in full: "13.2, 85".
QString FullPlaceText(const std::array<float, 2>& conditions);
