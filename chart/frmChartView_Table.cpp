#include "chart/frmChartView.h"

#include "app/mdlPublic.h"
#include "chart/LineDelegate.h"
#include "chart/LineTable.h"
#include "chart/drawing/LegendTable.h"
#include "ui_frmChartView.h"

#include <QHeaderView>
#include <QScrollBar>

#include <numeric>

/// Narrowest letters of the table, in percent of their own width.
static constexpr int NarrowestLetters = 75;
/// Share of the window that the table takes at most by itself.
static constexpr double LargestTable = 0.4;

void frmChartView::SetUpTable()
{
    auto* const view = ui->tblLines;
    view->setModel(table);
    view->setItemDelegate(new LineDelegate(scene, view));
    view->setMouseTracking(true);
    QHeaderView* const heads = view->horizontalHeader();
    heads->setSectionsClickable(true);
    heads->setHighlightSections(false);
    heads->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setMinimumSectionSize(1);
    ui->splChartView->setStretchFactor(0, 1);
    ui->splChartView->setStretchFactor(1, 0);
    connect(ui->splChartView, &QSplitter::splitterMoved, this, [this] { hasOwnTableHeight = true; });
}

void frmChartView::ShowTable()
{
    const int columns = table->columnCount();
    table->SetTable(CursorTableOf(scene.Lines, scene.Cursors, scene.Code, scene.View.DegreeSign));
    const auto sorted = table->SortedBy();
    ui->tblLines->horizontalHeader()->setSortIndicatorShown(sorted.has_value());
    if (table->columnCount() != columns)
    {
        ForgetWidths();
        ShowChosenRow();
    }
    FitTable();
}

// ---- Widths and heights ----

/// The room that a column needs: its widest text, and some blank.
int frmChartView::NeededWidth(int column, bool shortHeadings) const
{
    const QFontMetrics letters(ui->grpValues->font());
    if (column == 0)
    {
        return qCeil(LegendChipSize(scene.Marks.TextSize).width());
    }
    QFont bold = ui->grpValues->font();
    bold.setBold(true);
    const CursorHeading& heading = table->Table().Headings[static_cast<std::size_t>(column)];
    const auto text = QString::fromStdString(shortHeadings ? heading.Short : heading.Text);
    int width = QFontMetrics(bold).horizontalAdvance(text + QStringLiteral("  "));
    for (int row = 0; row < table->rowCount(); ++row)
    {
        width = std::max(width, letters.horizontalAdvance(table->index(row, column).data().toString()));
    }
    return width + 3 * LineDelegate::Blank(letters.height());
}

/// The widths with short headings or long ones.
int frmChartView::WidthWith(bool shortHeadings)
{
    auto& needed = widths[shortHeadings ? 1 : 0];
    needed.resize(static_cast<std::size_t>(table->columnCount()));
    for (int column = 0; column < table->columnCount(); ++column)
    {
        int& width = needed[static_cast<std::size_t>(column)];
        width = std::max(width, NeededWidth(column, shortHeadings));
    }
    return std::accumulate(needed.begin(), needed.end(), 0);
}

/// Widens columns for what they hold by now; they only get narrower with other lines or another text size, so
/// that nothing wavers while a cursor moves. Where all columns do not fit, headings are set short, then all
/// texts narrower; what is still too wide scrolls.
void frmChartView::FitTable()
{
    if (table->columnCount() == 0)
    {
        return;
    }
    const int room = ui->tblLines->viewport()->width();
    const bool brief = WidthWith(false) > room;
    const int needed = brief ? WidthWith(true) : 0;
    table->SetShortHeadings(brief);
    const int stretch =
        needed <= room ? 100 : std::clamp(room * 100 / std::max(needed, 1), NarrowestLetters, 100);
    QFont letters = ui->grpValues->font();
    letters.setStretch(stretch);
    if (ui->tblLines->font() != letters)
    {
        ui->tblLines->setFont(letters);
    }
    const auto& columns = widths[brief ? 1 : 0];
    for (int column = 0; column < table->columnCount(); ++column)
    {
        const int width = columns[static_cast<std::size_t>(column)] * stretch / 100;
        if (ui->tblLines->columnWidth(column) != width)
        {
            ui->tblLines->setColumnWidth(column, width);
        }
    }
}

void frmChartView::ForgetWidths()
{
    widths = {};
}

/// The table is as high as its lines, unless the user has moved its edge.
void frmChartView::FitTableHeight()
{
    const int rowHeight = QFontMetrics(ui->grpValues->font()).height() * 4 / 3;
    ui->tblLines->verticalHeader()->setDefaultSectionSize(rowHeight);
    if (hasOwnTableHeight)
    {
        return;
    }
    const int frame = 2 * ui->tblLines->frameWidth() + 12;
    const int wanted = ui->tblLines->horizontalHeader()->sizeHint().height() + rowHeight * table->rowCount() +
                       frame + ui->txtCursorX->sizeHint().height();
    const int whole = ui->splChartView->height();
    const int values = std::min(wanted, static_cast<int>(whole * LargestTable));
    ui->splChartView->setSizes({whole - values, values});
}

// ---- The chosen line ----

void frmChartView::Choose(std::optional<int> line)
{
    if (line != scene.Chosen)
    {
        scene.Chosen = line;
        OfferModel();
        TellReader();
        ui->picChartView->ShowOverlay();
    }
}

void frmChartView::ChooseNext(int rows)
{
    const int row = scene.Chosen ? table->RowOf(*scene.Chosen) + rows : 0;
    Choose(table->LineOf(std::clamp(row, 0, table->rowCount() - 1)));
    ShowChosenRow();
}

/// The chosen line's row is the current one, wherever it stands.
void frmChartView::ShowChosenRow()
{
    const int row = scene.Chosen ? table->RowOf(*scene.Chosen) : -1;
    const QSignalBlocker silence(ui->tblLines->selectionModel());
    row < 0 ? ui->tblLines->clearSelection() : ui->tblLines->selectRow(row);
    ui->tblLines->viewport()->update();
    const auto sorted = table->SortedBy();
    QHeaderView* const heads = ui->tblLines->horizontalHeader();
    heads->setSortIndicatorShown(sorted.has_value());
    for (int column = 0; sorted && column < table->columnCount(); ++column)
    {
        if (table->ColumnAt(column) == *sorted)
        {
            heads->setSortIndicator(column, table->SortOrder());
        }
    }
}

/// Of several rows that are selected, the one worked in is chosen. A row that only has the focus is not.
void frmChartView::tblLines_Select()
{
    const QItemSelectionModel* const rows = ui->tblLines->selectionModel();
    const int current = ui->tblLines->currentIndex().row();
    const auto selected = rows->selectedRows();
    if (selected.isEmpty())
    {
        Choose(std::nullopt);
        return;
    }
    const bool isCurrent = rows->isRowSelected(current);
    Choose(table->LineOf(isCurrent ? current : selected.first().row()));
}

void frmChartView::Hover(std::optional<int> line)
{
    if (line != scene.Hovered)
    {
        scene.Hovered = line;
        ui->picChartView->ShowOverlay();
        ui->tblLines->viewport()->update();
    }
}
