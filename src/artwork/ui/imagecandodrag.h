#pragma once

#include "widgets/windowdrag.h"

#include <QImage>
#include <QWidget>

namespace tessera {

/// Shows a picture in its own proportions, pixel by pixel where the view is as large as the picture. Dragging
/// it moves the window.
class ImageCandoDrag : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setImage(const QImage& image);
    const QImage& image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QImage m_image;
    WindowDrag m_drag;
};

} // namespace tessera
