#pragma once

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
class GeneralPage;
class LaunchController;
class ScriptTool;
class UCAppController;
class UtilityObject;
class Windows;
struct ScriptSources;
struct UtilityHooks;

/// The utility window, joined to what its tools ask of the rooms. It is made when it is first asked for: a
/// start of the program needs none of its pages.
class UtilityDesk : public QObject
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
        GeneralPage& general;
        LaunchController& launches;
        UCAppController& favorites;
    };
    explicit UtilityDesk(const Parts& parts, QObject* parent = nullptr);
    ~UtilityDesk() override;

    UtilityObject& utility();
    /// False where a job is not to be abandoned.
    bool mayBeAbandoned();

public Q_SLOTS:
    void utilityOrderFront();

Q_SIGNALS:
    void statusMessage(const QString& text);
    void statusWithdrawn(const QString& text);

private:
    UtilityHooks hooks();
    ScriptSources scriptSources();

    Parts m_parts;
    std::unique_ptr<UtilityObject> m_utility;
    std::unique_ptr<ScriptTool> m_scripts;
};

} // namespace tessera
