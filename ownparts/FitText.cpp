#include "ownparts/FitText.h"

#include "ownparts/ReportTexts.h"
#include "partdata/OneLine.h"
#include "partdata/Windows1252.h"

static constexpr std::size_t ToldColumn = 20;
static constexpr std::size_t ResidualColumn = 51;

static std::string Padded(std::string text, std::size_t width)
{
    text.resize(std::max(text.size() + 1, width), ' ');
    return text;
}

static std::string HeadOf(const FittedPart& fitted)
{
    const auto name = [&](std::size_t field)
    { return OneLine(Utf8FromWindows1252(fitted.Row.Names[field])); };
    return name(0) + "  " + name(FirstSizeCodeField) + "  " + name(FirstTccField) + "  " +
           RatedText(Quantity::Capacitance, fitted.Measured.NominalPicofarads) + "  " +
           Shortened(fitted.Measured.RatedVolts) + " V\n";
}

static std::string LineOf(const FitGroup& group, bool tellsResidual)
{
    auto line = Padded((group.IsSweep ? "  " : "") + group.Name, ToldColumn) + group.Told;
    if (tellsResidual && group.Residual)
    {
        const auto& residual = *group.Residual;
        const auto largest = SignedPercent(residual.Largest, 2);
        line = Padded(std::move(line), ResidualColumn) + "residual rms " + Percent(residual.Rms, 2) +
               ", largest " + largest;
        // What rounds to nothing lies nowhere.
        line += largest == Percent(0, 2) ? "" : " (line " + std::to_string(residual.Line) + ')';
    }
    return line + '\n';
}

std::string TextOf(const FittedPart& fitted)
{
    auto text = HeadOf(fitted);
    for (std::size_t i = 0; i < fitted.Groups.size(); ++i)
    {
        // The sweeps below a group tell its residual in parts.
        const bool hasSweeps = i + 1 < fitted.Groups.size() && fitted.Groups[i + 1].IsSweep;
        text += LineOf(fitted.Groups[i], fitted.Groups[i].IsSweep || !hasSweeps);
    }
    for (const auto& warning : fitted.Warnings)
    {
        text += "warning: " + warning + '\n';
    }
    return text;
}
