#pragma once

/// The picture of a current in a window.

#include "requests/StressSheet.h"

#include <QImage>
#include <QWidget>

#include <memory>
#include <optional>

/// Shows a current and what heats of it. What is no longer what the entries say stays in sight, faded, until
/// the next current takes its place.
class WaveformPicture : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows this current from now on.
    void Show(std::shared_ptr<const StressReport> shown);
    /// The current is not that of the entries.
    void Fade();
    /// Shows nothing.
    void Clear();
    bool IsFaded() const { return isFaded; }
    bool IsEmpty() const { return !picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage Drawn() const;

    std::shared_ptr<const StressReport> report;
    std::optional<StressPicture> picture;
    bool isFaded = false;
    /// As it was drawn last; another size makes it anew.
    QImage drawn;
};
