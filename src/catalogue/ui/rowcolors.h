#pragma once

#include "core/settingskeys.h"

#include <QObject>

namespace tessera {

class AppearancePage;
class DefaultsController;
class Desktop;

/// The commands on the colours of the game table's rows.
class RowColors : public QObject
{
    Q_OBJECT

public:
    RowColors(Desktop& desktop, DefaultsController& defaults, AppearancePage& page,
              QObject* parent = nullptr);

public Q_SLOTS:
    /// Only to be heard: the colouring itself follows the setting.
    void coloringAction();
    void chooseTextColor();
    void chooseTextColor2();
    void restoreTextColor();
    void restoreTextColor2();

private:
    void choose(const Key<QLatin1StringView>& key, const QString& title, const QColor& shown);
    void restore(const Key<QLatin1StringView>& key);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    AppearancePage& m_page;
};

} // namespace tessera
