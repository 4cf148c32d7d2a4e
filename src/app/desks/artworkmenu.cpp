// The menus of the pictures: kinds, ratios and folders, and those of the lists, which say what a game has.

#include "app/desks/artworkdesk.h"
#include "app/windows.h"
#include "artwork/artworkkinds.h"
#include "core/message.h"

#include <QAbstractItemView>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace tessera {

namespace {

// By kind; the two tags before them open the first one's too.
constexpr std::array folderTexts{textKey("menu_snapfolder"), textKey("menu_titlefolder"),
                                 textKey("menu_flyerfolder")};

struct ListCommand {
    const char* name; ///< of the menu bar's command, and the key of its text
    void (ArtworkDesk::*ofFavourites)();
};

// clang-format off
constexpr std::array listCommands{
    ListCommand{textKey("menu_showpicture"),     &ArtworkDesk::snappreview2},
    ListCommand{textKey("menu_downloadpicture"), &ArtworkDesk::snapdownload2},
    ListCommand{textKey("menu_revealpicture"),   &ArtworkDesk::display_image_Finder2},
    ListCommand{textKey("menu_revealrom"),       &ArtworkDesk::display_rom_Finder2},
};
// clang-format on

} // namespace

void ArtworkDesk::fillMenu(QMenuBar& bar)
{
    auto* menu = bar.findChild<QMenu*>(QStringLiteral("menu_artwork"));
    auto* kinds = menu->addMenu(qtTrId("menu_kinds"));
    fillKinds(*kinds);
    auto* aspect = menu->addMenu(qtTrId("aspect_ratio"));
    aspect->setObjectName(QStringLiteral("Menu_aspect"));
    m_aspect.fillMenu(*aspect);
    auto* folders = menu->addMenu(qtTrId("menu_picturefolders"));
    fillFolders(*folders);
}

// The checks follow the setting whenever the menu opens.
void ArtworkDesk::fillKinds(QMenu& menu)
{
    auto* group = new QActionGroup(&menu);
    for (int position = 0; const ArtworkKind& kind : artworkKinds) {
        QAction* item = group->addAction(menu.addAction(kind.label));
        item->setCheckable(true);
        connect(item, &QAction::triggered, &m_folder, [this, position] { m_folder.setKind(position); });
        ++position;
    }
    connect(&menu, &QMenu::aboutToShow, this, [this, group] {
        if (artworkKind(m_folder.kind()) != nullptr)
            group->actions().at(m_folder.kind())->setChecked(true);
    });
}

void ArtworkDesk::fillFolders(QMenu& menu)
{
    for (int tag = 1; const char* text : folderTexts) {
        connect(menu.addAction(qtTrId(text)), &QAction::triggered, &m_folder,
                [this, tag] { m_folder.openSnapfolder(tag); });
        ++tag;
    }
}

void ArtworkDesk::addContextMenu(QAbstractItemView& list)
{
    const QMenuBar& bar = m_parts.windows.menus();
    for (const ListCommand& command : listCommands)
        list.addAction(bar.findChild<QAction*>(QLatin1String(command.name)));
}

void ArtworkDesk::addFavouritesMenu(QAbstractItemView& list)
{
    for (const ListCommand& command : listCommands) {
        auto* action = new QAction(qtTrId(command.name), &list);
        action->setObjectName(QLatin1String(command.name) + u'2');
        connect(action, &QAction::triggered, this, command.ofFavourites);
        list.addAction(action);
    }
}

} // namespace tessera
