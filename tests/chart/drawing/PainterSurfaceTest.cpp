#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/ChartDrawing.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QTest>

/// A white picture of the size of a window's chart surface.
static QImage Picture(int pixelRatio)
{
    QImage picture(374 * pixelRatio, 244 * pixelRatio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::white);
    return picture;
}

static const QRectF chartArea(0, 0, chartSurfaceWidth, chartSurfaceHeight);

/// Notes the box of every text in user units while it is painted.
class TextBoxSurface : public PainterSurface
{
public:
    using PainterSurface::PainterSurface;

    struct Box
    {
        double Left, Bottom, Right, Top;
        std::string Text;
    };
    std::vector<Box> Boxes;

    void Text(double x, double y, std::string_view text, const Color& color) override
    {
        Boxes.push_back({x, y - TextHeight(), x + TextWidth(text), y, std::string(text)});
        PainterSurface::Text(x, y, text, color);
    }
    void CondensedText(double x, double y, double across, std::string_view text, const Color& color) override
    {
        Boxes.push_back({x, y - TextHeight(), x + across * TextWidth(text), y, std::string(text)});
        PainterSurface::CondensedText(x, y, across, text, color);
    }
    void TextUpwards(double x, double y, std::string_view text, const Color& color) override
    {
        const auto halfLength = TextWidth(text) / 2 * (chartArea.width() / Scale().ScaleWidth) /
                                (chartArea.height() / -Scale().ScaleHeight);
        Boxes.push_back({x, y - halfLength, x + UpwardsTextWidth(), y + halfLength, std::string(text)});
        PainterSurface::TextUpwards(x, y, text, color);
    }
};

class PainterSurfaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LinesAreCrisp_data();
    void LinesAreCrisp();
    void CurvesAreSmooth();
    void ClearPaintsTheTargetOnly();
    void TextsNeitherTouchNorLeaveTheSurface_data();
    void TextsNeitherTouchNorLeaveTheSurface();
    void UpwardsTextStandsUprightAtTheLeftEdge();
    void ButtonTextColorIsUsedWhileDark();
};

void PainterSurfaceTest::LinesAreCrisp_data()
{
    QTest::addColumn<int>("pixelRatio");
    QTest::addColumn<int>("firstColumn");
    QTest::addColumn<int>("firstRow");
    // x = 0 lies 21 * 373.33 / 126 = 62.22 from the left, y = 0 lies 107 * 243.33 / 122 = 213.42 from the
    // top.
    QTest::newRow("100 %") << 1 << 62 << 213;
    QTest::newRow("200 %") << 2 << 123 << 426;
}

void PainterSurfaceTest::LinesAreCrisp()
{
    QFETCH(int, pixelRatio);
    QFETCH(int, firstColumn);
    QFETCH(int, firstRow);
    auto picture = Picture(pixelRatio);
    QPainter painter(&picture);
    PainterSurface surface(painter, chartArea, chartScale);
    surface.Line(0, 0, 0, 100, frameColor);
    surface.Line(0, 0, 100, 0, frameColor);
    painter.end();
    const int middleRow = picture.height() / 2;
    const int middleColumn = picture.width() / 2;
    for (int offset = -2; offset < 4; ++offset)
    {
        const auto expected = offset >= 0 && offset < pixelRatio ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
        QCOMPARE(picture.pixel(firstColumn + offset, middleRow), expected);
        QCOMPARE(picture.pixel(middleColumn, firstRow + offset), expected);
    }
    // The corner is closed and has no spur.
    QCOMPARE(picture.pixel(firstColumn, firstRow + pixelRatio - 1), qRgb(0, 0, 0));
    QCOMPARE(picture.pixel(firstColumn, firstRow + pixelRatio), qRgb(255, 255, 255));
}

void PainterSurfaceTest::CurvesAreSmooth()
{
    auto picture = Picture(1);
    QPainter painter(&picture);
    PainterSurface surface(painter, chartArea, chartScale);
    const std::vector<Point> points = {{0, 0}, {100, 30}};
    surface.Polyline(points, frameColor);
    painter.end();
    bool anyGrey = false;
    for (int row = 0; row < picture.height(); ++row)
    {
        const auto level = qGray(picture.pixel(200, row));
        anyGrey = anyGrey || (level > 30 && level < 225);
    }
    QVERIFY(anyGrey);
}

void PainterSurfaceTest::ClearPaintsTheTargetOnly()
{
    auto picture = Picture(1);
    picture.fill(Qt::red);
    QPainter painter(&picture);
    PainterSurface surface(painter, QRectF(10, 20, 100, 50), chartScale);
    surface.Clear();
    painter.end();
    QCOMPARE(picture.pixel(10, 20), qRgb(255, 255, 255));
    QCOMPARE(picture.pixel(109, 69), qRgb(255, 255, 255));
    QCOMPARE(picture.pixel(9, 20), qRgb(255, 0, 0));
    QCOMPARE(picture.pixel(110, 69), qRgb(255, 0, 0));
}

void PainterSurfaceTest::TextsNeitherTouchNorLeaveTheSurface_data()
{
    QTest::addColumn<ChartView>("view");
    const auto row = [](const char* name, ChartKey chart, AxisRange range, bool rescaled = false) {
        QTest::newRow(name) << ChartView{std::move(chart), range, rescaled};
    };
    const ChartKey current = {0, "Current", "Temperature Rise"};
    const ChartKey frequency = {0, "Frequency", "Temperature Rise"};
    const ChartKey allowable = {1, "Frequency", "Apparent Power"};
    const ChartKey change = {2, "Temperature", "Capacitance Change"};
    const ChartKey capacitance = {2, "Temperature", "Capacitance"};
    const ChartKey overVoltage = {3, "DC Bias Voltage", "Capacitance"};
    row("rise over current", current, {4, 80, 0, 0});
    row("large current", current, {12345, 80, 0.125F, 0}, true);
    row("odd range of rise", current, {3.3333F, 99.99F, 0.125F, 0.001F}, true);
    row("rise over frequency", frequency, {1e6F, 80, 1e4F, 0});
    row("within a decade", frequency, {5e4F, 60, 2e4F, 10}, true);
    row("range end beside a decade", frequency, {5e5F, 60, 9.5e4F, 10}, true);
    row("allowable power", allowable, {1e6F, 10, 1e4F, 0.01F});
    row("many decades", allowable, {1e6F, 1e8F, 1e4F, 1e-8F});
    row("capacitance change", change, {125, 20, -75, -80});
    row("odd temperatures", change, {150, 10, -55, -10});
    row("negative exponent", change, {87.5F, 15.5F, -12.5F, -33.3F}, true);
    row("close lines", change, {125, 300, -75, -100});
    row("large capacitance", capacitance, {125, 1.2e7F, -75, 0});
    row("seven digits", capacitance, {100, 1e7F, -50, 9.99e6F}, true);
    row("small capacitance", overVoltage, {6.3F, 0.05F, 0, 0}, true);
    row("six digits", overVoltage, {6.3F, 1234567, 0, 1234000}, true);
    row("six digits and two signs", change, {125, 0.0123456F, -75, -0.0123455F}, true);
    row("six digits on a logarithmic axis", allowable, {1e6F, 0.0123456F, 1e4F, 0.00123456F}, true);
}

void PainterSurfaceTest::TextsNeitherTouchNorLeaveTheSurface()
{
    QFETCH(ChartView, view);
    for (const int pixelRatio : {1, 2})
    {
        auto picture = Picture(pixelRatio);
        QPainter painter(&picture);
        TextBoxSurface surface(painter, chartArea, chartScale);
        DrawAxes(view, surface);
        const auto& boxes = surface.Boxes;
        QVERIFY(boxes.size() > 4);
        for (std::size_t i = 0; i < boxes.size(); ++i)
        {
            // The note stands 0.3 units above the surface's edge, where its line of text is empty.
            QVERIFY2(boxes[i].Left >= -21 && boxes[i].Right <= 105 + 1e-9, boxes[i].Text.c_str());
            QVERIFY2(boxes[i].Bottom >= -15 && boxes[i].Top <= 107.3, boxes[i].Text.c_str());
            for (std::size_t k = 0; k < i; ++k)
            {
                const bool apart = boxes[i].Left >= boxes[k].Right || boxes[k].Left >= boxes[i].Right ||
                                   boxes[i].Bottom >= boxes[k].Top - 1e-9 ||
                                   boxes[k].Bottom >= boxes[i].Top - 1e-9;
                QVERIFY2(apart, (boxes[k].Text + " touches " + boxes[i].Text).c_str());
            }
        }
    }
}

void PainterSurfaceTest::UpwardsTextStandsUprightAtTheLeftEdge()
{
    auto picture = Picture(1);
    QPainter painter(&picture);
    PainterSurface surface(painter, chartArea, chartScale);
    surface.TextUpwards(-21, 50, "Capacitance Change [%]", frameColor);
    painter.end();
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
    QVERIFY(ink.width() >= 8 && ink.width() <= 14);
    QVERIFY(ink.height() > 80 && ink.height() < 200);
    QVERIFY(ink.left() >= 0 && ink.right() < 15);
    // y = 50 lies 57 * 243.33 / 122 = 113.7 from the top.
    QVERIFY(std::abs(ink.center().y() - 113.7) < 3);
}

void PainterSurfaceTest::ButtonTextColorIsUsedWhileDark()
{
    const auto former = QGuiApplication::palette();
    auto palette = former;
    palette.setColor(QPalette::ButtonText, QColor(20, 30, 90));
    QGuiApplication::setPalette(palette);
    const auto dark = ButtonTextColor();
    palette.setColor(QPalette::ButtonText, QColor(240, 240, 240));
    QGuiApplication::setPalette(palette);
    const auto light = ButtonTextColor();
    QGuiApplication::setPalette(former);
    QCOMPARE(QtColor(dark), QColor(20, 30, 90));
    QCOMPARE(QtColor(light), QColor(0, 0, 0));
}

QTEST_MAIN(PainterSurfaceTest)
#include "PainterSurfaceTest.moc"
