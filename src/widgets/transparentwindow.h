#pragma once

#include "widgets/windowgeometry.h"

#include <QWidget>

namespace tessera {

class Rounded_View2;

/// A window without borders that the user moves by any free place of it and resizes at its lower right
/// corner. It draws its own shadow, around the panel that fills it.
class TransparentWindow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int shadowWidth = 12;

    explicit TransparentWindow(QWidget* parent = nullptr);

    /// The window's content; its buttons act on the window.
    Rounded_View2* panel() const { return m_panel; }

    /// The panel's place on the screen, without the shadow.
    Frame frame() const;
    void setFrame(const Frame& frame);
    /// Of the panel. A size that is not positive is no limit.
    void setLimits(const SizeLimits& limits);
    const SizeLimits& limits() const { return m_limits; }

    /// Above the windows of other programs.
    void setAbove(bool above);

    bool isDragging() const { return m_isDragging; }
    bool isResizing() const { return m_isResizing; }

public Q_SLOTS:
    void orderOut();
    void miniaturize();

Q_SIGNALS:
    /// The window went away by its own button.
    void orderedOut();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool handOver();

    Rounded_View2* m_panel;
    SizeLimits m_limits;
    Place m_initialLocation;
    Frame m_startWindowFrame;
    Place m_startLocation;
    bool m_isDragging = false;
    bool m_isResizing = false;
};

} // namespace tessera
