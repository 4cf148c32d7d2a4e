#pragma once

#include "core/settingskeys.h"

#include <QSettings>
#include <QVariant>

#include <memory>
#include <optional>

namespace tessera {

/// The user's stored settings, one INI file. A direct reader gets what was stored, or nothing, and carries
/// its own fallback; what a control shows comes from DefaultsController.
class UserDefaults
{
public:
    explicit UserDefaults(const QString& path);

    /// $XDG_CONFIG_HOME/Tessera/Tessera.ini
    static QString standardPath();

    std::optional<QVariant> value(QLatin1StringView name) const;
    void setValue(QLatin1StringView name, const QVariant& value);
    void remove(QLatin1StringView name);

    /// Empty where nothing is stored.
    QString string(QLatin1StringView name) const;
    /// False where nothing is stored.
    bool flag(QLatin1StringView name) const;

    /// Writes what has changed to disk; false where that failed.
    bool synchronize();

    QString path() const;

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace tessera
