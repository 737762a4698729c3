#include "tests/e2e/mutated/WindowDifference.h"

#include "app/mdlPublic.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace
{
/// Parts that are plotted of each pair.
constexpr std::size_t PlottedParts = 3;
/// Characters that a box takes.
constexpr std::size_t LongestEntry = 32767;

QString ShownText(const std::string& ansi)
{
    return QString::fromStdString(Utf8Of(ansi));
}

/// The number of a list; the greatest single is out of range for the reader of the forms' library.
float NumberOf(const QString& text)
{
    return std::strtof(text.toLatin1().constData(), nullptr);
}

/// One window and the pair that it shows.
class Visit
{
public:
    Visit(const std::filesystem::path& folder, const PlainPair& pair, unsigned choice)
        : desk(folder.string())
        , plain(pair)
        , random(choice)
    {
    }

    std::string Difference();

private:
    std::string ListDifference(int chartType) const;
    std::string CascadeDifference(int chartType);
    std::string PlotDifference(int chartType);
    std::vector<const PlainPart*> Offered(int chartType) const;
    std::vector<const PlainPart*> OddestFirst(int chartType) const;
    bool PickText(const char* list, const QString& text);
    QStringList Entries(const char* list) const;
    void FillBoxes();

    Desk desk;
    const PlainPair& plain;
    unsigned random;
};

std::vector<const PlainPart*> Visit::Offered(int chartType) const
{
    std::vector<const PlainPart*> offered;
    for (const PlainPart& part : plain.Parts)
    {
        if (IsOffered(part, chartType))
        {
            offered.push_back(&part);
        }
    }
    return offered;
}

std::size_t OddValues(const PlainPart& part)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(part.Data, [](float value)
                              { return !std::isnormal(value) ? value != 0 : std::fabs(value) > 1e12F; }));
}

std::vector<const PlainPart*> Visit::OddestFirst(int chartType) const
{
    auto parts = Offered(chartType);
    if (!parts.empty())
    {
        std::ranges::rotate(parts, parts.begin() + random % parts.size());
    }
    std::ranges::stable_sort(parts, std::greater<>(), [](const auto* part) { return OddValues(*part); });
    parts.resize(std::min(parts.size(), PlottedParts));
    return parts;
}

QStringList Visit::Entries(const char* list) const
{
    const auto* box = desk.Find<QComboBox>(list);
    QStringList entries;
    for (int i = 0; i < box->count(); ++i)
    {
        entries << box->itemText(i);
    }
    return entries;
}

std::string Visit::ListDifference(int chartType) const
{
    QStringList sizes;
    QSet<QString> known;
    QStringList numbers;
    for (const auto* part : Offered(chartType))
    {
        const auto size = ShownText(part->Names[4]);
        if (!size.isEmpty() && !known.contains(size))
        {
            known.insert(size);
            sizes << size;
        }
        numbers << ShownText(part->Names[0]);
    }
    if (Entries("cmbPartNum") != numbers)
    {
        return "other part numbers";
    }
    return Entries("cmbSizeCode") == sizes ? "" : "other size codes";
}

bool Visit::PickText(const char* list, const QString& text)
{
    auto* box = desk.Find<QComboBox>(list);
    const auto row = static_cast<int>(Entries(list).indexOf(text));
    if (row < 0)
    {
        return false;
    }
    box->setCurrentIndex(row);
    Q_EMIT box->activated(row);
    return true;
}

/// From the size code of a part down to its voltage.
std::string Visit::CascadeDifference(int chartType)
{
    const auto offered = Offered(chartType);
    if (offered.empty())
    {
        return "";
    }
    const PlainPart& part = *offered[random % offered.size()];
    if (part.Names[4].empty() || part.Names[6].empty())
    {
        return "";
    }
    if (!PickText("cmbSizeCode", ShownText(part.Names[4])) || !PickText("cmbTcc", ShownText(part.Names[6])))
    {
        return "names that are not in the lists";
    }
    // The lists of numbers are told by value.
    const auto pickNumber = [this](const char* list, float number)
    {
        const auto entries = Entries(list);
        const auto same =
            std::ranges::find_if(entries, [&](const auto& text) { return NumberOf(text) == number; });
        return same != entries.end() && PickText(list, *same);
    };
    if (!pickNumber("cmbCap", part.Data[0]) || !pickNumber("cmbRatedVol", part.Data[2]))
    {
        return "numbers that are not in the lists: " + std::to_string(part.Data[0]) + " pF, " +
               std::to_string(part.Data[2]) + " V";
    }
    QStringList left;
    for (const auto* other : offered)
    {
        if (other->Names[4] == part.Names[4] && other->Names[6] == part.Names[6] &&
            other->Data[0] == part.Data[0] && other->Data[2] == part.Data[2])
        {
            left << ShownText(other->Names[0]);
        }
    }
    return Entries("cmbPartNum") == left && desk.CanPlot() ? "" : "other parts at the end of the cascade";
}

/// Conditions that any sound part is content with.
void Visit::FillBoxes()
{
    const auto fill = [this](const char* name, const char* text)
    {
        auto* box = desk.Find<QLineEdit>(name);
        if (box->isEnabled())
        {
            box->setText(text);
        }
    };
    fill("txtDCBiasVol", random % 3 == 0 ? "1" : "0");
    fill("txtFrequency", "100");
    fill("txtParameter", "0.001");
}

/// Plots parts one after the other: each shows one more line or a message.
std::string Visit::PlotDifference(int chartType)
{
    for (const auto* part : OddestFirst(chartType))
    {
        if (!PickText("cmbPartNum", ShownText(part->Names[0])))
        {
            return "a part that cannot be picked";
        }
        if (!desk.CanPlot() && !part->Names[0].empty() && part->Names[0].size() <= LongestEntry)
        {
            return "a picked part that cannot be plotted";
        }
        FillBoxes();
        const auto before = mdlPublic.Charts.CurrentChart();
        desk.TakeBoxes();
        if (desk.CanPlot())
        {
            desk.ClickPlot();
            const auto lines = mdlPublic.Charts.CurrentChart() - before;
            const auto boxes = desk.TakeBoxes().size();
            if (!(lines == 1 && boxes == 0) && !(lines == 0 && boxes == 1))
            {
                return std::to_string(lines) + " lines and " + std::to_string(boxes) + " boxes from one plot";
            }
        }
        if (!StoreIsWhole() || !IsAtRest())
        {
            return "a plot that did not come to an end";
        }
    }
    return "";
}

std::string Visit::Difference()
{
    const std::string atStart = ListDifference(0);
    if (!atStart.empty())
    {
        return atStart + " at the start";
    }
    // Both chart types of a pair have the same lists.
    for (const int chartType : {static_cast<int>(random / 2 % 2), 2 + static_cast<int>(random % 2)})
    {
        desk.ClickChartType(chartType);
        std::string difference = ListDifference(chartType);
        if (difference.empty())
        {
            difference = CascadeDifference(chartType);
        }
        if (difference.empty())
        {
            desk.ClickChartType(chartType);
            difference = PlotDifference(chartType);
        }
        if (!difference.empty())
        {
            return difference + " (chart type " + std::to_string(chartType) + ")";
        }
    }
    desk.main->grab();
    return "";
}
} // namespace

std::string WindowDifference(const std::filesystem::path& folder, const PlainPair& plain, unsigned choice)
{
    return Visit(folder, plain, choice).Difference();
}
