#pragma once

#include <QLineEdit>

#include <array>
#include <utility>

/// "Which 10 µF part runs less than 20 °C hot at 12 V and 1.5 Arms of 300 kHz?"
constexpr std::array<std::pair<const char*, const char*>, 6> FindEntries = {{
    {"txtFindCap", "10"},
    {"txtFindDCBiasVol", "12"},
    {"txtFindAmbientTemp", "25"},
    {"txtFindFrequency", "300"},
    {"txtFindCurrent", "1.5"},
    {"txtFindMaxRise", "20"},
}};

/// The input of a buck converter from the rail of 12 V.
constexpr std::array<std::pair<const char*, const char*>, 5> ConverterEntries = {{
    {"txtConvVin", "12"},
    {"txtConvVout", "3.3"},
    {"txtConvIout", "5"},
    {"txtConvFrequency", "500"},
    {"txtConvInductance", "2.2"},
}};

/// Types entries, pairs of a box's name and its text, into the boxes of a window.
template <class Entries> void EnterAll(const QWidget& window, const Entries& entries)
{
    for (const auto& [box, entry] : entries)
    {
        window.findChild<QLineEdit*>(QString::fromLatin1(box))->setText(QString::fromLatin1(entry));
    }
}
