#pragma once

#include <QObject>

namespace tessera {

/// Whoever scrolls a page changes nothing on it: a pop-up, a number field or a slider takes the wheel only
/// while it has the focus, and does not take the focus by it. What it leaves scrolls what it stands on. For
/// all windows, as long as it lives.
class CalmWheel : public QObject
{
    Q_OBJECT

public:
    explicit CalmWheel(QObject* parent = nullptr);

    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace tessera
