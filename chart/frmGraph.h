#pragma once

/// A chart window: one chart, up to six lines, and a pane for each.

#include "chart/ViewedChart.h"
#include "chart/layout/ChartView.h"

#include <QMdiSubWindow>
#include <QPointer>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class FittedLabel;
class QGroupBox;
class QMenu;
class QLabel;
class frmChartView;

namespace Ui
{
class frmGraph;
}

/// A chart window of fixed size. It belongs to all lines of the store that are of its chart, and takes them
/// along when it closes.
class frmGraph : public QMdiSubWindow, public ViewedChart
{
    Q_OBJECT

public:
    explicit frmGraph(ChartHost& chartHost, QWidget* parent = nullptr);
    ~frmGraph() override;

    /// Draws the window afresh for the record at `CurrentChart`, in ranges that cover all lines of its chart,
    /// and counts that record as plotted. When it cannot be drawn, the error passes on, the record does not
    /// count, and the window shows its other lines as before.
    void Form_Load();

    /// Draws the window in these ranges instead. They count as the user's, with five divisions on linear
    /// axes, unless `notRescaled` is 1.
    void WriteMagnification(float xMax, float yMax, float xMin, float yMin, int notRescaled = 0);

    /// Offers the output commands or not.
    void EnableOutput(bool enabled);

    /// The chart that the window shows, as its caption names it; {} before the first `Form_Load`.
    const ChartKey& Chart() const { return key; }

    /// The ranges in force.
    const AxisRange& Range() const { return axisRange; }

    /// Names the parts in the panes in a part-number form, up to the first pane that shows none.
    void RelabelParts(int partNumForm);

    // What its chart view asks.
    ChartView View() const override;
    std::vector<ViewedLine> ViewedLines() const override;
    void SetRange(const AxisRange& range) override;
    ChartHost& Host() override { return host; }

    /// Shows the chart in a view of its own, or brings that to the front.
    void OpenView();

    /// The window's menus, which stand in the main window's place while it is active.
    QList<QAction*> Menus() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Connect();
    void mnuFile_Click();
    void mnuView_Click();
    void mnuFilePrint_Click();
    void mnuChartExpand_Click();
    void mnuChartClipboard_Click();
    void picGraph_MouseMove(const QPointF& position, const QPoint& twips);
    void picGraph_MouseLeave();
    void ConnectView();
    void ShowInView();
    std::optional<std::size_t> PaneAt(const QPoint& place) const;
    void ShowChartMenu(const QPoint& at);
    void ShowChartMenuByKey();
    void ShowPaneMenu(std::size_t pane, const QPoint& at);
    void UseConditionsOf(std::size_t line);
    void SaveModelOf(std::size_t line);
    void InitChartWindow(const ChartKey& chart);
    void ColorPane(std::size_t index, const QColor& color);
    void Draw(const AxisRange& range);
    void FillStatusPanes();
    std::vector<const ChartRecord*> Lines() const;
    std::vector<QString> PartNums(int partNumForm) const;
    void ClearReadOut();
    void Form_Resize();
    void Form_QueryUnload(QCloseEvent& close);
    void Form_Unload();

    std::unique_ptr<Ui::frmGraph> ui;
    ChartHost& host;
    std::array<QGroupBox*, MaximumLines> fraStatus;
    std::array<FittedLabel*, MaximumLines> lblStatus;
    std::array<FittedLabel*, MaximumLines> lblPara;
    std::array<QLabel*, 2> panels;

    ChartKey key;
    AxisRange axisRange{};
    /// Where on the chart surface, in twips, the values stand that are read out; 0 while none are.
    std::int16_t MouseX = 0;
    std::int16_t MouseY = 0;
    bool rescaled = false;
    bool unloaded = false;
    QPointer<frmChartView> chartView;
};
