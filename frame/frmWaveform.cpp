#include "frame/frmWaveform.h"

#include "app/mdlPublic.h"
#include "calc/NumberText.h"
#include "formkit/Edges.h"
#include "formkit/Entries.h"
#include "formkit/Texts.h"
#include "frame/StartPlace.h"
#include "requests/FourDigits.h"
#include "requests/StressFormats.h"
#include "ui_frmWaveform.h"

#include <QFileInfo>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>

/// Reading that takes no longer than this is not worth a sign.
static constexpr int ProgressMilliSeconds = 300;
/// The text below the picture has room for so many lines at least.
static constexpr int LinesOfText = 3;

frmWaveform::frmWaveform(QWidget* search, FindHost& mainWindow)
    : QDialog(search)
    , ui(std::make_unique<Ui::frmWaveform>())
    , host(mainWindow)
{
    ui->setupUi(this);
    new StartPlace(this, size());
    ui->scrWaveform->setMinimumHeight(LinesOfText * ui->lblWaveform->fontMetrics().lineSpacing());
    ui->prgWaveform->hide();
    progressDelay.setSingleShot(true);
    progressDelay.setInterval(ProgressMilliSeconds);
    FillLists();
    Connect();
    Answer();
}

frmWaveform::~frmWaveform() = default;

void frmWaveform::ComeToFront()
{
    show();
    raise();
    activateWindow();
}

/// "buck" as it stands in lists.
static QString Capitalized(std::string_view name)
{
    QString text = FromAnsi(name);
    text[0] = text[0].toUpper();
    return text;
}

void frmWaveform::FillLists()
{
    for (const ConverterName& kind : ConverterNames)
    {
        ui->cmbConverter->addItem(Capitalized(kind.Name));
    }
    for (const std::string_view side : ConverterSideNames)
    {
        ui->cmbConvSide->addItem(Capitalized(side));
    }
    ui->txtConvTurns->setText(QStringLiteral("1"));
    ShowTurns();
}

void frmWaveform::Connect()
{
    for (QLineEdit* const box : findChildren<QLineEdit*>())
    {
        connect(box, &QLineEdit::textChanged, this, &frmWaveform::Answer);
    }
    connect(ui->cmbConverter, &QComboBox::currentIndexChanged, this, &frmWaveform::ShowTurns);
    for (const QComboBox* const list : {ui->cmbConverter, ui->cmbConvSide, ui->cmbWaveColumn})
    {
        connect(list, &QComboBox::currentIndexChanged, this, &frmWaveform::Answer);
    }
    connect(ui->tabWaveform, &QTabWidget::currentChanged, this, &frmWaveform::ShowPage);
    connect(ui->cmdWaveOpen, &QPushButton::clicked, this, &frmWaveform::cmdWaveOpen_Click);
    connect(ui->cmdWaveOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cmdWaveCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(&work, &SideWork::BusyChanged, this, &frmWaveform::ShowBusy);
    connect(&progressDelay, &QTimer::timeout, ui->prgWaveform, &QWidget::show);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { host.ShowHelpTopic(QStringLiteral("find-waveform")); });
}

/// Another kind of converter is first asked for the side whose current is pulsed.
void frmWaveform::ShowTurns()
{
    const auto kind = static_cast<ConverterKind>(ui->cmbConverter->currentIndex());
    const QSignalBlocker noAnswer(ui->cmbConvSide);
    ui->cmbConvSide->setCurrentIndex(static_cast<int>(KindOf(kind).PulsedSide));
    ui->lblConvTurns->setVisible(kind == ConverterKind::Flyback);
    ui->txtConvTurns->setVisible(kind == ConverterKind::Flyback);
}

/// The picture of one page is none of the other.
void frmWaveform::ShowPage()
{
    ui->picWaveform->Clear();
    Answer();
}

bool frmWaveform::IsOfFile() const
{
    return ui->tabWaveform->currentWidget() == ui->fraWaveFile;
}

TakenWaveform frmWaveform::Taken() const
{
    constexpr double hertzPerKilohertz = 1e3;
    const auto sine = report->Load.Lines.Moments.Total().Sine();
    const QString title = QString::fromStdString(report->Title());
    TakenWaveform taken{
        .Current = QString::fromStdString(FourDigits(static_cast<float>(sine.Arms))),
        .Frequency = QString::fromStdString(FourDigits(static_cast<float>(sine.Hertz / hertzPerKilohertz))),
        .BiasVolts = {},
        .Origin = title};
    if (report->Source)
    {
        const double volts = report->Source->Data.VoltageOf(report->Source->Side);
        taken.BiasVolts = QString::fromStdString(NumberText(static_cast<float>(volts)));
    }
    else
    {
        taken.Origin = QStringLiteral("%1 of %2").arg(title, QFileInfo(file).fileName());
    }
    return taken;
}

void frmWaveform::reject()
{
    if (work.IsBusy())
    {
        work.Stop();
        ShowFault(QStringLiteral("Cancelled. Open a file, or change an entry."));
        return;
    }
    QDialog::reject();
}

// ---- The current ----

void frmWaveform::Answer()
{
    report.reset();
    work.Stop();
    MarkRefused(nullptr, {});
    ui->cmdWaveOK->setEnabled(false);
    if (IsOfFile())
    {
        AnswerOfFile();
    }
    else
    {
        AnswerOfConverter();
    }
}

void frmWaveform::AnswerOfConverter()
{
    const auto textOf = [](const QLineEdit* box) { return box->text().toStdString(); };
    const auto read = ConverterOf({.Kind = static_cast<ConverterKind>(ui->cmbConverter->currentIndex()),
                                   .Vin = textOf(ui->txtConvVin),
                                   .Vout = textOf(ui->txtConvVout),
                                   .Iout = textOf(ui->txtConvIout),
                                   .Frequency = textOf(ui->txtConvFrequency),
                                   .Inductance = textOf(ui->txtConvInductance),
                                   .Turns = textOf(ui->txtConvTurns),
                                   .CommaIsDecimal = CommaIsDecimal()});
    if (const auto* refused = std::get_if<RefusedEntry>(&read))
    {
        ShowRefusal(*refused);
        return;
    }
    const auto& converter = std::get<Converter>(read);
    const auto side = static_cast<ConverterSide>(ui->cmbConvSide->currentIndex());
    ShowReport(std::make_shared<const StressReport>(
        StressReport{.Name = {},
                     .Source = ConverterSource{.Data = converter, .Side = side},
                     .Load = LoadOfConverter(converter, side)}));
}

/// What the current is, and what makes it less sure.
static QString TextOf(const StressReport& report)
{
    const auto sine = report.Load.Lines.Moments.Total().Sine();
    auto text = report.Title() + ": " + OriginText(report) + "\n" + SwingText(report.Load) +
                "\nHeats like a sine of " + SineText(sine);
    if (!CanBeTyped(sine))
    {
        text += "\nThe parts have no data at that frequency: it cannot be looked for.";
    }
    for (const auto& warning : WarningsOf(report, GetCodeView(), {}))
    {
        text += "\nWarning: " + warning;
    }
    static const QRegularExpression micro(QStringLiteral(" u([sAVH])\\b"));
    return QString::fromStdString(text).replace(micro, QStringLiteral(" µ\\1"));
}

void frmWaveform::ShowReport(std::shared_ptr<const StressReport> found)
{
    report = std::move(found);
    ShowText(TextOf(*report));
    ui->picWaveform->Show(report);
    ui->cmdWaveOK->setEnabled(CanBeTyped(report->Load.Lines.Moments.Total().Sine()));
}

void frmWaveform::ShowFault(const QString& fault)
{
    report.reset();
    ui->cmdWaveOK->setEnabled(false);
    ui->picWaveform->Fade();
    ShowText(fault);
}

void frmWaveform::ShowText(const QString& text)
{
    ui->lblWaveform->setText(text);
    ui->tabWaveform->setAccessibleDescription(text);
}

void frmWaveform::ShowRefusal(const RefusedEntry& refused)
{
    const auto name =
        QString::fromUtf8(refused.Control.data(), static_cast<qsizetype>(refused.Control.size()));
    auto message = QString::fromStdString(refused.Message);
    message[0] = message[0].toUpper();
    MarkRefused(findChild<QLineEdit*>(QStringLiteral("txt") + name), message);
    ShowFault(message);
}

/// Marks this box alone as refused; none for a null pointer.
void frmWaveform::MarkRefused(QLineEdit* box, const QString& message)
{
    if (refusedBox != nullptr && refusedBox != box)
    {
        refusedBox->setStyleSheet({});
        refusedBox->setAccessibleDescription({});
    }
    if (box != nullptr)
    {
        box->setStyleSheet(RefusedFrame(palette()));
        box->setAccessibleDescription(message);
    }
    refusedBox = box;
}
