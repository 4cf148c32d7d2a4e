#include "artwork/picturesites.h"

#include "support/settings.h"
#include "support/testmain.h"

using namespace tessera;

class PictureSitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySiteHasATemplateForEachKind_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("templates");
        QTest::newRow("0") << 0
                           << QStringList{"http://infositehost1.test/mmedia/snap/{$gamename}",
                                          "http://infositehost1.test/mmedia/titles/{$gamename}",
                                          "http://infositehost1.test/mmedia/flyers/{$gamename}"};
        QTest::newRow("1") << 1
                           << QStringList{"http://snapsitehost2.test/snap/{$gamename}",
                                          "http://snapsitehost2.test/titles/{$gamename}", ""};
        QTest::newRow("2") << 2
                           << QStringList{
                                  "http://infositehost5.test/maws/img/shots/progettosnaps/ingame/{$gamename}",
                                  "http://infositehost5.test/maws/img/shots/progettosnaps/titles/{$gamename}",
                                  "http://infositehost5.test/maws/img/flyers/{$gamename}"};
        QTest::newRow("other") << 3
                               << QStringList{"http://own.test/snapdownloadpath",
                                              "http://own.test/titlessdownloadpath",
                                              "http://own.test/flyersdownloadpath"};
    }

    void everySiteHasATemplateForEachKind()
    {
        QFETCH(int, index);
        test::Settings settings;
        // Each site's host is named after its setting, and each template likewise.
        for (const ChosenKey* key : {&keys::InfositeHost1, &keys::SnapsiteHost2, &keys::InfositeHost5})
            settings.defaults.setText(*key, QString(key->name).toLower() + QStringLiteral(".test"));
        for (const ArtworkKind& kind : artworkKinds)
            settings.defaults.setText(*kind.downloadTemplate,
                                      QStringLiteral("http://own.test/")
                                          + QString(kind.downloadTemplate->name).toLower());
        const auto templates = templatesAt(pictureSiteTable, index, settings.defaults);
        QVERIFY(templates);
        QTEST(*templates, "templates");
    }

    void atOtherPositionsTheTemplatesStay()
    {
        const test::Settings settings;
        for (const int index : {-1, 4, 100})
            QVERIFY(!templatesAt(pictureSiteTable, index, settings.defaults));
    }

    void aSiteWithoutAHostHasNoTemplates()
    {
        const test::Settings settings;
        for (const int index : {0, 1, 2})
            QCOMPARE(templatesAt(pictureSiteTable, index, settings.defaults), (QStringList{"", "", ""}));
    }

    void anAddressIsTheTemplateWithTheName_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("address");
        QTest::newRow("once") << "http://a.test/snap/{$gamename}" << "pacman"
                              << "http://a.test/snap/pacman.png";
        QTest::newRow("twice") << "http://a.test/{$gamename}/{$gamename}" << "pong"
                               << "http://a.test/pong/pong.png";
        QTest::newRow("nowhere") << "http://a.test/any" << "pong" << "http://a.test/any.png";
        QTest::newRow("the empty template") << "" << "pong" << ".png";
        QTest::newRow("a clone's own name") << "http://a.test/{$gamename}" << "puckmana"
                                            << "http://a.test/puckmana.png";
        QTest::newRow("a name of several parts") << "http://a.test/s/{$gamename}" << "../x?y#z"
                                                 << "http://a.test/s/..%2Fx%3Fy%23z.png";
    }

    void anAddressIsTheTemplateWithTheName()
    {
        QFETCH(QString, text);
        QFETCH(QString, name);
        QTEST(pictureAddress(text, name).toString(QUrl::FullyEncoded), "address");
    }
};

TESSERA_TEST(PictureSitesTest);
#include "picturesitestest.moc"
