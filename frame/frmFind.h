#pragma once

/// Find Parts: which parts do what a circuit needs, live as it is typed.

#include "frame/FindEntries.h"
#include "frame/FindHost.h"

#include <QWidget>

#include <memory>
#include <set>

class FoundTable;
class frmWaveform;
class LikeTable;
class QAbstractItemModel;
class QLineEdit;

namespace Ui
{
class frmFind;
}

/// A window of its own beside the main window, with which it goes. Its entries last until then.
class frmFind : public QWidget
{
    Q_OBJECT

public:
    explicit frmFind(FindHost& mainWindow);
    ~frmFind() override;

    /// Shows the window in front of all others.
    void ComeToFront();
    /// Asks this in place of what was asked before; shows the replacements of a part where one is given.
    void Ask(const FindEntries& entries, const PartRecord* replaced);
    /// After the naming on display has changed: relabels, and computes again.
    void ShowNaming();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The window.
    void SetUpTable();
    void PutIntoTable(QAbstractItemModel& rows);
    void FitColumns();
    void Connect();
    void ConnectCommands();
    void FillLists();
    void FillSizes();
    void FillTccs();

    // The answer.
    void Answer();
    FindEntries Entries() const;
    void ShowAnswer(const FindAsked& asked);
    void ShowRefusal(const RefusedEntry& refused);
    void MarkRefused(QLineEdit* box, const QString& message);
    void OfferCommands(bool offered);
    void HideColumns();
    void GoToTable();

    // Where current and frequency come from.
    void cmdFindWaveform_Click();
    void TakeWaveform();
    void ForgetOrigin();

    // The parts that may stand for one, in place of the answer.
    void FindReplacements();
    void ShowLike(const PartRecord& original);
    void TakeLikeTable(const PartRecord& original);
    /// Back to the answer to the entries; the part whose replacements were shown, or none.
    const PartRecord* LeaveLike();
    bool IsLike() const { return likeOriginal != nullptr; }

    // The chosen parts.
    std::vector<int> ChosenRows() const;
    int ShownRows() const;
    /// Index into the part table of the part that a row shows.
    std::int16_t PartIndexAt(int row) const;
    void KeepChosen();
    void ChooseAgain();
    /// In the order shown, six at most; the first part found where none is chosen.
    std::vector<SelectedPart> ChosenParts() const;

    /// Where in the ranges a chart of the part in a row starts from.
    OperatingPoint StartAt(int row, std::int16_t chartType) const;

    // The commands.
    void cmdFindSelect_Click();
    QString TakenText(int row, std::int16_t chartType) const;
    void cmdFindPlot_Click();
    void ViewChosen();
    void TellOfRowsLeftOut();
    /// In the window and in the status bar.
    void Tell(const QString& told);
    void CopyChosen();
    std::vector<std::int32_t> PartsOfChosenRows() const;
    void SaveModelsOfChosen();
    void ShowMenu(const QPoint& at);
    void ShowMenuByKey();

    std::unique_ptr<Ui::frmFind> ui;
    FindHost& host;
    FoundTable* table;
    /// Made when it is first asked for.
    frmWaveform* waveform = nullptr;
    LikeTable* likes;
    /// The part whose replacements are shown, or none.
    const PartRecord* likeOriginal = nullptr;
    /// The answer's line, how its table stands, and what is chosen of it, while replacements are shown.
    QString answerLine;
    QByteArray answerHeads;
    std::set<std::int16_t> chosenInAnswer;
    /// The naming that the lists show.
    CodeView view;
    /// The entry that is refused, or none.
    QLineEdit* refusedBox = nullptr;
    /// The parts that were chosen as the answer changed, by their indices in the part table.
    std::set<std::int16_t> chosenBefore;
};
