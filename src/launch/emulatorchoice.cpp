#include "launch/emulatorchoice.h"

#include "launch/popupitems.h"
#include "platform/defaultscontroller.h"

#include <QFileInfo>

namespace tessera {

EmulatorChoice::EmulatorChoice(DefaultsController& defaults, std::function<QString()> find)
    : m_defaults(defaults)
    , m_find(std::move(find))
{
    connect(&defaults, &DefaultsController::changed, this, &EmulatorChoice::settingChanged);
    lookForEmulator();
}

void EmulatorChoice::settingChanged(const QString& name)
{
    lookForEmulator();
    if (name == keys::Launchgamesusing.name)
        Q_EMIT modeChanged();
}

QString EmulatorChoice::emulator() const
{
    const QString chosen = m_defaults.text(keys::ExecutionPath);
    return chosen.isEmpty() ? m_found : chosen;
}

QString EmulatorChoice::emulatorNow()
{
    lookForEmulator();
    return emulator();
}

bool EmulatorChoice::findsEmulator()
{
    return QFileInfo::exists(emulatorNow());
}

void EmulatorChoice::lookForEmulator()
{
    if (QFileInfo::exists(m_found) || !m_defaults.text(keys::ExecutionPath).isEmpty())
        return;
    if (const QString found = m_find(); std::exchange(m_found, found) != found)
        Q_EMIT emulatorFound();
}

EmulatorChoice::Mode EmulatorChoice::mode() const
{
    const int position = m_defaults.index(keys::Launchgamesusing);
    return position >= 0 && position < static_cast<int>(launchModes.size()) ? Mode(position) : None;
}

QString EmulatorChoice::modeTitle() const
{
    return mode() == None ? QString() : launchModes[static_cast<std::size_t>(mode())].shown();
}

void EmulatorChoice::setMode(const QString& title)
{
    const auto found = std::ranges::find(launchModes, title, &PopupItem::shown);
    m_defaults.setIndex(keys::Launchgamesusing,
                        found == launchModes.end() ? None : static_cast<int>(found - launchModes.begin()));
}

} // namespace tessera
