#pragma once

#include <QObject>

#include <functional>
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
    /// `commandLine` gives the whole command line of a set with its options; empty where it is not known.
    FavouriteEditing(Favourites& favourites, UCAppController& controller,
                     std::function<QString(const QString& name)> commandLine, QObject* parent = nullptr);
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
    void windowMade(QWidget& window);

private:
    void selectNeighbour(int step);

    Favourites& m_favourites;
    UCAppController& m_controller;
    std::function<QString(const QString& name)> m_commandLine;
    std::unique_ptr<FavouriteEditor> m_editor;
};

} // namespace tessera
