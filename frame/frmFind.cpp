#include "frame/frmFind.h"

#include "app/mdlPublic.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "find/PartFinder.h"
#include "formkit/ClosesWith.h"
#include "formkit/Edges.h"
#include "formkit/Entries.h"
#include "formkit/Texts.h"
#include "frame/FoundTable.h"
#include "frame/LikeTable.h"
#include "frame/StartPlace.h"
#include "partdata/Availability.h"
#include "ui_frmFind.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <set>

/// The chart that answers most questions first: capacitance over DC voltage.
static constexpr int FirstChartType = 3;
static constexpr QSize LeastSize(600, 400);
/// Room for the frame of a window, which is not known before it is shown.
static constexpr QSize FrameRoom(8, 40);

frmFind::frmFind(FindHost& mainWindow)
    : ui(std::make_unique<Ui::frmFind>())
    , host(mainWindow)
    , table(new FoundTable(this))
    , likes(new LikeTable(this))
    , view(GetCodeView())
{
    ui->setupUi(this);
    // The program ends with its main window, also while this one is open.
    setAttribute(Qt::WA_QuitOnClose, false);
    new ClosesWith(*this, *host.MainWindow());
    setMinimumSize(LeastSize.boundedTo(screen()->availableSize() - FrameRoom));
    new StartPlace(this, size());
    ui->lblFindOrigin->hide();
    ui->txtFindDCBiasVol->setText(QStringLiteral("0"));
    ui->txtFindAmbientTemp->setText(QString::fromStdString(NumberText(ReferenceC(view))));
    FillLists();
    SetUpTable();
    Connect();
    ConnectCommands();
    Answer();
    ui->txtFindPartNum->setFocus();
}

frmFind::~frmFind() = default;

void frmFind::ComeToFront()
{
    if (isMinimized())
    {
        showNormal();
    }
    show();
    raise();
    activateWindow();
}

// ---- The lists ----

void frmFind::FillLists()
{
    FillSizes();
    FillTccs();
    std::set<float> ratings;
    for (const PartRecord& part : mdlPublic.Parts.PartData)
    {
        if (CanBeListed(part))
        {
            ratings.insert(part.Data[Value::RatedVoltage]);
        }
    }
    for (const float rating : ratings)
    {
        ui->cmbFindRatedVol->addItem(QString::fromStdString(NumberText(rating)));
    }
    // A rating that begins like another is typed as it is.
    ui->cmbFindRatedVol->setCompleter(nullptr);
    ui->cmbFindRatedVol->setCurrentIndex(-1);
    for (const ChartKind& kind : FormChartKinds())
    {
        ui->cmbFindChartType->addItem(FromAnsi(kind.Caption));
    }
    ui->cmbFindChartType->setCurrentIndex(FirstChartType);
}

/// The sizes in the naming on display, each with its measures; the one chosen stays chosen by them.
void frmFind::FillSizes()
{
    const QVariant chosen = ui->cmbFindMaxSize->currentData();
    ui->cmbFindMaxSize->clear();
    ui->cmbFindMaxSize->addItem({});
    for (const std::string_view name : SizeNames(mdlPublic.Parts, view))
    {
        if (const auto size = SizeNamed(mdlPublic.Parts, Utf8FromWindows1252(name), view))
        {
            ui->cmbFindMaxSize->addItem(FromAnsi(name), QSize(size->Length, size->Width));
        }
    }
    ui->cmbFindMaxSize->setCurrentIndex(std::max(ui->cmbFindMaxSize->findData(chosen), 0));
}

/// The characteristics in the naming on display, each with a part that bears it, by which it stays chosen.
void frmFind::FillTccs()
{
    const auto naming = static_cast<std::size_t>(view);
    const auto& parts = mdlPublic.Parts.PartData;
    const QVariant bearer = ui->cmbFindTcc->currentData();
    ui->cmbFindTcc->clear();
    ui->cmbFindTcc->addItem({});
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        const QString name = FromAnsi(parts[i].Tcc[naming]);
        if (CanBeListed(parts[i]) && !name.isEmpty() && ui->cmbFindTcc->findText(name) < 0)
        {
            ui->cmbFindTcc->addItem(name, static_cast<int>(i));
        }
    }
    const QString chosen =
        bearer.isValid() ? FromAnsi(parts[static_cast<std::size_t>(bearer.toInt())].Tcc[naming]) : QString();
    ui->cmbFindTcc->setCurrentIndex(std::max(ui->cmbFindTcc->findText(chosen), 0));
}

/// An ambient temperature that is still the reference of the former view follows to that of the new one.
void frmFind::ShowNaming()
{
    const PartRecord* const original = LeaveLike();
    const QString former = QString::fromStdString(NumberText(ReferenceC(view)));
    view = GetCodeView();
    {
        const QSignalBlocker noSizes(ui->cmbFindMaxSize);
        const QSignalBlocker noTccs(ui->cmbFindTcc);
        const QSignalBlocker noAmbient(ui->txtFindAmbientTemp);
        FillSizes();
        FillTccs();
        if (ui->txtFindAmbientTemp->text() == former)
        {
            ui->txtFindAmbientTemp->setText(QString::fromStdString(NumberText(ReferenceC(view))));
        }
    }
    FitColumns();
    // An answer that stays because an entry is refused is renamed, too.
    table->NamesChanged();
    Answer();
    if (original != nullptr && refusedBox == nullptr)
    {
        ShowLike(*original);
    }
}

// ---- The table ----

void frmFind::SetUpTable()
{
    QTableView* const found = ui->tblFound;
    PutIntoTable(*table);
    QHeaderView* const rows = found->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(found->fontMetrics().height() + 8);
    QHeaderView* const heads = found->horizontalHeader();
    heads->setHighlightSections(false);
    heads->setSortIndicatorClearable(true);
    heads->setSortIndicator(-1, Qt::AscendingOrder);
    found->setSortingEnabled(true);
    FitColumns();
}

/// The longest of what a column of names may hold; the rest is as wide as four digits are with their unit.
static QString SampleOf(int tableColumn)
{
    const FoundColumn column = FoundTable::ColumnAt(tableColumn);
    const auto naming = static_cast<std::size_t>(GetCodeView());
    const auto form = static_cast<std::size_t>(GetPartNumForm());
    if (column > FoundColumn::Characteristic)
    {
        return FoundTable::IsPlace(tableColumn) ? QStringLiteral("888.8 °C, 888.8 kHz")
                                                : QStringLiteral("888.8 µF");
    }
    std::string_view longest;
    for (const PartRecord& part : mdlPublic.Parts.PartData)
    {
        const std::string_view name = column == FoundColumn::Part   ? part.PartNum[form]
                                      : column == FoundColumn::Size ? part.SizeCode[naming]
                                                                    : part.Tcc[naming];
        longest = name.size() > longest.size() ? name : longest;
    }
    return FromAnsi(longest);
}

void frmFind::FitColumns()
{
    constexpr int margins = 12;
    const QHeaderView* const heads = ui->tblFound->horizontalHeader();
    for (int column = 0; column < table->columnCount(); ++column)
    {
        const int text = ui->tblFound->fontMetrics().horizontalAdvance(SampleOf(column));
        ui->tblFound->setColumnWidth(column, std::max(text + margins, heads->sectionSizeHint(column)));
    }
}

void frmFind::HideColumns()
{
    for (int column = 0; column < table->columnCount(); ++column)
    {
        if (ui->tblFound->isColumnHidden(column) == table->Applies(column))
        {
            ui->tblFound->setColumnHidden(column, !table->Applies(column));
        }
    }
}

// ---- The answer ----

void frmFind::Connect()
{
    for (QLineEdit* const box : ui->fraFindEntries->findChildren<QLineEdit*>())
    {
        connect(box, &QLineEdit::textChanged, this, &frmFind::Answer);
        box->installEventFilter(this);
    }
    connect(ui->cmbFindMaxSize, &QComboBox::currentIndexChanged, this, &frmFind::Answer);
    connect(ui->cmbFindTcc, &QComboBox::currentIndexChanged, this, &frmFind::Answer);
    connect(ui->chkFindParallel, &QCheckBox::toggled, this, &frmFind::Answer);
}

FindEntries frmFind::Entries() const
{
    const auto textOf = [](const QLineEdit* box) { return box->text().toStdString(); };
    const QVariant size = ui->cmbFindMaxSize->currentData();
    return {.PartNum = ui->txtFindPartNum->text().trimmed().toStdString(),
            .MaxSize = size.isValid() ? std::optional(PartSize{.Length = size.toSize().width(),
                                                               .Width = size.toSize().height()})
                                      : std::nullopt,
            .Tcc = ui->cmbFindTcc->currentText().toStdString(),
            .RatedVol = ui->cmbFindRatedVol->currentText().toStdString(),
            .Cap = textOf(ui->txtFindCap),
            .DCBiasVol = textOf(ui->txtFindDCBiasVol),
            .AmbientTemp = textOf(ui->txtFindAmbientTemp),
            .Frequency = textOf(ui->txtFindFrequency),
            .Tolerance = textOf(ui->txtFindTolerance),
            .Current = textOf(ui->txtFindCurrent),
            .HeatResistance = textOf(ui->txtFindHeatResistance),
            .MinCap = textOf(ui->txtFindMinCap),
            .MinLeft = textOf(ui->txtFindMinLeft),
            .MaxRise = textOf(ui->txtFindMaxRise),
            .IsParallel = ui->chkFindParallel->isChecked(),
            .View = view,
            .CommaIsDecimal = CommaIsDecimal()};
}

void frmFind::Answer()
{
    LeaveLike();
    MarkRefused(nullptr, {});
    const auto asked = AskedBy(Entries(), mdlPublic.Parts);
    if (const auto* refused = std::get_if<RefusedEntry>(&asked))
    {
        ShowRefusal(*refused);
        return;
    }
    ShowAnswer(std::get<FindAsked>(asked));
}

/// "25 parts fit; left out: 21 bias too high", "No part fits. Left out: 46 bias too high"; behind it what an
/// ambient range below the heating data means.
static QString FoundText(const FoundParts& found, const OperatingPoint& at)
{
    QString text = QString::fromStdString(FitText(found.Parts.size(), found.LeftOut));
    if (found.Parts.empty())
    {
        const QString reasons = text.section(QStringLiteral("; left out: "), 1);
        text = QStringLiteral("No part fits.");
        text += reasons.isEmpty() ? QString() : QStringLiteral(" Left out: ") + reasons;
    }
    const std::string note(NoteOnHeating(at));
    return note.empty() ? text : text + QStringLiteral("; ") + QString::fromStdString(note);
}

void frmFind::ShowAnswer(const FindAsked& asked)
{
    auto found = FindParts(asked.Candidates, asked.Question);
    ui->lblFound->setText(FoundText(found, asked.Question.At));
    ui->tblFound->setAccessibleDescription(ui->lblFound->text());
    table->SetAnswer(std::move(found), asked.Question);
    HideColumns();
    // At once: put off until after painting, the new number of rows has the table painted a second time.
    ui->tblFound->doItemsLayout();
    OfferCommands(table->rowCount() > 0);
}

/// The last answer stays, greyed; nothing is selected or plotted from it.
void frmFind::ShowRefusal(const RefusedEntry& refused)
{
    const auto name =
        QString::fromUtf8(refused.Control.data(), static_cast<qsizetype>(refused.Control.size()));
    auto* box = findChild<QLineEdit*>(QStringLiteral("txt") + name);
    const QString message = QString::fromStdString(refused.Message);
    MarkRefused(box != nullptr ? box : ui->cmbFindRatedVol->lineEdit(), message);
    ui->lblFound->setText(message);
    table->SetStale(true);
    OfferCommands(false);
}

/// Marks this box alone as refused; none for a null pointer.
void frmFind::MarkRefused(QLineEdit* box, const QString& message)
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

void frmFind::OfferCommands(bool offered)
{
    ui->cmdFindSelect->setEnabled(offered);
    ui->cmdFindPlot->setEnabled(offered);
}

// ---- Keys ----

/// Down leads from a box into the table. An entry that gets the focus is scrolled into sight.
bool frmFind::eventFilter(QObject* watched, QEvent* event)
{
    auto* const box = qobject_cast<QLineEdit*>(watched);
    if (box != nullptr && event->type() == QEvent::FocusIn)
    {
        ui->scrEntries->ShowWhole(*box);
    }
    const bool isKey = event->type() == QEvent::KeyPress;
    const bool isOfList = watched == ui->cmbFindRatedVol->lineEdit();
    if (isKey && !isOfList && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down)
    {
        GoToTable();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void frmFind::GoToTable()
{
    ui->tblFound->setFocus(Qt::ShortcutFocusReason);
    if (ChosenRows().empty() && ShownRows() > 0)
    {
        ui->tblFound->selectRow(0);
    }
}

void frmFind::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter)
    {
        const bool plots = event->modifiers().testFlag(Qt::ControlModifier) || ui->cmdFindPlot->hasFocus();
        (plots ? ui->cmdFindPlot : ui->cmdFindSelect)->click();
        return;
    }
    if (event->key() == Qt::Key_Escape)
    {
        if (LeaveLike() == nullptr)
        {
            close();
        }
        return;
    }
    QWidget::keyPressEvent(event);
}
