#pragma once

/// A chart in a window of its own: any size, values at an exact X, zoom, pictures and data to take away.

#include "chart/ChartCanvas.h"
#include "chart/ViewedChart.h"

#include <QMainWindow>

#include <memory>

class LineTable;
struct PictureChoice;
struct ViewSheet;

namespace Ui
{
class frmChartView;
}

/// The view of one chart window, which owns it. It shows copies of the chart's lines, follows it in what it
/// shows, and has a range of its own.
class frmChartView : public QMainWindow
{
    Q_OBJECT

public:
    explicit frmChartView(ViewedChart& viewedChart);
    ~frmChartView() override;

    /// Shows the lines of the chart as they are now. A range that the user has set in the chart window is
    /// taken over; a new line leaves a range of the view's own alone.
    void ShowLines();
    /// Shows the window in front of all others.
    void ComeToFront();

    /// What is shown.
    const ViewScene& Scene() const { return scene; }

Q_SIGNALS:
    /// Screen readers are told where the cursors stand.
    void CursorsTold();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The window.
    void SetUpTable();
    void Connect();
    void SetTabOrder();
    void ConnectCommands();
    void ConnectCanvas();
    void Place();
    void KeepPlace();
    void ShowTextSize();
    void SetTextSize(double size);
    bool HasRoomyPlot() const;
    void FitTable();
    int NeededWidth(int column, bool shortHeadings) const;
    int WidthWith(bool shortHeadings);
    void ForgetWidths();
    void FitTableHeight();

    // The lines.
    ChartView TakeLines();
    AxisRange DefaultOfLines() const;
    void ConnectLoss();
    void mnuLossResistance_Click();

    // The range.
    void ChangeRange();
    void NoteUnseenLines();
    void Zoom(double factor);
    void ZoomAbout(double factor, const QPointF& place, ZoomAxes axes);
    void StartDrag();
    void Drag(const QPointF& from, const QPointF& to);
    void Pan(double byX, double byY);
    void mnuDefaultRange_Click();
    void mnuRange_Click();
    void mnuToChartWindow_Click();

    // The cursors.
    void StartCursor();
    void ShowCursors();
    void ShowCursorTexts();
    void ShowTable();
    void TellReader();
    void PinCursor(double x);
    void StepCursor(int points);
    void EnterX();
    void LeaveEntry();
    void ShowTold(const QString& text, bool refusal);
    bool PressOnChart(QKeyEvent* key);
    bool MoveByKey(const QKeyEvent& key);
    bool PanByKey(const QKeyEvent& key);
    bool PressInEntry(QKeyEvent* key);
    void Escape();
    const ViewedLine& SteppedLine() const;

    // The chosen line.
    void Choose(std::optional<int> line);
    void ChooseNext(int rows);
    void ShowChosenRow();
    void tblLines_Select();
    void Hover(std::optional<int> line);

    // The commands.
    void mnuDashes_Click(bool dashed);
    void ScaleText(double factor);
    void mnuFullScreen_Click(bool full);
    void mnuUseConditions_Click();
    void mnuCopy_Click();
    void mnuCopyTable_Click();
    void mnuSavePicture_Click();
    void mnuSaveData_Click();
    void mnuSaveModel_Click();
    void mnuPrint_Click();
    /// The part of the chosen line; those of all lines where none is chosen.
    std::vector<std::int32_t> PartsOfChosen() const;
    void OfferModel();
    void CopyPicture();
    ViewSheet Sheet() const;
    QString Caption() const;
    std::optional<PictureChoice> AskForPictureSize();
    void ShowMenu(const QPoint& at);
    void ShowMenuByKey();

    QString AxisText(double x) const;

    std::unique_ptr<Ui::frmChartView> ui;
    ViewedChart& chart;
    LineTable* table;
    ViewScene scene;
    /// The range that covers all lines.
    AxisRange defaults{};
    ZoomRange zoom;
    /// The range that the chart window showed last, by which its changes are noticed.
    ChartView chartShown{};
    /// The chart while its parts' loss resistances are shown, and these while the chart is.
    struct OtherChart
    {
        ZoomRange Zoom = {};
        ChartView Shown = {};
        bool HasOwnRange = false;
        ChartCursors Cursors;
        QString Title = {};
    };
    std::optional<OtherChart> other;
    /// The range as a drag began.
    ZoomRange zoomAtDrag;
    QRectF plotAtDrag;
    bool hasOwnRange = false;
    /// Numbers of lines that have nothing in the range shown.
    QStringList unseen;
    double textScale = 1;
    /// Runs while a screen reader has been told of a change just now.
    QTimer telling;
    bool isChangeUntold = false;
    bool hasCursor = false;
    bool hasOwnTableHeight = false;
    /// The room that columns have needed so far, below long headings and below short ones.
    std::array<std::vector<int>, 2> widths;
};
