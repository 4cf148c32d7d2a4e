#pragma once

#include "stagedapp.h"

#include "app/desks/favouritesdesk.h"
#include "app/desks/minidesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/windows/mainwindow.h"
#include "app/windows/miniwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"

#include <QTest>

namespace tessera::test {

/// The whole program with its three windows of the same work.
class StagedWindows : public QObject
{
protected:
    void stage()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        m_staged->start();
    }

    MainWindow& main() const { return m_staged->app->mainWindow(); }
    FavouritesWindow& favorites() const { return m_staged->app->favorites().window(); }
    MiniWindow& mini() const { return m_staged->app->mini().window(); }

    void add(const char* set)
    {
        QVERIFY(m_staged->app->gameList().selectGame(QString::fromLatin1(set)));
        m_staged->app->addFavorite();
    }

    static void becomeKey(QWidget& window)
    {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    std::unique_ptr<StagedApp> m_staged;
};

} // namespace tessera::test
