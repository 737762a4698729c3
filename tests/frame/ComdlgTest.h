#pragma once

/// The common dialogs but for those for files, answered by keys as a user would.

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

    std::unique_ptr<QTemporaryDir> folder;
};
