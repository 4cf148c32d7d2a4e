#include "widgets/closekeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <QWidget>

namespace tessera {

namespace {

// Before a shortcut is looked for, the open pop-up is asked whether it wants the key. It closes itself at
// Escape without saying so, and the window would be next.
class PopUpEscape : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride
            && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape
            && QApplication::activePopupWidget() != nullptr)
            event->accept();
        return QObject::eventFilter(object, event);
    }
};

// One for all windows.
void keepEscapeForPopUps()
{
    static QPointer<PopUpEscape> filter;
    if (!filter) {
        filter = new PopUpEscape(qApp);
        qApp->installEventFilter(filter);
    }
}

} // namespace

void closeByKeyboard(QWidget& window)
{
    keepEscapeForPopUps();
    for (const QKeySequence& keys : {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)})
        QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, &QWidget::close);
}

} // namespace tessera
