#include "frame/FoundTable.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/NumberText.h"
#include "formkit/Texts.h"
#include "frame/CellTexts.h"
#include "requests/FourDigits.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <optional>

namespace
{
/// One column as it is headed. A degree sign stands as "%1".
struct Heading
{
    FoundColumn Id;
    const char* Shown;
    /// With the unit of full numbers, where the shown one has none.
    const char* Copied;
    /// The column tells where the value occurs.
    std::optional<FoundPlace> Place = {};
};

/// Every column, and every place behind its own.
constexpr std::size_t tableColumns = FoundColumnCount + FoundPlaceCount;

constexpr std::array<Heading, tableColumns> headings = {{
    {FoundColumn::Part, "Part number", nullptr},
    {FoundColumn::Size, "Size", nullptr},
    {FoundColumn::Characteristic, "TCC", nullptr},
    {FoundColumn::Capacitance, "Nominal", "Nominal [pF]"},
    {FoundColumn::RatedVoltage, "Rated [V]", nullptr},
    {FoundColumn::EffectiveCapacitance, "Effective", "Effective [pF]"},
    {FoundColumn::EffectiveCapacitance, "At", "Least at [V], [%1C]", FoundPlace::Least},
    {FoundColumn::MostCapacitance, "Most", "Most [pF]"},
    {FoundColumn::MostCapacitance, "At", "Most at [V], [%1C]", FoundPlace::Most},
    {FoundColumn::Left, "Left [%]", nullptr},
    {FoundColumn::Count, "No.", nullptr},
    {FoundColumn::Total, "Total", "Total [pF]"},
    {FoundColumn::Area, "Area [mm²]", nullptr},
    {FoundColumn::Rise, "Rise [%1C]", nullptr},
    {FoundColumn::Rise, "At", "Rise at [%1C], [kHz]", FoundPlace::Rise},
    {FoundColumn::Margin, "Margin [%1C]", nullptr},
    {FoundColumn::Margin, "At", "Margin at [%1C], [kHz]", FoundPlace::Margin},
    {FoundColumn::Body, "Body [%1C]", nullptr},
    {FoundColumn::WarmCapacitance, "Warm", "Warm [pF]"},
    {FoundColumn::Ripple, "Ripple [Vrms]", nullptr},
    {FoundColumn::Current, "Allowed [Arms]", nullptr},
    {FoundColumn::Voltage, "Allowed [Vrms]", nullptr},
    {FoundColumn::ApparentPower, "Allowed [VA]", nullptr},
    {FoundColumn::EffectivePower, "Allowed [W]", nullptr},
    {FoundColumn::PermittedRise, "Permitted [%1C]", nullptr},
    {FoundColumn::LossResistance, "Loss [mΩ]", nullptr},
}};

const Heading& HeadingAt(int column)
{
    return headings.at(static_cast<std::size_t>(column));
}

bool IsName(FoundColumn column)
{
    return column <= FoundColumn::Characteristic;
}

QString ShownValue(const FoundPart& part, FoundColumn column)
{
    const auto value = part.ValueOf(column);
    if (!value)
    {
        return QStringLiteral("-");
    }
    const auto told = static_cast<float>(*value);
    return KindOf(column).Unit == "pF" ? CapacitanceText(told) : QString::fromStdString(FourDigits(told));
}

/// "13.2 V, 85 °C".
QString PlaceText(const FoundPart& part, FoundPlace place)
{
    const auto conditions = part.ConditionsAt(place);
    if (!conditions)
    {
        return QStringLiteral("-");
    }
    return ::PlaceText(*conditions, KindOf(place).Conditions);
}

/// The place of a column's value, which its tool tip tells.
std::optional<FoundPlace> PlaceBehind(FoundColumn column)
{
    for (const FoundPlaceKind& place : FoundPlaces())
    {
        if (place.Of == column)
        {
            return place.Id;
        }
    }
    return std::nullopt;
}

QString FullPlace(const FoundPart& part, FoundPlace place)
{
    const auto conditions = part.ConditionsAt(place);
    return conditions ? FullPlaceText(*conditions) : QString();
}

QString FullValue(const FoundPart& part, FoundColumn column)
{
    const auto value = part.ValueOf(column);
    return value ? QString::fromStdString(NumberText(static_cast<float>(*value))) : QString();
}
} // namespace

// ---- What is shown ----

void FoundTable::SetAnswer(FoundParts answer, const FindQuestion& asked)
{
    beginResetModel();
    found = std::move(answer);
    question = asked;
    isStale = false;
    SortParts();
    endResetModel();
}

void FoundTable::SetStale(bool stale)
{
    if (isStale != stale)
    {
        isStale = stale;
        TellChanged(Qt::ForegroundRole);
    }
}

void FoundTable::TellChanged(Qt::ItemDataRole role)
{
    if (rowCount() > 0)
    {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {role});
    }
}

void FoundTable::NamesChanged()
{
    TellChanged(Qt::DisplayRole);
}

QString FoundTable::PlaceAt(int row, FoundPlace place) const
{
    return PlaceText(PartAt(row), place);
}

bool FoundTable::IsPlace(int column)
{
    return HeadingAt(column).Place.has_value();
}

QString FoundTable::TextAt(int row, int column) const
{
    const Heading& heading = HeadingAt(column);
    if (heading.Place)
    {
        return PlaceText(PartAt(row), *heading.Place);
    }
    return IsName(heading.Id) ? NameAt(row, heading.Id) : ShownValue(PartAt(row), heading.Id);
}

FoundColumn FoundTable::ColumnAt(int column)
{
    return HeadingAt(column).Id;
}

bool FoundTable::Applies(int column) const
{
    const FoundColumn id = ColumnAt(column);
    const bool isWorst = id == FoundColumn::MostCapacitance || id == FoundColumn::Margin || IsPlace(column);
    return ::Applies(KindOf(id).Needs, question) && (!isWorst || question.At.HasWorst());
}

std::int16_t FoundTable::PartIndexAt(int row) const
{
    return static_cast<std::int16_t>(&PartAt(row).Part() - mdlPublic.Parts.PartData.data());
}

int FoundTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(found.Parts.size());
}

int FoundTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(headings.size());
}

QString FoundTable::NameAt(int row, FoundColumn column) const
{
    const auto naming = static_cast<std::size_t>(GetCodeView());
    switch (column)
    {
    case FoundColumn::Part:
        return PartNumText(PartIndexAt(row), GetPartNumForm());
    case FoundColumn::Size:
        return FromAnsi(PartAt(row).Part().SizeCode[naming]);
    default:
        return FromAnsi(PartAt(row).Part().Tcc[naming]);
    }
}

QVariant FoundTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
    {
        return {};
    }
    const FoundColumn column = ColumnAt(index.column());
    switch (role)
    {
    case Qt::DisplayRole:
        return TextAt(index.row(), index.column());
    case Qt::ToolTipRole:
    {
        const auto place = PlaceBehind(column);
        return place && question.At.HasWorst()
                   ? QVariant(QStringLiteral("At ") + PlaceText(PartAt(index.row()), *place))
                   : QVariant();
    }
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter |
                        (IsName(column) || IsPlace(index.column()) ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::ForegroundRole:
        return isStale ? QVariant(QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text))
                       : QVariant();
    default:
        return {};
    }
}

QVariant FoundTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    {
        return {};
    }
    const Heading& heading = HeadingAt(section);
    const bool isLeast = heading.Id == FoundColumn::EffectiveCapacitance && question.At.HasWorst();
    return isLeast && !heading.Place ? QStringLiteral("Least") : WithDegreeSign(heading.Shown);
}

// ---- The order ----

void FoundTable::SortParts()
{
    SortFound(found.Parts, mdlPublic.Parts, order, GetCodeView());
}

void FoundTable::sort(int column, Qt::SortOrder direction)
{
    order = LeastBoard();
    if (column >= 0)
    {
        order.insert(order.begin(),
                     {.Column = ColumnAt(column), .Downwards = direction == Qt::DescendingOrder});
    }
    beginResetModel();
    // What is equal stands in the order of the part table.
    std::ranges::sort(found.Parts, {}, [](const FoundPart& part) { return &part.Part(); });
    SortParts();
    endResetModel();
}

// ---- Taking away ----

QString FoundTable::Copied(const std::vector<int>& rows) const
{
    std::vector<int> columns;
    QStringList line;
    for (int column = 0; column < columnCount(); ++column)
    {
        if (Applies(column))
        {
            const Heading& heading = HeadingAt(column);
            columns.push_back(column);
            line << WithDegreeSign(heading.Copied != nullptr ? heading.Copied : heading.Shown);
        }
    }
    QString text = line.join(u'\t') + u'\n';
    for (const int row : rows)
    {
        line.clear();
        for (const int column : columns)
        {
            const Heading& heading = HeadingAt(column);
            line << (heading.Place        ? FullPlace(PartAt(row), *heading.Place)
                     : IsName(heading.Id) ? NameAt(row, heading.Id)
                                          : FullValue(PartAt(row), heading.Id));
        }
        text += line.join(u'\t') + u'\n';
    }
    return text;
}
