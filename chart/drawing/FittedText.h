#pragma once

/// A line of text that stands whole in a narrow place.

#include <QFontMetricsF>
#include <QPainter>
#include <QString>

/// A text fitted to the room for it: as it is where it has room, else condensed, and where that alone is not
/// enough also set smaller, as far as it can be read. What is longer still ends in an ellipsis.
///
/// It is measured once, when it is made; how often it is drawn does not matter.
class FittedText
{
public:
    FittedText() = default;
    /// @param metrics of the font that the painter has when the text is drawn
    FittedText(const QString& text, double room, const QFontMetricsF& metrics);

    /// Draws it from the left end of its baseline on, in the painter's font and pen.
    void Draw(QPainter& painter, const QPointF& baseline) const;

    /// True when it ends in an ellipsis.
    bool IsCut() const { return cut; }
    /// Extents of the letters against those of the font: 1, or less where they are condensed or smaller.
    double Across() const { return across; }
    double Upwards() const { return upwards; }

private:
    QString shown;
    double across = 1;
    double upwards = 1;
    bool cut = false;
};
