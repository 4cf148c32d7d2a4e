#pragma once

#include <QEvent>
#include <QWidget>

namespace tessera::test {

/// Installed on a window, it notes how that is shown.
class ShowWatch : public QObject
{
public:
    bool withoutActivating = false;

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            withoutActivating = static_cast<QWidget*>(object)->testAttribute(Qt::WA_ShowWithoutActivating);
        return false;
    }
};

} // namespace tessera::test
