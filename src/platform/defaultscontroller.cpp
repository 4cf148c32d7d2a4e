#include "platform/defaultscontroller.h"

#include "core/failure.h"

#include <QLocale>

namespace tessera {

namespace {

constexpr int shortest = QLocale::FloatingPointShortest; // digits

QVariant toVariant(const InitialValue& value)
{
    if (const bool* flag = std::get_if<bool>(&value))
        return *flag;
    if (const float* number = std::get_if<float>(&value))
        return double{*number};
    return QString(std::get<QLatin1StringView>(value));
}

} // namespace

DefaultsController::DefaultsController(UserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
{
}

void DefaultsController::setInitialValues(const QString& systemFont, const QString& homeFolder)
{
    for (const InitialSetting& row : initialSettings)
        m_initial.insert(row.name, toVariant(row.value));
    m_initial[keys::TablefontName.name] = systemFont;
    m_initial[keys::FavoritefontName.name] = systemFont;
    m_initial[keys::old_favoritesfile.name] = QString(keys::old_favoritesfile.initial).arg(homeFolder);
}

void DefaultsController::revertToInitialValues()
{
    for (const InitialSetting& row : initialSettings)
        m_defaults.setValue(row.name, m_initial.value(row.name));
    m_defaults.synchronize();
    Q_EMIT changed(QString());
}

QVariant DefaultsController::shown(QLatin1StringView name) const
{
    if (const auto stored = m_defaults.value(name))
        return *stored;
    return m_initial.value(name);
}

void DefaultsController::store(QLatin1StringView name, const QVariant& value)
{
    // A number equals every text that reads as it, "1.5" and "1.50".
    if (const auto stored = m_defaults.value(name); stored == value && stored->toString() == value.toString())
        return;
    m_defaults.setValue(name, value);
    Q_EMIT changed(name);
}

bool DefaultsController::flag(const Key<bool>& key) const
{
    return shown(key.name).toBool();
}

int DefaultsController::index(const Key<float>& key) const
{
    return static_cast<int>(number(key));
}

double DefaultsController::number(const Key<float>& key) const
{
    bool isNumber = false;
    const double number = shown(key.name).toDouble(&isNumber);
    const bool fits = isNumber && number > -1e9 && number < 1e9;
    return fits ? number : double{key.initial};
}

QString DefaultsController::text(const Key<float>& key) const
{
    const QVariant value = shown(key.name);
    // Stored as a text, which a settings file makes of every number, it stands as it was typed.
    return value.typeId() == QMetaType::Double ? QString::number(value.toDouble(), 'g', shortest)
                                               : value.toString();
}

QString DefaultsController::text(const Key<QLatin1StringView>& key) const
{
    return shown(key.name).toString();
}

QString DefaultsController::text(const ChosenKey& key) const
{
    return shown(key.name).toString();
}

void DefaultsController::setFlag(const Key<bool>& key, bool on)
{
    store(key.name, on);
}

void DefaultsController::setIndex(const Key<float>& key, double number)
{
    store(key.name, number);
}

void DefaultsController::setText(const Key<float>& key, const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    const bool readsBack = isNumber && QString::number(number, 'g', shortest) == text;
    store(key.name, readsBack ? QVariant(number) : QVariant(text));
}

void DefaultsController::setText(const Key<QLatin1StringView>& key, const QString& text)
{
    store(key.name, text);
}

void DefaultsController::setText(const ChosenKey& key, const QString& text)
{
    store(key.name, text);
}

void DefaultsController::keep(const ChosenKey& key, const QVariant& value)
{
    store(key.name, value);
}

void DefaultsController::forget(const ChosenKey& key)
{
    m_defaults.remove(key.name);
    Q_EMIT changed(key.name);
}

QString DefaultsController::flush()
{
    return m_defaults.synchronize() ? QString() : Failure{"failure_settings", {m_defaults.path()}}.text();
}

} // namespace tessera
