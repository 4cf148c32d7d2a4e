#include "artwork/artworkkinds.h"

#include "support/testmain.h"

using namespace tessera;

class ArtworkKindsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindHasItsLabelAndSettings_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("downloadTemplate");
        QTest::newRow("snapshot") << 0 << "Snapshot" << "SnapPath" << "snapdownloadPath";
        QTest::newRow("title") << 1 << "Title Snapshot" << "TitlesnapPath" << "titlessdownloadPath";
        QTest::newRow("flyer") << 2 << "Game Flyer" << "GameflyersPath" << "flyersdownloadPath";
    }

    void everyKindHasItsLabelAndSettings()
    {
        QFETCH(int, position);
        const ArtworkKind* kind = artworkKind(position);
        QVERIFY(kind != nullptr);
        QTEST(QString::fromLatin1(kind->label), "label");
        QTEST(QString(kind->folder->name), "folder");
        QTEST(QString(kind->downloadTemplate->name), "downloadTemplate");
    }

    void noOtherPositionIsAKind()
    {
        for (const int position : {-1, 3, 100})
            QVERIFY(artworkKind(position) == nullptr);
    }

    void fromTheFlyerTheNextKindIsTheSnapshot()
    {
        QCOMPARE(nextArtworkKind(0), 1);
        QCOMPARE(nextArtworkKind(1), 2);
        QCOMPARE(nextArtworkKind(2), 0);
        QCOMPARE(nextArtworkKind(7), 0);
        QCOMPARE(nextArtworkKind(-3), 0);
    }

    void twoMenuItemsOpenTheSnapshots() { QCOMPARE(kindOfFolderItem, (std::array{0, 0, 1, 2})); }
};

TESSERA_TEST(ArtworkKindsTest);
#include "artworkkindstest.moc"
