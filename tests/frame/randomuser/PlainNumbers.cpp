#include "tests/frame/randomuser/PlainNumbers.h"

#include <QLocale>
#include <QRegularExpression>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

/// A number as it is written in C, whatever locale the test runs in; infinite or zero when it does not fit.
static float SingleOf(const QByteArray& text)
{
    float value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc::result_out_of_range)
    {
        return value;
    }
    long double wide = 0;
    std::from_chars(text.data(), text.data() + text.size(), wide);
    constexpr float infinite = std::numeric_limits<float>::infinity();
    return std::abs(wide) < 1 ? 0 : wide < 0 ? -infinite : infinite;
}

std::optional<float> PlainEntry(const QString& text)
{
    static const QRegularExpression number(
        QStringLiteral("^ *([+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?) *$"));
    const bool commaIsDecimal = QLocale().decimalPoint() == QStringLiteral(",");
    const auto match = number.match(commaIsDecimal ? QString(text).replace(u',', u'.') : text);
    if (!match.hasMatch())
    {
        return std::nullopt;
    }
    const QByteArray entry = match.captured(1).toLatin1();
    return SingleOf(entry.startsWith('+') ? entry.mid(1) : entry);
}

/// The shortest digits of a value, its exponent taken off: "2.5" is "25" and 0. A value in the middle of two
/// such numbers is the even one.
static std::pair<QByteArray, int> ShortestDigits(float value)
{
    QByteArray text;
    for (int decimals = 0; decimals < 9; ++decimals)
    {
        std::array<char, 40> buffer{};
        const auto* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(double{value}),
                                        std::chars_format::scientific, decimals)
                              .ptr;
        text = QByteArray(buffer.data(), end - buffer.data());
        if (SingleOf(text) == std::abs(value))
        {
            break;
        }
    }
    const auto mark = text.indexOf('e');
    return {text.left(mark).replace(".", ""), text.mid(mark + 1).toInt()};
}

QString PlainText(float value)
{
    if (value == 0)
    {
        return QStringLiteral("0");
    }
    const auto [digits, exponent] = ShortestDigits(value);
    QByteArray text;
    if (exponent < -6 || exponent >= 15)
    {
        text = digits.left(1) + (digits.size() > 1 ? "." + digits.mid(1) : QByteArray()) + 'E' +
               (exponent < 0 ? '-' : '+') + QByteArray::number(std::abs(exponent)).rightJustified(2, '0');
    }
    else if (exponent < 0)
    {
        text = "0." + QByteArray(-exponent - 1, '0') + digits;
    }
    else
    {
        const QByteArray whole = digits.left(exponent + 1).leftJustified(exponent + 1, '0');
        const QByteArray fraction = digits.mid(exponent + 1);
        text = whole + (fraction.isEmpty() ? QByteArray() : "." + fraction);
    }
    return (value < 0 ? "-" : "") + QString::fromLatin1(text);
}

QString PlainPaneValue(float value)
{
    // Half a thousandth more, cut behind the third decimal, of the decimal that the single stands for.
    const auto thousandths = static_cast<qint64>(std::floor(PlainText(value).toDouble() * 1000 + 0.5 + 1e-9));
    QString text = QString::number(thousandths / 1000);
    const qint64 rest = thousandths % 1000;
    if (rest != 0)
    {
        QString fraction = QString::number(rest).rightJustified(3, u'0');
        while (fraction.endsWith(u'0'))
        {
            fraction.chop(1);
        }
        text = (text == "0" ? QString() : text) + "." + fraction;
    }
    return text;
}

bool NearlyEqual(float a, float b, float largest)
{
    return a == b || std::abs(double{a} - b) <= 1e-6 * std::abs(double{b}) + 1e-7 * std::abs(double{largest});
}
