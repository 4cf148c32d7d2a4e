#include "support/writestore.h"
#include "core/settingskeys.h"
#include "platform/userdefaults.h"
#include "verbs/stagedverbs.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace tessera;

class ListVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void listPrintsNineFieldsInOrder()
    {
        GameRecord record{
            {"game", "a", "b", "tab\there", "line\nhere", "back\\slash", "\"quoted\"", "good", ""}};
        record[Field::Device] = std::string_view();
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), std::array{record}));
        QCOMPARE(listed(),
                 QByteArray("game\ta\tb\ttab\\there\tline\\nhere\tback\\\\slash\t\"quoted\"\tgood\t\n"));

        const QJsonArray json = QJsonDocument::fromJson(listed(QStringLiteral("json"))).array();
        QCOMPARE(json.size(), 1);
        QCOMPARE(json[0].toObject().size(), 9);
        QCOMPARE(json[0][QStringLiteral("title")].toString(), QStringLiteral("tab\there"));
        QCOMPARE(json[0][QStringLiteral("maker")].toString(), QStringLiteral("\"quoted\""));
        QVERIFY(json[0][QStringLiteral("device")].isNull());
    }

    void listPrintsWhatAQueryFinds_data()
    {
        QTest::addColumn<QStringList>("query");
        QTest::addColumn<QByteArray>("names");
        const auto row = [](const char* query, const char* names) {
            QTest::newRow(query) << QString::fromUtf8(query).split(u'|') << QByteArray(names);
        };
        row("", "alien begins clone pong whole");
        row("pong", "pong whole clone begins");
        row("pong|-clone:yes", "");
        row("pong|--|-clone:yes", "pong whole begins");
        row("--|-pong", "alien");
        row("atari year:1972", "whole pong begins");
        row("atari|year:1972", "whole pong begins");
        row("ポン", "whole");
        row("eirian", "alien");
        row("have:yes", "clone pong");
        row("have:own", "pong");
        row("nothing", "");
    }

    void listPrintsWhatAQueryFinds()
    {
        QFETCH(QStringList, query);
        const GameRecord records[]{
            {{"game", "whole", "whole", "PONG", "ポン", "1972", "Atari", "good", ""}},
            {{"game", "pong", "pong", "Arcade", "Arcade", "1972", "Atari", "good", ""}},
            {{"game", "begins", "begins", "Super Pong", "Super Pong", "1972", "Atari", "good", ""}},
            {{"game", "clone", "pong", "Pong Doubles", "Pong Doubles", "1973", "Atari", "good", ""}},
            {{"game", "alien", "alien", "Alien", "エイリアン", "1980", "Sega", "good", ""}},
        };
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), records));
        write(QStringLiteral("pong.zip"), "x");
        UserDefaults settings(settingsPath());
        settings.setValue(keys::RomsPath.name, m_folder->path());
        QVERIFY(settings.synchronize());
        const Outcome outcome = tessera(QStringList{QStringLiteral("list"), QStringLiteral("--catalogue"),
                                                    path(QStringLiteral("store.xml"))}
                                        + query);
        QByteArrayList names;
        for (const QByteArray& line : outcome.out.split('\n')) {
            if (!line.isEmpty())
                names << line.split('\t')[1];
        }
        QTEST(names.join(' '), "names");
    }

    void whatIsNearestIsPrintedAndSaidBeside()
    {
        const GameRecord records[]{
            {{"game", "alien", "alien", "Alien", "Alien", "1980", "Sega", "good", ""}},
            {{"game", "pong", "pong", "Pong", "Pong", "1972", "Atari", "good", ""}},
        };
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), records));
        const auto list = [&](const QString& query) {
            return tessera({QStringLiteral("list"), QStringLiteral("--catalogue"),
                            path(QStringLiteral("store.xml")), query});
        };
        const Outcome near = list(QStringLiteral("ailen"));
        QCOMPARE(near.status, 0);
        QCOMPARE(near.out, QByteArray("game\talien\talien\tAlien\tAlien\t1980\tSega\tgood\t\n"));
        QCOMPARE(near.err, QByteArray("Nothing has these letters. Nearest:\n"));
        const Outcome none = list(QStringLiteral("zzzzz"));
        QCOMPARE(none.status, 0);
        QCOMPARE(none.out + none.err, QByteArray());
        QCOMPARE(list(QStringLiteral("alien")).err, QByteArray());
    }

    void wrongTermsAreNamedOneByOne()
    {
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), {}));
        const Outcome outcome
            = tessera({QStringLiteral("list"), QStringLiteral("status:bad"), QStringLiteral("foo:bar")});
        QCOMPARE(outcome.status, 2);
        QVERIFY(outcome.err.contains("bad") && outcome.err.contains("foo"));
        QVERIFY(outcome.err.contains("good, imperfect, preliminary"));
    }

    void anEmptyCatalogueIsAnEmptyList()
    {
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), {}));
        QCOMPARE(listed(), QByteArray());
        QVERIFY(QJsonDocument::fromJson(listed(QStringLiteral("json"))).isArray());
    }
};

TESSERA_TEST(ListVerbTest);
#include "listverbtest.moc"
