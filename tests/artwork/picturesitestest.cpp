#include "artwork/picturesites.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

// As if each site's host were named after its setting, and each template likewise.
QString settingOf(const ChosenKey& key)
{
    const QString name = QString(key.name).toLower();
    return name.contains(QStringLiteral("host")) ? name + QStringLiteral(".test")
                                                 : QStringLiteral("http://own.test/") + name;
}

} // namespace

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
        const auto templates = pictureTemplates(index, &settingOf);
        QVERIFY(templates);
        QTEST(QStringList(templates->begin(), templates->end()), "templates");
    }

    void atOtherPositionsTheTemplatesStay()
    {
        for (const int index : {-1, 4, 100})
            QVERIFY(!pictureTemplates(index, &settingOf));
    }

    void aSiteWithoutAHostHasNoTemplates()
    {
        for (const int index : {0, 1, 2}) {
            const auto templates = pictureTemplates(index, [](const ChosenKey&) { return QString(); });
            QCOMPARE(templates, PictureTemplates());
        }
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
