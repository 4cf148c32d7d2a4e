#pragma once

#include "catalogue/catalogue.h"
#include "platform/defaultscontroller.h"

#include <QObject>

#include <memory>
#include <optional>

class QAction;

namespace tessera {

class Desktop;
class Program;
class RecentDocuments;

/// How the program begins, is told of files, and ends.
class Tessera_AppDelegate : public QObject
{
    Q_OBJECT

public:
    Tessera_AppDelegate(Desktop& desktop, DefaultsController& defaults, RecentDocuments& recent,
                        const QString& cataloguePath);
    ~Tessera_AppDelegate() override;

    /// Start-up in its order, then the file that the program was opened with. False where it was told
    /// meanwhile, during an alert, to end: then there is nothing to go on with.
    bool run(const QString& file);
    /// The windows and what stands behind them; from the beginning of the start-up.
    Program& program() { return *m_program; }

    // The catalogue
    QString applicationSupportFolder() const;
    QUndoStack* windowWillReturnUndoManager();
    /// True for "terminate now".
    bool applicationShouldTerminate();
    void applicationWillTerminate();
    /// Saves what quitting saves, without a question: nobody may be there to answer.
    void saveForSessionEnd();

    /// The main menu's item with this title, or nothing; see widgets/menusearch.h.
    QAction* findMenuItemNamed(const QString& title) const;

public Q_SLOTS:
    /// False for no file.
    bool application_openFile(const QString& path);
    void terminate();
    void endWithSession();
    /// Another start of the program: come to the front and open its file.
    void comeForward(const QString& file);

Q_SIGNALS:
    /// The program ends, and nothing is left to do but to wait for a game.
    void everythingIsSaved();

private:
    void initialize();
    void loadInterface();
    void openCatalogue();
    void awakeFromNib();
    void applicationDidFinishLaunching();
    void beginAfterFirstPaint();

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    RecentDocuments& m_recent;
    Catalogue m_catalogue;
    std::unique_ptr<Program> m_program;
    bool m_buildWanted = false;
    bool m_isRestored = false; ///< the windows and lists stand as they were left
    bool m_isEnding = false;
    std::optional<QString> m_wanted; ///< by another start, before this one had come so far
};

} // namespace tessera
