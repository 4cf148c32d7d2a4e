#pragma once

#include <QScrollBar>

namespace tessera {

/// A scroll bar that is only its knob: no track, no arrows. What lies under it shows through.
class MyScrollers : public QScrollBar
{
    Q_OBJECT

public:
    explicit MyScrollers(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// Where the knob is painted.
    QRectF knob() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessera
