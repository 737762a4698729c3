#pragma once

/// Tests of the help viewer and the command that opens it.

#include <QObject>
#include <QTemporaryDir>

class frmHelp;

/// The help viewer, with books good and bad.
class HelpViewerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ContentsFollowTheHeadings();
    void AContentsEntryShowsItsHeading();
    void BackAndForwardRetraceTheWay();
    void SearchGoesThroughEveryPlaceAndRound();
    void SearchTellsWhatIsNotThere();
    void ZoomByKeysAndWheel();
    void EscapeLeavesTheSearchThenTheViewer();
    void PicturesComeFromTheFolderOfTheBook();
    void PrintWithoutPrinterIsTold();
    void ThereIsOneViewer();
    void ABookIsReadAgain();
    void TheViewerClosesWithItsOwner();

    void BadBooksAreErrors_data();
    void BadBooksAreErrors();
    void ABadBookLeavesTheViewerAsItWas();
    void AnEndlessFileIsNotRead();
    void ALargeBookIsShownInTime();

    void TheHelpCommandTakesTheBookOfTheLanguage_data();
    void TheHelpCommandTakesTheBookOfTheLanguage();
    void TheHelpCommandOpensAtATopic();
    void TheHelpCommandTellsThatThereIsNoBook();
    void TheHelpCommandTellsWhyABookIsNotShown();

private:
    QString MakeBook(const QString& name, const QByteArray& bytes) const;
    frmHelp* Open(const QByteArray& html) const;

    std::unique_ptr<QTemporaryDir> folder;
};
