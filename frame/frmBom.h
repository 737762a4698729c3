#pragma once

/// Bill of Materials: which parts of a board hold what is asked of them, as its files stand.

#include "frame/BomReading.h"
#include "frame/FileWatch.h"
#include "frame/FindHost.h"
#include "frame/SideWork.h"

#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

class BomNetRows;
class BomRows;
class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;

namespace Ui
{
class frmBom;
}

/// A window of its own beside the main window, with which it goes. Its entries last until then.
class frmBom : public QWidget
{
    Q_OBJECT

public:
    explicit frmBom(FindHost& mainWindow);
    ~frmBom() override;

    /// Shows the window in front of all others.
    void ComeToFront();
    /// After the naming on display has changed: judges again.
    void ShowNaming();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// A box whose entry holds for all parts that have no value of their own.
    struct DefaultBox
    {
        BomField Field;
        QLineEdit* Box;
    };
    /// The line in which a column is chosen whose meaning its heading does not tell.
    struct ColumnLine
    {
        BomField Field;
        QLabel* Label;
        QComboBox* List;
    };

    // The window.
    void SetUpTable(QTableView* shown) const;
    void Connect();
    void ConnectCommands();
    std::vector<DefaultBox> DefaultBoxes() const;
    std::vector<ColumnLine> ColumnLines() const;

    // The files.
    void cmdBomOpen_Click();
    void cmdBomConditions_Click();
    void Open(const QString& path, QLineEdit* box);
    void txtBomFile_Edited();

    // The answer.
    void Read();
    bool ReadDefaults(BomCells& cells);
    void BeginReading(const BomAsked& asked);
    void TakeBoard(const ReadBoard& read);
    void ShowRows();
    void ShowFaults(const QString& text);
    void ShowText(const QString& text);
    void ShowBusy(bool busy);
    void ShowColumnLines(const CheckedBom* bom);
    void ChooseColumn(const ColumnLine& line);
    void MarkRefused(QLineEdit* box, const QString& message);
    void OfferCommands(bool offered);

    // The chosen rows.
    std::vector<int> ChosenRows() const;
    void KeepChosen();
    void ChooseAgain();
    void ShowPicture();
    /// The first of the chosen rows, else the first of all; nothing without rows.
    const JudgedItem* ChosenItem() const;
    /// In the order shown, six at most; the first row where none is chosen.
    std::vector<SelectedPart> ChosenParts() const;

    // The commands.
    void cmdBomPlot_Click();
    void cmdBomReport_Click();
    QString RefusalOfReport(const QString& path) const;
    void OpenInFind();
    void FindReplacements();
    void CopyChosen();
    void ShowMenu(const QPoint& at);
    void ShowMenuByKey();

    std::unique_ptr<Ui::frmBom> ui;
    FindHost& host;
    BomRows* rows;
    BomNetRows* nets;
    /// What the tables show.
    std::shared_ptr<const CheckedBom> shown;
    BomSettings shownSettings;
    /// What the boxes named when they were read last.
    BoardFiles files;
    /// By the bill that they were chosen in.
    std::map<std::string, std::vector<ChosenColumn>> chosenColumns;
    /// The entry that is refused, or none.
    QLineEdit* refusedBox = nullptr;
    /// The references of the rows that were chosen as the answer changed.
    std::set<std::string> chosenBefore;
    FileWatch watch;
    QTimer progressDelay;
    /// Last, so that its work has ended before anything that it refers to goes.
    SideWork work;
};
