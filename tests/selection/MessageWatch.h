#pragma once

/// Message boxes as a user meets them: read, and closed with OK.

#include <QObject>
#include <QStringList>
#include <QTimer>

/// Closes every message box that shows while it lives and keeps their texts.
class MessageWatch : public QObject
{
    Q_OBJECT

public:
    MessageWatch();

    /// The texts of the boxes shown since the last call, line breaks as "|"; a box without the program's
    /// title or the exclamation icon is told as such.
    QStringList Taken();

private:
    void Look();

    QTimer timer;
    QStringList texts;
};
