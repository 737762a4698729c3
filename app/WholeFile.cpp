#include "app/WholeFile.h"

#include "partdata/RunTimeError.h"

#include <QFileInfo>

static RunTimeErrorNumber NumberOf(const QSaveFile& writer, const QFileInfo& target)
{
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
    {
        return RunTimeErrorNumber::PathNotFound;
    }
    // A write that ends early without an error has filled the disk.
    const bool endedEarly = writer.isOpen() && writer.error() == QFileDevice::NoError;
    if (endedEarly || writer.error() == QFileDevice::ResourceError)
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

bool IsSpecialFile(const QString& file)
{
    const QFileInfo target(file);
    return target.exists() && !target.isFile() && !target.isDir();
}

WholeFile::WholeFile(const QString& file)
    : writer(file)
{
    // A device or pipe would be replaced by a file of its name.
    if (IsSpecialFile(file) || !writer.open(QIODevice::WriteOnly))
    {
        Fail();
    }
}

void WholeFile::Write(QByteArrayView piece)
{
    if (writer.write(piece.data(), piece.size()) != piece.size())
    {
        Fail();
    }
}

void WholeFile::Commit()
{
    // What is still in the buffer when the file takes its place could fail unnoticed.
    if (!writer.flush() || !writer.commit())
    {
        Fail();
    }
}

void WholeFile::Fail() const
{
    throw RunTimeError(NumberOf(writer, QFileInfo(writer.fileName()))).At(writer.fileName().toStdString());
}

void WriteWholeFile(const QString& file, const QByteArray& contents)
{
    WholeFile whole(file);
    whole.Write(contents);
    whole.Commit();
}
