#pragma once

/// The chart of one row of a bill of materials.

#include "board/BomCheck.h"

#include <QWidget>

#include <memory>

/// As large as there is room; white on every desktop, as charts are. Pale while it is disabled.
class BomPicture : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows a row of the board; nothing for a null pointer.
    void SetItem(std::shared_ptr<const CheckedBom> board, const JudgedItem* shown);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Holds what `item` points to.
    std::shared_ptr<const CheckedBom> bom;
    const JudgedItem* item = nullptr;
};
