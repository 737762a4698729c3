#include "frame/frmAbout.h"

#include "formkit/Messages.h"
#include "frame/ProgramIcon.h"
#include "ui_frmAbout.h"

static constexpr int IconSize = 64;

frmAbout::frmAbout(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::frmAbout>())
{
    ui->setupUi(this);
    setWindowTitle(ProgramTitle());
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    ui->picIcon->setPixmap(ProgramIcon().pixmap(QSize(IconSize, IconSize), devicePixelRatioF()));
    ui->lblTitle->setText(ProgramTitle());
    ui->lblVersion->setText(QStringLiteral("Version %1.%2.%3")
                                .arg(TAVIK_VERSION_MAJOR)
                                .arg(TAVIK_VERSION_MINOR)
                                .arg(TAVIK_VERSION_REVISION));
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
}

frmAbout::~frmAbout() = default;
