#pragma once

/// The notice that stands on the screen while the program prints.

#include <QWidget>

#include <memory>

namespace Ui
{
class frmPrinting;
}

/// Shows "Now Printing..." for its lifetime, without taking control from the caller.
///
///     const frmPrinting notice(this);   // shown and painted
///     PrintDataHeader(printer);         // however this ends, the notice goes
///
class frmPrinting : public QWidget
{
    Q_OBJECT

public:
    /// Returns when the notice is painted, or after half a second where nothing shows it.
    explicit frmPrinting(QWidget* parent = nullptr);
    ~frmPrinting() override;

private:
    void PaintNow();

    std::unique_ptr<Ui::frmPrinting> ui;
};
