#pragma once

#include "bios/biosentry.h"
#include "bios/biospopup.h"
#include "core/keptfile.h"

#include <QModelIndex>
#include <QObject>

#include <memory>

class QIcon;
class QUndoStack;

namespace tessera {

class BiosEditing;
class BiosPanel;
class BiosQuestion;
class DefaultsController;
class GameSelection;
class Desktop;
class EmulatorChoice;

/// What the BIOS list needs; all of it outlives the controller.
struct BiosParts {
    Desktop& desktop;
    DefaultsController& defaults;
    BiosPanel& panel;
    QUndoStack& undo; ///< of the list
    QString ownFile; ///< the user's copy of the list
    EmulatorChoice& emulator;
    const GameSelection& selection; ///< of the game list
};

/// The commands of the BIOS panel.
class Bioslist : public QObject
{
    Q_OBJECT

public:
    explicit Bioslist(const BiosParts& parts, QObject* parent = nullptr);
    ~Bioslist() override;

    /// Loads the list and shows all of it.
    void awakeFromNib();
    /// The user's copy, or the list that is shipped.
    QString pathOfDataFile() const;
    bool isAsking() const { return m_question != nullptr; }

public Q_SLOTS:
    void ViewBiosList();
    void outlineViewSelectionDidChange();
    void tableViewDoubleAction();
    /// Writes the list to the user's copy.
    void saveAction();
    /// Adds what the user's emulator knows.
    void rebuild();
    /// Adds what the selected game can choose from.
    void addOfGame();
    void addEntry();
    void removeEntry();

Q_SIGNALS:
    /// Asking an emulator is over.
    void asked();

private:
    /// The selected row; none where nothing is selected.
    QModelIndex selected() const;
    void ask(const QString& set);
    void takeAnswer();
    void fail(const Failure& failure);
    void takeEdit();
    void learn();
    void showSetting();
    void showIcon(const QIcon& icon);
    QIcon iconOf(const BiosEntry& entry) const;

    BiosParts m_parts;
    BiosPopup m_popup_bios;
    std::unique_ptr<BiosEditing> m_editing;
    std::unique_ptr<BiosQuestion> m_question;
    KeptFile m_file; ///< the user's copy
};

} // namespace tessera
