#include "platform/userdefaults.h"

#include <QDir>
#include <QStandardPaths>

namespace tessera {

UserDefaults::UserDefaults(const QString& path)
    : m_settings(std::make_unique<QSettings>(path, QSettings::IniFormat))
{
}

QString UserDefaults::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/Tessera/Tessera.ini");
}

std::optional<QVariant> UserDefaults::value(QLatin1StringView name) const
{
    const QVariant stored = m_settings->value(QString(name));
    return stored.isValid() ? std::optional(stored) : std::nullopt;
}

void UserDefaults::setValue(QLatin1StringView name, const QVariant& value)
{
    m_settings->setValue(QString(name), value);
}

void UserDefaults::remove(QLatin1StringView name)
{
    m_settings->remove(QString(name));
}

QString UserDefaults::string(QLatin1StringView name) const
{
    return m_settings->value(QString(name)).toString();
}

bool UserDefaults::flag(QLatin1StringView name) const
{
    return m_settings->value(QString(name)).toBool();
}

bool UserDefaults::synchronize()
{
    // A status is never cleared: after a failure another one for the same file takes over what was not
    // written.
    if (m_settings->status() != QSettings::NoError)
        m_settings = std::make_unique<QSettings>(path(), QSettings::IniFormat);
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

QString UserDefaults::path() const
{
    return m_settings->fileName();
}

} // namespace tessera
