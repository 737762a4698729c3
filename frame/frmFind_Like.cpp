#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "find/LikenessRules.h"
#include "find/PartFilter.h"
#include "frame/CellTexts.h"
#include "frame/FoundTable.h"
#include "frame/LikeTable.h"
#include "frame/frmFind.h"
#include "requests/FourDigits.h"
#include "ui_frmFind.h"

#include <QHeaderView>

#include <array>
#include <memory>
#include <utility>

int frmFind::ShownRows() const
{
    return ui->tblFound->model()->rowCount();
}

std::int16_t frmFind::PartIndexAt(int row) const
{
    return IsLike() ? likes->PartIndexAt(row) : table->PartIndexAt(row);
}

/// Shows the rows of one of the models in place of those of the other.
void frmFind::PutIntoTable(QAbstractItemModel& rows)
{
    QTableView* const found = ui->tblFound;
    const std::unique_ptr<QItemSelectionModel> formerChoice(found->selectionModel());
    if (found->model() != nullptr)
    {
        disconnect(found->model(), nullptr, this, nullptr);
    }
    // Before the table itself hears of a new answer, and forgets what was chosen.
    connect(&rows, &QAbstractItemModel::modelAboutToBeReset, this, &frmFind::KeepChosen);
    found->setModel(&rows);
    connect(&rows, &QAbstractItemModel::modelReset, this, &frmFind::ChooseAgain);
}

/// Over the ranges that are typed if both are, else over all that the part permits. What is typed of the
/// parts that are looked for does not narrow what may stand for one of them.
static LikeQuestion LikeQuestionAt(const OperatingPoint& at, const PartRecord& original)
{
    LikeQuestion question{.Original = &original, .HeatResistance = at.HeatResistance, .View = at.View};
    if (!at.BiasVolts.IsPoint() && !at.AmbientC.IsPoint())
    {
        question.BiasVolts = at.BiasVolts;
        question.AmbientC = at.AmbientC;
    }
    return question;
}

static QString RangeText(const ConditionRange& range, Quantity quantity)
{
    const auto digits = [](float value) { return QString::fromStdString(FourDigits(value)); };
    return digits(range.Low) + QStringLiteral("..") + digits(range.High) + u' ' + ShownUnit(quantity);
}

/// "3 parts (Esc: back); 0..16 V, -55..85 °C; left out: 12 too large".
static QString LikeLine(const LikeParts& found, const LikeQuestion& question)
{
    QString text = QStringLiteral("no part");
    if (!found.Parts.empty())
    {
        text = found.Parts.size() == 1 ? QStringLiteral("1 part")
                                       : QStringLiteral("%1 parts").arg(found.Parts.size());
    }
    else if (!found.Nearest.empty())
    {
        text += QStringLiteral(", the nearest are short");
    }
    const auto box = question.Box();
    text += QStringLiteral(" (Esc: back); ") + RangeText(box.BiasVolts, Quantity::DCVoltage) +
            QStringLiteral(", ") + RangeText(box.AmbientC, Quantity::Temperature);
    const auto behind = QString::fromStdString(LikeText(found, question)).section(QStringLiteral("; "), 1);
    return behind.isEmpty() ? text : text + QStringLiteral("; ") + behind;
}

/// Of the first chosen row; of the first row where none is chosen.
void frmFind::FindReplacements()
{
    if (ui->cmdFindPlot->isEnabled())
    {
        const auto rows = ChosenRows();
        const auto part = PartIndexAt(rows.empty() ? 0 : rows.front());
        ShowLike(mdlPublic.Parts.PartData[static_cast<std::size_t>(part)]);
    }
}

void frmFind::ShowLike(const PartRecord& original)
{
    const auto question = LikeQuestionAt(table->Question().At, original);
    const auto index = static_cast<std::int32_t>(&original - mdlPublic.Parts.PartData.data());
    const QString name = PartNumText(index, GetPartNumForm());
    if (const auto refusal = RefuseLikeQuestion(question))
    {
        ui->lblFound->setText(name + QStringLiteral(": ") +
                              QString::fromStdString(refusal->Message).simplified());
        return;
    }
    PartFilter everyPart;
    everyPart.Code = question.View;
    everyPart.TakesPartsWithoutData = true;
    const auto found = FindLike(FilterParts(mdlPublic.Parts, everyPart), question);
    TakeLikeTable(original);
    likes->SetAnswer(found, question.View);
    ui->tblFound->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    ui->tblFound->resizeColumnsToContents();
    ui->lblFound->setText(QStringLiteral("Like %1: %2").arg(name, LikeLine(found, question)));
    ui->tblFound->setAccessibleDescription(ui->lblFound->text());
    OfferCommands(ShownRows() > 0);
    ui->tblFound->setFocus(Qt::ShortcutFocusReason);
}

/// The way back leads to the answer as it stands now.
void frmFind::TakeLikeTable(const PartRecord& original)
{
    QHeaderView* const heads = ui->tblFound->horizontalHeader();
    if (!IsLike())
    {
        answerLine = ui->tblFound->accessibleDescription();
        answerHeads = heads->saveState();
        KeepChosen();
        chosenInAnswer = chosenBefore;
        PutIntoTable(*likes);
    }
    chosenBefore.clear();
    ui->tblFound->clearSelection();
    likeOriginal = &original;
    for (int column = 0; column < heads->count(); ++column)
    {
        heads->showSection(column);
    }
}

const PartRecord* frmFind::LeaveLike()
{
    const PartRecord* const original = std::exchange(likeOriginal, nullptr);
    if (original != nullptr)
    {
        PutIntoTable(*table);
        ui->tblFound->horizontalHeader()->restoreState(answerHeads);
        chosenBefore = chosenInAnswer;
        ChooseAgain();
        ui->lblFound->setText(answerLine);
        ui->tblFound->setAccessibleDescription(answerLine);
        OfferCommands(ShownRows() > 0);
    }
    return original;
}

void frmFind::Ask(const FindEntries& entries, const PartRecord* replaced)
{
    const std::array<std::pair<QLineEdit*, const std::string*>, 12> boxes = {
        {{ui->txtFindPartNum, &entries.PartNum},
         {ui->cmbFindRatedVol->lineEdit(), &entries.RatedVol},
         {ui->txtFindCap, &entries.Cap},
         {ui->txtFindDCBiasVol, &entries.DCBiasVol},
         {ui->txtFindAmbientTemp, &entries.AmbientTemp},
         {ui->txtFindFrequency, &entries.Frequency},
         {ui->txtFindTolerance, &entries.Tolerance},
         {ui->txtFindCurrent, &entries.Current},
         {ui->txtFindHeatResistance, &entries.HeatResistance},
         {ui->txtFindMinCap, &entries.MinCap},
         {ui->txtFindMinLeft, &entries.MinLeft},
         {ui->txtFindMaxRise, &entries.MaxRise}}};
    for (const auto& [box, entry] : boxes)
    {
        const QSignalBlocker noAnswer(box);
        box->setText(QString::fromStdString(*entry));
    }
    for (QComboBox* const list : {ui->cmbFindMaxSize, ui->cmbFindTcc})
    {
        const QSignalBlocker noAnswer(list);
        list->setCurrentIndex(0);
    }
    const QSignalBlocker noAnswer(ui->chkFindParallel);
    ui->chkFindParallel->setChecked(entries.IsParallel);
    ForgetOrigin();
    Answer();
    if (replaced != nullptr && refusedBox == nullptr)
    {
        ShowLike(*replaced);
    }
}
