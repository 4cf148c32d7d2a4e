#pragma once

#include "catalogue/storedcatalogue.h"
#include "core/failure.h"

#include <QObject>

#include <expected>
#include <memory>
#include <optional>

namespace tessera {

class Catalogue;
class CatalogueBuild;
class CatalogueSaving;
class DefaultsController;
class Desktop;
class Favourites;
class EmulatorChoice;
class PathChooser;
class RebuildStrip;
class StatusLine;
struct CatalogueComparison;

/// The command that builds the catalogue from the emulator and puts it in place of the present one.
class CatalogueRebuild : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Catalogue& catalogue;
        CatalogueSaving& saving;
        Desktop& desktop;
        DefaultsController& defaults;
        RebuildStrip& strip;
        EmulatorChoice& emulator; ///< knows the emulator to ask
        PathChooser& paths;
        const Favourites& favourites; ///< of which it is said where they differ
        StatusLine& status;
    };
    explicit CatalogueRebuild(const Parts& parts, QObject* parent = nullptr);
    ~CatalogueRebuild() override;

    bool isRunning() const { return m_build != nullptr; }
    /// True where the catalogue was built from an emulator that is another one now.
    bool isOutdated() const;

    /// Puts a file in the catalogue's place after asking about unsaved edits, and keeps the old one under a
    /// dated name. Gives a sentence about what differs; nothing where it was not replaced.
    std::optional<QString> useFile(const QString& path);

public Q_SLOTS:
    /// As the menu's command: asks about unsaved edits, and when this emulator is the one already built from.
    void rebuild();
    /// As the way out of a missing catalogue: nothing is asked but for an emulator where none is found.
    void build();
    void cancel();

Q_SIGNALS:
    void runningChanged(bool running);
    /// After a catalogue has taken the place of another.
    void compared(const tessera::CatalogueComparison& comparison);

private:
    bool mayReplace();
    void stand();
    void finish(int machines);
    void fail(const Failure& failure);
    void letGo();
    bool mayDropEdits();
    QString concluded(QStringList sentences, const QString& kept);
    struct Placed {
        StoredCatalogue content;
        QString kept; ///< under which name the one before is kept; empty where there was none
    };
    std::expected<Placed, Failure> put(const QString& path);
    QString replaceBy(StoredCatalogue content);

    Parts m_parts;
    std::unique_ptr<CatalogueBuild> m_build;
    QString m_identity; ///< of the emulator that is being asked
};

} // namespace tessera
