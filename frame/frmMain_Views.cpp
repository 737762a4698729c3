#include "frame/frmMain.h"

#include "formkit/RunCommand.h"
#include "frame/FileNames.h"
#include "frame/HelpCommand.h"
#include "frame/LastFolder.h"
#include "frame/clsComdlg.h"
#include "ui_frmMain.h"

#include <QFileInfo>
#include <QPrinter>

// ---- Kept until the program ends ----

void frmMain::Keep(const QString& name, const QVariant& value)
{
    kept.insert(name, value);
}

QVariant frmMain::Kept(const QString& name) const
{
    return kept.value(name);
}

static QString FolderKey(const QString& dialog)
{
    return QStringLiteral("folder of ") + dialog;
}

/// Notes the folder of a file as a dialog's own last one, and as the last one of all.
void frmMain::NoteFolder(const QString& dialog, const QString& file)
{
    const QString folder = QFileInfo(file).path();
    Keep(FolderKey(dialog), folder);
    Keep(FolderKey({}), folder);
}

/// Where a question's dialog begins: in its own last folder, else in the last one of all.
void frmMain::BeginDialog(clsComdlg& dialog, QWidget* window, const FileQuestion& question)
{
    dialog.hWndOwner = window;
    dialog.CancelError = false;
    const QVariant last = Kept(FolderKey({}));
    dialog.InitDir = Kept(FolderKey(question.Dialog)).toString();
    if (dialog.InitDir.isEmpty())
    {
        dialog.InitDir = last.isValid() ? last.toString() : LastFolder();
    }
    dialog.Filter(question.Filter);
    dialog.FilterIndex = 1;
}

std::optional<QString> frmMain::AskForFile(QWidget* window, const FileQuestion& question)
{
    clsComdlg dialog;
    BeginDialog(dialog, window, question);
    dialog.Flags = 2;
    dialog.FileName = FileNameOf(question.ProposedName);
    dialog.Refuse = question.Refuse;
    dialog.ShowSave();
    if (dialog.FileTitle.isEmpty())
    {
        return std::nullopt;
    }
    NoteFolder(question.Dialog, dialog.FileName);
    return dialog.FileName;
}

std::optional<QString> frmMain::AskForFileToOpen(QWidget* window, const FileQuestion& question)
{
    constexpr int onlyFilesThatExist = 4096;
    clsComdlg dialog;
    BeginDialog(dialog, window, question);
    dialog.Flags = onlyFilesThatExist;
    dialog.ShowOpen();
    if (dialog.FileTitle.isEmpty())
    {
        return std::nullopt;
    }
    Keep(FolderKey(question.Dialog), QFileInfo(dialog.FileName).path());
    return dialog.FileName;
}

// ---- What chart views ask for ----

/// Tells the user something for a while, in the place of what else stands there.
void frmMain::TellInStatusBar(const QString& text)
{
    static constexpr int MilliSeconds = 10000;
    ui->sbrMain->showMessage(text, MilliSeconds);
}

void frmMain::UseConditions(const ChartRecord& line, int number)
{
    TellInStatusBar(library->TakeConditions(line, number));
    ComeToFront();
}

/// In front of the program's other windows, ready to plot.
void frmMain::ComeToFront()
{
    if (isMinimized())
    {
        showNormal();
    }
    raise();
    activateWindow();
    library->FocusPlot();
}

void frmMain::ShowHelpTopic(const QString& anchor)
{
    ShowHelpContents(this, anchor);
}

void frmMain::PrintSheet(const DrawSheet& draw, const QString& title)
{
    RunCommand(this,
               [&]
               {
                   clsComdlg dialog(&Printer());
                   dialog.hWndOwner = this;
                   dialog.ShowPrinter();
                   const SurfaceKind kind = KindOf(Printer());
                   PrintWithNotice([&](QPainter& painter, const PageArea& area)
                                   { draw(painter, area, kind); },
                                   title, PageTurn::AsSetUp);
               });
}
