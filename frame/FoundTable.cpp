#include "frame/FoundTable.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/NumberText.h"
#include "formkit/Texts.h"
#include "requests/FourDigits.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>

namespace
{
/// One column as it is headed. A degree sign stands as "%1".
struct Heading
{
    FoundColumn Id;
    const char* Shown;
    /// With the unit of full numbers, where the shown one has none.
    const char* Copied;
};

constexpr std::array<Heading, FoundColumnCount> headings = {{
    {FoundColumn::Part, "Part number", nullptr},
    {FoundColumn::Size, "Size", nullptr},
    {FoundColumn::Characteristic, "TCC", nullptr},
    {FoundColumn::Capacitance, "Nominal", "Nominal [pF]"},
    {FoundColumn::RatedVoltage, "Rated [V]", nullptr},
    {FoundColumn::EffectiveCapacitance, "Effective", "Effective [pF]"},
    {FoundColumn::MostCapacitance, "Most", "Most [pF]"},
    {FoundColumn::Left, "Left [%]", nullptr},
    {FoundColumn::Count, "No.", nullptr},
    {FoundColumn::Total, "Total", "Total [pF]"},
    {FoundColumn::Area, "Area [mm²]", nullptr},
    {FoundColumn::Rise, "Rise [%1C]", nullptr},
    {FoundColumn::Margin, "Margin [%1C]", nullptr},
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

QString WithDegreeSign(const char* text)
{
    return QString::fromUtf8(text).replace(QStringLiteral("%1"), FromAnsi(mdlPublic.DegreeSign));
}

bool IsName(FoundColumn column)
{
    return column <= FoundColumn::Characteristic;
}

/// "10.46 µF".
QString CapacitanceText(float picofarads)
{
    constexpr int unitLength = 2;
    QString text = QString::fromStdString(CapacitanceInFourDigits(picofarads));
    text.insert(text.size() - unitLength, u' ');
    return text.replace(u'u', QChar(u'µ'));
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

FoundColumn FoundTable::ColumnAt(int column)
{
    return HeadingAt(column).Id;
}

bool FoundTable::Applies(int column) const
{
    const FoundColumn id = ColumnAt(column);
    const bool isWorst = id == FoundColumn::MostCapacitance || id == FoundColumn::Margin;
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
        return IsName(column) ? NameAt(index.row(), column) : ShownValue(PartAt(index.row()), column);
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (IsName(column) ? Qt::AlignLeft : Qt::AlignRight));
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
    return WithDegreeSign(HeadingAt(section).Shown);
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
            const FoundColumn id = ColumnAt(column);
            line << (IsName(id) ? NameAt(row, id) : FullValue(PartAt(row), id));
        }
        text += line.join(u'\t') + u'\n';
    }
    return text;
}
