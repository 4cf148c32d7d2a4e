#include "widgets/filedrop.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace tessera {

namespace {

bool isDrag(const QEvent& event)
{
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove
        || event.type() == QEvent::Drop;
}

// Empty where no file is dragged.
QString fileOf(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const auto file = std::ranges::find_if(urls, &QUrl::isLocalFile);
    return file == urls.end() ? QString() : file->toLocalFile();
}

} // namespace

FileDrop::FileDrop(QWidget& window)
    : QObject(&window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    // They would insert its address as a text.
    for (QLineEdit* field : window.findChildren<QLineEdit*>())
        field->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* object, QEvent* event)
{
    if (!isDrag(*event))
        return QObject::eventFilter(object, event);
    auto& drag = static_cast<QDropEvent&>(*event);
    const QString file = fileOf(*drag.mimeData());
    if (file.isEmpty())
        return QObject::eventFilter(object, event);
    drag.setDropAction(Qt::CopyAction);
    drag.accept();
    // Later: whoever opens it may ask something, and the other program waits until the drop is over.
    if (event->type() == QEvent::Drop)
        QMetaObject::invokeMethod(this, [this, file] { Q_EMIT dropped(file); }, Qt::QueuedConnection);
    return true;
}

} // namespace tessera
