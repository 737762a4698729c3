#include "chart/frmPicture.h"

#include "ui_frmPicture.h"

#include <QPushButton>

#include <array>

namespace
{
struct OfferedSize
{
    const char* Name;
    /// Empty for the window's size and for the user's own.
    QSize Extent;
    double Scale;
};
} // namespace

/// A4 is laid out at 96 to the inch, and a bitmap of it has 300.
static constexpr std::array<OfferedSize, 6> Sizes = {{
    {"Window", {}, 1},
    {"1280 x 720", {1280, 720}, 1},
    {"1920 x 1080", {1920, 1080}, 1},
    {"3840 x 2160", {3840, 2160}, 1},
    {"A4 landscape", {1123, 794}, 300 / 96.0},
    {"Own size", {}, 1},
}};
static constexpr int WindowEntry = 0;
static constexpr int OwnEntry = static_cast<int>(Sizes.size()) - 1;
static constexpr qint64 MostPixels = 64'000'000;

frmPicture::frmPicture(const QSize& window, const PictureChoice& former, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::frmPicture>())
    , windowSize(window)
{
    ui->setupUi(this);
    for (const OfferedSize& size : Sizes)
    {
        ui->cmbSize->addItem(QLatin1String(size.Name));
    }
    ui->cmbSize->setCurrentIndex(former.Extent.isValid() ? former.Entry : WindowEntry);
    cmbSize_Click();
    if (former.Extent.isValid() && former.Entry == OwnEntry)
    {
        ui->txtWidth->setValue(former.Extent.width());
        ui->txtHeight->setValue(former.Extent.height());
    }
    connect(ui->cmbSize, &QComboBox::currentIndexChanged, this, &frmPicture::cmbSize_Click);
    connect(ui->txtWidth, &QSpinBox::valueChanged, this, &frmPicture::ShowRefusal);
    connect(ui->txtHeight, &QSpinBox::valueChanged, this, &frmPicture::ShowRefusal);
    connect(ui->cmdButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->cmdButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

frmPicture::~frmPicture() = default;

/// Shows the pixels of the size that is chosen; only a size of the user's own can be typed, and starts from
/// the one before.
void frmPicture::cmbSize_Click()
{
    const int entry = ui->cmbSize->currentIndex();
    const OfferedSize& size = Sizes.at(static_cast<std::size_t>(entry));
    const bool own = entry == OwnEntry;
    if (!own)
    {
        const QSize extent = entry == WindowEntry ? windowSize : size.Extent;
        ui->txtWidth->setValue(qRound(extent.width() * size.Scale));
        ui->txtHeight->setValue(qRound(extent.height() * size.Scale));
    }
    ui->txtWidth->setEnabled(own);
    ui->txtHeight->setEnabled(own);
    ShowRefusal();
}

void frmPicture::ShowRefusal()
{
    const qint64 pixels = qint64{ui->txtWidth->value()} * ui->txtHeight->value();
    const bool tooLarge = pixels > MostPixels;
    ui->lblRefusal->setText(tooLarge ? QStringLiteral("At most 64 megapixels: these are %1.")
                                           .arg(static_cast<double>(pixels) / 1e6, 0, 'f', 1)
                                     : QString());
    ui->cmdButtons->button(QDialogButtonBox::Ok)->setEnabled(!tooLarge);
}

PictureChoice frmPicture::Choice() const
{
    const int entry = ui->cmbSize->currentIndex();
    const OfferedSize& size = Sizes.at(static_cast<std::size_t>(entry));
    const QSize typed(ui->txtWidth->value(), ui->txtHeight->value());
    const QSize extent = entry == WindowEntry ? windowSize : size.Extent;
    return {.Entry = entry, .Extent = entry == OwnEntry ? typed : extent, .Scale = size.Scale};
}
