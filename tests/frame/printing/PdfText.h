#pragma once

/// Reads printed pages back: the words of a PDF file with their places, and its picture.

#include <QImage>
#include <QRectF>
#include <QString>

#include <utility>
#include <vector>

/// One word of a page. The box is in points from the upper left corner of the paper; it spans the font's
/// ascent and descent around the baseline.
struct PdfWord
{
    QString Text;
    QRectF Box;
};

struct PdfPage
{
    QSizeF Paper;
    std::vector<PdfWord> Words;

    /// Takes the words of a text off the page that begins within `tolerance` points of the place, and tells
    /// the place of its first word. Nothing is taken, and the place is null, when the text is not there whole
    /// and on one line.
    QPointF Take(const QString& text, const QPointF& leftTop, double tolerance);
};

/// All pages of a file; empty when it cannot be read.
std::vector<PdfPage> ReadPdf(const QString& fileName);

/// The title that a file bears in its description.
QString TitleOfPdf(const QString& fileName);

/// A stretch of the first page across its whole width, in shades of grey.
struct PdfStrip
{
    /// Dots per inch.
    int Resolution;
    QImage Picture;
    /// Height on the page of the uppermost row of dots.
    int Top;

    int Dots(double points) const;
    /// True when the dot in a column and row of the page is dark.
    bool IsDark(int x, int y) const;
    /// Ends of the longest run of dark dots between two columns of a row of the page.
    std::pair<int, int> LongestRun(int left, int right, int y) const;
};

/// @param top where the strip begins, in points, and how high it is
PdfStrip StripOfPdf(const QString& fileName, int resolution, double top, double height);
