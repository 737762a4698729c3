#include "frame/SettingsText.h"

#include <QIODevice>
#include <QStringList>

#include <algorithm>

static constexpr qint64 MostBytes = qint64{64} * 1024;

static int DigitOf(QChar c, int base)
{
    bool isDigit = false;
    const int digit = QString(c).toInt(&isDigit, base);
    return isDigit && c.unicode() < 0x80 && c.isLetterOrNumber() ? digit : -1;
}

/// Reads up to `most` digits from `at` on, and goes past them.
static QChar TakeCode(const QString& written, qsizetype& at, int base, int most)
{
    char16_t code = 0;
    for (int digit = 0; most > 0 && at < written.size() && (digit = DigitOf(written[at], base)) >= 0; --most)
    {
        code = static_cast<char16_t>(code * base + digit);
        ++at;
    }
    return code;
}

/// The character behind a backslash; `at` goes past it.
static QChar TakeEscaped(const QString& written, qsizetype& at)
{
    static const QString letters = QStringLiteral("abfnrtv");
    static const QString meanings = QStringLiteral("\a\b\f\n\r\t\v");
    const QChar letter = written[at];
    if (DigitOf(letter, 8) >= 0)
    {
        return TakeCode(written, at, 8, 3);
    }
    ++at;
    if (letter == u'x')
    {
        return TakeCode(written, at, 16, 4);
    }
    const auto known = letters.indexOf(letter);
    return known >= 0 ? meanings[known] : letter;
}

QString TextOfSetting(const QString& written)
{
    QString text;
    const QString trimmed = written.trimmed();
    for (qsizetype at = 0; at < trimmed.size();)
    {
        const QChar c = trimmed[at++];
        if (c == u'\\')
        {
            text += at < trimmed.size() ? TakeEscaped(trimmed, at) : c;
        }
        else if (c != u'"')
        {
            text += c;
        }
    }
    // A text that begins like the name of a type is told by a second sign.
    return text.startsWith(QStringLiteral("@@")) ? text.sliced(1) : text;
}

QString WrittenSetting(const QString& text)
{
    QString written = text.startsWith(u'@') ? QStringLiteral("\"@") : QStringLiteral("\"");
    bool isBehindCode = false;
    for (const QChar c : text)
    {
        const bool isControl = c.unicode() < 0x20 || c.unicode() == 0x7F || c.isSurrogate();
        // A digit would be taken for part of the code before it.
        const bool needsCode = isControl || (isBehindCode && DigitOf(c, 16) >= 0);
        if (needsCode)
        {
            written += QStringLiteral("\\x%1").arg(static_cast<uint>(c.unicode()), 0, 16);
        }
        else
        {
            written += c == u'"' || c == u'\\' ? QStringLiteral("\\") + c : QString(c);
        }
        isBehindCode = needsCode;
    }
    return written + u'"';
}

static bool ReadSettings(QIODevice& file, QSettings::SettingsMap& settings)
{
    QString group = QStringLiteral("General");
    const auto lines = QString::fromUtf8(file.read(MostBytes)).replace(u'\r', u'\n').split(u'\n');
    for (const QString& line : lines)
    {
        const QString trimmed = line.trimmed();
        const auto equals = trimmed.indexOf(u'=');
        if (trimmed.startsWith(u'['))
        {
            group = trimmed.sliced(1, std::max<qsizetype>(trimmed.indexOf(u']'), 1) - 1).trimmed();
        }
        else if (equals > 0 && !trimmed.startsWith(u';'))
        {
            const QString key = group + u'/' + trimmed.first(equals).trimmed();
            settings.insert(key, TextOfSetting(trimmed.sliced(equals + 1)));
        }
    }
    return true;
}

static bool WriteSettings(QIODevice& file, const QSettings::SettingsMap& settings)
{
    QString text;
    QString group;
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
    {
        const QString of = setting.key().section(u'/', 0, 0);
        if (text.isEmpty() || of != group)
        {
            group = of;
            text += u'[' + group + QStringLiteral("]\n");
        }
        text += setting.key().section(u'/', 1) + u'=' + WrittenSetting(setting.value().toString()) + u'\n';
    }
    const QByteArray bytes = text.toUtf8();
    return file.write(bytes) == bytes.size();
}

QSettings::Format SettingsText()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("conf"), ReadSettings, WriteSettings);
    return format;
}
