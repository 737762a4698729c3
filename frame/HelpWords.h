#pragma once

/// What the help viewer says around a book, in the book's language.

#include <QString>

/// The texts of one language. `%1` stands for a number.
struct HelpWords
{
    QString Start;
    QString StartTip;
    QString Index;
    QString IndexTip;
    QString Back;
    QString BackTip;
    QString Forward;
    QString ForwardTip;
    QString SmallerTip;
    QString NormalTip;
    QString LargerTip;
    QString Print;
    QString PrintTip;
    QString Previous;
    QString PreviousTip;
    QString Next;
    QString NextTip;
    QString Search;
    QString Contents;
    QString Page;
    QString Tools;
    QString NotFound;
    QString FoundOnce;
    QString FoundTimes;
};

/// The words of the language that a book's `html` element names; English for every other than Japanese.
const HelpWords& HelpWordsOf(const QString& html);
