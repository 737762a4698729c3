#pragma once

/// What the tests of entering conditions share: a fresh form with three parts for each test.

#include "tests/selection/SelectionDesk.h"

#include <memory>

class ConditionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    static constexpr std::array<const char*, 5> Boxes = {"txtDCBiasVol", "txtFrequency", "txtHeatResistance",
                                                         "txtAmbientTemp", "txtParameter"};

    QStringList EnabledBoxes() const;
    void FillAllBoxes() const;
    /// A complete part of a temperature rise, and a bad entry under the cursor.
    void StartAtBadEntry(const QString& box) const;

    std::unique_ptr<SelectionDesk> desk;
};
