#pragma once

#include "catalogue/ui/keptsearches.h"
#include "catalogue/ui/lastsearches.h"

#include <QObject>
#include <QPointer>

class QPoint;

class QMenu;

namespace tessera {

class ChipBar;
class SearchField;

/// Searches that come back: those that the user keeps by name, as chips, and the last ones, in the search
/// field's menu.
class SearchKeeping : public QObject
{
    Q_OBJECT

public:
    SearchKeeping(SearchField& field, ChipBar& bar, DefaultsController& defaults, QObject* parent = nullptr);

public Q_SLOTS:
    /// Asks for a name for what the field holds.
    void keepSearch();
    /// What the field holds is one of the last searches now.
    void noteSearch();

Q_SIGNALS:
    void statusMessage(const QString& sentence);

private:
    void takeSettings(const QString& name);
    void showKept();
    void choose(std::size_t place, bool on);
    void showMenu(std::size_t place, const QPoint& at);
    void rename(std::size_t place);
    void remove(std::size_t place);
    void move(std::size_t from, std::size_t to);

    SearchField& m_field;
    ChipBar& m_bar;
    KeptSearches m_kept;
    LastSearches m_last;
    QPointer<QMenu> m_menu; ///< of a chip, while it is open
};

} // namespace tessera
