#include "platform/websites.h"

#include "support/testmain.h"

using namespace tessera;

class UrlTemplateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHostMayNameItsScheme_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<QString>("text");
        QTest::newRow("alone") << "a.test" << "http://a.test/snap/{$gamename}";
        QTest::newRow("scheme") << "https://a.test" << "https://a.test/snap/{$gamename}";
        QTest::newRow("slashes") << "https://a.test//" << "https://a.test/snap/{$gamename}";
        QTest::newRow("port") << "a.test:8080" << "http://a.test:8080/snap/{$gamename}";
        QTest::newRow("blanks") << " a.test " << "http://a.test/snap/{$gamename}";
        QTest::newRow("none") << "" << "";
        QTest::newRow("blank") << "  " << "";
    }

    void aHostMayNameItsScheme()
    {
        QFETCH(QString, host);
        QFETCH(QString, text);
        QCOMPARE(templateAt(host, QLatin1StringView("snap/{$gamename}")), text);
    }

    void everyPlaceholderIsTheName()
    {
        QCOMPARE(withGameName(QStringLiteral("a/{$gamename}?q={$gamename}"), QStringLiteral("pong")),
                 QStringLiteral("a/pong?q=pong"));
        QCOMPARE(withGameName(QStringLiteral("a/{$gamename}"), QStringLiteral("../{$gamename}")),
                 QStringLiteral("a/..%2F%7B%24gamename%7D"));
        QCOMPARE(withGameName(QString(), QStringLiteral("pong")), QString());
    }

    void onlyTheWebIsAnAddress_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isWeb");
        const auto row = [](const char* text, bool isWeb) { QTest::newRow(text) << QString(text) << isWeb; };
        row("http://a.test/pong", true);
        row("https://a.test/pong", true);
        row("HTTP://a.test/", true);
        row("ftp://a.test/pong", false);
        row("file:///etc/passwd", false);
        row("javascript:alert(1)", false);
        row("http:///pong", false);
        row("a.test/pong", false);
        row("http://a.test/a b", false);
        row("", false);
    }
    void onlyTheWebIsAnAddress()
    {
        QFETCH(QString, text);
        QFETCH(bool, isWeb);
        const auto address = webAddress(text);
        QCOMPARE(address.has_value(), isWeb);
        if (isWeb)
            QCOMPARE(*address, QUrl(text));
    }
};

TESSERA_TEST(UrlTemplateTest);
#include "urltemplatetest.moc"
