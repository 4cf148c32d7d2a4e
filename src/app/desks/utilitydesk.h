#pragma once

#include "tools/ui/utilityhost.h"

#include <QObject>

#include <memory>

namespace tessera {

class Catalogue;
class CatalogueRebuild;
class CatalogueSaving;
class ChangesDesk;
class CommandsDesk;
class DefaultsController;
class Desktop;
class Finding;
class GameListController;
class GameOpening;
class EmulatorChoice;
class LaunchController;
class StatusLine;
class UCAppController;
class UtilityObject;
class Windows;

/// The utility window, joined to what its tools ask of the rooms. It is made when it is first asked for: a
/// start of the program needs none of its pages.
class UtilityDesk : public QObject, public UtilityHost
{
    Q_OBJECT

public:
    struct Parts {
        Desktop& desktop;
        DefaultsController& defaults;
        Windows& windows;
        Catalogue& catalogue;
        CatalogueSaving& saving;
        CatalogueRebuild& rebuild;
        ChangesDesk& changes;
        CommandsDesk& commands;
        GameListController& list;
        Finding& finding;
        GameOpening& opening;
        EmulatorChoice& emulator;
        LaunchController& launches;
        UCAppController& favorites;
        StatusLine& status;
    };
    explicit UtilityDesk(const Parts& parts, QObject* parent = nullptr);
    ~UtilityDesk() override;

    UtilityObject& utility();
    /// False where a job is not to be abandoned.
    bool mayBeAbandoned();

public Q_SLOTS:
    void utilityOrderFront();

private:
    SelectedGame selectedGame() const override;
    QList<RecordDictionary> search_arrangedObjects(const QStringList& names) override;
    std::size_t hiddenRecords() const override;
    void showAllRecords() override;
    bool openGame(const QString& name) override;
    QString emulator() override;
    QString emulatorPath(ScriptEmulator emulator) const override;
    QStringList argumentsArray() override;
    QStringList argumentsArray2() override;
    QString romFolder() const override;
    std::optional<QString> useAsCatalogue(const QString& path) override;
    void showChanges() override;
    QString pathOfDataFile() const override;
    void dir_make(const QString& path) override;
    void set_favorites() override;
    std::expected<QString, Failure> keepUnsavedFavourites() override;

    Parts m_parts;
    std::unique_ptr<UtilityObject> m_utility;
};

} // namespace tessera
