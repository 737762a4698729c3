#include "frame/HelpBook.h"

#include "files/InputFile.h"
#include "partdata/RunTimeError.h"

#include <QStringDecoder>

#include <filesystem>

static RunTimeError NoBook(const std::string& name, const char* reason)
{
    return RunTimeError(RunTimeErrorNumber::PathFileAccessError, "The help file " + name + ' ' + reason)
        .At(name);
}

QString ReadHelpBook(const QString& file)
{
    InputFile input{std::filesystem::path(file.toStdU16String())};
    if (input.Size() == 0)
    {
        throw NoBook(input.Name(), "is empty.");
    }
    if (input.Size() > static_cast<std::uintmax_t>(LargestHelpBook))
    {
        throw NoBook(input.Name(), "is too large.");
    }
    QByteArray bytes(static_cast<qsizetype>(input.Size()), '\0');
    const auto count = input.Read(std::span(bytes.data(), static_cast<std::size_t>(bytes.size())));
    bytes.truncate(static_cast<qsizetype>(count));

    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(bytes);
    const bool isText = !utf8.hasError() && !text.contains(QChar(u'\0'));
    const bool isHtml = text.contains(QStringLiteral("<body"), Qt::CaseInsensitive) ||
                        text.contains(QStringLiteral("<html"), Qt::CaseInsensitive);
    if (!isText || !isHtml)
    {
        throw NoBook(input.Name(), "is not a help file.");
    }
    return text;
}
