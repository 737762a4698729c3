#include "tests/selection/ConditionsTest.h"

#include "tests/selection/Ranges.h"

#include <QLocale>
#include <QTest>

static PartTable Range()
{
    return MakeRange({{"P0", {"0805", "2012"}, {"X7R", "R"}, 1000, 16},
                      {"P1", {"0805", "2012"}, {"X5R", "B"}, 1000, 6.3F},
                      {"P2", {"0805", "2012"}, {"Y5V", "F"}, 1000, 50}});
}

void ConditionsTest::init()
{
    desk = std::make_unique<SelectionDesk>(Range());
}

void ConditionsTest::cleanup()
{
    QCOMPARE(desk->messages.Taken(), QStringList());
    desk.reset();
    QLocale::setDefault(QLocale::c());
}

QStringList ConditionsTest::EnabledBoxes() const
{
    QStringList enabled;
    for (const char* box : Boxes)
    {
        if (desk->Enabled(box))
        {
            enabled << box;
        }
    }
    return enabled;
}

void ConditionsTest::FillAllBoxes() const
{
    const std::array<const char*, 5> valid = {"0", "100", "40", "25", "1"};
    for (std::size_t i = 0; i < Boxes.size(); ++i)
    {
        if (desk->Enabled(Boxes[i]))
        {
            desk->Enter(Boxes[i], valid[i]);
        }
    }
}

void ConditionsTest::StartAtBadEntry(const QString& box) const
{
    if (box == "txtParameter")
    {
        desk->Pick("cmbXaxis", "Frequency");
    }
    desk->Pick("cmbPartNum", "P0-0");
    desk->Enter(box.toLatin1().constData(), "x");
}
