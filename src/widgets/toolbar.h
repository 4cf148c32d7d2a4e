#pragma once

#include "core/message.h"

#include <QObject>
#include <QStringList>

#include <array>

class QHBoxLayout;
class QButtonGroup;
class QStackedWidget;
class QToolButton;

namespace tessera {

/// The toolbar of the preferences window: one item for each of its pages, whose names are the items'
/// identifiers.
class Toolbar : public QObject
{
    Q_OBJECT

public:
    struct Item {
        const char* identifier; ///< and the key of its label
        const char* image; ///< of resources/icons
    };
    // clang-format off
    static constexpr std::array items{
        Item{textKey("general"),    "tb_General"},
        Item{textKey("video"),      "tb_Video"},
        Item{textKey("effect"),     "tb_Effect"},
        Item{textKey("av"),         "tb_AV"},
        Item{textKey("ioport"),     "tb_Input"},
        Item{textKey("misc"),       "tb_Misc"},
        Item{textKey("support"),    "tb_Support"},
        Item{textKey("appearance"), "tb_Appearance"},
    };
    // clang-format on

    /// The pages of `preferencesTab` carry their identifiers as object names.
    Toolbar(QWidget& preferencesWindow, QStackedWidget& preferencesTab);

    /// Puts the toolbar over everything in the window's layout and selects "general".
    void awakeFromNib();
    static QStringList toolbarDefaultItemIdentifiers();
    /// Nothing for any other identifier.
    QToolButton* itemForIdentifier(const QString& identifier) const;
    /// The second tab view, which a strip on one of the pages drives.
    void setPreferencesTab2(QStackedWidget& tab) { m_preferencesTab2 = &tab; }

    /// The item that is selected; it has the focus where nothing else has.
    QToolButton* selectedItem() const;

public Q_SLOTS:
    void _showTab(const QString& identifier);
    /// The segment at this index of the strip was selected.
    void pagestrip(int segment);

private:
    QToolButton* makeItem(const Item& item);

    QWidget& m_preferencesWindow;
    QStackedWidget& m_preferencesTab;
    QStackedWidget* m_preferencesTab2 = nullptr;
    QButtonGroup* m_items;
};

} // namespace tessera
