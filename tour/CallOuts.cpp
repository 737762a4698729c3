#include "tour/CallOuts.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace
{

/// Across, in pixels of the page.
constexpr double Disc = 17;
constexpr int DigitPixels = 12;
constexpr QColor Ground(255, 214, 0);

void DrawNumber(QPainter& painter, const QPointF& center, int number)
{
    const QRectF disc(center.x() - Disc / 2, center.y() - Disc / 2, Disc, Disc);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Ground);
    painter.drawEllipse(disc);
    painter.drawText(disc, Qt::AlignCenter, QString::number(number));
}

} // namespace

void DrawCallOuts(QPixmap& picture, const QWidget& window, const QStringList& controls, double scale,
                  double placeScale)
{
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(placeScale, placeScale);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(DigitPixels);
    font.setBold(true);
    painter.setFont(font);
    int number = 0;
    for (const QString& name : controls)
    {
        const auto* const control = window.findChild<QWidget*>(name);
        Q_ASSERT(control != nullptr);
        const QPointF corner =
            QPointF(control->mapTo(&window, control->rect().topRight())) * scale / placeScale;
        DrawNumber(painter, corner + QPointF(-Disc, Disc / 2 + 1), ++number);
    }
}
