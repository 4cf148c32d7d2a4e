#pragma once

#include <QObject>
#include <QUndoStack>

#include <memory>

namespace tessera {

class BiosPanel;
class Bioslist;
class DefaultsController;
class Desktop;
class GameListController;
class EmulatorChoice;
class Windows;

/// The BIOS panel, made when it is first asked for.
class BiosDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Windows& windows;
        Desktop& desktop;
        DefaultsController& defaults;
        EmulatorChoice& emulator; ///< knows the emulator to ask
        GameListController& list;
        QString ownFile; ///< the user's copy of the list
    };
    explicit BiosDesk(Parts parts, QObject* parent = nullptr);
    ~BiosDesk() override;

    BiosPanel& panel();
    Bioslist& list();
    /// Of the list's edits.
    QUndoStack& undoStack() { return m_undo; }

public Q_SLOTS:
    void ViewBiosList();

private:
    Parts m_parts;
    QUndoStack m_undo;
    std::unique_ptr<BiosPanel> m_panel;
    std::unique_ptr<Bioslist> m_list;
};

} // namespace tessera
