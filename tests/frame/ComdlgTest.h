#pragma once

/// The common dialogs, answered by keys as a user would.

#include <QObject>
#include <QTemporaryDir>

class ComdlgTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void StartsWithTheDefaults();
    void FilterKeepsTheBarForm_data();
    void FilterKeepsTheBarForm();
    void FontSizeIsKeptInTenths_data();
    void FontSizeIsKeptInTenths();

    void SaveGivesPathAndTitle();
    void SaveAppendsNothingToATypedName();
    void SaveAppendsTheDefaultExtension();
    void SaveTakesTheTypedNameWhateverIsMarked();
    void OverwritingIsAskedFor();
    void RefusedOverwritingGoesBackToTheDialog();
    void OverwritingIsNotAskedForWithoutTheFlag();
    void OverwritingIsAskedForTheNameWithExtension();
    void SaveInAMissingFolderIsAskedAgain();
    void AVanishedFolderGivesTheCurrentOne();
    void FiltersMatchEveryCaseAndNamesWithoutPoint_data();
    void FiltersMatchEveryCaseAndNamesWithoutPoint();
    void TheChosenFilterIsGivenBack();
    void ANameThatDoesNotFitFails_data();
    void ANameThatDoesNotFitFails();
    void OpenGivesTheFile();
    void OpenRefusesAMissingFileWithTheFlag();

    void FontIsGivenBack();
    void ColorIsGivenBack();

    void CancelIsAnError_data();
    void CancelIsAnError();
    void CancelIsSilentWithoutCancelError_data();
    void CancelIsSilentWithoutCancelError();
    void WithoutPrinterIsAnError();
    void UnknownActionsAreErrors_data();
    void UnknownActionsAreErrors();
    void HelpActionOpensTheBook();

private:
    QString InFolder(const QString& name) const;
    void MakeFile(const QString& name) const;

    std::unique_ptr<QTemporaryDir> folder;
};
