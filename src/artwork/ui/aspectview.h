#pragma once

#include "widgets/windowdrag.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

class QTimer;

namespace tessera {

class DefaultsController;

/// Draws a picture as large as the view allows, in the ratio of the settings. A click on it asks for the
/// picture itself; dragging it moves the window.
class AspectView : public QWidget
{
    Q_OBJECT

public:
    explicit AspectView(DefaultsController& defaults, QWidget* parent = nullptr);

    /// The position of the ratio that is used.
    int rationum() const;
    void setImage(const QImage& image);
    const QImage& image() const { return m_image; }
    /// Where the picture is drawn, in pixels of the screen from the view's upper left corner; empty without a
    /// picture.
    QRect drawnRect() const;

    QSize sizeHint() const override { return {276, 207}; }

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool hasWholeSteps() const;
    void drawPicture(QPainter& painter, const QRect& drawn);
    void refine();
    void settingChanged(const QString& name);

    DefaultsController& m_defaults;
    QImage m_image;
    /// The picture scaled well, made when nothing has changed for a moment. Until then it is scaled fast,
    /// while it is painted.
    QPixmap m_scaled;
    QTimer* m_refining;
    WindowDrag m_drag;
};

} // namespace tessera
