#include "artwork/ui/imagecandodrag.h"

#include "artwork/aspectratios.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace tessera {

void ImageCandoDrag::setImage(const QImage& image)
{
    m_image = image;
    update();
}

void ImageCandoDrag::paintEvent(QPaintEvent*)
{
    const auto place = picturePlace(m_image.size(), rect(), 0);
    if (!place)
        return;
    QPainter painter(this);
    // At a whole scale the pixels are drawn sharp.
    const auto scale = static_cast<double>(place->scaleX) * devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale != std::floor(scale));
    painter.drawImage(place->rectangle(m_image.size()), m_image);
}

void ImageCandoDrag::mousePressEvent(QMouseEvent* event)
{
    m_drag.press(*event);
}

void ImageCandoDrag::mouseMoveEvent(QMouseEvent* event)
{
    m_drag.move(*event, *this);
}

void ImageCandoDrag::mouseReleaseEvent(QMouseEvent* event)
{
    m_drag.release(*event);
}

} // namespace tessera
