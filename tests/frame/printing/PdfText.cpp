#include "tests/frame/printing/PdfText.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

static double Number(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1String(name)).toDouble();
}

std::vector<PdfPage> ReadPdf(const QString& fileName)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), fileName, QStringLiteral("-")});
    reader.waitForFinished();
    std::vector<PdfPage> pages;
    QXmlStreamReader xml(reader.readAllStandardOutput());
    while (!xml.atEnd())
    {
        if (xml.readNext() != QXmlStreamReader::StartElement)
        {
            continue;
        }
        if (xml.name() == QLatin1String("page"))
        {
            pages.push_back({{Number(xml, "width"), Number(xml, "height")}, {}});
        }
        else if (xml.name() == QLatin1String("word"))
        {
            const QRectF box({Number(xml, "xMin"), Number(xml, "yMin")},
                             QPointF(Number(xml, "xMax"), Number(xml, "yMax")));
            pages.back().Words.push_back({xml.readElementText(), box});
        }
    }
    return pages;
}

QString TitleOfPdf(const QString& fileName)
{
    QProcess reader;
    reader.start(QStringLiteral("pdfinfo"), {QStringLiteral("-enc"), QStringLiteral("UTF-8"), fileName});
    reader.waitForFinished();
    for (const auto& line : QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n'))
    {
        if (line.startsWith(QLatin1String("Title:")))
        {
            return line.section(u':', 1).trimmed();
        }
    }
    return {};
}

QPointF PdfPage::Take(const QString& text, const QPointF& leftTop, double tolerance)
{
    const auto parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<std::size_t> found;
    for (const auto& part : parts)
    {
        const auto fits = [&](const PdfWord& word)
        {
            if (word.Text != part)
            {
                return false;
            }
            const auto place = word.Box.topLeft();
            if (found.empty())
            {
                return std::abs(place.x() - leftTop.x()) <= tolerance &&
                       std::abs(place.y() - leftTop.y()) <= tolerance;
            }
            const auto& former = Words[found.back()].Box;
            const auto gap = place.x() - former.right();
            return std::abs(place.y() - former.top()) < 0.1 && gap > 0 && gap < former.height();
        };
        const auto word = std::ranges::find_if(Words, fits);
        if (word == Words.end())
        {
            return {};
        }
        found.push_back(static_cast<std::size_t>(word - Words.begin()));
    }
    const auto place = Words[found.front()].Box.topLeft();
    std::ranges::sort(found, std::greater());
    for (const auto index : found)
    {
        Words.erase(Words.begin() + static_cast<std::ptrdiff_t>(index));
    }
    return place;
}

int PdfStrip::Dots(double points) const
{
    return static_cast<int>(std::lround(points * Resolution / 72));
}

bool PdfStrip::IsDark(int x, int y) const
{
    return Picture.valid(x, y - Top) && qGray(Picture.pixel(x, y - Top)) < 128;
}

std::pair<int, int> PdfStrip::LongestRun(int left, int right, int y) const
{
    std::pair<int, int> longest(left, left);
    int start = left;
    for (int x = left; x <= right; ++x)
    {
        if (!IsDark(x, y))
        {
            start = x + 1;
        }
        else if (x + 1 - start > longest.second - longest.first)
        {
            longest = {start, x + 1};
        }
    }
    return longest;
}

PdfStrip StripOfPdf(const QString& fileName, int resolution, double top, double height)
{
    const QTemporaryDir folder;
    const auto picture = folder.filePath(QStringLiteral("page"));
    PdfStrip strip = {resolution, {}, 0};
    strip.Top = strip.Dots(top);
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {"-png", "-singlefile", "-r", QString::number(resolution), "-y",
                       QString::number(strip.Top), "-H", QString::number(strip.Dots(height)), "-x", "0", "-W",
                       QString::number(resolution * 9), fileName, picture});
    strip.Picture = QImage(picture + QStringLiteral(".png"));
    return strip;
}
