#include "chart/drawing/ChartPage.h"

#include "partdata/RunTimeError.h"
#include "tests/frame/printing/PdfText.h"
#include "tests/frame/printing/SamplePages.h"

#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cmath>
#include <optional>
#include <set>

/// Prints chart pages to PDF and reads them back.
class ChartPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void HoldsTableAndTitlesInTheirPlaces_data();
    void HoldsTableAndTitlesInTheirPlaces();
    void NoTextTouchesAnotherOrLeavesThePage_data();
    void NoTextTouchesAnotherOrLeavesThePage();
    void ColumnsWithoutEntriesAreAsNarrowAsTheirHeadings();
    void RowsAreAsManyAsLines();
    void LinesOfOtherChartsAreLeftOut();
    void PiecesOfLinesDiffer_data();
    void PiecesOfLinesDiffer();
    void ShrinksToANarrowPage();
    void ZeroAsLargestValueIsShown();

private:
    QString Print(const std::vector<ChartRecord>& lines, QPageSize::PageSizeId paper,
                  SurfaceKind kind = SurfaceKind::ColorPrinter);
    PdfPage PrintAndRead(const std::vector<ChartRecord>& lines, QPageSize::PageSizeId paper = QPageSize::A4,
                         SurfaceKind kind = SurfaceKind::ColorPrinter);

    QTemporaryDir folder;
};

namespace
{

/// Margins of 5 mm, in points.
constexpr double margin = 5 / 25.4 * 72;

/// Takes a text by the upper left corner of its box, in twips from the corner of the printable area.
bool TakeAt(PdfPage& page, const QString& text, double x, double y)
{
    const auto place = page.Take(text, QPointF(margin, margin) + QPointF(x, y) / 20, 0.5);
    if (place.isNull())
    {
        qWarning("no \"%s\" at (%g, %g)", qPrintable(text), x, y);
    }
    return !place.isNull();
}

/// Takes a text whose line is so many twips below the upper edge of the printable area, wherever it begins,
/// and tells where, in twips; nothing when it is not there. A text that is set smaller begins up to 2.5
/// points lower.
std::optional<double> TakeInLine(PdfPage& page, const QString& text, double y)
{
    const auto first = text.section(u' ', 0, 0);
    for (const auto& word : std::vector(page.Words))
    {
        const auto below = word.Box.top() - margin - y / 20;
        if (word.Text == first && below > -0.5 && below < 2.5 &&
            !page.Take(text, word.Box.topLeft(), 0.01).isNull())
        {
            return (word.Box.left() - margin) * 20;
        }
    }
    qWarning("no \"%s\" at a height of %g", qPrintable(text), y);
    return std::nullopt;
}

constexpr double headingTop = 8660;

/// One row of the table by column; the line column has no text.
using Cells = std::array<QString, 9>;

/// Left ends of the columns in twips.
using Lefts = std::array<double, 9>;

struct Row
{
    ChartKey Chart;
    QString XTitle;
    QString YUnit;
    /// Of the second line. Its parameter is a voltage where the chart has one.
    Cells SecondLine;
};

std::vector<Row> Rows()
{
    const QString degrees = QStringLiteral("[°C]");
    const Cells overLoad = {"2", "", "KTU155R72A681KA01", "2.5", "46.93", "-55", "", "0.1234", ""};
    const Cells overFrequency = {
        "2", "", "KTU155R72A681KA01", "2.5", "46.93", "-55", "Voltage 0.000012345678[Vrms]", "", ""};
    const Cells power = {"2", "", "KTU155R72A681KA01", "2.5", "46.93", "-55", "", "", "1234567.9"};
    const Cells bias = {"2", "", "KTU155R72A681KA01", "2.5", "", "", "", "", ""};
    const Cells ambient = {"2", "", "KTU155R72A681KA01", "", "", "-55", "", "", ""};
    return {
        {{0, "Current", "Temperature Rise"}, "Current [Arms]", degrees, overLoad},
        {{0, "Voltage", "Temperature Rise"}, "Voltage [Vrms]", degrees, overLoad},
        {{0, "Apparent Power", "Temperature Rise"}, "Apparent Power [VA]", degrees, overLoad},
        {{0, "Effective Power", "Temperature Rise"}, "Effective Power [W]", degrees, overLoad},
        {{0, "Frequency", "Temperature Rise"}, "Frequency [kHz]", degrees, overFrequency},
        {{1, "Frequency", "Current"}, "Frequency [kHz]", "[Arms]", power},
        {{1, "Frequency", "Voltage"}, "Frequency [kHz]", "[Vrms]", power},
        {{1, "Frequency", "Apparent Power"}, "Frequency [kHz]", "[VA]", power},
        {{1, "Frequency", "Effective Power"}, "Frequency [kHz]", "[W]", power},
        {{2, "Temperature", "Capacitance"}, "Temperature [°C]", "[pF]", bias},
        {{2, "Temperature", "Capacitance Change"}, "Temperature [°C]", "[%]", bias},
        {{3, "DC Bias Voltage", "Capacitance"}, "DC Bias Voltage [V]", "[pF]", ambient},
        {{3, "DC Bias Voltage", "Capacitance Change"}, "DC Bias Voltage [V]", "[%]", ambient},
    };
}

void AddPapers(const ChartKey& chart, std::size_t row)
{
    for (const auto paper : {QPageSize::A4, QPageSize::Letter})
    {
        const auto name = QString::fromStdString(chart.XAxisName + ", " + chart.YAxisName + " on ") +
                          QPageSize::name(paper) + ' ' + QString::number(chart.ChartType);
        QTest::newRow(qPrintable(name)) << row << static_cast<int>(paper);
    }
}

/// Takes the headings, whole on one line and in order, and tells where the columns begin; nothing when one is
/// missing.
std::optional<Lefts> TakeHeadings(PdfPage& page, const QString& yUnit)
{
    const Cells headings = {"No.",
                            "Line",
                            "Halvex Part Number",
                            "DC Bias Voltage[V]",
                            "Heat Resistance[°C/W]",
                            "Ambient Temperature[°C]",
                            "Parameter",
                            "Frequency[MHz]",
                            "Max " + yUnit};
    Lefts lefts{};
    for (std::size_t i = 0; i < headings.size(); ++i)
    {
        const auto left = TakeInLine(page, headings[i], headingTop);
        if (!left || (i > 0 && *left <= lefts[i - 1]))
        {
            return std::nullopt;
        }
        lefts[i] = *left;
    }
    return lefts;
}

/// Takes the cells of a row, each where its column begins.
bool TakeRow(PdfPage& page, const Lefts& lefts, const Cells& cells, double y)
{
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        const auto left = cells[i].isEmpty() ? lefts[i] : TakeInLine(page, cells[i], y);
        if (!left || std::abs(*left - lefts[i]) > 10)
        {
            return false;
        }
    }
    return true;
}

} // namespace

QString ChartPageTest::Print(const std::vector<ChartRecord>& lines, QPageSize::PageSizeId paper,
                             SurfaceKind kind)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(paper));
    printer.setOutputFileName(folder.filePath(QStringLiteral("page.pdf")));
    PrintPage(printer, ChartPageOf(lines, kind));
    return printer.outputFileName();
}

PdfPage ChartPageTest::PrintAndRead(const std::vector<ChartRecord>& lines, QPageSize::PageSizeId paper,
                                    SurfaceKind kind)
{
    const auto pages = ReadPdf(Print(lines, paper, kind));
    return pages.size() == 1 ? pages.front() : PdfPage{};
}

void ChartPageTest::HoldsTableAndTitlesInTheirPlaces_data()
{
    QTest::addColumn<std::size_t>("row");
    QTest::addColumn<int>("paper");
    const auto rows = Rows();
    QCOMPARE(rows.size(), AllCharts().size());
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        AddPapers(rows[i].Chart, i);
    }
}

void ChartPageTest::HoldsTableAndTitlesInTheirPlaces()
{
    QFETCH(std::size_t, row);
    QFETCH(int, paper);
    const auto expected = Rows().at(row);
    auto page = PrintAndRead(SixLines(expected.Chart), static_cast<QPageSize::PageSizeId>(paper));
    QVERIFY(!page.Words.empty());

    QVERIFY(TakeAt(page, "Halvex Chip Capacitor Characteristics Data Library  11/21/26", 200, 150));
    const auto lefts = TakeHeadings(page, expected.YUnit);
    QVERIFY(lefts);
    QVERIFY(std::abs((*lefts)[0] - 200) < 10);
    // The second of the six rows from 8950 to 10450.
    QVERIFY(TakeRow(page, *lefts, expected.SecondLine, 9250));
    std::erase_if(page.Words,
                  [&](const PdfWord& word)
                  {
                      const auto y = (word.Box.top() - margin) * 20;
                      return y > 8940 && std::abs(y - 9250) > 100;
                  });
    // One user unit of the chart is 8400 / 126 twips wide and 6750 / 122 high; its corner (-21, 107) is at
    // (1300, 1250). A text begins at its upper edge.
    const auto x = [](double units) { return 1300 + (units + 21) * 8400 / 126; };
    const auto y = [](double units) { return 1250 + (107 - units) * 6750 / 122; };
    QVERIFY(TakeAt(page, expected.XTitle, x(35), y(-7)));
    QVERIFY(TakeAt(page, expected.YUnit, x(0), y(107.5)));
    if (expected.Chart.ChartType == 0)
    {
        QVERIFY(TakeAt(page, "-Recommendation of temp. Rise is within 20[°C]-", x(10), y(107.3)));
    }
    // What is left in the table's part of the page has no business there.
    for (const auto& word : page.Words)
    {
        QVERIFY2((word.Box.bottom() - margin) * 20 < 8000, qPrintable(word.Text));
    }
}

void ChartPageTest::NoTextTouchesAnotherOrLeavesThePage_data()
{
    HoldsTableAndTitlesInTheirPlaces_data();
}

void ChartPageTest::NoTextTouchesAnotherOrLeavesThePage()
{
    QFETCH(std::size_t, row);
    QFETCH(int, paper);
    const auto page = PrintAndRead(SixLines(Rows().at(row).Chart), static_cast<QPageSize::PageSizeId>(paper));
    const QRectF printable(QPointF(margin, margin),
                           QPointF(page.Paper.width() - margin, page.Paper.height() - margin));
    for (std::size_t i = 0; i < page.Words.size(); ++i)
    {
        const auto& word = page.Words[i];
        QVERIFY2(printable.contains(word.Box), qPrintable(word.Text));
        for (std::size_t j = 0; j < i; ++j)
        {
            const auto touching = word.Text + " and " + page.Words[j].Text;
            QVERIFY2(!word.Box.intersects(page.Words[j].Box), qPrintable(touching));
        }
    }
}

void ChartPageTest::ColumnsWithoutEntriesAreAsNarrowAsTheirHeadings()
{
    const auto page = PrintAndRead(SixLines({3, "DC Bias Voltage", "Capacitance"}));
    auto rest = page;
    const auto lefts = TakeHeadings(rest, "[pF]");
    QVERIFY(lefts);
    const auto endOf = [&](const QString& word)
    {
        const auto found = std::ranges::find_if(
            page.Words, [&](const PdfWord& printed)
            { return printed.Text == word && printed.Box.top() > margin + 8600.0 / 20; });
        return found == page.Words.end() ? 0.0 : (found->Box.right() - margin) * 20;
    };
    // These lines have an ambient temperature alone. Behind an empty column stands the gap of all columns.
    for (const auto& [column, lastWord] :
         {std::pair{3, "Voltage[V]"}, {4, "Resistance[°C/W]"}, {6, "Parameter"}, {7, "Frequency[MHz]"}})
    {
        const auto gap = (*lefts)[static_cast<std::size_t>(column) + 1] - endOf(lastWord);
        QVERIFY2(gap > 60 && gap < 160, qPrintable(QStringLiteral("%1 %2").arg(lastWord).arg(gap)));
    }
    // The last column ends with the table.
    QVERIFY(std::abs(endOf("[pF]") - 11000) < 60);
}

void ChartPageTest::RowsAreAsManyAsLines()
{
    auto lines = SixLines({3, "DC Bias Voltage", "Capacitance"});
    auto all = PrintAndRead(lines);
    lines.resize(2);
    auto two = PrintAndRead(lines);
    for (int i = 0; i < 6; ++i)
    {
        QVERIFY(TakeAt(all, QString::number(i + 1), 200, 8950 + 300 * i));
        QVERIFY(TakeInLine(all, QStringLiteral("KTU155R72A68%1KA01").arg(i), 8950 + 300 * i));
        if (i < 2)
        {
            QVERIFY(TakeAt(two, QString::number(i + 1), 200, 8950 + 300 * i));
            QVERIFY(TakeInLine(two, QStringLiteral("KTU155R72A68%1KA01").arg(i), 8950 + 300 * i));
        }
    }
    for (const auto& word : two.Words)
    {
        QVERIFY2((word.Box.top() - margin) * 20 < 9350, qPrintable(word.Text));
    }
}

void ChartPageTest::LinesOfOtherChartsAreLeftOut()
{
    auto lines = SixLines({3, "DC Bias Voltage", "Capacitance"});
    lines.resize(2);
    lines[1].YAxisName = "Capacitance Change";
    lines.push_back(SixLines({3, "DC Bias Voltage", "Capacitance"})[4]);
    auto page = PrintAndRead(lines);
    QVERIFY(TakeInLine(page, "KTU155R72A680KA01", 8950));
    QVERIFY(TakeInLine(page, "KTU155R72A684KA01", 9250));
    for (const auto& word : page.Words)
    {
        QVERIFY2((word.Box.top() - margin) * 20 < 9350, qPrintable(word.Text));
    }
}

void ChartPageTest::PiecesOfLinesDiffer_data()
{
    QTest::addColumn<ChartKey>("chart");
    QTest::addColumn<bool>("monochrome");
    const ChartKey current = {0, "Current", "Temperature Rise"};
    // The table with the widest texts.
    const ChartKey frequency = {0, "Frequency", "Temperature Rise"};
    QTest::newRow("by colour") << current << false;
    QTest::newRow("by dashes on a monochrome printer") << current << true;
    QTest::newRow("by dashes beside condensed columns") << frequency << true;
}

void ChartPageTest::PiecesOfLinesDiffer()
{
    QFETCH(ChartKey, chart);
    QFETCH(bool, monochrome);
    const auto file = Print(SixLines(chart), QPageSize::A4,
                            monochrome ? SurfaceKind::MonochromePrinter : SurfaceKind::ColorPrinter);
    const auto strip = StripOfPdf(file, 600, margin + 8950.0 / 20, 95);
    QVERIFY(!strip.Picture.isNull());
    auto page = ReadPdf(file).at(0);
    const auto lefts = TakeHeadings(page, "[°C]");
    QVERIFY(lefts);
    const auto left = strip.Dots(margin + (*lefts)[1] / 20);
    const auto right = strip.Dots(margin + ((*lefts)[2] - 80) / 20);

    // Each line by the lengths of its dashes, in tenths of a millimetre, and by its colour.
    std::set<std::vector<int>> dashes;
    std::set<QRgb> colors;
    for (int i = 0; i < 6; ++i)
    {
        const auto y = strip.Dots(margin + (8950 + 300 * i + 100) / 20.0) - strip.Top;
        std::vector<int> lengths;
        int length = 0;
        for (int x = left; x < right; ++x)
        {
            const auto color = strip.Picture.pixel(x, y);
            const bool drawn = color != qRgb(255, 255, 255);
            if (!drawn && length > 0)
            {
                lengths.push_back((length * 254 + 300) / 600);
            }
            length = drawn ? length + 1 : 0;
            if (length == 10)
            {
                colors.insert(color);
            }
        }
        QVERIFY(!lengths.empty());
        dashes.insert(lengths);
    }
    QCOMPARE(dashes.size(), monochrome ? 6U : 1U);
    QCOMPARE(colors.size(), monochrome ? 1U : 6U);
}

void ChartPageTest::ShrinksToANarrowPage()
{
    const auto page = PrintAndRead(SixLines({0, "Frequency", "Temperature Rise"}), QPageSize::A5);
    QVERIFY(!page.Words.empty());
    for (const auto& word : page.Words)
    {
        QVERIFY2(word.Box.right() <= page.Paper.width() - margin, qPrintable(word.Text));
        QVERIFY2(word.Box.bottom() <= page.Paper.height() - margin, qPrintable(word.Text));
    }
}

void ChartPageTest::ZeroAsLargestValueIsShown()
{
    auto lines = SixLines({1, "Frequency", "Current"});
    lines.resize(1);
    lines[0].ExtraValue = 0;
    auto page = PrintAndRead(lines);
    const auto lefts = TakeHeadings(page, "[Arms]");
    QVERIFY(lefts);
    QVERIFY(TakeAt(page, "0", (*lefts)[8], 8950));
}

QTEST_MAIN(ChartPageTest)
#include "ChartPageTest.moc"
