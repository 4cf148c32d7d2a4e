#include "widgets/menusearch.h"

#include <QAction>
#include <QMenu>

#include <deque>

namespace tessera {

namespace {

// "&Save && Quit" is shown as "Save & Quit".
QString shownTitle(const QAction& item)
{
    const QString text = item.text();
    QString title;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&')
            ++i;
        if (i < text.size())
            title += text[i];
    }
    return title;
}

} // namespace

QAction* findMenuItemNamed(const QString& title, const QWidget* start)
{
    std::deque<const QWidget*> queue;
    if (start != nullptr)
        queue.push_back(start);
    while (!queue.empty()) {
        const QList<QAction*> items = queue.front()->actions();
        queue.pop_front();
        for (QAction* item : items) {
            if (!item->isSeparator() && shownTitle(*item) == title)
                return item;
        }
        for (const QAction* item : items) {
            if (const QMenu* submenu = item->menu())
                queue.push_back(submenu);
        }
    }
    return nullptr;
}

} // namespace tessera
