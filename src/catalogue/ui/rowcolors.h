#pragma once

#include "core/settingskeys.h"

#include <QObject>

class QToolButton;

namespace tessera {

class AppearancePage;
class ColorWell;
class DefaultsController;
class Desktop;

/// The commands on the colours of the game table's rows.
class RowColors : public QObject
{
    Q_OBJECT

public:
    RowColors(Desktop& desktop, DefaultsController& defaults, AppearancePage& page,
              QObject* parent = nullptr);

private:
    /// The well chooses the setting's colour, the button gives the first one back.
    void join(const Key<QLatin1StringView>& key, const char* title, ColorWell* well, QToolButton* initial);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
};

} // namespace tessera
