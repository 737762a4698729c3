#pragma once

/// The common dialogs for files, answered by keys as a user would.

#include <QObject>
#include <QTemporaryDir>

class ComdlgFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void SaveGivesPathAndTitle();
    void SaveAppendsNothingToATypedName();
    void SaveAppendsTheDefaultExtension();
    void SaveTakesTheTypedNameWhateverIsMarked();
    void OverwritingIsAskedFor();
    void RefusedOverwritingGoesBackToTheDialog();
    void OverwritingIsNotAskedForWithoutTheFlag();
    void OverwritingIsAskedForTheNameWithExtension();
    void SaveInAMissingFolderIsAskedAgain();
    void ANameThatDoesNotSuitTheCommandIsAskedAgain();
    void SaveUnderANameThatIsNoTextIsAskedAgain();
    void AVanishedFolderGivesTheCurrentOne();
    void FiltersMatchEveryCaseAndNamesWithoutPoint_data();
    void FiltersMatchEveryCaseAndNamesWithoutPoint();
    void TheChosenFilterIsGivenBack();
    void ANameThatDoesNotFitFails_data();
    void ANameThatDoesNotFitFails();
    void OpenGivesTheFile();
    void OpenRefusesAMissingFileWithTheFlag();

private:
    QString InFolder(const QString& name) const;
    void MakeFile(const QString& name) const;

    std::unique_ptr<QTemporaryDir> folder;
};
