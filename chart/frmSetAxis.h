#pragma once

/// The dialog in which the user sets the axis ranges of one chart.

#include "chart/layout/ChartView.h"

#include <QDialog>

#include <array>
#include <memory>

class QLineEdit;

namespace Ui
{
class frmSetAxis;
}

/// Asks for the X and Y range of a chart, starting from the ranges in force; frequencies in kHz. It closes on
/// OK only when every entry is a number within the range that the chart's data permit.
class frmSetAxis : public QDialog
{
    Q_OBJECT

public:
    /// @param shown the chart and the ranges in force
    /// @param chartDefaults the range that covers all lines of the chart
    frmSetAxis(const ChartView& shown, const AxisRange& chartDefaults, QWidget* parent);
    ~frmSetAxis() override;

    /// The ranges that the user has set, once the dialog is accepted.
    const AxisRange& Range() const { return range; }

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Form_Load();
    void GotFocus(const QObject* box);
    void txtX_GotFocus(int index);
    void txtY_GotFocus(int index);
    void cmdOK_Click();
    void cmdCancel_Click();
    bool AreEntriesNumeric();
    bool CheckAxisRange();
    bool CheckAxis(const char* axis, const std::string& quantity, const std::array<QLineEdit*, 2>& boxes,
                   const struct PermittedRange& permitted);
    void Refuse(QLineEdit* box, const QString& message);

    std::unique_ptr<Ui::frmSetAxis> ui;
    ChartView view;
    AxisRange defaults;
    AxisRange range{};
    /// From and to of each axis.
    std::array<QLineEdit*, 2> txtX;
    std::array<QLineEdit*, 2> txtY;
};
