#pragma once

/// Writing a file so that it is the old or the new one, never half of either.

#include <QByteArray>
#include <QSaveFile>
#include <QString>

/// True for a device, a pipe and the like: there is nothing to put a file in the place of.
bool IsSpecialFile(const QString& file);

/// A file that is written beside its target and put in the target's place by `Commit`. Without a commit, and
/// whatever goes wrong on the way, a file that stood there is as it was.
///
/// Every step throws RunTimeError with the file's name: 76 for a folder that is not there, 70 without
/// permission, 61 when the disk is full, 75 for anything else, a special file included.
class WholeFile
{
public:
    explicit WholeFile(const QString& file);
    void Write(QByteArrayView piece);
    void Commit();

private:
    [[noreturn]] void Fail() const;

    QSaveFile writer;
};

/// Writes all of a file at once; see `WholeFile`.
void WriteWholeFile(const QString& file, const QByteArray& contents);
