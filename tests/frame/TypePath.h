#pragma once

/// Answers a file dialog as the user.

#include "tests/frame/WhenShown.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

#include <utility>

/// Types a path over the proposed name; notes the folder and the name that the dialog offers.
inline WhenShown::Step TypePath(const QString& path, std::pair<QString, QString>* offered = nullptr)
{
    return [=](QWidget& shown)
    {
        auto* const dialog = qobject_cast<QFileDialog*>(&shown);
        QVERIFY(dialog != nullptr);
        auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
        if (offered != nullptr)
        {
            *offered = {dialog->directory().path(), name->text()};
        }
        dialog->activateWindow();
        name->setFocus();
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    };
}
