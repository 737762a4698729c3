#include "frame/LikeTable.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/NumberText.h"
#include "formkit/Texts.h"
#include "frame/CellTexts.h"
#include "requests/FourDigits.h"

#include <array>
#include <optional>

namespace
{
/// A place that a column tells in place of its value.
enum class LikePlace
{
    Least,
    Most,
    Loss,
};

/// One column as it is headed. A degree sign stands as "%1".
struct Heading
{
    LikeColumn Id;
    const char* Shown;
    /// With the unit of full numbers, where the shown one has none.
    const char* Copied;
    std::optional<LikePlace> Place = {};
};

constexpr std::array<Heading, 12> headings = {{
    {LikeColumn::Part, "Part number", nullptr},
    {LikeColumn::Size, "Size", nullptr},
    {LikeColumn::Characteristic, "TCC", nullptr},
    {LikeColumn::Capacitance, "Nominal", "Nominal [pF]"},
    {LikeColumn::RatedVoltage, "Rated [V]", nullptr},
    {LikeColumn::LeastRatio, "Least [%]", nullptr},
    {LikeColumn::LeastRatio, "At", "Least at [V], [%1C]", LikePlace::Least},
    {LikeColumn::MostRatio, "Most [%]", nullptr},
    {LikeColumn::MostRatio, "At", "Most at [V], [%1C]", LikePlace::Most},
    {LikeColumn::LossRatio, "Loss [%]", nullptr},
    {LikeColumn::LossRatio, "At", "Loss at [%1C], [kHz]", LikePlace::Loss},
    {LikeColumn::Area, "Area [mm²]", nullptr},
}};

/// Behind all others where none fits.
constexpr int markColumn = headings.size();

const Heading& HeadingAt(int column)
{
    return headings.at(static_cast<std::size_t>(column));
}

bool IsLeft(int column)
{
    return column == markColumn || HeadingAt(column).Id <= LikeColumn::Characteristic ||
           HeadingAt(column).Place;
}

bool IsRatio(LikeColumn column)
{
    return column >= LikeColumn::LeastRatio && column <= LikeColumn::LossRatio;
}

/// Where the ratio occurs, in the units that conditions are entered in.
std::optional<std::array<float, 2>> ConditionsAt(const LikePart& like, LikePlace place)
{
    const auto told = [](double value) { return static_cast<float>(value); };
    if (place != LikePlace::Loss)
    {
        const auto& at = (place == LikePlace::Least ? like.Least : like.Most).At;
        return std::array{told(at.BiasVolts), told(at.AmbientC)};
    }
    return like.Loss ? std::optional(std::array{told(like.Loss->At.AmbientC),
                                                ShownValue(Quantity::Frequency, like.Loss->At.Hertz)})
                     : std::nullopt;
}

QString ShownPlace(const LikePart& like, LikePlace place)
{
    const auto conditions = ConditionsAt(like, place);
    const auto quantities = place == LikePlace::Loss ? std::array{Quantity::Temperature, Quantity::Frequency}
                                                     : std::array{Quantity::DCVoltage, Quantity::Temperature};
    return conditions ? PlaceText(*conditions, quantities) : QStringLiteral("-");
}

QString ShownNumber(const LikePart& like, LikeColumn column)
{
    const auto value = ValueOf(like, column);
    if (column == LikeColumn::Capacitance)
    {
        return CapacitanceText(value.value_or(0));
    }
    return QString::fromStdString(IsRatio(column) ? RatioText(value) : value ? FourDigits(*value) : "-");
}
} // namespace

void LikeTable::SetAnswer(const LikeParts& answer, CodeView naming)
{
    beginResetModel();
    areShort = answer.Parts.empty() && !answer.Nearest.empty();
    found = areShort ? answer.Nearest : answer.Parts;
    shown = found;
    view = naming;
    endResetModel();
}

std::int16_t LikeTable::PartIndexAt(int row) const
{
    return static_cast<std::int16_t>(LikeAt(row).Part - mdlPublic.Parts.PartData.data());
}

int LikeTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shown.size());
}

int LikeTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : markColumn + (areShort ? 1 : 0);
}

QString LikeTable::NameAt(int row, LikeColumn column) const
{
    const auto naming = static_cast<std::size_t>(view);
    switch (column)
    {
    case LikeColumn::Part:
        return PartNumText(PartIndexAt(row), GetPartNumForm());
    case LikeColumn::Size:
        return FromAnsi(LikeAt(row).Part->SizeCode[naming]);
    default:
        return FromAnsi(LikeAt(row).Part->Tcc[naming]);
    }
}

QString LikeTable::TextAt(int row, int column) const
{
    if (column == markColumn)
    {
        return QStringLiteral("short");
    }
    const Heading& heading = HeadingAt(column);
    if (heading.Place)
    {
        return ShownPlace(LikeAt(row), *heading.Place);
    }
    return heading.Id <= LikeColumn::Characteristic ? NameAt(row, heading.Id)
                                                    : ShownNumber(LikeAt(row), heading.Id);
}

QVariant LikeTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
    {
        return {};
    }
    switch (role)
    {
    case Qt::DisplayRole:
        return TextAt(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (IsLeft(index.column()) ? Qt::AlignLeft : Qt::AlignRight));
    default:
        return {};
    }
}

QVariant LikeTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    {
        return {};
    }
    return section == markColumn ? QStringLiteral("Mark") : WithDegreeSign(HeadingAt(section).Shown);
}

void LikeTable::sort(int column, Qt::SortOrder direction)
{
    beginResetModel();
    shown = found;
    if (column >= 0 && column != markColumn)
    {
        const LikeKey key{.Column = HeadingAt(column).Id, .Downwards = direction == Qt::DescendingOrder};
        SortLike(shown, mdlPublic.Parts, {key}, view);
    }
    endResetModel();
}

// ---- Taking away ----

QString LikeTable::FullTextAt(int row, int column) const
{
    if (column == markColumn || HeadingAt(column).Id <= LikeColumn::Characteristic)
    {
        return TextAt(row, column);
    }
    const Heading& heading = HeadingAt(column);
    if (heading.Place)
    {
        const auto conditions = ConditionsAt(LikeAt(row), *heading.Place);
        return conditions ? FullPlaceText(*conditions) : QString();
    }
    const auto value = ValueOf(LikeAt(row), heading.Id);
    return value ? QString::fromStdString(NumberText(*value)) : QString();
}

QString LikeTable::Copied(const std::vector<int>& rows) const
{
    QStringList line;
    for (int column = 0; column < columnCount(); ++column)
    {
        const char* const copied = column == markColumn ? nullptr : HeadingAt(column).Copied;
        line << (copied != nullptr ? WithDegreeSign(copied) : headerData(column, Qt::Horizontal).toString());
    }
    QString text = line.join(u'\t') + u'\n';
    for (const int row : rows)
    {
        line.clear();
        for (int column = 0; column < columnCount(); ++column)
        {
            line << FullTextAt(row, column);
        }
        text += line.join(u'\t') + u'\n';
    }
    return text;
}
