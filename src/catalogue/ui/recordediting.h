#pragma once

#include <QObject>

#include <memory>

class QWidget;

namespace tessera {

class Catalogue;
class Desktop;
class GameListController;
class RecordEditor;

/// The commands that change records: the record editor, and removing.
class RecordEditing : public QObject
{
    Q_OBJECT

public:
    RecordEditing(Catalogue& catalogue, Desktop& desktop, GameListController& list,
                  QObject* parent = nullptr);
    ~RecordEditing() override;

    /// Made when it is first asked for.
    RecordEditor& editor();
    /// While a catalogue is being built the old one is not edited.
    void setLocked(bool locked);
    void commitEditing();

public Q_SLOTS:
    void editRecord();
    void removeRecord();

Q_SIGNALS:
    void windowMade(QWidget& window);

private:
    void showSelection();

    Catalogue& m_catalogue;
    Desktop& m_desktop;
    GameListController& m_list;
    std::unique_ptr<RecordEditor> m_editor;
    bool m_isLocked = false;
};

} // namespace tessera
