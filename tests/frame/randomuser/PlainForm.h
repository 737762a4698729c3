#pragma once

/// What the selection form is to show, told plainly: lists, boxes, what is enabled, and what is refused.

#include "calc/ChartRecord.h"
#include "formkit/Texts.h"
#include "tests/selection/PlainSelection.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// The condition boxes in the order of the form.
inline const QStringList ConditionBoxes = {"txtDCBiasVol", "txtFrequency", "txtHeatResistance",
                                           "txtAmbientTemp", "txtParameter"};

struct PlainForm
{
    explicit PlainForm(const PartTable& range);

    PlainSelection Selection;
    QString PartText;
    QString XAxis;
    QString YAxis;
    bool CanPlot = false;
    bool ParameterEnabled = false;
    /// Which parameter button is on.
    int Parameter = 0;
    QMap<QString, QString> Boxes;

    // What the user does.
    void ChooseChartType(int type);
    void Reset();
    void PickLevel(int level, const QString& entry);
    void PickPart(std::size_t part);
    /// The text grows or is replaced at once; each text on the way counts.
    void SetPartText(const QString& text);
    void PickXAxis(const QString& entry);
    void PickYAxis(const QString& entry) { YAxis = entry; }
    void ClickParameter(int index);
    void SwitchCode(int code);
    void SwitchNumbering(int generation);

    // What is to be seen.
    /// Entries and chosen entry of an upper list: 0 size code, 1 characteristic, 2 capacitance, 3 voltage.
    QStringList Entries(int level) const;
    QString Shown(int level) const;
    QStringList PartNumbers() const;
    QStringList XAxes() const;
    QStringList YAxes() const;
    QString ParameterUnit() const;
    bool IsEnabled(const QString& box) const;
    /// The part whose number is shown, however it is spelt; null without one.
    const PartRecord* Part() const;
    std::optional<std::size_t> PartIndex() const;

    /// The message about what a box holds, or nothing.
    std::optional<QString> Refusal(const QString& box) const;
    /// The boxes that Plot and the output commands look at, in their order.
    QStringList CheckedBoxes() const;

    /// The line that the form describes, without its curve.
    ChartRecord Asked() const;

private:
    void DisableConditions();
    void Complete();
    void Incomplete();
    void Rename(const std::function<void()>& change);
    std::optional<std::size_t> InList(const QString& text) const;
    float ValueOf(const QString& box) const;
};

/// Number of a part in one of the four forms.
QString NumberOf(std::size_t part, int form);
