#include "frame/CellTexts.h"

#include "app/mdlPublic.h"
#include "calc/NumberText.h"
#include "formkit/Texts.h"
#include "requests/FourDigits.h"

QString WithDegreeSign(const char* text)
{
    return QString::fromUtf8(text).replace(QStringLiteral("%1"), FromAnsi(mdlPublic.DegreeSign));
}

QVariant HeadingAlignment(bool isOfSentences)
{
    return QVariant(Qt::AlignVCenter | (isOfSentences ? Qt::AlignLeft : Qt::AlignHCenter));
}

QString CapacitanceText(float picofarads)
{
    constexpr int unitLength = 2;
    QString text = QString::fromStdString(CapacitanceInFourDigits(picofarads));
    text.insert(text.size() - unitLength, u' ');
    return text.replace(u'u', QChar(u'µ'));
}

QString ShownUnit(Quantity quantity)
{
    return FromAnsi(ShownUnitOf(quantity, mdlPublic.DegreeSign));
}

QString PlaceText(const std::array<float, 2>& conditions, const std::array<Quantity, 2>& quantities)
{
    const auto text = [&](std::size_t i)
    { return QString::fromStdString(FourDigits(conditions.at(i))) + u' ' + ShownUnit(quantities.at(i)); };
    return text(0) + QStringLiteral(", ") + text(1);
}

QString FullPlaceText(const std::array<float, 2>& conditions)
{
    return QString::fromStdString(NumberText(conditions[0]) + ", " + NumberText(conditions[1]));
}
