#include "artwork/ui/snapfolder.h"

#include "artwork/artworkkinds.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <algorithm>

namespace tessera {

SnapFolder::SnapFolder(Desktop& desktop, DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
{
    connect(&defaults, &DefaultsController::changed, this, &SnapFolder::settingChanged);
}

int SnapFolder::kind() const
{
    return m_defaults.index(keys::Screenfolder);
}

bool SnapFolder::showsParents() const
{
    return !m_defaults.flag(keys::Suppress_PS);
}

// At a position that is not in the table, folder and label stay as they are.
void SnapFolder::Setsnapfolder()
{
    if (const ArtworkKind* shown = artworkKind(kind())) {
        m_snappath = m_defaults.text(*shown->folder);
        m_label = shown->label;
        Q_EMIT labelChanged(m_label);
    }
    Q_EMIT picturesChanged();
}

// Setsnapfolder() follows when the setting has changed.
void SnapFolder::ChangesnapPop()
{
    const int next = nextArtworkKind(kind());
    m_desktop.playSound(QStringLiteral("typing"));
    setKind(next);
}

void SnapFolder::setKind(int position)
{
    m_defaults.setIndex(keys::Screenfolder, position);
}

void SnapFolder::openSnapfolder(int tag)
{
    if (tag < 0 || tag >= static_cast<int>(kindOfFolderItem.size()))
        return;
    const ArtworkKind* opened = artworkKind(kindOfFolderItem[static_cast<std::size_t>(tag)]);
    const QString folder = m_defaults.text(*opened->folder);
    if (folder.isEmpty() || !m_desktop.openFolder(folder))
        m_desktop.beep();
}

void SnapFolder::settingChanged(const QString& name)
{
    const bool isFolder = std::ranges::any_of(
        artworkKinds, [&](const ArtworkKind& each) { return name == each.folder->name; });
    if (name.isEmpty() || isFolder || name == keys::Screenfolder.name)
        Setsnapfolder();
    else if (name == keys::Suppress_PS.name)
        Q_EMIT picturesChanged();
}

} // namespace tessera
