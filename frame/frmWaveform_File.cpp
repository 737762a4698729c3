#include "files/InputFile.h"
#include "formkit/Entries.h"
#include "formkit/RunCommand.h"
#include "frame/frmWaveform.h"
#include "partdata/RunTimeError.h"
#include "stress/WaveformError.h"
#include "ui_frmWaveform.h"

#include <QFileInfo>

#include <algorithm>
#include <new>

void frmWaveform::cmdWaveOpen_Click()
{
    RunCommand(this,
               [this]
               {
                   const auto path = host.AskForFileToOpen(
                       this, {.Dialog = QStringLiteral("waveforms"),
                              .Filter = QStringLiteral("Waveforms (*.txt;*.csv;*.tsv;*.data;*.dat;*.prn)|"
                                                       "*.txt;*.csv;*.tsv;*.data;*.dat;*.prn|"
                                                       "All Files (*.*)|*.*|"),
                              .ProposedName = {}});
                   if (path)
                   {
                       ReadFile(*path);
                   }
               });
}

/// The answer of work that may fail: what it gives, or its fault in one line.
template <class Give, class Tell> static SideWork::Answer AnswerOr(Give give, Tell tell)
{
    try
    {
        return give();
    }
    catch (const WaveformError& error)
    {
        return [tell, fault = QString::fromUtf8(error.what())] { tell(fault); };
    }
    catch (const RunTimeError& error)
    {
        return [tell, fault = QString::fromUtf8(error.what())] { tell(fault); };
    }
    catch (const std::bad_alloc&)
    {
        return [tell, fault = RunTimeError(RunTimeErrorNumber::OutOfMemory)]
        { tell(QString::fromUtf8(fault.what())); };
    }
}

void frmWaveform::ReadFile(const QString& path)
{
    ShowFault({});
    const auto tell = [this, path](const QString& fault)
    { ShowFault(QFileInfo(path).fileName() + QStringLiteral(": ") + fault); };
    const auto read = [this, path](const SideWork::Pause& pause) -> SideWork::Answer
    {
        InputFile input(path.toStdString());
        RefuseTooLarge(input.Size());
        auto bytes = ReadBytes(input, MostWaveformBytes);
        const auto found = std::make_shared<const WaveformTable>(ReadWaveforms(std::move(bytes), pause));
        return [this, path, found] { TakeFile(path, found); };
    };
    work.Begin([=](const SideWork::Pause& pause) { return AnswerOr([&] { return read(pause); }, tell); });
}

void frmWaveform::TakeFile(const QString& path, const std::shared_ptr<const WaveformTable>& read)
{
    file = path;
    table = read;
    ui->lblWaveFile->setText(QFileInfo(path).fileName());
    ui->lblWaveFile->setToolTip(path);
    FillColumns();
    Answer();
}

/// The column of the same name stays chosen, else the one that is plainly meant; none where several may be.
void frmWaveform::FillColumns()
{
    const QSignalBlocker noAnswer(ui->cmbWaveColumn);
    const QString former = ui->cmbWaveColumn->currentText();
    ui->cmbWaveColumn->clear();
    for (const WaveColumn& column : table->Columns)
    {
        ui->cmbWaveColumn->addItem(QString::fromStdString(column.Name));
    }
    int chosen = ui->cmbWaveColumn->findText(former);
    try
    {
        if (chosen < 0)
        {
            chosen = static_cast<int>(&ColumnOf(*table, std::nullopt) - table->Columns.data());
        }
    }
    catch (const WaveformError&)
    {
        chosen = -1;
    }
    ui->cmbWaveColumn->setCurrentIndex(chosen);
}

void frmWaveform::AnswerOfFile()
{
    const int column = ui->cmbWaveColumn->currentIndex();
    if (table == nullptr || column < 0)
    {
        ShowFault(table == nullptr
                      ? QStringLiteral("Open the text that a simulator or an oscilloscope wrote.")
                      : QStringLiteral("Choose the column of the current."));
        return;
    }
    const auto wishes = WishesOf({.From = ui->txtWaveFrom->text().toStdString(),
                                  .To = ui->txtWaveTo->text().toStdString(),
                                  .Period = ui->txtWavePeriod->text().toStdString(),
                                  .CommaIsDecimal = CommaIsDecimal()});
    if (const auto* refused = std::get_if<RefusedEntry>(&wishes))
    {
        ShowRefusal(*refused);
        return;
    }
    const auto find = [this, from = table, column,
                       asked = std::get<StretchWishes>(wishes)]() -> SideWork::Answer
    {
        const auto& current = from->Columns[static_cast<std::size_t>(column)];
        const auto found = std::make_shared<const StressReport>(
            StressReport{.Name = current.Name, .Load = LoadOfRecord(from->WaveformOf(current), asked)});
        return [this, found] { ShowReport(found); };
    };
    const auto tell = [this](const QString& fault) { ShowFault(fault.left(1).toUpper() + fault.mid(1)); };
    work.Begin([=](const SideWork::Pause&) { return AnswerOr(find, tell); });
}

void frmWaveform::ShowBusy(bool busy)
{
    if (busy)
    {
        progressDelay.start();
        return;
    }
    progressDelay.stop();
    ui->prgWaveform->hide();
}
