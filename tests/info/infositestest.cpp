#include "info/ui/infosites.h"

#include "info/informationsites.h"
#include "info/ui/infopage.h"
#include "platform/defaultscontroller.h"
#include "support/installedtexts.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

using namespace tessera;

class InfoSitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop = std::make_unique<test::ScriptedDesktop>();
        m_stored = std::make_unique<UserDefaults>(m_folder->filePath("settings.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_stored);
        m_defaults->setInitialValues(QString(), QString());
        m_defaults->setText(keys::InfositeHost1, QStringLiteral("one.test"));
        m_defaults->setText(keys::InfositeHost3, QStringLiteral("three.test"));
    }

    void cleanup()
    {
        m_page.reset();
        m_sites.reset();
    }

    void theSavedSiteIsTakenAtTheStart()
    {
        m_defaults->setIndex(keys::Rominfosite, 2);
        make();
        QCOMPARE(opened(), QStringLiteral("url http://three.test/game/pong"));
        QCOMPARE(m_page->rominfoTextField->text(), QStringLiteral("http://three.test/game/{$gamename}"));
        QVERIFY(!m_page->rominfoTextField->isEnabled());
        QCOMPARE(m_page->hostField->text(), QStringLiteral("three.test"));
    }

    void theResetTakesTheFirstSite()
    {
        make();
        choose(m_page->infositePop->findText(ownSite));
        m_defaults->revertToInitialValues();
        QCOMPARE(opened(), QStringLiteral("url http://one.test/index.php?p=roms&jeu=pong"));
        QCOMPARE(m_page->rominfoTextField->text(),
                 QStringLiteral("http://one.test/index.php?p=roms&jeu={$gamename}"));
        QVERIFY(!m_page->rominfoTextField->isEnabled());
    }

    void theSavedSiteServesWithoutAPageToo()
    {
        m_defaults->setIndex(keys::Rominfosite, 9);
        m_defaults->setText(keys::VisitedRomPath, QStringLiteral("https://mine.test/{$gamename}"));
        InfoSites sites(*m_desktop, *m_defaults);
        sites.openROMinfo("pong");
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"url https://mine.test/pong"});
    }

    void theSeventhPositionIsTheFirstSiteAgain()
    {
        make();
        choose(7);
        QCOMPARE(opened(), QStringLiteral("url http://one.test/index.php?p=roms&jeu=pong"));
    }

    void theEighthPositionKeepsTheTemplate()
    {
        make();
        choose(2);
        m_defaults->setIndex(keys::Rominfosite, 8);
        QCOMPARE(opened(), QStringLiteral("url http://three.test/game/pong"));
        // It is no item that could be chosen.
        QVERIFY(!m_page->infositePop->model()
                     ->flags(m_page->infositePop->model()->index(8, 0))
                     .testFlag(Qt::ItemIsSelectable));
    }

    void theOtherSiteIsTheUsersOwn()
    {
        make();
        choose(m_page->infositePop->findText(ownSite));
        QVERIFY(m_page->rominfoTextField->isEnabled());
        QVERIFY(!m_page->hostField->isEnabled());
        QCOMPARE(m_page->rominfoTextField->text(), QString());
        QTest::keyClicks(m_page->rominfoTextField, "https://mine.test/all");
        QCOMPARE(m_stored->string(keys::VisitedRomPath.name), QStringLiteral("https://mine.test/all"));
        // Without the placeholder every game has the same page.
        m_sites->openROMinfo("pong");
        m_sites->openROMinfo("qix");
        QCOMPARE(m_desktop->takeTranscript(),
                 (QStringList{"url https://mine.test/all", "url https://mine.test/all"}));
        choose(2);
        QCOMPARE(m_page->rominfoTextField->text(), QStringLiteral("http://three.test/game/{$gamename}"));
        choose(9);
        QCOMPARE(m_page->rominfoTextField->text(), QStringLiteral("https://mine.test/all"));
    }

    void aHostIsTypedForTheChosenSite()
    {
        make();
        choose(3);
        QCOMPARE(opened(), QStringLiteral("beep"));
        QTest::keyClicks(m_page->hostField, "four.test");
        QCOMPARE(opened(), QStringLiteral("url http://four.test/r/pong"));
        QCOMPARE(m_stored->string(keys::InfositeHost4.name), QStringLiteral("four.test"));
        QCOMPARE(m_stored->string(keys::InfositeHost3.name), QStringLiteral("three.test"));
    }

    void theFirstAndTheFifthSiteHaveTheHostsOfThePictures_data()
    {
        QTest::addColumn<int>("site");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("former");
        const auto row = [](const char* name, int site, const char* key, const char* former) {
            QTest::newRow(name) << site << QByteArray(key) << QByteArray(former);
        };
        row("first", 0, "InfositeHost1", "SnapsiteHost1");
        row("fifth", 4, "InfositeHost5", "SnapsiteHost3");
        row("first again", 7, "InfositeHost1", "SnapsiteHost1");
    }

    void theFirstAndTheFifthSiteHaveTheHostsOfThePictures()
    {
        QFETCH(int, site);
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, former);
        m_stored->setValue(QLatin1StringView(key), QString());
        m_stored->setValue(QLatin1StringView(former), QStringLiteral("shared.test"));
        make();
        choose(site);
        QCOMPARE(m_page->hostField->text(), QStringLiteral("shared.test"));
        QVERIFY(opened().startsWith("url http://shared.test/"));
        // What is typed takes the place of both, and what is cleared stays so.
        m_page->hostField->selectAll();
        QTest::keyClicks(m_page->hostField, "mine.test");
        QCOMPARE(m_stored->string(QLatin1StringView(key)), QStringLiteral("mine.test"));
        QVERIFY(opened().startsWith("url http://mine.test/"));
        m_page->hostField->selectAll();
        QTest::keyClick(m_page->hostField, Qt::Key_Delete);
        QCOMPARE(m_page->hostField->text(), QString());
        QCOMPARE(opened(), QStringLiteral("beep"));
    }

    void aSiteWithoutAHostIsNamed()
    {
        make();
        choose(3);
        QStringList said;
        connect(m_sites.get(), &InfoSites::statusMessage, m_sites.get(),
                [&said](const QString& text) { said << text; });
        const test::InstalledTexts texts("en");
        m_sites->openROMinfo("pong");
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        QCOMPARE(
            said,
            QStringList{"Information site 4 has no host yet: Preferences › Support › Information sites."});
        // Neither where no game is meant, nor where the template is the user's.
        m_sites->openROMinfo(QString());
        choose(9);
        m_sites->openROMinfo("pong");
        QCOMPARE(m_desktop->takeTranscript(), (QStringList{"beep", "beep"}));
        QCOMPARE(said.size(), 1);
    }

    void everyFailureIsABeep()
    {
        make();
        m_sites->openROMinfo(QString());
        choose(3);
        m_sites->openROMinfo("pong");
        choose(2);
        m_desktop->hasBrowser = false;
        m_sites->openROMinfo("pong");
        QCOMPARE(m_desktop->takeTranscript(),
                 (QStringList{"beep", "beep", "url http://three.test/game/pong", "beep"}));
    }

    void theAddressIsOpenedAsItStands()
    {
        make();
        QTest::mouseClick(m_page->openButton, Qt::LeftButton);
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"url https://www.mamedev.org/"});
        for (const char* wrong : {"", "www.mamedev.org", "file:///etc/passwd", "http://"}) {
            m_page->urlTextField->setText(QString::fromLatin1(wrong));
            QTest::keyClick(m_page->urlTextField, Qt::Key_Return);
            QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        }
    }

    void theKeptAddressServesWithoutAPageToo()
    {
        m_defaults->setText(keys::VisitedURLPath, QStringLiteral("https://a.test/"));
        InfoSites sites(*m_desktop, *m_defaults);
        sites.openURL();
        m_desktop->hasBrowser = false;
        sites.openURL();
        QCOMPARE(m_desktop->takeTranscript(),
                 (QStringList{"url https://a.test/", "url https://a.test/", "beep"}));
    }

    void whatIsTypedStaysWhereItIsTyped()
    {
        make();
        choose(2);
        m_page->hostField->setCursorPosition(0);
        QTest::keyClicks(m_page->hostField, " x");
        QCOMPARE(m_page->hostField->text(), QStringLiteral(" xthree.test"));
        QCOMPARE(m_page->hostField->cursorPosition(), 2);
        choose(9);
        m_page->rominfoTextField->setText(QStringLiteral("//mine.test"));
        m_page->rominfoTextField->setCursorPosition(0);
        QTest::keyClicks(m_page->rominfoTextField, "http:");
        QCOMPARE(m_page->rominfoTextField->text(), QStringLiteral("http://mine.test"));
        QCOMPARE(m_page->rominfoTextField->cursorPosition(), 5);
    }

    void everySiteButTheUsersOwnHasAHost()
    {
        make();
        for (const int site : {0, 6, 7, 8, 9}) {
            choose(site);
            QCOMPARE(m_page->hostField->isEnabled(), site < 8);
            QCOMPARE(m_page->rominfoTextField->isEnabled(), site == 9);
        }
        QCOMPARE(m_page->hostField->text(), QString());
    }

    // What is kept for other sites, or for none, is not touched.
    void nothingElseIsStoredWithAHost()
    {
        make();
        choose(0);
        QTest::keyClicks(m_page->hostField, "x");
        QVERIFY(!m_stored->value(keys::SnapsiteHost1.name).has_value());
        QVERIFY(!m_stored->value(keys::InfositeHost2.name).has_value());
        QVERIFY(!m_stored->value(keys::VisitedRomPath.name).has_value());
    }

    void aHostThatChangesElsewhereIsShown()
    {
        make();
        choose(2);
        m_defaults->setText(keys::InfositeHost3, QStringLiteral("new.test"));
        QCOMPARE(m_page->hostField->text(), QStringLiteral("new.test"));
        QCOMPARE(m_page->rominfoTextField->text(), QStringLiteral("http://new.test/game/{$gamename}"));
        choose(9);
        m_defaults->setText(keys::VisitedRomPath, QStringLiteral("https://mine.test"));
        QCOMPARE(m_page->rominfoTextField->text(), QStringLiteral("https://mine.test"));
    }

private:
    /// What opening the page of a set does.
    QString opened()
    {
        m_desktop->takeTranscript();
        m_sites->openROMinfo("pong");
        return m_desktop->takeTranscript().join(u' ');
    }
    void make()
    {
        m_sites = std::make_unique<InfoSites>(*m_desktop, *m_defaults);
        m_page.reset(m_sites->makePage());
    }

    void choose(int index)
    {
        m_page->infositePop->setCurrentIndex(index);
        Q_EMIT m_page->infositePop->activated(index);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<test::ScriptedDesktop> m_desktop;
    std::unique_ptr<UserDefaults> m_stored;
    std::unique_ptr<DefaultsController> m_defaults;
    std::unique_ptr<InfoSites> m_sites;
    std::unique_ptr<InfoPage> m_page;
};

TESSERA_TEST(InfoSitesTest);
#include "infositestest.moc"
