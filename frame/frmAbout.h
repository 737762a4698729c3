#pragma once

/// The about box.

#include <QDialog>

#include <memory>

namespace Ui
{
class frmAbout;
}

/// Icon, title and version of the program. Show it with `exec()`.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

private:
    std::unique_ptr<Ui::frmAbout> ui;
};
