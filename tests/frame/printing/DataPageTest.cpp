#include "frame/DataPage.h"

#include "partdata/RunTimeError.h"
#include "tests/frame/printing/PdfText.h"
#include "tests/frame/printing/SamplePages.h"

#include <QFontMetricsF>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cmath>
#include <map>

/// Prints data pages to PDF and reads them back.
class DataPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void HoldsEveryTextInItsPlace_data();
    void HoldsEveryTextInItsPlace();
    void TellsPartNumbersInTheNamingOnDisplay();
    void ParameterIsToldWithItsUnit();
    void ColumnsEndAtTheirLastPoints();
    void TextsAreInArialNine();
    void TextsStandApart_data();
    void TextsStandApart();
    void RulesReachOverTheirHeadings_data();
    void RulesReachOverTheirHeadings();
    void RulesPartNamesAndUnits_data();
    void RulesPartNamesAndUnits();
    void PageWithoutAxisIsRefused();

private:
    QString Print(const ChartRecord& line, QPageSize::PageSizeId paper, CodeView view = CodeView::Eia);
    PdfPage PrintAndRead(const ChartRecord& line, QPageSize::PageSizeId paper = QPageSize::A4,
                         CodeView view = CodeView::Eia);
    /// The page of the second sample line of a row's chart, printed once for all tests.
    const PdfPage& PageOf(std::size_t row, int paper);

    QTemporaryDir folder;
    std::map<std::pair<std::size_t, int>, PdfPage> printed;
};

namespace
{

/// Margins of 5 mm, in points.
constexpr double margin = 5 / 25.4 * 72;

/// A place on a page whose printable area is scaled from -5 to 95 and, upwards, from -5 to 110; in points.
QPointF Place(const PdfPage& page, double x, double y)
{
    const auto width = page.Paper.width() - 2 * margin;
    const auto height = page.Paper.height() - 2 * margin;
    return {margin + (x + 5) * width / 100, margin + (110 - y) * height / 115};
}

/// Takes a text that hangs from its place. The box of a word begins at the font's ascent, a hair above the
/// place; that of a heading that is set smaller begins lower.
bool TakeAt(PdfPage& page, const QString& text, double x, double y, double tolerance = 0.7)
{
    const auto place = page.Take(text, Place(page, x, y) - QPointF(0, 0.7), tolerance);
    if (place.isNull())
    {
        qWarning("no \"%s\" at (%g, %g)", qPrintable(text), x, y);
    }
    return !place.isNull();
}

QString Scientific(double value)
{
    return QString::asprintf("%.2E", value);
}

struct Row
{
    ChartKey Chart;
    const char* TypeName;
    QString XUnit;
    QString YUnit;
    /// At (0, 99), (35, 99), (0, 97), (35, 97).
    QStringList Conditions;
};

/// The second sample line of every chart: its parameter is a voltage.
std::vector<Row> Rows()
{
    const QString bias = QStringLiteral("DC Bias Voltage -> 2.5 [V]");
    const QString resistance = QStringLiteral("Heat Resistance -> 46.93 [C/W]");
    const QString ambient = QStringLiteral("Ambient Temperature -> -55 [C]");
    const QString frequency = QStringLiteral("Frequency -> 123.4 [kHz]");
    const QString parameter = QStringLiteral("Voltage -> 0.000012345678 [Vrms]");
    const QString degrees = QStringLiteral("[°C]");
    const auto* const rise = "Temperature Rise Characteristics";
    const QStringList overLoad = {bias, resistance, frequency, ambient};
    return {
        {{0, "Current", "Temperature Rise"}, rise, "[Arms]", degrees, overLoad},
        {{0, "Voltage", "Temperature Rise"}, rise, "[Vrms]", degrees, overLoad},
        {{0, "Apparent Power", "Temperature Rise"}, rise, "[VA]", degrees, overLoad},
        {{0, "Effective Power", "Temperature Rise"}, rise, "[W]", degrees, overLoad},
        {{0, "Frequency", "Temperature Rise"},
         rise,
         "[kHz]",
         degrees,
         {bias, resistance, ambient, parameter}},
        {{1, "Frequency", "Current"}, "Allowable power", "[kHz]", "[Arms]", {bias, resistance, ambient}},
        {{1, "Frequency", "Voltage"}, "Allowable power", "[kHz]", "[Vrms]", {bias, resistance, ambient}},
        {{1, "Frequency", "Apparent Power"}, "Allowable power", "[kHz]", "[VA]", {bias, resistance, ambient}},
        {{1, "Frequency", "Effective Power"}, "Allowable power", "[kHz]", "[W]", {bias, resistance, ambient}},
        {{2, "Temperature", "Capacitance"},
         "Capacitance-Temperature Characteristics",
         degrees,
         "[pF]",
         {bias}},
        {{2, "Temperature", "Capacitance Change"},
         "Capacitance-Temperature Characteristics",
         degrees,
         "[%]",
         {bias}},
        {{3, "DC Bias Voltage", "Capacitance"},
         "Capacitance-DC Voltage Characteristics",
         "[V]",
         "[pF]",
         {ambient}},
        {{3, "DC Bias Voltage", "Capacitance Change"},
         "Capacitance-DC Voltage Characteristics",
         "[V]",
         "[%]",
         {ambient}},
    };
}

void AddPapers(const ChartKey& chart, std::size_t row)
{
    for (const auto paper : {QPageSize::A4, QPageSize::Letter, QPageSize::A5, QPageSize::A6})
    {
        const auto name = QString::fromStdString(chart.XAxisName + ", " + chart.YAxisName + " on ") +
                          QPageSize::name(paper) + ' ' + QString::number(chart.ChartType);
        QTest::newRow(qPrintable(name)) << row << static_cast<int>(paper);
    }
}

} // namespace

QString DataPageTest::Print(const ChartRecord& line, QPageSize::PageSizeId paper, CodeView view)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(paper));
    printer.setOutputFileName(folder.filePath(QStringLiteral("page.pdf")));
    PrintPage(printer, DataPageOf(line, view));
    return printer.outputFileName();
}

PdfPage DataPageTest::PrintAndRead(const ChartRecord& line, QPageSize::PageSizeId paper, CodeView view)
{
    const auto pages = ReadPdf(Print(line, paper, view));
    return pages.size() == 1 ? pages.front() : PdfPage{};
}

const PdfPage& DataPageTest::PageOf(std::size_t row, int paper)
{
    auto& page = printed[{row, paper}];
    if (page.Words.empty())
    {
        page = PrintAndRead(SixLines(Rows().at(row).Chart)[1], static_cast<QPageSize::PageSizeId>(paper));
    }
    return page;
}

void DataPageTest::HoldsEveryTextInItsPlace_data()
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

void DataPageTest::HoldsEveryTextInItsPlace()
{
    QFETCH(std::size_t, row);
    QFETCH(int, paper);
    const auto expected = Rows().at(row);
    const auto line = SixLines(expected.Chart)[1];
    auto page = PageOf(row, paper);
    QVERIFY(!page.Words.empty());

    QVERIFY(TakeAt(page, "Halvex Chip Capacitor Characteristics Data Library  11/21/26", 0, 105));
    QVERIFY(TakeAt(page, QStringLiteral("ChartType -> ") + expected.TypeName, 0, 103));
    QVERIFY(TakeAt(page, "Halvex Part Num -> KTU033R71E101KA01(HC0201X7R101K025)", 0, 101));
    for (qsizetype i = 0; i < expected.Conditions.size(); ++i)
    {
        QVERIFY(TakeAt(page, expected.Conditions[i], i % 2 == 0 ? 0 : 35, i < 2 ? 99 : 97));
    }
    for (const auto left : {0, 32, 64})
    {
        QVERIFY(TakeAt(page, QString::fromStdString(expected.Chart.XAxisName), left, 95));
        QVERIFY(TakeAt(page, expected.XUnit, left, 93.5));
        QVERIFY(TakeAt(page, QString::fromStdString(expected.Chart.YAxisName), left + 16, 95, 1.5));
        QVERIFY(TakeAt(page, expected.YUnit, left + 16, 93.5));
    }
    const double xUnit = expected.XUnit == QLatin1String("[kHz]") ? 1000 : 1;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const auto left = i < 67 ? 0 : i < 134 ? 32 : 64;
        const auto y = 92 - 1.3 * static_cast<double>(i % 67);
        QVERIFY(TakeAt(page, Scientific(line.XData[i] / xUnit), left, y));
        QVERIFY(TakeAt(page, Scientific(line.YData[i]), left + 16, y));
    }
    for (const auto& word : page.Words)
    {
        qWarning("also on the page: %s", qPrintable(word.Text));
    }
    QVERIFY(page.Words.empty());
}

void DataPageTest::TellsPartNumbersInTheNamingOnDisplay()
{
    auto page = PrintAndRead(SixLines({2, "Temperature", "Capacitance"})[0], QPageSize::A4, CodeView::Jis);
    QVERIFY(TakeAt(page, "Halvex Part Num -> KTU033R01E101KA01(HC0603R101K025)", 0, 101));
}

void DataPageTest::ParameterIsToldWithItsUnit()
{
    const auto lines = SixLines({0, "Frequency", "Temperature Rise"});
    auto current = PrintAndRead(lines[0]);
    QVERIFY(TakeAt(current, "Current -> 0.000012345678 [Arms]", 35, 97));
    auto effective = PrintAndRead(lines[2]);
    QVERIFY(TakeAt(effective, "Effective Power -> 0.000012345678 [W]", 35, 97));
    auto apparent = PrintAndRead(lines[3]);
    QVERIFY(TakeAt(apparent, "Apparent Power -> 0.000012345678 [VA]", 35, 97));
}

void DataPageTest::ColumnsEndAtTheirLastPoints()
{
    // The second line rises from 0 to 70 degrees over 0 to 12 A: point i is at (12 i / 199, 70 i / 199).
    auto page = PrintAndRead(SixLines({0, "Current", "Temperature Rise"})[1]);
    QVERIFY(TakeAt(page, "0.00E+00", 0, 92));
    QVERIFY(TakeAt(page, "3.98E+00", 0, 6.2));
    QVERIFY(TakeAt(page, "2.32E+01", 16, 6.2));
    QVERIFY(TakeAt(page, "4.04E+00", 32, 92));
    QVERIFY(TakeAt(page, "2.36E+01", 48, 92));
    QVERIFY(TakeAt(page, "1.20E+01", 64, 7.5));
    QVERIFY(TakeAt(page, "7.00E+01", 80, 7.5));

    auto overFrequency = PrintAndRead(SixLines({1, "Frequency", "Current"})[1]);
    QVERIFY(TakeAt(overFrequency, "1.00E+01", 0, 92));
    QVERIFY(TakeAt(overFrequency, "1.00E+03", 64, 7.5));
}

void DataPageTest::TextsAreInArialNine()
{
    // A hundred times larger, so that widths are not rounded to dots.
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(900);
    const QFontMetricsF metrics(font);
    const auto page = PrintAndRead(SixLines({2, "Temperature", "Capacitance"})[1]);
    std::size_t words = 0;
    for (const auto& word : page.Words)
    {
        if (word.Text == "Characteristics" || word.Text == "Capacitance" || word.Text == "Temperature")
        {
            ++words;
            const auto expected = metrics.horizontalAdvance(word.Text) / 100;
            QVERIFY2(std::abs(word.Box.width() - expected) < 0.2,
                     qPrintable(QStringLiteral("%1 %2").arg(word.Box.width()).arg(expected)));
        }
    }
    // In the title, in the chart type, and in the two headings of three columns.
    QCOMPARE(words, 8U);
}

void DataPageTest::TextsStandApart_data()
{
    HoldsEveryTextInItsPlace_data();
}

/// True when two boxes share a stretch from left to right.
static bool AreSideways(const QRectF& a, const QRectF& b)
{
    return a.left() < b.right() && b.left() < a.right();
}

void DataPageTest::TextsStandApart()
{
    QFETCH(std::size_t, row);
    QFETCH(int, paper);
    const auto& page = PageOf(row, paper);
    QVERIFY(!page.Words.empty());
    // Of a box, which goes from the ascent to the descent of the font, digits and capitals fill this much.
    const auto ink = [](const PdfWord& word)
    { return word.Box.adjusted(0, 0.15 * word.Box.height(), 0, -0.18 * word.Box.height()); };
    for (std::size_t i = 0; i < page.Words.size(); ++i)
    {
        const auto box = ink(page.Words[i]);
        QVERIFY(box.left() >= margin && box.right() <= page.Paper.width() - margin);
        for (std::size_t k = 0; k < i; ++k)
        {
            const auto other = ink(page.Words[k]);
            // White of a tenth of the letters stands between rows.
            const bool apart = !AreSideways(box, other) ||
                               box.top() > other.bottom() + 0.1 * other.height() ||
                               other.top() > box.bottom() + 0.1 * other.height();
            QVERIFY2(apart, qPrintable(page.Words[k].Text + " touches " + page.Words[i].Text));
        }
    }
}

void DataPageTest::RulesReachOverTheirHeadings_data()
{
    HoldsEveryTextInItsPlace_data();
}

void DataPageTest::RulesReachOverTheirHeadings()
{
    QFETCH(std::size_t, row);
    QFETCH(int, paper);
    const auto& page = PageOf(row, paper);
    int headings = 0;
    for (const auto& word : page.Words)
    {
        const auto x =
            (word.Box.left() - Place(page, 0, 0).x()) / (Place(page, 1, 0).x() - Place(page, 0, 0).x());
        const bool isHeading =
            word.Box.top() > Place(page, 0, 95.5).y() && word.Box.top() < Place(page, 0, 93).y();
        if (isHeading)
        {
            ++headings;
            const double end = x < 31 ? 30 : x < 63 ? 62 : 90;
            // Margins are whole points, which puts every place a fifth of a point aside.
            QVERIFY2(word.Box.right() <= Place(page, end, 0).x() + 0.3, qPrintable(word.Text));
        }
    }
    QVERIFY(headings >= 12);
}

void DataPageTest::RulesPartNamesAndUnits_data()
{
    HoldsEveryTextInItsPlace_data();
}

void DataPageTest::RulesPartNamesAndUnits()
{
    QFETCH(std::size_t, row);
    QFETCH(int, paper);
    const auto file = Print(SixLines(Rows().at(row).Chart)[0], static_cast<QPageSize::PageSizeId>(paper));
    const auto pages = ReadPdf(file);
    QCOMPARE(pages.size(), 1U);
    const auto place = Place(pages[0], 0, 93.5);
    const auto strip = StripOfPdf(file, 600, place.y() - 6, 12);
    QVERIFY(!strip.Picture.isNull());

    constexpr std::array<std::pair<double, double>, 3> rules = {{{0, 30}, {32, 62}, {64, 90}}};
    for (const auto& [from, to] : rules)
    {
        const auto left = strip.Dots(Place(pages[0], from, 93.5).x());
        const auto right = strip.Dots(Place(pages[0], to, 93.5).x());
        const auto isRule = [&](int y)
        {
            const auto run = strip.LongestRun(left - 20, right + 20, y);
            return std::abs(run.first - left) <= 4 && std::abs(run.second - right) <= 4;
        };
        int top = strip.Dots(place.y()) - 6;
        while (!isRule(top) && top <= strip.Dots(place.y()))
        {
            ++top;
        }
        QVERIFY(isRule(top));
        int bottom = top;
        while (isRule(bottom))
        {
            ++bottom;
        }
        // Above and below it the paper is white from end to end.
        const auto end = strip.Dots(Place(pages[0], from + 31, 93.5).x());
        for (const auto y : {top - 2, bottom + 1})
        {
            const auto run = strip.LongestRun(left, end, y);
            QCOMPARE(run.second - run.first, 0);
        }
    }
}

void DataPageTest::PageWithoutAxisIsRefused()
{
    auto line = SixLines({2, "Temperature", "Capacitance"})[0];
    line.YAxisName = "Charge";
    QFile::remove(folder.filePath(QStringLiteral("page.pdf")));
    QVERIFY_EXCEPTION_THROWN(Print(line, QPageSize::A4), RunTimeError);
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("page.pdf"))));
}

QTEST_MAIN(DataPageTest)
#include "DataPageTest.moc"
