#include "frame/BomRows.h"

#include "board/BomText.h"
#include "board/References.h"
#include "calc/NumberText.h"
#include "frame/CellTexts.h"
#include "frame/VerdictLook.h"
#include "partdata/OneLine.h"
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
    const char* Shown;
    /// With the unit of full numbers, where the shown one has none.
    const char* Copied;
};

constexpr std::array<Heading, 8> headings = {{{"Verdict", nullptr},
                                              {"References", nullptr},
                                              {"Part", nullptr},
                                              {"Net", nullptr},
                                              {"Reserve [%]", nullptr},
                                              {"Least", "Least [pF]"},
                                              {"Rise [%1C]", nullptr},
                                              {"Reasons", nullptr}}};

QString Plain(const std::string& text)
{
    return QString::fromStdString(WithoutControls(text));
}

QString OrHyphen(const QString& text)
{
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QString Fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

std::optional<double> ValueOf(const JudgedItem& item, FoundColumn column)
{
    return item.Judged ? item.Judged->Figures.ValueOf(column) : std::nullopt;
}

/// "5.398 µF, 54.0 %" of what one part has at least.
QString ShownLeast(const JudgedItem& item)
{
    const auto least = ValueOf(item, FoundColumn::EffectiveCapacitance);
    const auto left = ValueOf(item, FoundColumn::Left);
    return least && left ? CapacitanceText(static_cast<float>(*least)) + QStringLiteral(", ") +
                               Fixed(*left, 1) + QStringLiteral(" %")
                         : QStringLiteral("-");
}

const BomLimit* RiseOf(const JudgedItem& item)
{
    if (!item.Judged)
    {
        return nullptr;
    }
    const auto& limits = item.Judged->Limits;
    const auto rise = std::ranges::find(limits, "rise", &BomLimit::Name);
    return rise == limits.end() ? nullptr : &*rise;
}

/// "0.33 of 20", the rise and what is permitted.
QString ShownRise(const JudgedItem& item)
{
    const auto* rise = RiseOf(item);
    return rise != nullptr ? QStringLiteral("%1 of %2")
                                 .arg(Fixed(rise->Found, 2),
                                      QString::fromStdString(FourDigits(static_cast<float>(rise->Wanted))))
                           : QStringLiteral("-");
}

QString Full(std::optional<double> value)
{
    return value ? QString::fromStdString(NumberText(static_cast<float>(*value))) : QString();
}

bool IsNumber(BomColumn column)
{
    return column >= BomColumn::Reserve && column <= BomColumn::Rise;
}

QString PlaceOfLeast(const JudgedItem& item)
{
    const auto at = item.Judged ? item.Judged->Figures.ConditionsAt(FoundPlace::Least) : std::nullopt;
    return at ? QStringLiteral("At ") + PlaceText(*at, {Quantity::DCVoltage, Quantity::Temperature})
              : QString();
}
} // namespace

void BomRows::SetAnswer(std::shared_ptr<const CheckedBom> answer, const BomSettings& judgedBy)
{
    beginResetModel();
    bom = std::move(answer);
    settings = judgedBy;
    isStale = false;
    endResetModel();
}

void BomRows::SetStale(bool stale)
{
    if (isStale != stale)
    {
        isStale = stale;
        if (rowCount() > 0)
        {
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                               {Qt::ForegroundRole, Qt::BackgroundRole});
        }
    }
}

std::vector<std::string> BomRows::ReferencesOf(int row) const
{
    const BomItem& item = *ItemAt(row).Item;
    return item.References.empty() ? std::vector{"line " + std::to_string(item.Line)} : item.References;
}

std::vector<int> BomRows::RowsOf(const std::set<std::string>& references) const
{
    std::vector<int> rows;
    for (int row = 0; !references.empty() && row < rowCount(); ++row)
    {
        const auto isOne = [&](const std::string& reference) { return references.contains(reference); };
        if (std::ranges::any_of(ReferencesOf(row), isOne))
        {
            rows.push_back(row);
        }
    }
    return rows;
}

int BomRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || bom == nullptr ? 0 : static_cast<int>(bom->Judged.Items.size());
}

int BomRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(headings.size());
}

QString BomRows::TextAt(const JudgedItem& item, BomColumn column) const
{
    switch (column)
    {
    case BomColumn::Verdict:
        return Plain(std::string(BomVerdictNames.at(static_cast<std::size_t>(item.Verdict))));
    case BomColumn::References:
        return OrHyphen(Plain(ReferenceText(item.Item->References)));
    case BomColumn::Part:
        return OrHyphen(Plain(item.Item->TextOf(BomField::Part)));
    case BomColumn::Net:
        return OrHyphen(Plain(item.Item->TextOf(BomField::Net)));
    case BomColumn::Reserve:
        return item.Reserve ? Fixed(*item.Reserve, 1) : QStringLiteral("-");
    case BomColumn::Least:
        return ShownLeast(item);
    case BomColumn::Rise:
        return ShownRise(item);
    default:
        return Plain(ReasonsText(item, settings));
    }
}

QString BomRows::FullTextAt(const JudgedItem& item, BomColumn column) const
{
    switch (column)
    {
    case BomColumn::Reserve:
        return Full(item.Reserve);
    case BomColumn::Least:
        return Full(ValueOf(item, FoundColumn::EffectiveCapacitance));
    case BomColumn::Rise:
        return Full(RiseOf(item) != nullptr ? std::optional(RiseOf(item)->Found) : std::nullopt);
    default:
        return TextAt(item, column);
    }
}

/// Where the value occurs, and all of what may be too long to be seen.
QString BomRows::TipAt(const JudgedItem& item, BomColumn column) const
{
    switch (column)
    {
    case BomColumn::Least:
        return PlaceOfLeast(item);
    case BomColumn::Reserve:
        return QString::fromStdString(item.Decides);
    case BomColumn::References:
    case BomColumn::Reasons:
        return TextAt(item, column);
    default:
        return {};
    }
}

QVariant BomRows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
    {
        return {};
    }
    const auto& item = ItemAt(index.row());
    const auto column = static_cast<BomColumn>(index.column());
    switch (role)
    {
    case Qt::DisplayRole:
        return TextAt(item, column);
    case Qt::ToolTipRole:
        return TipAt(item, column);
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ForegroundRole:
        if (isStale)
        {
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        }
        [[fallthrough]];
    default:
        return column == BomColumn::Verdict && !isStale ? VerdictLook(item.Verdict, role) : QVariant();
    }
}

QVariant BomRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
    {
        return HeadingAlignment(section == columnCount() - 1);
    }
    return orientation == Qt::Horizontal && role == Qt::DisplayRole
               ? WithDegreeSign(headings.at(static_cast<std::size_t>(section)).Shown)
               : QVariant();
}

QString BomRows::Copied(const std::vector<int>& rows) const
{
    QStringList line;
    for (const Heading& heading : headings)
    {
        line << WithDegreeSign(heading.Copied != nullptr ? heading.Copied : heading.Shown);
    }
    QString text = line.join(u'\t') + u'\n';
    for (const int row : rows)
    {
        line.clear();
        for (int column = 0; column < columnCount(); ++column)
        {
            line << FullTextAt(ItemAt(row), static_cast<BomColumn>(column));
        }
        text += line.join(u'\t') + u'\n';
    }
    return text;
}
