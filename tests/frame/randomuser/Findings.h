#pragma once

/// What differs between the screen and the plain model.

#include <QDebug>
#include <QStringList>

class Findings
{
public:
    /// Notes a difference between what is shown and what is told by the model.
    template <class Value> void Same(const QString& what, const Value& shown, const Value& told)
    {
        if (!(shown == told))
        {
            QString text;
            QDebug(&text).noquote() << what << "is" << shown << "instead of" << told;
            list << text;
        }
    }

    void Check(bool holds, const QString& what)
    {
        if (!holds)
        {
            list << what;
        }
    }

    bool Any() const { return !list.isEmpty(); }
    /// The first few; the rest mostly follows from them.
    QString Text() const { return list.mid(0, 8).join('\n'); }

private:
    QStringList list;
};
