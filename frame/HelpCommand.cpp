#include "frame/HelpCommand.h"

#include "app/HelpLanguages.h"
#include "app/mdlPublic.h"
#include "formkit/Messages.h"
#include "frame/clsComdlg.h"
#include "frame/frmHelp.h"
#include "partdata/RunTimeError.h"

#include <QCoreApplication>
#include <QFileInfo>

static constexpr int ContentsCommand = 3;

void ShowHelpContents(QWidget* owner, const QString& anchor)
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
        ShowHelpTopic(anchor);
    }
    catch (const RunTimeError& error)
    {
        ShowPlain(owner, QString::fromStdString(error.Description()));
    }
}
