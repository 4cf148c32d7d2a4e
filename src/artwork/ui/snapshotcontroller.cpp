#include "artwork/ui/snapshotcontroller.h"

#include "artwork/picturelookup.h"
#include "artwork/ui/aspectview.h"
#include "artwork/ui/snapfolder.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/plaintooltip.h"

#include <QFileInfo>

namespace tessera {

namespace {

constexpr int patience = 250; // milliseconds
// No view needs more: a larger picture would be scaled down at every paint.
constexpr QSize mostShown(2048, 2048);
constexpr QLatin1StringView noImage(":/pictures/No_image.jpg");

} // namespace

SnapshotController::SnapshotController(const SnapshotParts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_loader(mostShown)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, [this] { m_parts.view.setImage(QImage()); });
    connect(&m_loader, &PictureLoader::loaded, this, &SnapshotController::show);
    connect(&m_loader, &PictureLoader::failed, this, &SnapshotController::showBroken);
    connect(&m_parts.folder, &SnapFolder::picturesChanged, this, &SnapshotController::showSelection);
    connect(&m_parts.view, &AspectView::clicked, this, &SnapshotController::snappreview);
}

void SnapshotController::showSelection()
{
    Setsnapshot(name());
}

void SnapshotController::Setsnapshot(const QString& name)
{
    WantedPicture wanted{m_parts.folder.snappath(), name, std::nullopt};
    if (m_parts.folder.showsParents())
        wanted.parent = m_parts.selection.selected().parent;
    const auto found = findPicture(wanted);
    m_snapimag = found ? found->path : QString(noImage);
    m_parts.view.setAccessibleDescription(found ? m_snapimag : qtTrId("picture_nopicture"));
    m_parts.view.setToolTip(
        found && found->isOfParent
            ? plainToolTip(qtTrId("picture_ofparent").arg(wanted.parent.value_or(QString())))
            : QString());
    m_patience.start();
    m_loader.load(m_snapimag);
}

void SnapshotController::show(const QString&, const QImage& image)
{
    m_patience.stop();
    m_parts.view.setImage(image);
}

// snapimag() stays the path of the broken file, which is the set's picture.
void SnapshotController::showBroken(const QString& path, const QString& reason)
{
    m_patience.stop();
    if (path == noImage)
        return m_parts.view.setImage(QImage());
    m_parts.view.setAccessibleDescription(reason);
    m_parts.view.setToolTip(plainToolTip(reason));
    Q_EMIT statusMessage(reason);
    m_loader.load(noImage);
}

void SnapshotController::snappreview()
{
    Q_EMIT previewRequested({m_snapimag, QFileInfo(m_snapimag).fileName()});
}

void SnapshotController::display_rom_Finder()
{
    reveal(m_parts.defaults.text(keys::RomsPath), QStringLiteral(".zip"));
}

void SnapshotController::display_image_Finder()
{
    reveal(m_parts.folder.snappath(), QStringLiteral(".png"));
}

// The file, then the folder of the same name, then the folder that they would be in.
void SnapshotController::reveal(const QString& folder, const QString& suffix)
{
    const QString name = m_parts.selection.selected().name;
    if (name.isEmpty() || folder.isEmpty())
        return m_parts.desktop.beep();
    const QString path = folder + QLatin1Char('/') + name;
    const bool isShown
        = isPlainFileName(name) && (m_parts.desktop.reveal(path + suffix) || m_parts.desktop.reveal(path));
    if (!isShown && !m_parts.desktop.openFolder(folder))
        m_parts.desktop.beep();
}

} // namespace tessera
