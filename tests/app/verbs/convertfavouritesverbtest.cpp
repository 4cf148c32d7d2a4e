#include "verbs/stagedverbs.h"

#include <QDir>
#include <QFile>

using namespace tessera;

class ConvertFavouritesVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void convertFavouritesDoesWhatTheWindowDoes()
    {
        writeCatalogue();
        // The Trash is a home's own only where there is a home.
        QVERIFY(QDir().mkpath(path(QStringLiteral("HOME"))));
        writeOldFavourites({"pong", "gone"});
        const QStringList arguments{QStringLiteral("convert-favourites"), path(QStringLiteral("old.xml"))};
        Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.out, QByteArray("File conversion is now complete.\n"));
        QCOMPARE(outcome.err, QByteArray("gone は見つかりませんでした\n"));
        QCOMPARE(outcome.status, 0);
        const QString favourites
            = QStringLiteral("XDG_DATA_HOME/Plover.Tessera/jp.Plover.Tessera_Favorites.xml");
        const QByteArray first = read(favourites);
        QVERIFY(first.contains("<string>pong</string>") && !first.contains("gone"));
        QVERIFY(QFile::exists(path(QStringLiteral("XDG_DATA_HOME/Trash/files/old.xml"))));
        QVERIFY(!QFile::exists(path(QStringLiteral("old.xml"))));

        writeOldFavourites({"qix"});
        outcome = tessera(arguments + QStringList{QStringLiteral("--keep-old")});
        QCOMPARE(outcome.err, QByteArray("Backup files are copied successfully\n"));
        QVERIFY(read(favourites).contains("<string>qix</string>"));
        QVERIFY(QFile::exists(path(QStringLiteral("old.xml"))));
        const QDir folder(path(QStringLiteral("XDG_DATA_HOME/Plover.Tessera")));
        const QStringList kept = folder.entryList({QStringLiteral("jp.Plover.Tessera_Favorites_*.xml")});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(read(QStringLiteral("XDG_DATA_HOME/Plover.Tessera/") + kept.constFirst()), first);
    }

    void convertFavouritesSaysWhatIsMissing()
    {
        const QStringList arguments{QStringLiteral("convert-favourites"), path(QStringLiteral("old.xml"))};
        expectRefusal(arguments, "Old Favorites.xml file is not found.");
        writeOldFavourites({"unknown"});
        expectRefusal(arguments, "Tessera.xml");
        writeCatalogue();
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.err.endsWith("tessera: Conversion data not found.\n"));
        QVERIFY(QFile::exists(path(QStringLiteral("old.xml"))));
        write(QStringLiteral("old.xml"), "no list");
        QCOMPARE(tessera(arguments).status, 1);
    }
};

TESSERA_TEST(ConvertFavouritesVerbTest);
#include "convertfavouritesverbtest.moc"
