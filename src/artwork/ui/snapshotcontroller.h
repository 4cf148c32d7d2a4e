#pragma once

#include "artwork/ui/pictureloader.h"
#include "catalogue/gameselection.h"

#include <QObject>
#include <QTimer>

namespace tessera {

class AspectView;
class DefaultsController;
class Desktop;
class SnapFolder;

/// The picture that the window asks for, and what it is called.
struct ImagePreview {
    QString image_path;
    QString image_name;
};

/// What a list's picture needs; all of it outlives the controller.
struct SnapshotParts {
    Desktop& desktop;
    DefaultsController& defaults;
    SnapFolder& folder;
    AspectView& view;
    const GameSelection& selection;
};

/// Finds and shows the picture of the set that is selected in one list.
class SnapshotController : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotController(const SnapshotParts& parts, QObject* parent = nullptr);

    /// The selected set; empty for none.
    QString name() const { return m_parts.selection.selected().name; }
    /// The path of the picture that is shown.
    QString snapimag() const { return m_snapimag; }
    void setSnapimag(const QString& path) { m_snapimag = path; }
    /// While it is held, no picture is read.
    void setHeld(bool held) { m_loader.setHeld(held); }

public Q_SLOTS:
    /// Shows the picture of the selected set.
    void showSelection();
    void Setsnapshot(const QString& name);
    void snappreview();
    void display_rom_Finder();
    void display_image_Finder();

Q_SIGNALS:
    void previewRequested(const tessera::ImagePreview& preview);
    void statusMessage(const QString& text);

private:
    void show(const QString& path, const QImage& image);
    void showBroken(const QString& path, const QString& reason);
    void reveal(const QString& folder, const QString& suffix);

    SnapshotParts m_parts;
    QString m_snapimag;
    QTimer m_patience; ///< how long the last picture stays while the next one is read
    PictureLoader m_loader;
};

} // namespace tessera
