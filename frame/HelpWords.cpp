#include "frame/HelpWords.h"

#include <QRegularExpression>

static const HelpWords English = {.Start = "Start",
                                  .StartTip = "Start of the help (F1)",
                                  .Index = "Index",
                                  .IndexTip = "Index (Ctrl+I)",
                                  .Back = "Back",
                                  .BackTip = "Back (Alt+Left)",
                                  .Forward = "Forward",
                                  .ForwardTip = "Forward (Alt+Right)",
                                  .SmallerTip = "Smaller text (Ctrl+-)",
                                  .NormalTip = "Normal text size (Ctrl+0)",
                                  .LargerTip = "Larger text (Ctrl++)",
                                  .Print = "Print...",
                                  .PrintTip = "Print the help (Ctrl+P)",
                                  .Previous = "Previous",
                                  .PreviousTip = "Previous place (Shift+F3)",
                                  .Next = "Next",
                                  .NextTip = "Next place (F3)",
                                  .Search = "Search the help",
                                  .Contents = "Contents",
                                  .Page = "Help page",
                                  .Tools = "Tools",
                                  .NotFound = "Not found",
                                  .FoundOnce = "Found once",
                                  .FoundTimes = "Found %1 times"};

static const HelpWords Japanese = {.Start = "先頭",
                                   .StartTip = "ヘルプの先頭へ (F1)",
                                   .Index = "索引",
                                   .IndexTip = "索引 (Ctrl+I)",
                                   .Back = "戻る",
                                   .BackTip = "戻る (Alt+Left)",
                                   .Forward = "進む",
                                   .ForwardTip = "進む (Alt+Right)",
                                   .SmallerTip = "文字を小さく (Ctrl+-)",
                                   .NormalTip = "文字を標準の大きさに (Ctrl+0)",
                                   .LargerTip = "文字を大きく (Ctrl++)",
                                   .Print = "印刷...",
                                   .PrintTip = "ヘルプを印刷 (Ctrl+P)",
                                   .Previous = "前へ",
                                   .PreviousTip = "前の箇所 (Shift+F3)",
                                   .Next = "次へ",
                                   .NextTip = "次の箇所 (F3)",
                                   .Search = "ヘルプを検索",
                                   .Contents = "目次",
                                   .Page = "ヘルプの本文",
                                   .Tools = "ツール",
                                   .NotFound = "見つかりません",
                                   .FoundOnce = "1か所見つかりました",
                                   .FoundTimes = "%1か所見つかりました"};

const HelpWords& HelpWordsOf(const QString& html)
{
    static const QRegularExpression language(QStringLiteral("<html[^>]*\\blang\\s*=\\s*[\"']?ja\\b"),
                                             QRegularExpression::CaseInsensitiveOption);
    return html.contains(language) ? Japanese : English;
}
