#include "app/mdlPublic.h"
#include "chart/ModelSaving.h"
#include "formkit/RunCommand.h"
#include "frame/CellTexts.h"
#include "frame/ChartStart.h"
#include "frame/FoundTable.h"
#include "frame/LikeTable.h"
#include "frame/frmFind.h"
#include "frame/frmWaveform.h"
#include "ui_frmFind.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QShortcut>

#include <algorithm>
#include <ranges>

void frmFind::ConnectCommands()
{
    const auto connectKey = [this](const QKeySequence& key, QWidget* where, auto command)
    {
        auto* const shortcut = new QShortcut(key, where);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, command);
    };
    connect(ui->cmdFindSelect, &QPushButton::clicked, this, &frmFind::cmdFindSelect_Click);
    connect(ui->cmdFindPlot, &QPushButton::clicked, this, &frmFind::cmdFindPlot_Click);
    connect(ui->cmdFindWaveform, &QPushButton::clicked, this, &frmFind::cmdFindWaveform_Click);
    connect(ui->txtFindCurrent, &QLineEdit::textChanged, this, &frmFind::ForgetOrigin);
    connect(ui->txtFindFrequency, &QLineEdit::textChanged, this, &frmFind::ForgetOrigin);
    connect(ui->tblFound, &QTableView::doubleClicked, ui->cmdFindSelect, &QPushButton::click);
    connect(ui->tblFound, &QTableView::customContextMenuRequested, this, &frmFind::ShowMenu);
    connectKey(QKeySequence::Copy, ui->tblFound, [this] { CopyChosen(); });
    // Of the two keys for menus, the window system makes a request of one alone.
    connectKey(Qt::SHIFT | Qt::Key_F10, ui->tblFound, [this] { ShowMenuByKey(); });
    connectKey(Qt::CTRL | Qt::Key_E, this, [this] { ViewChosen(); });
    connectKey(Qt::CTRL | Qt::Key_L, this, [this] { FindReplacements(); });
    connectKey(Qt::Key_F1, this, [this] { host.ShowHelpTopic(QStringLiteral("find")); });
}

// ---- A current of any shape ----

void frmFind::cmdFindWaveform_Click()
{
    if (waveform == nullptr)
    {
        waveform = new frmWaveform(this, host);
        connect(waveform, &QDialog::accepted, this, &frmFind::TakeWaveform);
    }
    waveform->ComeToFront();
}

void frmFind::TakeWaveform()
{
    const auto taken = waveform->Taken();
    ui->txtFindCurrent->setText(taken.Current);
    ui->txtFindFrequency->setText(taken.Frequency);
    if (ui->txtFindDCBiasVol->text().isEmpty())
    {
        ui->txtFindDCBiasVol->setText(taken.BiasVolts);
    }
    ui->lblFindOrigin->setText(QStringLiteral("From %1").arg(taken.Origin));
    // Long names do not fit beside the boxes.
    ui->lblFindOrigin->setToolTip(ui->lblFindOrigin->text());
    ui->lblFindOrigin->show();
    ui->txtFindCurrent->setAccessibleDescription(ui->lblFindOrigin->text());
}

/// An entry that is edited no longer is the waveform's.
void frmFind::ForgetOrigin()
{
    ui->lblFindOrigin->clear();
    ui->lblFindOrigin->hide();
    ui->txtFindCurrent->setAccessibleDescription({});
}

// ---- The chosen parts ----

std::vector<int> frmFind::ChosenRows() const
{
    std::vector<int> rows;
    for (const QModelIndex& chosen : ui->tblFound->selectionModel()->selectedRows())
    {
        rows.push_back(chosen.row());
    }
    std::ranges::sort(rows);
    return rows;
}

void frmFind::KeepChosen()
{
    chosenBefore.clear();
    for (const int row : ChosenRows())
    {
        chosenBefore.insert(PartIndexAt(row));
    }
}

/// Those of the parts chosen before that are still found.
void frmFind::ChooseAgain()
{
    if (chosenBefore.empty())
    {
        return;
    }
    // Neighbours are chosen in one: each range of a selection costs time.
    const QAbstractItemModel* const rows = ui->tblFound->model();
    QItemSelection chosen;
    int first = 0;
    for (int row = 0; row <= ShownRows(); ++row)
    {
        if (row == ShownRows() || !chosenBefore.contains(PartIndexAt(row)))
        {
            if (first < row)
            {
                chosen.select(rows->index(first, 0), rows->index(row - 1, rows->columnCount() - 1));
            }
            first = row + 1;
        }
    }
    QItemSelectionModel* const selection = ui->tblFound->selectionModel();
    selection->select(chosen, QItemSelectionModel::ClearAndSelect);
    if (!chosen.isEmpty())
    {
        selection->setCurrentIndex(chosen.front().topLeft(), QItemSelectionModel::NoUpdate);
    }
}

/// The same of a part beside the one that it may stand for: the temperature where it heats most against that
/// one for the charts of heating, else where it has the least capacitance against it.
static OperatingPoint StartOf(const LikePart& like, OperatingPoint at, std::int16_t chartType)
{
    const bool isHottest = IsHeating(chartType) && like.Loss;
    at.BiasVolts = static_cast<float>(like.Least.At.BiasVolts);
    at.AmbientC = static_cast<float>((isHottest ? *like.Loss : like.Least).At.AmbientC);
    if (at.Kilohertz || isHottest)
    {
        at.Kilohertz =
            at.Kilohertz ? at.Kilohertz->High : ShownValue(Quantity::Frequency, like.Loss->At.Hertz);
    }
    return at;
}

OperatingPoint frmFind::StartAt(int row, std::int16_t chartType) const
{
    const auto& at = table->Question().At;
    return IsLike() ? StartOf(likes->LikeAt(row), at, chartType) : StartOf(table->PartAt(row), at, chartType);
}

std::vector<SelectedPart> frmFind::ChosenParts() const
{
    auto rows = ChosenRows();
    if (rows.empty() && ShownRows() > 0)
    {
        rows.push_back(0);
    }
    std::vector<SelectedPart> parts;
    for (const int row : rows | std::views::take(MostToPlot))
    {
        const auto part = PartIndexAt(row);
        const auto chartType = ChartTypeFor(mdlPublic.Parts.PartData[static_cast<std::size_t>(part)],
                                            ui->cmbFindChartType->currentIndex());
        const auto& at = table->Question().At;
        parts.push_back({.Part = part,
                         .ChartType = chartType,
                         .Conditions = ConditionsOf(at.IsPoint() ? at : StartAt(row, chartType))});
    }
    return parts;
}

// ---- The commands ----

void frmFind::cmdFindSelect_Click()
{
    const auto part = ChosenParts().front();
    host.SelectPart(part);
    if (!table->Question().At.IsPoint())
    {
        host.TellInStatusBar(TakenText(ChosenRows().empty() ? 0 : ChosenRows().front(), part.ChartType));
    }
}

/// Which of the conditions in the ranges have gone into the form.
QString frmFind::TakenText(int row, std::int16_t chartType) const
{
    const QString taken = QStringLiteral("Conditions of the %1 taken: %2");
    if (IsLike())
    {
        const auto at = StartAt(row, chartType);
        const bool isLoss = IsHeating(chartType) && likes->LikeAt(row).Loss;
        return isLoss ? taken.arg(QStringLiteral("largest loss ratio"),
                                  PlaceText({at.AmbientC.Low, at.Kilohertz->Low},
                                            {Quantity::Temperature, Quantity::Frequency}))
                      : taken.arg(QStringLiteral("least ratio"),
                                  PlaceText({at.BiasVolts.Low, at.AmbientC.Low},
                                            {Quantity::DCVoltage, Quantity::Temperature}));
    }
    const bool isRise = IsHeating(chartType) && table->PartAt(row).ConditionsAt(FoundPlace::Rise);
    return taken.arg(isRise ? QStringLiteral("largest rise") : QStringLiteral("least capacitance"),
                     table->PlaceAt(row, isRise ? FoundPlace::Rise : FoundPlace::Least));
}

void frmFind::cmdFindPlot_Click()
{
    const auto parts = ChosenParts();
    if (std::ranges::all_of(parts, [this](const SelectedPart& part) { return host.PlotPart(part); }))
    {
        TellOfRowsLeftOut();
    }
}

/// A chart has no room for more lines: those of the further rows are missed, so it is said.
void frmFind::TellOfRowsLeftOut()
{
    const auto chosen = ChosenRows().size();
    if (chosen > MostToPlot)
    {
        Tell(QStringLiteral("The first %1 of %2 chosen parts are plotted: a chart has room for %1 lines.")
                 .arg(MostToPlot)
                 .arg(chosen));
    }
}

void frmFind::Tell(const QString& told)
{
    ui->lblFound->setText(told);
    host.TellInStatusBar(told);
}

void frmFind::ViewChosen()
{
    if (ui->cmdFindPlot->isEnabled() && host.ViewParts(ChosenParts()))
    {
        TellOfRowsLeftOut();
    }
}

void frmFind::CopyChosen()
{
    QGuiApplication::clipboard()->setText(IsLike() ? likes->Copied(ChosenRows())
                                                   : table->Copied(ChosenRows()));
}

std::vector<std::int32_t> frmFind::PartsOfChosenRows() const
{
    std::vector<std::int32_t> parts;
    for (const int row : ChosenRows())
    {
        parts.push_back(PartIndexAt(row));
    }
    return parts;
}

void frmFind::SaveModelsOfChosen()
{
    const auto ask = [this](const FileQuestion& question) { return host.AskForFile(this, question); };
    RunCommand(this,
               [&]
               {
                   if (const auto path = SaveModels(this, PartsOfChosenRows(), ask))
                   {
                       Tell(QStringLiteral("Model saved to ") + *path);
                   }
               });
}

void frmFind::ShowMenu(const QPoint& at)
{
    auto* const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuPopupFound"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("&Select\tEnter"), ui->cmdFindSelect, &QPushButton::click);
    menu->addAction(QStringLiteral("Pl&ot\tCtrl+Enter"), ui->cmdFindPlot, &QPushButton::click);
    menu->addAction(QStringLiteral("Plot in Chart &View\tCtrl+E"), this, &frmFind::ViewChosen);
    menu->addAction(QStringLiteral("Find &Replacements\tCtrl+L"), this, &frmFind::FindReplacements);
    for (QAction* const action : menu->actions())
    {
        action->setEnabled(ui->cmdFindPlot->isEnabled());
    }
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Copy\tCtrl+C"), this, &frmFind::CopyChosen)
        ->setEnabled(!ChosenRows().empty());
    menu->addAction(QLatin1String(SaveModelText), this, &frmFind::SaveModelsOfChosen)
        ->setEnabled(CanHaveModel(PartsOfChosenRows()));
    menu->popup(ui->tblFound->viewport()->mapToGlobal(at));
}

/// At the current row, else in the middle of the rows.
void frmFind::ShowMenuByKey()
{
    const QRect rows = ui->tblFound->viewport()->rect();
    const QRect current = ui->tblFound->visualRect(ui->tblFound->currentIndex());
    ShowMenu(rows.intersects(current) ? rows.intersected(current).center() : rows.center());
}
