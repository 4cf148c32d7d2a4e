#pragma once

#include <QObject>

class QWidget;

namespace tessera {

/// Takes a file that is dropped anywhere on a window, the text fields that it has by then included; of
/// several the first. Whatever else is dragged stays with the window's own views.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// The drop is heard of for as long as the window lives.
    explicit FileDrop(QWidget& window);

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    void dropped(const QString& path);
};

} // namespace tessera
