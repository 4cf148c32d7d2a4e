#pragma once

#include <QObject>

#include <memory>

class QWidget;

namespace tessera {

class Favourites;
class FavouriteEditor;
class UCAppController;

/// The editor of the selected favourite.
class FavouriteEditing : public QObject
{
    Q_OBJECT

public:
    FavouriteEditing(Favourites& favourites, UCAppController& controller, QObject* parent = nullptr);
    ~FavouriteEditing() override;

    /// Made when it is first asked for.
    FavouriteEditor& editor();
    bool isMade() const { return m_editor != nullptr; }
    void commitEditing();

public Q_SLOTS:
    /// Brings the editor forward.
    void editRecord();
    /// The selected favourite and its command line, as they are now.
    void showSelection();

Q_SIGNALS:
    /// The editor shows this set: its whole command line is to be shown, too.
    void commandWanted(tessera::FavouriteEditor& editor, const QString& name);
    void windowMade(QWidget& window);

private:
    void selectNeighbour(int step);

    Favourites& m_favourites;
    UCAppController& m_controller;
    std::unique_ptr<FavouriteEditor> m_editor;
};

} // namespace tessera
