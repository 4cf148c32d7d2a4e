#include "widgets/closekeys.h"

#include <QShortcut>
#include <QWidget>

namespace tessera {

void closeByKeyboard(QWidget& window)
{
    for (const QKeySequence& keys : {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)})
        QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, &QWidget::close);
}

} // namespace tessera
