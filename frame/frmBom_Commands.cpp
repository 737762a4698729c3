#include "app/mdlPublic.h"
#include "board/BomFormats.h"
#include "files/InputsAndOutputs.h"
#include "files/WholeFile.h"
#include "formkit/HourglassScope.h"
#include "formkit/RunCommand.h"
#include "frame/BomPicture.h"
#include "frame/BomRows.h"
#include "frame/ChartStart.h"
#include "frame/FindEntries.h"
#include "frame/frmBom.h"
#include "ui_frmBom.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QShortcut>

#include <algorithm>

void frmBom::ConnectCommands()
{
    const auto connectKey = [this](const QKeySequence& key, QWidget* where, auto command)
    {
        auto* const shortcut = new QShortcut(key, where);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, command);
    };
    connect(ui->cmdBomOpen, &QPushButton::clicked, this, &frmBom::cmdBomOpen_Click);
    connect(ui->cmdBomConditions, &QPushButton::clicked, this, &frmBom::cmdBomConditions_Click);
    connect(ui->cmdBomPlot, &QPushButton::clicked, this, &frmBom::cmdBomPlot_Click);
    connect(ui->cmdBomReport, &QPushButton::clicked, this, &frmBom::cmdBomReport_Click);
    connect(ui->tblBom, &QTableView::doubleClicked, this, &frmBom::OpenInFind);
    connect(ui->tblBom, &QTableView::customContextMenuRequested, this, &frmBom::ShowMenu);
    connectKey(QKeySequence::Copy, ui->tblBom, [this] { CopyChosen(); });
    // Of the two keys for menus, the window system makes a request of one alone.
    connectKey(Qt::SHIFT | Qt::Key_F10, ui->tblBom, [this] { ShowMenuByKey(); });
    connectKey(Qt::CTRL | Qt::Key_L, this, [this] { FindReplacements(); });
    connectKey(QKeySequence::Refresh, this, [this] { Read(); });
    connectKey(Qt::Key_F1, this, [this] { host.ShowHelpTopic(QStringLiteral("board-window")); });
}

// ---- The chosen rows ----

std::vector<int> frmBom::ChosenRows() const
{
    std::vector<int> chosen;
    for (const QModelIndex& index : ui->tblBom->selectionModel()->selectedRows())
    {
        chosen.push_back(index.row());
    }
    std::ranges::sort(chosen);
    return chosen;
}

void frmBom::KeepChosen()
{
    chosenBefore.clear();
    for (const int row : ChosenRows())
    {
        const auto references = rows->ReferencesOf(row);
        chosenBefore.insert(references.begin(), references.end());
    }
}

/// The rows that now hold the references chosen before.
void frmBom::ChooseAgain()
{
    QItemSelection chosen;
    for (const int row : rows->RowsOf(chosenBefore))
    {
        chosen.select(rows->index(row, 0), rows->index(row, rows->columnCount() - 1));
    }
    QItemSelectionModel* const selection = ui->tblBom->selectionModel();
    selection->select(chosen, QItemSelectionModel::ClearAndSelect);
    if (!chosen.isEmpty())
    {
        selection->setCurrentIndex(chosen.front().topLeft(), QItemSelectionModel::NoUpdate);
    }
    ShowPicture();
}

const JudgedItem* frmBom::ChosenItem() const
{
    const auto chosen = ChosenRows();
    return rows->rowCount() == 0 ? nullptr : &rows->ItemAt(chosen.empty() ? 0 : chosen.front());
}

void frmBom::ShowPicture()
{
    ui->picBom->SetItem(shown, ChosenItem());
    ui->cmdBomPlot->setEnabled(ui->cmdBomReport->isEnabled() && !ChosenParts().empty());
}

static std::int16_t IndexOf(const PartRecord& part)
{
    return static_cast<std::int16_t>(&part - mdlPublic.Parts.PartData.data());
}

/// A part as it goes into a chart: at its worst place where it was judged, else at the upper ends.
static SelectedPart Selected(const JudgedItem& item, int askedChart)
{
    const auto chartType = ChartTypeFor(*item.Part, askedChart);
    const auto figures = item.Judged ? item.Judged->Figures : FoundPart(*item.Part);
    return {.Part = IndexOf(*item.Part),
            .ChartType = chartType,
            .Conditions = ConditionsOf(StartOf(figures, item.Question.Asked.At, chartType))};
}

std::vector<SelectedPart> frmBom::ChosenParts() const
{
    auto chosen = ChosenRows();
    if (chosen.empty() && rows->rowCount() > 0)
    {
        chosen.push_back(0);
    }
    std::vector<SelectedPart> parts;
    for (const int row : chosen)
    {
        const auto& item = rows->ItemAt(row);
        if (item.Part != nullptr && parts.size() < MostToPlot)
        {
            parts.push_back(Selected(item, ui->cmbBomChartType->currentIndex()));
        }
    }
    return parts;
}

// ---- The commands ----

void frmBom::cmdBomPlot_Click()
{
    const auto parts = ChosenParts();
    const bool areAllPlotted =
        std::ranges::all_of(parts, [this](const SelectedPart& part) { return host.PlotPart(part); });
    const auto chosen = ChosenRows().size();
    if (areAllPlotted && chosen > MostToPlot)
    {
        host.TellInStatusBar(
            QStringLiteral("The first %1 of %2 chosen parts are plotted: a chart has room for %1 lines.")
                .arg(MostToPlot)
                .arg(chosen));
    }
}

static const BomFormat* FormatOf(const QString& path)
{
    const auto ending = QFileInfo(path).suffix().toLower().toStdString();
    const auto formats = BomFormats();
    const auto found = std::ranges::find(formats.subspan(1), ending, &BomFormat::Name);
    return found == formats.end() ? nullptr : &*found;
}

/// What is wrong with a report's name.
QString frmBom::RefusalOfReport(const QString& path) const
{
    const std::vector<std::filesystem::path> inputs = {files.Bill, files.Conditions};
    if (InputThatIs(path.toStdString(), inputs) != nullptr)
    {
        return QStringLiteral(
            "A report does not replace what it is made from.\r\nPlease enter another name.");
    }
    return FormatOf(path) != nullptr
               ? QString()
               : QStringLiteral(
                     "The name of a report ends in .html, .csv or .json.\r\nPlease enter another name.");
}

void frmBom::cmdBomReport_Click()
{
    RunCommand(
        this,
        [this]
        {
            const auto path = host.AskForFile(
                this, {.Dialog = QStringLiteral("reports"),
                       .Filter = QStringLiteral("Reports (*.html)|*.html|"
                                                "Comma-separated Values (*.csv)|*.csv|"
                                                "JSON (*.json)|*.json|All Files (*.*)|*.*|"),
                       .ProposedName = QFileInfo(QString::fromStdString(files.Bill)).completeBaseName() +
                                       QStringLiteral("-report.html"),
                       .Refuse = [this](const QString& name) { return RefusalOfReport(name); }});
            if (path)
            {
                const HourglassScope hourglass;
                WriteWholeFile(path->toStdString(),
                               FormatOf(*path)->Write(*shown, shownSettings,
                                                      {.Bill = files.Bill, .Conditions = files.Conditions}));
                host.TellInStatusBar(QStringLiteral("Report saved to ") + *path);
            }
        });
}

/// What the row is asked, of all parts of the range.
void frmBom::OpenInFind()
{
    const auto* item = ChosenItem();
    if (item != nullptr && ui->cmdBomReport->isEnabled())
    {
        host.OpenFind(EntriesOf(item->Question.Asked), nullptr);
    }
}

void frmBom::FindReplacements()
{
    const auto* item = ChosenItem();
    if (item != nullptr && item->Part != nullptr && ui->cmdBomReport->isEnabled())
    {
        host.OpenFind(EntriesOf(item->Question.Asked), item->Part);
    }
}

void frmBom::CopyChosen()
{
    QGuiApplication::clipboard()->setText(rows->Copied(ChosenRows()));
}

void frmBom::ShowMenu(const QPoint& at)
{
    auto* const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuPopupBom"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto* item = ChosenItem();
    const bool isFresh = item != nullptr && ui->cmdBomReport->isEnabled();
    menu->addAction(QStringLiteral("Find &Replacements\tCtrl+L"), this, &frmBom::FindReplacements)
        ->setEnabled(isFresh && item->Part != nullptr);
    menu->addAction(QStringLiteral("&Copy\tCtrl+C"), this, &frmBom::CopyChosen)
        ->setEnabled(!ChosenRows().empty());
    menu->addAction(QStringLiteral("&Open in Find\tEnter"), this, &frmBom::OpenInFind)->setEnabled(isFresh);
    menu->popup(ui->tblBom->viewport()->mapToGlobal(at));
}

/// At the current row, else in the middle of the rows.
void frmBom::ShowMenuByKey()
{
    const QRect seen = ui->tblBom->viewport()->rect();
    const QRect current = ui->tblBom->visualRect(ui->tblBom->currentIndex());
    ShowMenu(seen.intersects(current) ? seen.intersected(current).center() : seen.center());
}
