#pragma once

#include "frame/FindHost.h"
#include "frame/SideWork.h"
#include "frame/WaveformEntries.h"
#include "requests/StressReport.h"
#include "stress/WaveformTable.h"

#include <QDialog>
#include <QTimer>

#include <memory>

class QLineEdit;

namespace Ui
{
class frmWaveform;
}

/// A current as the search takes it.
struct TakenWaveform
{
    /// In Arms and kHz: the sine that heats alike.
    QString Current;
    QString Frequency;
    /// In V; empty for a record.
    QString BiasVolts;
    /// "buck input", "i(c1) of buck.txt".
    QString Origin;
};

/// The window that makes a sine of a current of any shape, off a file or a converter's data, and draws that
/// current. It stands before the search, and its entries last as long as that.
class frmWaveform : public QDialog
{
    Q_OBJECT

public:
    frmWaveform(QWidget* search, FindHost& mainWindow);
    ~frmWaveform() override;

    /// Shows the window in front of all others.
    void ComeToFront();
    /// After it was accepted.
    TakenWaveform Taken() const;

    /// While something is read, ends that alone.
    void reject() override;

private:
    void FillLists();
    void Connect();
    void ShowTurns();
    void ShowPage();
    bool IsOfFile() const;

    // The current.
    void Answer();
    void AnswerOfConverter();
    void AnswerOfFile();
    void ShowReport(std::shared_ptr<const StressReport> found);
    void ShowFault(const QString& fault);
    void ShowRefusal(const RefusedEntry& refused);
    void MarkRefused(QLineEdit* box, const QString& message);
    void ShowText(const QString& text);

    // The file.
    void cmdWaveOpen_Click();
    void ReadFile(const QString& path);
    void TakeFile(const QString& path, const std::shared_ptr<const WaveformTable>& read);
    void FillColumns();
    void ShowBusy(bool busy);

    std::unique_ptr<Ui::frmWaveform> ui;
    FindHost& host;
    /// What is on display; nothing while it is refused or under way.
    std::shared_ptr<const StressReport> report;
    /// The entry that is refused, or none.
    QLineEdit* refusedBox = nullptr;
    QString file;
    std::shared_ptr<const WaveformTable> table;
    QTimer progressDelay;
    /// Last, so that its work has ended before anything that it refers to goes.
    SideWork work;
};
