#include "app/windowplaces.h"

#include "platform/defaultscontroller.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace tessera {

WindowPlaces::WindowPlaces(DefaultsController& defaults)
    : m_defaults(defaults)
{
}

void WindowPlaces::keep(QWidget& window, const ChosenKey& key)
{
    m_places.push_back({&window, &key});
    window.installEventFilter(this);
}

bool WindowPlaces::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Show)
        takeUp(*object);
    return QObject::eventFilter(object, event);
}

void WindowPlaces::restore(QWidget& window)
{
    takeUp(window);
}

void WindowPlaces::takeUp(const QObject& window)
{
    const auto place = std::ranges::find(m_places, &window,
                                         [](const Place& each) -> const QObject* { return each.window; });
    if (place == m_places.end() || std::exchange(place->wasShown, true))
        return;
    if (const auto geometry = m_defaults.stored().value(place->key->name))
        place->window->restoreGeometry(geometry->toByteArray());
}

void WindowPlaces::remember()
{
    for (const Place& place : m_places) {
        if (place.wasShown)
            m_defaults.keep(*place.key, place.window->saveGeometry());
    }
}

} // namespace tessera
