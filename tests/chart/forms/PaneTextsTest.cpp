/// A hundred and fifty everyday lines: their part numbers and conditions stand whole, and apart, wherever a
/// chart is shown.

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/Calculate.h"
#include "calc/ChartKinds.h"
#include "chart/drawing/ChartPage.h"
#include "chart/drawing/PainterSheet.h"
#include "chart/drawing/TitledSheet.h"
#include "chart/frmGraph.h"
#include "chart/layout/PaneText.h"
#include "cli/SheetPicture.h"
#include "frame/PrintJob.h"
#include "partdata/ValueNames.h"
#include "tests/frame/Desk.h"
#include "tests/frame/printing/PdfText.h"
#include "tests/frame/printing/SamplePages.h"

#include <QPdfWriter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>

class PaneTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ManyAreWiderThanTheirPlace();
    void StandWholeInTheWindow();
    void StandWholeInTheCopiedPicture();
    void StandWholeInThePictureOfTheCommandLine();
    void StandWholeOnThePage();
    void StandWholeWithManyDigits();

private:
    QString File() const { return folder.filePath(QStringLiteral("chart.pdf")); }

    QTemporaryDir folder;
    /// Six lines each.
    std::vector<std::vector<ChartRecord>> charts;
};

namespace
{

const std::array<ChartKey, 5> keys = {{{0, "Current", "Temperature Rise"},
                                       {0, "Frequency", "Temperature Rise"},
                                       {1, "Frequency", "Current"},
                                       {1, "Frequency", "Apparent Power"},
                                       {3, "DC Bias Voltage", "Capacitance"}}};
constexpr std::size_t linesOfAChart = 6;

/// The n-th everyday line of a chart; nothing for a part without the data for it.
std::optional<ChartRecord> EverydayLine(const ChartKey& key, std::size_t n)
{
    constexpr std::array volts = {0.0F, 3.3F, 5.0F, 12.0F, 1.25F, 2.5F, 16.0F};
    constexpr std::array kilohertz = {100.0F, 300.0F, 500.0F, 1000.0F, 250.0F, 123.4F};
    constexpr std::array degrees = {25.0F, 60.0F, 85.0F, -40.0F, 65.5F};
    constexpr std::array loads = {0.5F, 1.5F, 0.25F, 0.125F};
    const auto part = (n * 37) % mdlPublic.Parts.PartData.size();
    const auto& record = mdlPublic.Parts.PartData[part];
    ChartRecord line;
    line.ChartType = key.ChartType;
    line.XAxisName = key.XAxisName;
    line.YAxisName = key.YAxisName;
    line.PartDataIndex = static_cast<std::int32_t>(part);
    line.DCBiasVoltage = std::min(volts[n % volts.size()], record.Data[Value::RatedVoltage] / 2);
    line.HeatResistance = record.Data[Value::HeatResistance];
    line.Frequency = kilohertz[n % kilohertz.size()];
    line.AmbientTemp = degrees[n % degrees.size()];
    line.ParameterName = NameOf(Parameters[n % Parameters.size()]);
    line.ParameterValue = loads[n % loads.size()];
    const bool hasCurve = !Calculate(record, line, CodeView::Eia) && line.XMax > line.XMin;
    return hasCurve ? std::optional(line) : std::nullopt;
}

std::vector<ChartRecord> EverydayLines(const ChartKey& key, std::size_t& n)
{
    std::vector<ChartRecord> lines;
    while (lines.size() < linesOfAChart)
    {
        if (const auto line = EverydayLine(key, n++))
        {
            lines.push_back(*line);
        }
    }
    return lines;
}

ChartView ViewOf(const std::vector<ChartRecord>& lines)
{
    const auto chart = KeyOf(lines.front());
    return {.Chart = chart, .Range = DefaultRange(chart, lines)};
}

std::vector<std::string> PartNums(const std::vector<ChartRecord>& lines)
{
    std::vector<std::string> partNums;
    for (const auto& line : lines)
    {
        partNums.push_back(PartNumText(line.PartDataIndex, 0).toStdString());
    }
    return partNums;
}

/// Draws on a page as large as the drawing, a point to a device-independent pixel.
template <class Draw> void WritePdf(const QString& file, const QSizeF& extent, const Draw& draw)
{
    QPdfWriter writer(file);
    writer.setResolution(72);
    writer.setPageSize(QPageSize(extent, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter(&writer);
    draw(painter);
}

/// The words of a page that begin behind `left` and below `top`.
std::vector<PdfWord> WordsOf(const QString& file, double left, double top)
{
    const auto pages = ReadPdf(file);
    std::vector<PdfWord> words;
    if (pages.size() == 1)
    {
        std::ranges::copy_if(pages[0].Words, std::back_inserter(words),
                             [&](const PdfWord& word)
                             { return word.Box.left() >= left && word.Box.top() >= top; });
    }
    return words;
}

/// Takes the words of a text, once each.
bool Take(std::vector<PdfWord>& words, const QString& text)
{
    for (const auto& part : text.split(u' '))
    {
        const auto word = std::ranges::find(words, part, &PdfWord::Text);
        if (word == words.end())
        {
            qWarning("no \"%s\"", qPrintable(text));
            return false;
        }
        words.erase(word);
    }
    return true;
}

/// True when no two words touch and none leaves the place.
bool StandApart(const std::vector<PdfWord>& words, const QRectF& place)
{
    for (std::size_t i = 0; i < words.size(); ++i)
    {
        const auto touches = [&](const PdfWord& other) { return other.Box.intersects(words[i].Box); };
        const auto end = words.begin() + static_cast<std::ptrdiff_t>(i);
        if (!place.contains(words[i].Box) || std::any_of(words.begin(), end, touches))
        {
            qWarning("\"%s\" touches another or leaves its place", qPrintable(words[i].Text));
            return false;
        }
    }
    return !words.empty();
}

/// Every pane on a drawing of the sheet's extent, as points, tells its line.
bool PanesAreWhole(const QString& file, const std::vector<ChartRecord>& lines, const QRectF& panes)
{
    auto words = WordsOf(file, panes.left(), panes.top());
    bool whole = StandApart(words, panes);
    for (const auto& line : lines)
    {
        whole = Take(words, PartNumText(line.PartDataIndex, 0)) && whole;
        whole = Take(words, QString::fromStdString(PaneText(line))) && whole;
    }
    // The captions alone are left.
    return words.size() == linesOfAChart && whole;
}

/// Where the panes stand on the sheet.
constexpr QRectF sheetPanes(377, 0, 333, 248);

} // namespace

void PaneTextsTest::initTestCase()
{
    const Desk desk;
    std::size_t n = 0;
    for (int round = 0; round < 5; ++round)
    {
        for (const auto& key : keys)
        {
            charts.push_back(EverydayLines(key, n));
            PlaceCurves(ViewOf(charts.back()), charts.back());
        }
    }
    QCOMPARE(charts.size() * linesOfAChart, 150U);
}

void PaneTextsTest::ManyAreWiderThanTheirPlace()
{
    const QFontMetricsF metrics{ChartFont()};
    std::size_t wide = 0;
    for (const auto& lines : charts)
    {
        wide += static_cast<std::size_t>(std::ranges::count_if(
            lines, [&](const ChartRecord& line)
            { return metrics.horizontalAdvance(QString::fromStdString(PaneText(line))) > 177; }));
    }
    qInfo("%zu of 150 are wider than their place", wide);
    QVERIFY(wide >= 30);
}

void PaneTextsTest::StandWholeInTheWindow()
{
    for (const auto& lines : charts)
    {
        Desk desk;
        frmGraph chart(*desk.main);
        for (const auto& line : lines)
        {
            mdlPublic.Charts.Write(line);
            chart.Form_Load();
        }
        auto* const contents = chart.findChild<QWidget*>("grpChart");
        WritePdf(File(), sheetSize, [&](QPainter& painter) { contents->render(&painter); });
        QVERIFY(PanesAreWhole(File(), lines, sheetPanes));
        mdlPublic.Charts = {};
    }
}

void PaneTextsTest::StandWholeInTheCopiedPicture()
{
    for (const auto& lines : charts)
    {
        const auto extent = TitledSheetSize();
        WritePdf(File(), extent,
                 [&](QPainter& painter) { DrawTitledSheet(ViewOf(lines), lines, PartNums(lines), painter); });
        // The sheet itself begins a pixel above what is drawn on it.
        const QPointF corner(10, extent.height() - 10 - 248);
        QVERIFY(PanesAreWhole(File(), lines, sheetPanes.translated(corner)));
    }
}

void PaneTextsTest::StandWholeInThePictureOfTheCommandLine()
{
    for (auto lines : charts)
    {
        const auto pdf = SheetPicture(ViewOf(lines), lines, PartNums(lines), sheetSize, PictureFormats()[2]);
        QFile file(File());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(pdf);
        file.close();
        // Three points to four pixels.
        QVERIFY(PanesAreWhole(File(), lines, {sheetPanes.topLeft() * 0.75, sheetPanes.size() * 0.75}));
    }
}

void PaneTextsTest::StandWholeOnThePage()
{
    for (const auto& lines : charts)
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(File());
        PrintPage(printer,
                  [&](QPainter& painter, const PageArea& area)
                  {
                      const auto partNumber = [](std::int32_t part) { return PartNumText(part, 0); };
                      DrawChartPage({ViewOf(lines), lines, QStringLiteral("Title"), partNumber}, area,
                                    SurfaceKind::ColorPrinter, painter);
                  });
        // The table begins 8400 twips below a margin of 5 mm.
        auto words = WordsOf(File(), 0, 14 + 8400.0 / 20);
        QVERIFY(StandApart(words, QRectF(14, 14, 567.5, 814)));
        for (const auto& line : lines)
        {
            QVERIFY(Take(words, PartNumText(line.PartDataIndex, 0)));
        }
        QVERIFY(std::ranges::none_of(words, [](const PdfWord& word) { return word.Text.contains(u'…'); }));
    }
}

void PaneTextsTest::StandWholeWithManyDigits()
{
    for (const auto& key : AllCharts())
    {
        auto lines = SixLines(key);
        for (auto& line : lines)
        {
            line.DCBiasVoltage = 12.345678F;
            line.HeatResistance = 123.45678F;
            line.AmbientTemp = -12.345678F;
        }
        PlaceCurves(ViewOf(lines), lines);
        const auto extent = TitledSheetSize();
        WritePdf(File(), extent,
                 [&](QPainter& painter) { DrawTitledSheet(ViewOf(lines), lines, PartNums(lines), painter); });
        const QPointF corner(10, extent.height() - 10 - 248);
        QVERIFY(PanesAreWhole(File(), lines, sheetPanes.translated(corner)));
    }
}

QTEST_MAIN(PaneTextsTest)
#include "PaneTextsTest.moc"
