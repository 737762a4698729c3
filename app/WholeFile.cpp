#include "app/WholeFile.h"

#include "partdata/RunTimeError.h"

#include <QFileInfo>
#include <QSaveFile>

static RunTimeErrorNumber NumberOf(const QSaveFile& writer, const QFileInfo& target)
{
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
    {
        return RunTimeErrorNumber::PathNotFound;
    }
    if (writer.error() == QFileDevice::ResourceError)
    {
        return RunTimeErrorNumber::DiskFull;
    }
    if (writer.error() == QFileDevice::PermissionsError || !folder.isWritable() ||
        (target.isFile() && !target.isWritable()))
    {
        return RunTimeErrorNumber::PermissionDenied;
    }
    return RunTimeErrorNumber::PathFileAccessError;
}

void WriteWholeFile(const QString& file, const QByteArray& contents)
{
    QSaveFile writer(file);
    const bool written =
        writer.open(QIODevice::WriteOnly) && writer.write(contents) == contents.size() && writer.commit();
    if (!written)
    {
        throw RunTimeError(NumberOf(writer, QFileInfo(file))).At(file.toStdString());
    }
}
