#include "info/informationsites.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

// As if each site's host were named after its setting.
QString hostNamed(const ChosenKey& key)
{
    return QString(key.name).toLower() + QStringLiteral(".test");
}

} // namespace

class InformationSitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QCOMPARE(siteTemplate(index, &hostNamed), std::optional(text));
    }

    void theEighthPositionKeepsTheTemplate() { QVERIFY(!siteTemplate(8, &hostNamed)); }

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
        QCOMPARE(siteTemplate(2, [host](const ChosenKey&) { return host; }), std::optional(text));
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
};

TESSERA_TEST(InformationSitesTest);
#include "informationsitestest.moc"
