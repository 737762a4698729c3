#include "app/Main.h"

#include "app/HelpLanguages.h"
#include "app/SingleInstance.h"
#include "app/mdlPublic.h"
#include "files/PartFiles.h"
#include "files/PartLoading.h"
#include "formkit/Messages.h"

#include <filesystem>

static std::int16_t HelpLanguageIn(const std::string& programFolder)
{
    for (const HelpLanguageRow& language : HelpLanguages)
    {
        std::error_code ignored;
        const auto book = programFolder + mdlPublic.PathSep + std::string(language.Book);
        if (std::filesystem::is_regular_file(book, ignored))
        {
            return language.Number;
        }
    }
    return HelpLanguages.back().Number;
}

bool Main(const std::string& programFolder, const std::function<void()>& showMainWindow,
          const std::optional<std::string>& partFolder)
{
    if (!ClaimSingleInstance())
    {
        ShowCritical(nullptr, QStringLiteral("It is already started."));
        return false;
    }
    mdlPublic.PathSep = PathSepOf(programFolder);
    mdlPublic.HelpLanguage = HelpLanguageIn(programFolder);
    mdlPublic.Parts = LoadPartData(partFolder.value_or(programFolder));
    showMainWindow();
    mdlPublic.DegreeSign = "\xB0";
    return true;
}
