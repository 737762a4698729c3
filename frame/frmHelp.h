#pragma once

/// The help viewer: a book, its contents and a search through it.

#include "frame/HelpBrowser.h"
#include "frame/HelpWords.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>
#include <vector>

class ClosesWith;
class PrinterHost;
class QTreeWidgetItem;

namespace Ui
{
class frmHelp;
}

/// Opens a book in the help viewer, at `searchFor` where it is given. There is one viewer: a second call
/// shows its book in the same window. It does not block its owner, closes when the owner closes, and prints
/// on the owner's printer where that is a `PrinterHost`.
///
/// Throws RunTimeError, with the viewer as it was, when the book cannot be read: see `ReadHelpBook`.
void OpenHelp(const QString& bookFile, QWidget* owner = nullptr, const QString& searchFor = {});

/// Turns the book in the viewer to the heading of an anchor; nothing happens where there is none.
void ShowHelpTopic(const QString& anchor);

/// Turns the book in the viewer to the line that explains a message; to the chapter of messages where none
/// does.
void ShowMessageInHelp(const QString& message);

/// Closes the viewer where it is open.
void CloseHelp();

/// The viewer's window; use `OpenHelp`. It can be used while a message or a dialog waits for the user.
class frmHelp : public QMainWindow
{
    Q_OBJECT

public:
    frmHelp();
    ~frmHelp() override;

    void ShowBook(const QString& file, const QString& html);
    void SearchFor(const QString& text);
    void ShowTopic(const QString& anchor);
    void ShowMessage(const QString& message);
    /// Closes this window together with `window`, and prints on its printer where it is a `PrinterHost`.
    void CloseWith(QWidget* window);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Connect();
    void ShowWords();
    void LetTabReachTheTools();
    void FillContents();
    void ShowTopicOf(const QTreeWidgetItem* item);
    void GoHome();
    void FindNext();
    void FindPrevious();
    void TellPlaces(int count);
    void Escape();
    void Print();
    void StayUsable();

    std::unique_ptr<Ui::frmHelp> ui;
    std::vector<HelpTopic> topics;
    HelpWords words;
    /// What it closes with.
    QPointer<QWidget> owner;
    QPointer<ClosesWith> closing;
    PrinterHost* printers = nullptr;
};
