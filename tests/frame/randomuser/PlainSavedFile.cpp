#include "tests/frame/randomuser/PlainSavedFile.h"

#include "app/mdlPublic.h"
#include "tests/frame/randomuser/PlainForm.h"
#include "tests/frame/randomuser/PlainNumbers.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>

#include <cmath>

static QStringList Conditions(const ChartRecord& line)
{
    const QString bias = "!DC Bias Voltage-> " + PlainText(line.DCBiasVoltage) + " [V]";
    const QString heat = "!Heat Resistance-> " + PlainText(line.HeatResistance) + " [C/W]";
    const QString ambient = "!Ambient Temperature-> " + PlainText(line.AmbientTemp) + " [C]";
    switch (line.ChartType)
    {
    case 0:
        if (line.XAxisName == "Frequency")
        {
            return {bias, heat, ambient,
                    "!" + QString::fromStdString(line.ParameterName) + "-> " +
                        PlainText(line.ParameterValue) + " " + PlainUnit(line.ParameterName, "")};
        }
        return {bias, heat, "!Frequency-> " + PlainText(line.Frequency) + " [kHz]", ambient};
    case 1:
        return {bias, heat, ambient};
    case 2:
        return {bias};
    default:
        return {ambient};
    }
}

static QStringList Head(const ChartRecord& line, int code)
{
    const auto part = static_cast<std::size_t>(line.PartDataIndex);
    const QString caption = CaptionOf(line);
    const QString x = QString::fromStdString(line.XAxisName);
    const QString y = QString::fromStdString(line.YAxisName);
    return QStringList{"!Halvex Chip Capacitor Characteristics Data Library  " +
                           QLocale().toString(QDate::currentDate(), QLocale::ShortFormat),
                       "!ChartType-> " + caption.left(caption.indexOf('(')),
                       "!Halvex Part Number-> " + NumberOf(part, code) + " (" + NumberOf(part, code + 2) +
                           ")"} +
           Conditions(line) +
           QStringList{x + PlainUnit(line.XAxisName, "") + "  " + y + PlainUnit(line.YAxisName, "")};
}

/// True for a value in the form 1.00E+03 that is another one rounded.
static bool IsRounded(const QString& text, double value)
{
    static const QRegularExpression form(QStringLiteral("^-?[0-9]\\.[0-9]{2}E[+-][0-9]{2}$"));
    const double half = 0.5 * std::pow(10.0, text.mid(text.indexOf('E') + 1).toInt() - 2);
    return form.match(text).hasMatch() &&
           std::abs(text.toDouble() - value) <= half * 1.00001 + 1e-6 * std::abs(value);
}

QString FaultOf(const QByteArray& file, const PlainLine& line, int code)
{
    const QStringList head = Head(line.Asked, code);
    QStringList lines = QString::fromLatin1(file).split("\r\n");
    if (lines.size() != head.size() + 201 || !lines.last().isEmpty())
    {
        return QStringLiteral("%1 lines").arg(lines.size());
    }
    if (lines.mid(0, head.size()) != head)
    {
        return "its head: " + lines.mid(0, head.size()).join('|') + " instead of " + head.join('|');
    }
    const double perShown = line.Asked.XAxisName == "Frequency" ? 1000 : 1;
    const float largest = *std::ranges::max_element(line.Curve.YData);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const QStringList values = lines[head.size() + static_cast<qsizetype>(i)].split(QString(12, u' '));
        const double slack = 1e-7 * std::abs(double{largest});
        if (values.size() != 2 || !IsRounded(values[0], double{line.Curve.XData[i]} / perShown) ||
            !(IsRounded(values[1], line.Curve.YData[i]) ||
              IsRounded(values[1], line.Curve.YData[i] + slack) ||
              IsRounded(values[1], line.Curve.YData[i] - slack)))
        {
            return QStringLiteral("point %1: %2").arg(i).arg(values.join(' '));
        }
    }
    return {};
}
