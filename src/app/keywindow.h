#pragma once

#include <QHash>
#include <QObject>

class QWidget;
class QWindow;

namespace tessera {

/// Which of the program's windows is key. While a menu, a pop-up or an alert is open, or another program is
/// in front, it is the one that was key last.
class KeyWindow : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Main, Mini, Favourites, Log, History, Editor, FavouritesEditor, Bios, Other };

    explicit KeyWindow(QObject* parent = nullptr);

    void watch(QWidget& window, Kind kind);
    Kind kind() const { return m_kind; }

Q_SIGNALS:
    void changed();

private:
    void focusChanged(QWindow* focused);

    QHash<const QWidget*, Kind> m_kinds;
    Kind m_kind = Kind::Main;
};

} // namespace tessera
