#include "chart/drawing/ViewSheet.h"
#include "chart/drawing/PictureFile.h"
#include "chart/drawing/QtColors.h"
#include "tests/chart/drawing/ViewedLines.h"

#include <QImage>
#include <QTest>

class ViewSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TablesStayWithinTheirPlace_data();
    void TablesStayWithinTheirPlace();
    void ChipsCanBeToldApartOnAnyGround();
    void SheetsHaveEvenWhiteMargins_data();
    void SheetsHaveEvenWhiteMargins();
    void TablesStayWholeHoweverLargeTheTexts_data();
    void TablesStayWholeHoweverLargeTheTexts();
    void MonochromeSheetsHaveNoColour();
    void DrawingsHoldTitleAndAllTextsWhole();
    void DrawingsHoldNoControlCharacters();
    void PaintersKeepNothing();
};

static LegendTable Table(const std::vector<ViewedLine>& lines)
{
    LegendTable table;
    table.Columns = {{"Part number"},
                     {"Capacitance at 12.5 V", "At 12.5 V", true},
                     {"B to No.1", {}, true},
                     {"Conditions"}};
    for (int line = 0; line < static_cast<int>(lines.size()); ++line)
    {
        const auto& viewed = lines[static_cast<std::size_t>(line)];
        table.Rows.push_back({line,
                              {QString::fromStdString(viewed.PartNumber), "2.772 µF", "+1.909 µF (+68.9 %)",
                               "12 V, 105 °C/W, 300 kHz, 25 °C"}});
    }
    return table;
}

static ViewSheet Sheet(const std::vector<ViewedLine>& lines)
{
    ViewSheet sheet;
    sheet.Title = "Capacitance-DC Voltage Characteristics(DC Bias Voltage,Capacitance)";
    sheet.View = FallingView();
    sheet.Lines = lines;
    sheet.Legend = Table(lines);
    sheet.Overlay.Thick = 1;
    sheet.Overlay.Cursors = {{12.5, "A 12.5 V", false, {4e6, 5e6}}};
    return sheet;
}

static QImage White(const QSize& size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

/// The box of all that is not white.
static QRect InkOf(const QImage& picture)
{
    QRect ink;
    for (int row = 0; row < picture.height(); ++row)
    {
        for (int column = 0; column < picture.width(); ++column)
        {
            if (picture.pixel(column, row) != qRgb(255, 255, 255))
            {
                ink |= QRect(column, row, 1, 1);
            }
        }
    }
    return ink;
}

void ViewSheetTest::TablesStayWithinTheirPlace_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("textSize");
    QTest::addColumn<QString>("part");
    const QString longName = QString("KTS31NB51E106MA01").repeated(4);
    QTest::newRow("wide") << 1000 << 13.0 << "KTS31NB51E106MA01";
    QTest::newRow("narrow") << 400 << 13.0 << "KTS31NB51E106MA01";
    QTest::newRow("very narrow") << 200 << 13.0 << "KTS31NB51E106MA01";
    QTest::newRow("long name") << 500 << 13.0 << longName;
    QTest::newRow("large texts") << 900 << 32.0 << longName;
}

void ViewSheetTest::TablesStayWithinTheirPlace()
{
    QFETCH(int, width);
    QFETCH(double, textSize);
    QFETCH(QString, part);
    const auto lines = FallingLines(6, part.toStdString());
    auto picture = White({width + 40, 600});
    QPainter painter(&picture);
    DrawLegend(Table(lines), QRectF(20, 30, width, 0), {.TextSize = textSize}, painter);
    painter.end();
    const auto ink = InkOf(picture);
    QCOMPARE(ink.left(), 20);
    QCOMPARE(ink.right(), width + 19);
    QCOMPARE(ink.top(), 30);
    // The last rule may stand on the border.
    QVERIFY(std::abs(ink.bottom() - (30 + LegendHeight(6, textSize))) <= textSize / 11 + 1);
}

void ViewSheetTest::ChipsCanBeToldApartOnAnyGround()
{
    for (const auto& ground : {QColor(Qt::black), QColor(Qt::blue), QColor(Qt::white)})
    {
        QImage picture(100, 40, QImage::Format_RGB32);
        picture.fill(ground);
        QPainter painter(&picture);
        DrawLegendChip(0, {0, 0, 100, 40}, {.TextSize = 16}, painter);
        painter.end();
        const auto size = LegendChipSize(16);
        const int left = static_cast<int>(50 - size.width() / 2);
        // The line's left end, white above it, and nothing left of the chip.
        QCOMPARE(picture.pixel(left + 10, 20), qRgb(0, 0, 255));
        QCOMPARE(picture.pixel(left + 10, 14), qRgb(255, 255, 255));
        QCOMPARE(picture.pixel(left - 3, 20), ground.rgb());
    }
}

void ViewSheetTest::SheetsHaveEvenWhiteMargins_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("margin");
    QTest::newRow("least") << QSize(600, 400) << 11;
    QTest::newRow("landscape page") << QSize(1123, 794) << 16;
    QTest::newRow("screen") << QSize(1920, 1080) << 21;
    QTest::newRow("tall") << QSize(600, 1200) << 11;
}

void ViewSheetTest::SheetsHaveEvenWhiteMargins()
{
    QFETCH(QSize, size);
    QFETCH(int, margin);
    const auto lines = FallingLines(6);
    auto picture = White(size);
    QPainter painter(&picture);
    DrawViewSheet(Sheet(lines), size, painter);
    painter.end();
    const auto ink = InkOf(picture);
    QVERIFY(std::abs(ink.left() - margin) <= 2);
    QVERIFY(std::abs(size.width() - 1 - ink.right() - margin) <= 2);
    QVERIFY(std::abs(size.height() - 1 - ink.bottom() - margin) <= 3);
    QVERIFY(ink.top() >= margin && ink.top() < margin + margin / 2);
}

void ViewSheetTest::TablesStayWholeHoweverLargeTheTexts_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("scale");
    QTest::newRow("usual texts") << QSize(600, 400) << 1.0;
    QTest::newRow("larger texts") << QSize(600, 400) << 1.5;
    QTest::newRow("huge texts") << QSize(600, 400) << 4.0;
    QTest::newRow("a strip") << QSize(2000, 300) << 1.0;
    QTest::newRow("the least picture") << QSize(300, 300) << 2.0;
}

void ViewSheetTest::TablesStayWholeHoweverLargeTheTexts()
{
    QFETCH(QSize, size);
    QFETCH(double, scale);
    const auto lines = FallingLines(6);
    auto sheet = Sheet(lines);
    sheet.TextScale = scale;
    const double textSize = ViewSheetTextSize(sheet, size);
    auto picture = White(size);
    auto table = White(size);
    {
        QPainter painter(&picture);
        DrawViewSheet(sheet, size, painter);
    }
    const double height = LegendHeight(6, textSize);
    const QRectF place(textSize, size.height() - textSize - height, size.width() - 2 * textSize, height);
    {
        QPainter painter(&table);
        DrawLegend(sheet.Legend, place, {.TextSize = textSize}, painter);
    }
    const auto shown = place.toAlignedRect();
    QCOMPARE(picture.copy(shown), table.copy(shown));
    QVERIFY(place.top() > 0.4 * size.height());
}

void ViewSheetTest::MonochromeSheetsHaveNoColour()
{
    const auto lines = FallingLines(6);
    auto picture = White({900, 600});
    QPainter painter(&picture);
    DrawViewSheet(Sheet(lines), picture.size(), painter, SurfaceKind::MonochromePrinter);
    painter.end();
    for (int row = 0; row < picture.height(); ++row)
    {
        for (int column = 0; column < picture.width(); ++column)
        {
            const auto pixel = picture.pixel(column, row);
            QVERIFY(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
        }
    }
}

void ViewSheetTest::DrawingsHoldTitleAndAllTextsWhole()
{
    const auto lines = FallingLines(3, std::string(60, 'K'));
    const auto sheet = Sheet(lines);
    const QSizeF size(600, 400);
    const auto svg = PictureTypeOf("a.svg")->Write(
        {size, sheet.Title, [&](QPainter& painter) { DrawViewSheet(sheet, size, painter); }});
    for (const auto& text : {sheet.Title, QString(60, 'K'), QStringLiteral("+1.909 µF (+68.9 %)"),
                             QStringLiteral("At 12.5 V"), QStringLiteral("A 12.5 V"),
                             QStringLiteral("Capacitance [µF]"), QStringLiteral("DC Bias Voltage [V]")})
    {
        QVERIFY2(svg.contains('>' + text.toUtf8() + '<'), text.toUtf8().data());
    }
}

void ViewSheetTest::DrawingsHoldNoControlCharacters()
{
    const auto lines = FallingLines(1, "A\nB\x01");
    const auto sheet = Sheet(lines);
    const auto svg = PictureTypeOf("a.svg")->Write({QSizeF(600, 400), sheet.Title, [&](QPainter& painter) {
                                                        DrawViewSheet(sheet, {600, 400}, painter);
                                                    }});
    QVERIFY(svg.contains(">A\\x0AB\\x01<"));
    QVERIFY(!svg.contains('\x01'));
}

void ViewSheetTest::PaintersKeepNothing()
{
    const auto lines = FallingLines(2);
    auto picture = White({600, 400});
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::green, 3));
    const auto transform = painter.transform();
    const auto font = painter.font();
    DrawViewSheet(Sheet(lines), picture.size(), painter);
    QCOMPARE(painter.pen(), QPen(Qt::green, 3));
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.font(), font);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

QTEST_MAIN(ViewSheetTest)
#include "ViewSheetTest.moc"
