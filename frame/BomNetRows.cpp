#include "frame/BomNetRows.h"

#include "frame/CellTexts.h"
#include "frame/VerdictLook.h"
#include "partdata/OneLine.h"
#include "requests/FourDigits.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>
#include <utility>

namespace
{
enum Column
{
    Verdict,
    Net,
    Reserve,
    Parts,
    Nominal,
    Least,
    LeastAt,
    Wanted,
    Shared,
    Reason,
};

constexpr std::array headings = {"Verdict", "Net", "Reserve [%]", "Parts",         "Nominal",
                                 "Least",   "At",  "Wanted",      "Shared [Arms]", "Reasons"};

QString Plain(const std::string& text)
{
    return QString::fromStdString(WithoutControls(text));
}

template <class Value, class Text> QString TextOr(const std::optional<Value>& value, Text text)
{
    return value ? text(static_cast<float>(*value)) : QStringLiteral("-");
}

QString Digits(float value)
{
    return QString::fromStdString(FourDigits(value));
}

int PartsOf(const JudgedNet& net)
{
    int count = 0;
    for (const NetPiece& piece : net.Pieces)
    {
        count += piece.Count;
    }
    return count;
}

/// "13.2 V, -10 °C".
QString PlaceOf(const NetAnswer& answer)
{
    return answer.Least ? PlaceText({static_cast<float>(answer.LeastAt.BiasVolts),
                                     static_cast<float>(answer.LeastAt.AmbientC)},
                                    {Quantity::DCVoltage, Quantity::Temperature})
                        : QStringLiteral("-");
}

QString TextOf(const JudgedNet& net, int column)
{
    switch (column)
    {
    case Verdict:
        return Plain(std::string(BomVerdictNames.at(static_cast<std::size_t>(net.Verdict))));
    case Net:
        return Plain(net.Name);
    case Reserve:
        return TextOr(net.Reserve, [](float value) { return QString::number(value, 'f', 1); });
    case Parts:
        return QString::number(PartsOf(net));
    case Nominal:
        return TextOr(net.Answer.Least ? std::optional(net.Answer.Nominal) : std::nullopt, CapacitanceText);
    case Least:
        return TextOr(net.Answer.Least, CapacitanceText);
    case LeastAt:
        return PlaceOf(net.Answer);
    case Wanted:
        return TextOr(net.Wanted, CapacitanceText);
    case Shared:
        return TextOr(net.Answer.Arms, Digits);
    default:
        return Plain(net.Reason);
    }
}

bool IsNumber(int column)
{
    return column >= Reserve && column <= Shared && column != LeastAt;
}
} // namespace

void BomNetRows::SetAnswer(std::shared_ptr<const CheckedBom> answer)
{
    beginResetModel();
    bom = std::move(answer);
    isStale = false;
    endResetModel();
}

void BomNetRows::SetStale(bool stale)
{
    if (std::exchange(isStale, stale) != stale && rowCount() > 0)
    {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::ForegroundRole, Qt::BackgroundRole});
    }
}

int BomNetRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || bom == nullptr ? 0 : static_cast<int>(bom->Judged.Nets.size());
}

int BomNetRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(headings.size());
}

QVariant BomNetRows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
    {
        return {};
    }
    const auto& net = bom->Judged.Nets[static_cast<std::size_t>(index.row())];
    const int column = index.column();
    switch (role)
    {
    case Qt::DisplayRole:
        return TextOf(net, column);
    case Qt::ToolTipRole:
        return column == Reason || column == Net ? TextOf(net, column) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ForegroundRole:
        if (isStale)
        {
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        }
        [[fallthrough]];
    default:
        return column == Verdict && !isStale ? VerdictLook(net.Verdict, role) : QVariant();
    }
}

QVariant BomNetRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
    {
        return HeadingAlignment(section == Reason);
    }
    return orientation == Qt::Horizontal && role == Qt::DisplayRole
               ? QString::fromUtf8(headings.at(static_cast<std::size_t>(section)))
               : QVariant();
}
