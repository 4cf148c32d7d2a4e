#include "info/informationsites.h"

#include "support/settings.h"
#include "support/testmain.h"

using namespace tessera;

class InformationSitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_settings = std::make_unique<test::Settings>(); }

    void everyPositionHasItsTemplate_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        const auto row = [](int index, const char* text) {
            QTest::newRow(qPrintable(QString::number(index))) << index << QString::fromLatin1(text);
        };
        row(0, "http://infositehost1.test/index.php?p=roms&jeu={$gamename}");
        row(1, "http://infositehost2.test/php/emulator_game.php?id=mame&game={$gamename}");
        row(2, "http://infositehost3.test/game/{$gamename}");
        row(3, "http://infositehost4.test/r/{$gamename}");
        row(4, "http://infositehost5.test/maws/romset/{$gamename}");
        row(5, "http://infositehost6.test/index.php?gioco={$gamename}");
        row(6, "http://infositehost7.test/?snap_LANGUE=english&arg_ROMC_ZIP={$gamename}");
        row(7, "http://infositehost1.test/index.php?p=roms&jeu={$gamename}");
        row(9, "");
        row(100, "");
        row(-1, "");
    }

    void everyPositionHasItsTemplate()
    {
        QFETCH(int, index);
        QFETCH(QString, text);
        // Each site's host is named after its setting.
        for (const WebSite& site : informationSites)
            m_settings->defaults.setText(*site.host.key, QString(site.host.key->name).toLower() + ".test");
        QCOMPARE(templatesAt(informationSiteTable, index, m_settings->defaults), QStringList{text});
    }

    void theEighthPositionKeepsTheTemplate()
    {
        QVERIFY(!templatesAt(informationSiteTable, 8, m_settings->defaults));
    }

    void aHostMayNameItsScheme_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<QString>("text");
        QTest::newRow("alone") << "a.test" << "http://a.test/game/{$gamename}";
        QTest::newRow("scheme") << "https://a.test" << "https://a.test/game/{$gamename}";
        QTest::newRow("slash") << "https://a.test/" << "https://a.test/game/{$gamename}";
        QTest::newRow("blanks") << " a.test " << "http://a.test/game/{$gamename}";
        QTest::newRow("none") << "" << "";
        QTest::newRow("blank") << "  " << "";
    }

    void aHostMayNameItsScheme()
    {
        QFETCH(QString, host);
        QFETCH(QString, text);
        m_settings->defaults.setText(keys::InfositeHost3, host);
        QCOMPARE(templatesAt(informationSiteTable, 2, m_settings->defaults), QStringList{text});
    }

    void aPageIsTheTemplateWithTheName_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("address"); // empty for none
        const auto row = [](const char* title, const char* text, const char* name, const char* address) {
            QTest::newRow(title) << QString::fromUtf8(text) << QString::fromUtf8(name)
                                 << QString::fromLatin1(address);
        };
        row("once", "http://a.test/{$gamename}", "pacman", "http://a.test/pacman");
        row("twice", "http://a.test/{$gamename}?q={$gamename}", "pong", "http://a.test/pong?q=pong");
        row("nowhere", "http://a.test/page", "pong", "http://a.test/page");
        row("secure", "https://a.test/{$gamename}", "pong", "https://a.test/pong");
        row("a name of several parts", "http://a.test/g/{$gamename}", "../x?y#z&w",
            "http://a.test/g/..%2Fx%3Fy%23z%26w");
        row("a name with a blank", "http://a.test/{$gamename}", "a b%", "http://a.test/a%20b%25");
        row("a Japanese name", "http://a.test/{$gamename}", "パ", "http://a.test/%E3%83%91");
        row("no scheme", "a.test/{$gamename}", "pong", "");
        row("a file", "file:///etc/{$gamename}", "passwd", "");
        row("a script", "javascript:{$gamename}", "alert(1)", "");
        row("no host", "http:///{$gamename}", "pong", "");
        row("a host that is no name", "http://a b/{$gamename}", "pong", "");
        row("nothing", "", "pong", "");
    }

    void aPageIsTheTemplateWithTheName()
    {
        QFETCH(QString, text);
        QFETCH(QString, name);
        QFETCH(QString, address);
        const auto page = gamePage(text, name);
        QCOMPARE(page ? page->toString(QUrl::FullyEncoded) : QString(), address);
    }

private:
    std::unique_ptr<test::Settings> m_settings;
};

TESSERA_TEST(InformationSitesTest);
#include "informationsitestest.moc"
