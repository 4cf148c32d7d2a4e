#pragma once

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <memory>

namespace tessera {

class BiosPanel;
class Bioslist;
struct BiosParts;

/// The BIOS panel, made when it is first asked for.
class BiosDesk : public QObject
{
    Q_OBJECT

public:
    /// `parts` gives what the list needs, for a panel; it is asked once.
    explicit BiosDesk(std::function<BiosParts(BiosPanel& panel)> parts, QObject* parent = nullptr);
    ~BiosDesk() override;

    BiosPanel& panel();
    Bioslist& list();
    /// Of the list's edits.
    QUndoStack& undoStack() { return m_undo; }

private:
    std::function<BiosParts(BiosPanel& panel)> m_parts;
    QUndoStack m_undo;
    std::unique_ptr<BiosPanel> m_panel;
    std::unique_ptr<Bioslist> m_list;
};

} // namespace tessera
