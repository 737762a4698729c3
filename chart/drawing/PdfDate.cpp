#include "chart/drawing/PdfDate.h"

#include <QDateTime>

#include <optional>
#include <stdexcept>
#include <string>

static std::optional<QDateTime> SourceDate()
{
    static constexpr const char* variable = "SOURCE_DATE_EPOCH";
    /// The last second with a year of four digits.
    constexpr qint64 latest = 253402300799;
    if (!qEnvironmentVariableIsSet(variable))
    {
        return std::nullopt;
    }
    bool isNumber = false;
    const auto text = qgetenv(variable);
    const qint64 seconds = text.toLongLong(&isNumber);
    if (!isNumber || seconds < 0 || seconds > latest)
    {
        throw std::runtime_error(std::string(variable) + " \"" + text.toStdString() +
                                 "\" is no time in seconds since 1970");
    }
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

QByteArray PdfOfSourceDate(const std::function<QByteArray()>& draw)
{
    const auto date = SourceDate();
    if (!date)
    {
        return draw();
    }
    // A date with another zone is longer, which would move all that follows.
    qputenv("TZ", "UTC");
    auto pdf = draw();
    const QByteArray begin = "/CreationDate (D:";
    const auto digits = date->toString(u"yyyyMMddhhmmss").toLatin1();
    if (const auto place = pdf.indexOf(begin); place >= 0)
    {
        pdf.replace(place + begin.size(), digits.size(), digits);
    }
    return pdf;
}
