#include "tests/frame/randomuser/PlainForm.h"

#include "app/mdlPublic.h"
#include "tests/frame/randomuser/PlainNumbers.h"

#include <algorithm>
#include <array>

static const QStringList Loads = {"Current", "Voltage", "Apparent Power", "Effective Power"};
static const QStringList Parameters = {"Current", "Voltage", "Effective Power", "Apparent Power"};
static const QStringList Capacitances = {"Capacitance", "Capacitance Change"};

QString NumberOf(std::size_t part, int form)
{
    return FromAnsi(mdlPublic.Parts.PartData[part].PartNum[static_cast<std::size_t>(form)]);
}

PlainForm::PlainForm(const PartTable& range)
    : Selection(range)
{
    ChooseChartType(0);
}

// ---- Chart type and axes ----

QStringList PlainForm::XAxes() const
{
    const std::array<QStringList, 4> axes = {Loads + QStringList{"Frequency"}, QStringList{"Frequency"},
                                             QStringList{"Temperature"}, QStringList{"DC Bias Voltage"}};
    return axes[static_cast<std::size_t>(Selection.ChartType)];
}

QStringList PlainForm::YAxes() const
{
    const std::array<QStringList, 4> axes = {QStringList{"Temperature Rise"}, Loads, Capacitances,
                                             Capacitances};
    return axes[static_cast<std::size_t>(Selection.ChartType)];
}

void PlainForm::ChooseChartType(int type)
{
    const QString remembered = PartText;
    Selection.ChooseChartType(type);
    XAxis = XAxes().front();
    YAxis = YAxes().front();
    PartText.clear();
    Incomplete();
    if (InList(remembered))
    {
        SetPartText(remembered);
    }
}

void PlainForm::Reset()
{
    PartText.clear();
    ChooseChartType(0);
}

void PlainForm::PickXAxis(const QString& entry)
{
    XAxis = entry;
    if (Selection.ChartType == 0)
    {
        ParameterEnabled = entry == "Frequency";
        if (!ParameterEnabled)
        {
            ClickParameter(0);
        }
    }
}

void PlainForm::ClickParameter(int index)
{
    Parameter = index;
    Boxes["txtParameter"] = "";
}

QString PlainForm::ParameterUnit() const
{
    return QStringList{"[Arms]", "[Vrms]", "[W]", "[VA]"}.at(Parameter);
}

// ---- The part ----

void PlainForm::PickLevel(int level, const QString& entry)
{
    using Pick = void (PlainSelection::*)(const std::string&);
    static constexpr std::array<Pick, 4> picks = {&PlainSelection::PickSize, &PlainSelection::PickTcc,
                                                  &PlainSelection::PickCap, &PlainSelection::PickVolt};
    (Selection.*picks[static_cast<std::size_t>(level)])(ToAnsi(entry));
    PartText = Selection.Chosen ? FromAnsi(Selection.NumberOf(*Selection.Chosen)) : QString();
    Selection.Chosen ? Complete() : Incomplete();
}

void PlainForm::PickPart(std::size_t part)
{
    Selection.PickPart(part);
    PartText = FromAnsi(Selection.NumberOf(part));
    Complete();
}

std::optional<std::size_t> PlainForm::InList(const QString& text) const
{
    const auto part = Selection.InList(ToAnsi(text));
    // What the code page cannot write is nobody's number.
    return part && FromAnsi(Selection.NumberOf(*part)) == text ? part : std::nullopt;
}

void PlainForm::SetPartText(const QString& text)
{
    PartText = text;
    Incomplete();
    if (const auto part = InList(text))
    {
        PickPart(*part);
    }
}

std::optional<std::size_t> PlainForm::PartIndex() const
{
    if (CanPlot)
    {
        return Selection.Chosen;
    }
    const auto& parts = mdlPublic.Parts.PartData;
    for (std::size_t part = 0; part < parts.size(); ++part)
    {
        if (FromAnsi(Selection.NumberOf(part)).compare(PartText, Qt::CaseInsensitive) == 0)
        {
            return part;
        }
    }
    return std::nullopt;
}

const PartRecord* PlainForm::Part() const
{
    const auto part = PartIndex();
    return part ? &mdlPublic.Parts.PartData[*part] : nullptr;
}

/// The shown number follows its part; a text that is no part number is lost. No handler runs.
void PlainForm::Rename(const std::function<void()>& change)
{
    const auto shown = PartIndex();
    change();
    PartText = shown ? FromAnsi(Selection.NumberOf(*shown)) : QString();
}

void PlainForm::SwitchCode(int code)
{
    Rename([&] { Selection.SwitchCode(static_cast<std::size_t>(code)); });
    Boxes["txtAmbientTemp"] = code == 0 ? "25" : "20";
}

void PlainForm::SwitchNumbering(int generation)
{
    Rename([&] { Selection.Numbering = 2 * static_cast<std::size_t>(generation); });
}

static QStringList Listed(const Texts& texts)
{
    QStringList list;
    for (const auto& text : texts)
    {
        list << FromAnsi(text);
    }
    return list;
}

QStringList PlainForm::Entries(int level) const
{
    switch (level)
    {
    case 0:
        return Listed(Selection.Sizes());
    case 1:
        return Listed(Selection.Tccs());
    case 2:
        return Listed(Selection.Caps());
    default:
        return Listed(Selection.Volts());
    }
}

QString PlainForm::Shown(int level) const
{
    const std::array<const std::string*, 4> choices = {&Selection.Size, &Selection.Tcc, &Selection.Cap,
                                                       &Selection.Volt};
    return FromAnsi(*choices[static_cast<std::size_t>(level)]);
}

QStringList PlainForm::PartNumbers() const
{
    return Listed(Selection.PartNumbers());
}

// ---- Conditions ----

void PlainForm::DisableConditions()
{
    for (const char* box : {"txtDCBiasVol", "txtFrequency", "txtHeatResistance"})
    {
        Boxes[box] = "";
    }
    Boxes["txtAmbientTemp"] = Selection.Code == 0 ? "25" : "20";
    ClickParameter(0);
    ParameterEnabled = false;
}

void PlainForm::Incomplete()
{
    CanPlot = false;
    DisableConditions();
}

void PlainForm::Complete()
{
    CanPlot = true;
    if (Selection.ChartType <= 1)
    {
        Boxes["txtHeatResistance"] = PlainText(Part()->Data[31]);
    }
    if (Selection.ChartType == 0 && XAxis == "Frequency")
    {
        ParameterEnabled = true;
    }
}

bool PlainForm::IsEnabled(const QString& box) const
{
    if (box == "txtParameter")
    {
        return ParameterEnabled;
    }
    return CanPlot && CheckedBoxes().contains(box);
}

QStringList PlainForm::CheckedBoxes() const
{
    switch (Selection.ChartType)
    {
    case 0:
        return {"txtDCBiasVol", "txtHeatResistance", "txtAmbientTemp",
                XAxis == "Frequency" ? "txtParameter" : "txtFrequency"};
    case 1:
        return {"txtDCBiasVol", "txtHeatResistance", "txtAmbientTemp"};
    case 2:
        return {"txtDCBiasVol"};
    default:
        return {"txtAmbientTemp"};
    }
}

static QString Invalid(const QString& quantity, const QString& permitted)
{
    return quantity + " is invalid!\nPlease enter a Number from " + permitted;
}

/// Lowest temperature of a characteristic, by its EIA name and the code on display; the highest.
static std::pair<int, int> Temperatures(std::string_view tcc, std::size_t code)
{
    if (tcc == "X5R")
    {
        return {code == 0 ? -55 : -25, 85};
    }
    return tcc == "Y5V" ? std::pair{code == 0 ? -30 : -25, 85} : std::pair{-55, 125};
}

std::optional<QString> PlainForm::Refusal(const QString& box) const
{
    static const PartRecord noPart;
    const PartRecord& part = Part() != nullptr ? *Part() : noPart;
    const auto entry = PlainEntry(Boxes[box]);
    const auto refuse = [&](auto accepts, const QString& message)
    { return entry && accepts(*entry) ? std::nullopt : std::optional(message); };

    if (box == "txtDCBiasVol")
    {
        const float rated = part.Data[2];
        const bool below = Selection.ChartType == 1;
        return refuse([&](float v) { return v >= 0 && (below ? v < rated : v <= rated); },
                      Invalid("DC Bias Voltage", (below ? "0 under " : "0 to ") + PlainText(rated) + "[V]"));
    }
    if (box == "txtFrequency")
    {
        return refuse([](float v) { return v >= 10 && v <= 1000; }, Invalid("Frequency", "10 to 1000 [kHz]"));
    }
    if (box == "txtHeatResistance")
    {
        return refuse([](float v) { return v > 0 && v <= 3.4028235E38F; },
                      Invalid("Heat Resistance", "0 [C/W]"));
    }
    if (box == "txtParameter")
    {
        return refuse([](float) { return true; },
                      "A Non-numerical value exists where numerical value should be in.");
    }
    if (Selection.ChartType <= 1)
    {
        return refuse([&](float v) { return v >= 20 && v <= part.Data[65]; },
                      Invalid("Ambient Temperature", "20 to " + PlainText(part.Data[65]) + " [C]"));
    }
    const auto [low, high] = Temperatures(part.Tcc[0], Selection.Code);
    return refuse([low = low, high = high](float v)
                  { return v >= static_cast<float>(low) && v <= static_cast<float>(high); },
                  Invalid("Ambient Temperature", QStringLiteral("%1 to %2 [C]").arg(low).arg(high)));
}

// ---- The line ----

float PlainForm::ValueOf(const QString& box) const
{
    return IsEnabled(box) ? PlainEntry(Boxes[box]).value_or(0.0F) : 0.0F;
}

ChartRecord PlainForm::Asked() const
{
    ChartRecord line;
    line.ChartType = static_cast<std::int16_t>(Selection.ChartType);
    line.XAxisName = XAxis.toStdString();
    line.YAxisName = YAxis.toStdString();
    line.PartDataIndex = static_cast<std::int32_t>(PartIndex().value_or(0));
    line.DCBiasVoltage = ValueOf("txtDCBiasVol");
    line.HeatResistance = ValueOf("txtHeatResistance");
    line.Frequency = ValueOf("txtFrequency");
    line.AmbientTemp = ValueOf("txtAmbientTemp");
    line.ParameterName = Parameters.at(Parameter).toStdString();
    line.ParameterValue = ValueOf("txtParameter");
    return line;
}
