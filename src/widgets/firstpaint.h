#pragma once

#include <QObject>

class QWidget;

namespace tessera {

/// Tells once that a window has been painted for the first time: what a start need not wait for begins then.
/// Goes away by itself, or with the window.
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    explicit FirstPaint(QWidget& window);

    bool eventFilter(QObject* window, QEvent* event) override;

Q_SIGNALS:
    void passed();
};

} // namespace tessera
