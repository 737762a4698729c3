#include "frame/HelpCommand.h"

#include "app/HelpLanguages.h"
#include "app/mdlPublic.h"
#include "formkit/Messages.h"
#include "frame/clsComdlg.h"
#include "frame/frmHelp.h"
#include "partdata/RunTimeError.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <functional>

static constexpr int ContentsCommand = 3;

/// Opens the book and turns it to its page; `turn` is not called where there is no book.
static void OpenBook(QWidget* owner, const std::function<void()>& turn)
{
    const std::string_view book = HelpLanguageOf(mdlPublic.HelpLanguage).Book;
    clsComdlg help;
    help.hWndOwner = owner;
    help.HelpCommand = ContentsCommand;
    help.HelpFile = QCoreApplication::applicationDirPath() + QString::fromStdString(mdlPublic.PathSep) +
                    QString::fromLatin1(book.data(), static_cast<qsizetype>(book.size()));
    if (!QFileInfo::exists(help.HelpFile))
    {
        ShowInformation(owner, QStringLiteral("There is no Help File."));
        return;
    }
    try
    {
        help.ShowHelp();
        turn();
    }
    catch (const RunTimeError& error)
    {
        ShowPlain(owner, QString::fromStdString(error.Description()));
    }
}

void ShowHelpContents(QWidget* owner, const QString& anchor)
{
    OpenBook(owner, [&] { ShowHelpTopic(anchor); });
}

void ShowHelpOnMessage(QWidget* owner, const QString& message)
{
    OpenBook(owner, [&] { ShowMessageInHelp(message); });
}
