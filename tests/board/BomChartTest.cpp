/// Charts of the rows of a board.

#include "board/ChartSvg.h"
#include "calc/Capacitance.h"
#include "tests/board/Board.h"
#include "tests/board/Contrast.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

namespace
{
const std::string Part = "KTS31NB51C226MA01";

BomChart ChartOfRow(const std::string& cells, const BomChartSize& size = {})
{
    const Board board("Ref,MPN,Bias,Ambient,Tolerance,Min Capacitance\nC1," + Part + ',' + cells + '\n');
    EXPECT_TRUE(board.Judged.Faults.empty());
    return ChartOf(board.Item(), size).value();
}

const ChartLabel& LabelOf(const BomChart& chart, const std::string& text)
{
    const auto found = std::ranges::find(chart.Labels, text, &ChartLabel::Text);
    EXPECT_NE(found, chart.Labels.end()) << text;
    return found == chart.Labels.end() ? chart.Labels.front() : *found;
}

double RightOf(const ChartBand& band)
{
    return band.UpperLeft.X + band.Width;
}
} // namespace

TEST(BomChart, ShowsBothEndsOfTheAmbientRange)
{
    const auto chart = ChartOfRow("8..12V,-10..65C,,");
    ASSERT_THAT(chart.Strokes, SizeIs(3));
    EXPECT_EQ(LabelOf(chart, "-10 C").Ink, chart.Strokes[0].Ink);
    EXPECT_EQ(LabelOf(chart, "65 C").Ink, chart.Strokes[1].Ink);
    EXPECT_NE(chart.Strokes[0].Ink, chart.Strokes[1].Ink);
    EXPECT_THAT(ChartOfRow("8..12V,25C,,").Strokes, SizeIs(2));
}

TEST(BomChart, CurvesFollowTheLawLessTheTolerance)
{
    const auto chart = ChartOfRow("8..12V,65C,20%,");
    const auto& points = chart.Strokes[0].Points;
    const auto at = [](double volts)
    {
        const PartRecord& part = Range().PartData[static_cast<std::size_t>(*Range().PartIndex[0].Find(Part))];
        return 0.8 * CapacitancePointAt(part, volts, 65, CodeView::Eia)->PicoFarads;
    };
    const double zero = chart.Strokes.back().Points[1].Y;
    const auto middle = points.size() / 2;
    const double volts = 16.0 * static_cast<double>(middle) / static_cast<double>(points.size() - 1);
    EXPECT_NEAR((zero - points[middle].Y) / (zero - points[0].Y), at(volts) / at(0), 1e-6);
}

TEST(BomChart, ShadesTheBiasAndWhatIsBeyondTheRating)
{
    const auto chart = ChartOfRow("8..12V,25C,,");
    ASSERT_THAT(chart.Bands, SizeIs(2));
    const double zero = chart.Strokes.back().Points[0].X;
    const double rated = LabelOf(chart, "16 V").At.X;
    EXPECT_NEAR(chart.Bands[0].UpperLeft.X, rated, 1e-9);
    EXPECT_NEAR(RightOf(chart.Bands[0]), chart.Strokes.back().Points[2].X, 1e-9);
    EXPECT_NEAR((chart.Bands[1].UpperLeft.X - zero) / (rated - zero), 8.0 / 16, 1e-6);
    EXPECT_NEAR((RightOf(chart.Bands[1]) - zero) / (rated - zero), 12.0 / 16, 1e-6);
}

TEST(BomChart, KeepsABiasBeyondAllInItsFrame)
{
    const auto chart = ChartOfRow("100..1000V,25C,,");
    for (const ChartBand& band : chart.Bands)
    {
        EXPECT_GE(band.Width, 2);
        EXPECT_LE(RightOf(band), chart.Strokes.back().Points[2].X + 1e-9);
    }
    EXPECT_TRUE(chart.Dots.empty());
}

TEST(BomChart, MarksTheWorstPlaceAndTheLimit)
{
    const auto chart = ChartOfRow("8..12V,-10..65C,10%,6uF");
    ASSERT_THAT(chart.Dots, SizeIs(1));
    const double zero = chart.Strokes.back().Points[0].X;
    EXPECT_NEAR((chart.Dots[0].Center.X - zero) / (LabelOf(chart, "16 V").At.X - zero), 12.0 / 16, 1e-6);
    // It lies on the warm curve, between two of its points.
    const auto& warm = chart.Strokes[1].Points;
    const auto next =
        std::ranges::find_if(warm, [&](const Point& point) { return point.X > chart.Dots[0].Center.X; });
    EXPECT_LE(chart.Dots[0].Center.Y, next->Y);
    EXPECT_GE(chart.Dots[0].Center.Y, (next - 1)->Y);
    ASSERT_TRUE(chart.Strokes[2].IsDashed);
    EXPECT_NEAR(chart.Strokes[2].Points[0].Y, LabelOf(chart, "6uF").At.Y, 5);
}

TEST(BomChart, TakesAShareThatIsWantedAsItsCapacitance)
{
    const Board board("Ref,MPN,Bias,Parallel,Min Left\nC1," + Part + ",12V,2,50\n");
    const auto chart = ChartOf(board.Item());
    // Half of twice 22 µF.
    EXPECT_EQ(LabelOf(chart.value(), "22uF").Anchor, TextAnchor::End);
}

TEST(BomChart, KeepsAllWithinItsSize)
{
    for (const BomChartSize& size :
         {BomChartSize(), BomChartSize{.Width = 600, .Height = 300, .TextHeight = 13}})
    {
        const auto chart = ChartOfRow("21.6..26.4V,-10..65C,10%,100uF", size);
        for (const ChartStroke& stroke : chart.Strokes)
        {
            for (const Point& point : stroke.Points)
            {
                EXPECT_TRUE(point.X >= 0 && point.X <= size.Width && point.Y >= 0 && point.Y <= size.Height);
            }
        }
    }
}

TEST(BomChart, IsLeftOutWhereNothingIsKnown)
{
    EXPECT_FALSE(ChartOf(Board("Ref,MPN,Bias\nC1,OTHER,5V\n").Item()));
    EXPECT_FALSE(ChartOf(Board("Ref,MPN,Bias,Ambient\nC1," + Part + ",5V,150C\n").Item()));
    EXPECT_TRUE(ChartOf(Board("Ref,MPN\nC1," + Part + "\n").Item()));
}

TEST(BomChart, ItsTextsAreReadOnAnyOfItsGrounds)
{
    const auto chart = ChartOfRow("8..12V,-10..65C,10%,6uF");
    for (const ChartLabel& label : chart.Labels)
    {
        EXPECT_GE(Contrast(label.Ink, {255, 255, 255}), 4.5) << label.Text;
        for (const ChartBand& band : chart.Bands)
        {
            EXPECT_GE(Contrast(label.Ink, band.Fill), 4.5) << label.Text;
        }
    }
}

TEST(BomChart, AsSvgIsOneElementOfShapes)
{
    const auto svg = SvgOf(ChartOfRow("8..12V,-10..65C,10%,6uF"));
    EXPECT_TRUE(svg.starts_with("<svg width=\"220\" height=\"84\""));
    EXPECT_TRUE(svg.ends_with("</svg>"));
    EXPECT_THAT(svg, HasSubstr("stroke-dasharray"));
    EXPECT_THAT(svg, HasSubstr(">16 V</text>"));
    EXPECT_THAT(svg, Not(HasSubstr("href")));
}

TEST(BomChart, AsSvgEscapesItsTexts)
{
    BomChart chart;
    chart.Labels.push_back({{1, 2}, TextAnchor::Start, "<script>&\"'", {0, 0, 0}});
    EXPECT_THAT(SvgOf(chart), HasSubstr(">&lt;script&gt;&amp;&quot;&#39;</text>"));
}
