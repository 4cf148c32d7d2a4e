#pragma once

#include <QObject>

class QAction;
class QActionGroup;
class QComboBox;
class QMenu;

namespace tessera {

class DefaultsController;

/// The ratio that pictures are drawn in, chosen in a pop-up or in a menu. The setting is the position in the
/// pop-up.
class AspectChoice : public QObject
{
    Q_OBJECT

public:
    explicit AspectChoice(DefaultsController& defaults, QObject* parent = nullptr);

    /// The pop-up that is asked for the title; any other one follows the setting.
    void setPopup(QComboBox& popup);
    void addPopup(QComboBox& popup);
    void fillMenu(QMenu& menu);
    /// The checked one; none until snapviewAction() has run.
    QAction* selectMenuitem() const { return m_selectMenuitem; }

public Q_SLOTS:
    void snapviewAction();
    void MenuAspect(QAction* item);

private:
    void check(QAction* item);

    DefaultsController& m_defaults;
    QComboBox* m_popup = nullptr;
    QActionGroup* m_items;
    QAction* m_selectMenuitem = nullptr;
};

} // namespace tessera
