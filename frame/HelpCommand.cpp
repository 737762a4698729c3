#include "frame/HelpCommand.h"

#include "app/mdlPublic.h"
#include "formkit/Messages.h"
#include "frame/clsComdlg.h"
#include "partdata/RunTimeError.h"

#include <QCoreApplication>
#include <QFileInfo>

static constexpr int EnglishHelp = 2;
static constexpr int ContentsCommand = 3;

void ShowHelpContents(QWidget* owner)
{
    const bool english = mdlPublic.HelpLanguage == EnglishHelp;
    clsComdlg help;
    help.hWndOwner = owner;
    help.HelpCommand = ContentsCommand;
    help.HelpFile = QCoreApplication::applicationDirPath() + QString::fromStdString(mdlPublic.PathSep) +
                    (english ? QStringLiteral("tavike.hlp") : QStringLiteral("tavikj.hlp"));
    if (!QFileInfo::exists(help.HelpFile))
    {
        ShowInformation(owner, QStringLiteral("There is no Help File."));
        return;
    }
    try
    {
        help.ShowHelp();
    }
    catch (const RunTimeError& error)
    {
        ShowPlain(owner, QString::fromStdString(error.Description()));
    }
}
