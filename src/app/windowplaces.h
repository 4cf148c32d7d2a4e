#pragma once

#include "core/settingskeys.h"

#include <QObject>

#include <vector>

class QWidget;

namespace tessera {

class DefaultsController;

/// Shows windows where they were left, also over runs of the program.
class WindowPlaces : public QObject
{
    Q_OBJECT

public:
    explicit WindowPlaces(DefaultsController& defaults);

    /// The window outlives this. Its place is taken up when it is first shown.
    void keep(QWidget& window, const ChosenKey& key);
    /// Its place is taken up now, for a window that is placed before it is shown.
    void restore(QWidget& window);
    /// Stores the places of those that were shown.
    void remember();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Place {
        QWidget* window;
        const ChosenKey* key;
        bool wasShown = false;
    };

    void takeUp(const QObject& window);

    DefaultsController& m_defaults;
    std::vector<Place> m_places;
};

} // namespace tessera
