#include "frame/WaveformPicture.h"

#include "app/mdlPublic.h"
#include "chart/drawing/PainterSheet.h"

#include <QPainter>

#include <utility>

/// How much of a faded picture is left.
static constexpr double FadedOpacity = 0.3;

void WaveformPicture::Show(std::shared_ptr<const StressReport> shown)
{
    report = std::move(shown);
    picture.emplace(StressPictureOf(*report, GetCodeView(), {}));
    isFaded = false;
    drawn = {};
    setAccessibleDescription(QString::fromStdString(picture->Title));
    update();
}

void WaveformPicture::Fade()
{
    isFaded = true;
    setAccessibleDescription({});
    update();
}

void WaveformPicture::Clear()
{
    picture.reset();
    report.reset();
    setAccessibleDescription({});
    update();
}

QImage WaveformPicture::Drawn() const
{
    QImage image(size() * devicePixelRatio(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio());
    QPainter painter(&image);
    PainterSheet sheet(painter);
    DrawStressPicture(*picture, {0, 0, double(width()), double(height())}, sheet);
    return image;
}

void WaveformPicture::paintEvent(QPaintEvent*)
{
    if (!picture)
    {
        return;
    }
    if (drawn.size() != size() * devicePixelRatio())
    {
        drawn = Drawn();
    }
    QPainter painter(this);
    painter.setOpacity(isFaded ? FadedOpacity : 1);
    painter.drawImage(0, 0, drawn);
}
