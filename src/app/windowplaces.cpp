#include "app/windowplaces.h"

#include "platform/userdefaults.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace tessera {

WindowPlaces::WindowPlaces(UserDefaults& defaults)
    : m_defaults(defaults)
{
}

void WindowPlaces::keep(QWidget& window, const char* key)
{
    m_places.push_back({&window, key});
    window.installEventFilter(this);
}

bool WindowPlaces::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        const auto place
            = std::ranges::find(m_places, object, [](const Place& each) -> QObject* { return each.window; });
        if (place != m_places.end() && !std::exchange(place->wasShown, true)) {
            if (const auto geometry = m_defaults.value(QLatin1StringView(place->key)))
                place->window->restoreGeometry(geometry->toByteArray());
        }
    }
    return QObject::eventFilter(object, event);
}

void WindowPlaces::remember()
{
    for (const Place& place : m_places) {
        if (place.wasShown)
            m_defaults.setValue(QLatin1StringView(place.key), place.window->saveGeometry());
    }
}

} // namespace tessera
