#pragma once

/// The dialog that asks how large a picture is to be.

#include <QDialog>
#include <QSize>

#include <memory>

namespace Ui
{
class frmPicture;
}

/// A size that was chosen.
struct PictureChoice
{
    /// Its place in the list.
    int Entry = 0;
    /// What the picture is laid out for, in units of 96 to the inch.
    QSize Extent;
    /// Pixels of a bitmap to the unit: more than one for a sheet of paper.
    double Scale = 1;
};

/// Offers the window's size, three sizes of screens, a sheet of A4 in landscape, and a size of the user's own
/// from 300 to 16384 pixels each way and up to 64 megapixels.
class frmPicture : public QDialog
{
    Q_OBJECT

public:
    /// @param former what was chosen last, where its extent is valid
    frmPicture(const QSize& window, const PictureChoice& former, QWidget* parent);
    ~frmPicture() override;

    PictureChoice Choice() const;

private:
    void cmbSize_Click();
    void ShowRefusal();

    std::unique_ptr<Ui::frmPicture> ui;
    QSize windowSize;
};
