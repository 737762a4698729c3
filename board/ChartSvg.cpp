#include "board/ChartSvg.h"

#include "board/HtmlText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace
{
/// A tenth of a pixel is all that is seen.
std::string Pixels(double value)
{
    constexpr double tenths = 10;
    std::array<char, 400> text{};
    const double rounded = std::round(value * tenths) / tenths + 0.0;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), rounded).ptr};
}

std::string ColorText(const Color& color)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned part : {unsigned{color.Red}, unsigned{color.Green}, unsigned{color.Blue}})
    {
        text += digits[part >> 4];
        text += digits[part & 0x0FU];
    }
    return text;
}

/// " name="value"".
std::string Attribute(std::string_view name, const std::string& value)
{
    return ' ' + std::string(name) + "=\"" + value + '"';
}

std::string SvgOf(const ChartBand& band)
{
    return "<rect" + Attribute("x", Pixels(band.UpperLeft.X)) + Attribute("y", Pixels(band.UpperLeft.Y)) +
           Attribute("width", Pixels(band.Width)) + Attribute("height", Pixels(band.Height)) +
           Attribute("fill", ColorText(band.Fill)) + "/>";
}

std::string SvgOf(const ChartStroke& stroke)
{
    std::string points;
    for (const Point& point : stroke.Points)
    {
        points += (points.empty() ? "" : " ") + Pixels(point.X) + ',' + Pixels(point.Y);
    }
    return "<polyline" + Attribute("points", points) + Attribute("stroke", ColorText(stroke.Ink)) +
           (stroke.IsDashed ? Attribute("stroke-dasharray", "4 3") : "") + "/>";
}

std::string SvgOf(const ChartDot& dot)
{
    return "<circle" + Attribute("cx", Pixels(dot.Center.X)) + Attribute("cy", Pixels(dot.Center.Y)) +
           Attribute("r", Pixels(dot.Radius)) + Attribute("fill", ColorText(dot.Fill)) + "/>";
}

std::string SvgOf(const ChartLabel& label)
{
    constexpr std::array<const char*, 3> anchors = {"start", "middle", "end"};
    return "<text" + Attribute("x", Pixels(label.At.X)) + Attribute("y", Pixels(label.At.Y)) +
           Attribute("text-anchor", anchors.at(static_cast<std::size_t>(label.Anchor))) +
           Attribute("fill", ColorText(label.Ink)) + '>' + HtmlText(label.Text) + "</text>";
}

template <class Shapes> void AddAll(std::string& svg, const Shapes& shapes)
{
    for (const auto& shape : shapes)
    {
        svg += SvgOf(shape);
    }
}
} // namespace

std::string SvgOf(const BomChart& chart)
{
    const auto width = Pixels(chart.Size.Width);
    const auto height = Pixels(chart.Size.Height);
    auto svg = "<svg" + Attribute("width", width) + Attribute("height", height) +
               Attribute("viewBox", "0 0 " + width + ' ' + height) +
               Attribute("font-size", Pixels(chart.Size.TextHeight)) + Attribute("fill", "none") +
               Attribute("role", "img") + Attribute("aria-label", "Capacitance over DC bias") + '>';
    AddAll(svg, chart.Bands);
    AddAll(svg, chart.Strokes);
    AddAll(svg, chart.Dots);
    AddAll(svg, chart.Labels);
    return svg + "</svg>";
}
