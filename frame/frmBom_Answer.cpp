#include "app/mdlPublic.h"
#include "board/BomText.h"
#include "formkit/Edges.h"
#include "formkit/Entries.h"
#include "frame/BomNetRows.h"
#include "frame/BomRows.h"
#include "frame/frmBom.h"
#include "partdata/OneLine.h"
#include "ui_frmBom.h"

#include <QHeaderView>

#include <algorithm>

/// More lines than this are counted, not shown.
static constexpr std::size_t MostLinesShown = 1000;

// ---- Reading ----

/// Why an entry that holds for all parts is refused; empty for one that is not.
static QString RefusalOf(BomField field, const std::string& typed)
{
    BomItem item;
    item.Cells[static_cast<std::size_t>(field)] = BomCell{.Text = typed};
    std::vector<BomRemark> faults;
    const WaveformSource noWaveforms;
    BomLoads noLoads(noWaveforms);
    QuestionOf(item, GetCodeView(), noLoads, faults);
    return faults.empty() ? QString() : QString::fromStdString(faults.front().Note.Text);
}

/// The defaults as they are typed; false for one that is refused, which is then told.
bool frmBom::ReadDefaults(BomCells& cells)
{
    for (const auto& [field, box] : DefaultBoxes())
    {
        auto typed = box->text().trimmed().toStdString();
        if (CommaIsDecimal())
        {
            std::ranges::replace(typed, ',', '.');
        }
        const auto refusal = typed.empty() ? QString() : RefusalOf(field, typed);
        if (!refusal.isEmpty())
        {
            MarkRefused(box, refusal);
            ShowFaults(refusal.left(1).toUpper() + refusal.mid(1));
            return false;
        }
        if (!typed.empty())
        {
            cells[static_cast<std::size_t>(field)] = BomCell{.Text = typed};
        }
    }
    return true;
}

void frmBom::Read()
{
    MarkRefused(nullptr, {});
    files = {.Bill = ui->txtBomFile->text().trimmed().toStdString(),
             .Conditions = ui->txtBomConditions->text().trimmed().toStdString()};
    BomAsked asked{.Columns = chosenColumns[files.Bill],
                   .Settings = {.View = GetCodeView(),
                                .NumberingOffset = static_cast<std::size_t>(GetNumberingOffset())},
                   .Waveforms = {}};
    work.Stop();
    if (files.Bill.empty())
    {
        ShowFaults(QStringLiteral("Open the bill of materials that a schematic program exported."));
    }
    else if (ReadDefaults(asked.Options))
    {
        BeginReading(asked);
    }
}

/// Verdicts come first. Looking for parts that would pass takes longer, and follows where parts fail.
void frmBom::BeginReading(const BomAsked& asked)
{
    work.Begin(
        [this, asked, from = files](const SideWork::Pause& pause) -> SideWork::Answer
        {
            auto question = asked;
            question.Pause = pause;
            const auto read = std::make_shared<const ReadBoard>(ReadBoardOf(from, question, mdlPublic.Parts));
            return [this, asked, read]
            {
                TakeBoard(*read);
                if (read->Faults.empty() && shown->Judged.Has(BomVerdict::Fail) &&
                    !asked.Settings.IsSuggesting)
                {
                    auto further = asked;
                    further.Settings.IsSuggesting = true;
                    BeginReading(further);
                }
            };
        });
}

static QString Lines(const std::vector<std::string>& lines)
{
    QStringList told;
    for (std::size_t i = 0; i < std::min(lines.size(), MostLinesShown); ++i)
    {
        told << QString::fromStdString(lines[i]);
    }
    if (lines.size() > MostLinesShown)
    {
        told << QStringLiteral("and %1 more").arg(lines.size() - MostLinesShown);
    }
    return told.join(u'\n');
}

void frmBom::TakeBoard(const ReadBoard& read)
{
    watch.Watch(read.Files);
    ShowColumnLines(read.Bom.get());
    if (!read.Faults.empty())
    {
        ShowFaults(Lines(read.Faults));
        return;
    }
    shown = read.Bom;
    shownSettings = read.Settings;
    ShowRows();
    const auto counts = QString::fromStdString(CountsText(shown->Judged));
    ShowText(read.Warnings.empty() ? counts : counts + u'\n' + Lines(read.Warnings));
}

/// The last column, which holds sentences, takes the room that the others leave.
static void FitColumns(QTableView& table)
{
    table.resizeColumnsToContents();
    const QHeaderView& heads = *table.horizontalHeader();
    const int room = table.viewport()->width() - heads.length();
    const int last = heads.count() - 1;
    table.setColumnWidth(last, heads.sectionSize(last) + std::max(0, room));
}

void frmBom::ShowRows()
{
    rows->SetAnswer(shown, shownSettings);
    nets->SetAnswer(shown);
    ui->picBom->setEnabled(true);
    FitColumns(*ui->tblBom);
    FitColumns(*ui->tblBomNets);
    OfferCommands(true);
}

// ---- What is told ----

/// The last answer stays, greyed; nothing is plotted or saved from it.
void frmBom::ShowFaults(const QString& text)
{
    rows->SetStale(true);
    nets->SetStale(true);
    ui->picBom->setEnabled(false);
    OfferCommands(false);
    ShowText(text);
}

void frmBom::ShowText(const QString& text)
{
    ui->lblBom->setText(text);
    ui->tblBom->setAccessibleDescription(text);
}

void frmBom::OfferCommands(bool offered)
{
    ui->cmdBomReport->setEnabled(offered);
    ui->cmdBomPlot->setEnabled(offered && !ChosenParts().empty());
}

void frmBom::ShowBusy(bool busy)
{
    if (busy)
    {
        progressDelay.start();
        return;
    }
    progressDelay.stop();
    ui->prgBom->hide();
}

/// Marks this box alone as refused; none for a null pointer.
void frmBom::MarkRefused(QLineEdit* box, const QString& message)
{
    if (refusedBox != nullptr && refusedBox != box)
    {
        refusedBox->setStyleSheet({});
        refusedBox->setMinimumHeight(0);
        refusedBox->setAccessibleDescription({});
    }
    if (box != nullptr)
    {
        // The frame of a style sheet is lower than the desktop's: what is below would jump up.
        box->setMinimumHeight(box->height());
        box->setStyleSheet(RefusedFrame(palette()));
        box->setAccessibleDescription(message);
    }
    refusedBox = box;
}

// ---- Columns whose heading does not tell their meaning ----

/// No bias stands anywhere, in neither file.
static bool IsWithoutBias(const CheckedBom& bom)
{
    const auto& items = bom.Judged.Items;
    return !items.empty() &&
           std::ranges::none_of(items, [](const JudgedItem& item) { return item.Question.HasBias; });
}

/// A meaning that no column has, while it is missed and there are columns to choose from.
static bool IsMissed(const CheckedBom& bom, BomField field)
{
    const bool isOffered =
        !bom.Bill.Headings.empty() && !bom.Bill.Columns[static_cast<std::size_t>(field)].has_value();
    const bool hasHeading =
        !std::ranges::any_of(bom.Bill.Faults, [](const BomNote& fault) { return fault.Line == 0; });
    return isOffered && (field == BomField::DCBias ? hasHeading && IsWithoutBias(bom) : !hasHeading);
}

static QString NameOf(BomField field)
{
    switch (field)
    {
    case BomField::Part:
        return QStringLiteral("Part");
    case BomField::Reference:
        return QStringLiteral("Reference");
    default:
        return QStringLiteral("Bias");
    }
}

void frmBom::ShowColumnLines(const CheckedBom* bom)
{
    const auto& chosen = chosenColumns[files.Bill];
    for (const auto& [field, label, list] : ColumnLines())
    {
        const auto own = std::ranges::find(chosen, field, &ChosenColumn::Field);
        const bool isChosen = own != chosen.end();
        label->setText(
            QStringLiteral("%1%2").arg(NameOf(field), isChosen ? QStringLiteral(" in column")
                                                               : QStringLiteral(": none; choose a column")));
        const bool isShown = isChosen || (bom != nullptr && IsMissed(*bom, field));
        label->setVisible(isShown);
        list->setVisible(isShown);
        list->clear();
        list->addItem({});
        for (std::size_t i = 0; bom != nullptr && i < bom->Bill.Headings.size(); ++i)
        {
            list->addItem(QString::fromStdString(WithoutControls(bom->Bill.Headings[i])),
                          QString::fromStdString(bom->Bill.Headings[i]));
        }
        list->setCurrentIndex(!isChosen ? 0
                                        : std::max(0, list->findData(QString::fromStdString(own->Heading))));
    }
    ui->fraBomColumns->setVisible(
        std::ranges::any_of(ColumnLines(), [](const ColumnLine& line) { return !line.List->isHidden(); }));
}

void frmBom::ChooseColumn(const ColumnLine& line)
{
    auto& chosen = chosenColumns[files.Bill];
    std::erase_if(chosen, [&](const ChosenColumn& column) { return column.Field == line.Field; });
    const auto heading = line.List->currentData();
    if (heading.isValid())
    {
        chosen.push_back({.Field = line.Field, .Heading = heading.toString().toStdString()});
    }
    Read();
}
