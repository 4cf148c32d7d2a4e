#pragma once

#include <QObject>
#include <QPointer>

namespace tessera {

/// For as long as it lives, windows are painted but take no mouse, no keys and no closing, and the program no
/// quitting; only what was left open does. A modal dialog is open by itself.
class InputBlock : public QObject
{
    Q_OBJECT

public:
    /// Widgets, and actions of menus for the sake of their keys.
    explicit InputBlock(const QList<QPointer<QObject>>& open);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QList<QPointer<QObject>> m_open;
};

} // namespace tessera
