#include "tools/ui/favouritestool.h"

#include "core/atomicfile.h"
#include "core/texts.h"
#include "platform/desktop.h"
#include "platform/trash.h"
#include "tools/favouritesconversion.h"
#include "tools/ui/favouritespage.h"
#include "tools/ui/workbench.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

FavouritesTool::FavouritesTool(FavouritesPage& page, Workbench& workbench, UtilityHost& host, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_workbench(workbench)
    , m_host(host)
{
    m_trashPool.setMaxThreadCount(1);
    connect(m_page.button_convert3, &QPushButton::clicked, this, &FavouritesTool::favoritesConvert);
    connect(m_page.button_showAll, &QPushButton::clicked, this, [this] { m_host.showAllRecords(); });
    showHidden();
}

void FavouritesTool::showHidden()
{
    m_page.showHidden(m_host.hiddenRecords());
}

void FavouritesTool::favoritesConvert()
{
    m_workbench.desktop().beep();
    if (m_workbench.isBusy())
        return;
    const QString old = m_page.favoritesTextField->text();
    if (!QFileInfo::exists(old)) {
        m_workbench.desktop().runAlert({qtTrId("alert_Info6"), {}, {QStringLiteral("OK")}});
        return m_workbench.inform(favouritestexts::noFile);
    }
    if (!confirm())
        return;
    m_page.showResult({});
    m_workbench.indicator_start();
    convert(old);
    m_workbench.indicator_stop();
    m_workbench.desktop().playSound(QStringLiteral("st_ovenbell"));
}

bool FavouritesTool::confirm()
{
    return m_workbench.desktop().runAlert(
               {qtTrId("alert_Info2"), qtTrId("alert_Info3"), {QStringLiteral("Yes"), QStringLiteral("No")}})
        == 0;
}

void FavouritesTool::convert(const QString& old)
{
    const auto names = oldFavourites(old);
    if (!names)
        m_page.showResult(names.error().text());
    const auto found = m_host.search_arrangedObjects(names.value_or(QStringList()));
    if (found.isEmpty())
        return m_workbench.inform(favouritestexts::noData);
    // They would be gone without a trace: the list is about to be read anew.
    const auto kept = m_host.keepUnsavedFavourites();
    if (!kept)
        return m_workbench.inform(kept.error().text());
    QStringList notes;
    if (found.size() < names->size())
        notes << qtTrId("favourites_left_out").arg(numberText(names->size() - found.size()));
    if (!kept->isEmpty())
        notes << qtTrId("favourites_unsaved_kept").arg(*kept);
    if (!replaceFavourites(found))
        return;
    m_page.showResult(notes.join(QLatin1Char('\n')));
    m_workbench.inform(favouritestexts::finished);
    m_host.set_favorites();
    trash(old);
}

// Deliberate: a backup that fails stops nothing, and where the new file cannot be written nobody is told.
bool FavouritesTool::replaceFavourites(const QList<RecordDictionary>& records)
{
    const QString favourites = m_host.pathOfDataFile();
    const auto text = favouritesText(records, favourites);
    if (QFileInfo::exists(favourites))
        backUp(favourites);
    m_host.dir_make(QFileInfo(favourites).path());
    return text && writeAtomically(favourites, *text).has_value();
}

void FavouritesTool::backUp(const QString& favourites)
{
    Desktop& desktop = m_workbench.desktop();
    const auto moved = moveToBackup(favourites, favouritesBackup(favourites, desktop.now()));
    desktop.log(moved ? favouritestexts::kept : favouritestexts::notKept);
    if (!moved)
        desktop.presentError(moved.error().text(), {}, {});
}

// A path that leads to the new favourites stays: it is not the old file any more.
void FavouritesTool::trash(const QString& old)
{
    if (QFileInfo(old).canonicalFilePath() == QFileInfo(m_host.pathOfDataFile()).canonicalFilePath())
        return;
    m_trashPool.start([this, old] {
        const auto moved = moveToTrash(old);
        if (moved)
            return;
        QMetaObject::invokeMethod(
            this,
            [this, reason = moved.error()] {
                m_workbench.desktop().log(QString(favouritestexts::notTrashed).arg(reason));
            },
            Qt::QueuedConnection);
    });
}

} // namespace tessera
