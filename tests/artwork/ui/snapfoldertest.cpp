#include "artwork/ui/snapfolder.h"

#include "staging.h"
#include "support/testmain.h"

#include <QSignalSpy>

using namespace tessera;
using test::PictureStaging;

class SnapFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staging = std::make_unique<PictureStaging>();
        m_folder = std::make_unique<SnapFolder>(m_staging->desktop, m_staging->defaults);
    }

    void cleanup() { m_folder.reset(); }

    void nothingIsTakenBeforeTheStart() { QCOMPARE(m_folder->snappath(), QString()); }

    void eachKindHasItsFolderAndLabel_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("label");
        QTest::newRow("snapshot") << 0 << "snap" << "Snapshot";
        QTest::newRow("title") << 1 << "titles" << "Title Snapshot";
        QTest::newRow("flyer") << 2 << "flyers" << "Game Flyer";
    }

    void eachKindHasItsFolderAndLabel()
    {
        QFETCH(int, kind);
        QFETCH(QString, folder);
        QSignalSpy labels(m_folder.get(), &SnapFolder::labelChanged);
        QSignalSpy pictures(m_folder.get(), &SnapFolder::picturesChanged);
        m_staging->defaults.setIndex(keys::Screenfolder, kind);
        m_folder->Setsnapfolder();
        QCOMPARE(m_folder->snappath(), m_staging->path(folder));
        QTEST(labels.constLast().constFirst().toString(), "label");
        QVERIFY(!pictures.isEmpty());
    }

    void atAnyOtherPositionOnlyTheListsAreAskedAgain()
    {
        m_folder->Setsnapfolder();
        QSignalSpy labels(m_folder.get(), &SnapFolder::labelChanged);
        QSignalSpy pictures(m_folder.get(), &SnapFolder::picturesChanged);
        m_folder->setKind(3);
        QCOMPARE(m_folder->snappath(), m_staging->path("snap"));
        QVERIFY(labels.isEmpty());
        QCOMPARE(pictures.size(), 1);
    }

    void theNextKindComesWithASound()
    {
        m_folder->Setsnapfolder();
        for (const char* folder : {"titles", "flyers", "snap"}) {
            m_folder->ChangesnapPop();
            QCOMPARE(m_folder->snappath(), m_staging->path(folder));
            QCOMPARE(m_staging->desktop.takeTranscript(), QStringList{"sound typing"});
        }
    }

    void anotherFolderIsUsedAtOnce()
    {
        m_folder->Setsnapfolder();
        m_staging->defaults.setText(keys::SnapPath, QStringLiteral("/elsewhere"));
        QCOMPARE(m_folder->snappath(), QStringLiteral("/elsewhere"));
    }

    void theParentsPicturesMayBeSuppressed()
    {
        QSignalSpy pictures(m_folder.get(), &SnapFolder::picturesChanged);
        QVERIFY(m_folder->showsParents());
        m_staging->defaults.setFlag(keys::Suppress_PS, true);
        QVERIFY(!m_folder->showsParents());
        QCOMPARE(pictures.size(), 1);
    }

    void onlyWhatConcernsPicturesIsShownAnew()
    {
        m_folder->Setsnapfolder();
        QSignalSpy labels(m_folder.get(), &SnapFolder::labelChanged);
        QSignalSpy pictures(m_folder.get(), &SnapFolder::picturesChanged);
        m_staging->defaults.setText(keys::VisitedURLPath, QStringLiteral("x"));
        QCOMPARE(pictures.size(), 0);
        m_staging->defaults.setFlag(keys::Suppress_PS, true);
        QCOMPARE(pictures.size(), 1);
        QCOMPARE(labels.size(), 0);
        // Of another kind, too: it is asked for by its file.
        m_staging->defaults.setText(keys::GameflyersPath, QStringLiteral("/flyers"));
        QCOMPARE(pictures.size(), 2);
        m_folder->setKind(2);
        QCOMPARE(m_folder->kind(), 2);
        QCOMPARE(m_folder->snappath(), QStringLiteral("/flyers"));
        QCOMPARE(m_folder->label(), QStringLiteral("Game Flyer"));
        m_staging->defaults.revertToInitialValues();
        QCOMPARE(m_folder->kind(), 0);
        QCOMPARE(m_folder->label(), QStringLiteral("Snapshot"));
        QCOMPARE(labels.constLast().constFirst().toString(), QStringLiteral("Snapshot"));
    }

    void eachTagOpensItsFolder_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("folder");
        QTest::newRow("0") << 0 << "snap";
        QTest::newRow("1") << 1 << "snap";
        QTest::newRow("2") << 2 << "titles";
        QTest::newRow("3") << 3 << "flyers";
    }

    void eachTagOpensItsFolder()
    {
        QFETCH(int, tag);
        QFETCH(QString, folder);
        m_folder->openSnapfolder(tag);
        QCOMPARE(m_staging->desktop.takeTranscript(), QStringList{"folder " + m_staging->path(folder)});
    }

    void aFolderThatIsNotThereBeeps()
    {
        m_staging->defaults.setText(keys::SnapPath, QString());
        m_folder->openSnapfolder(1);
        QCOMPARE(m_staging->desktop.takeTranscript(), QStringList{"beep"});
        m_staging->defaults.setText(keys::SnapPath, QStringLiteral("/not/there"));
        m_folder->openSnapfolder(1);
        QCOMPARE(m_staging->desktop.takeTranscript(), (QStringList{"folder /not/there", "beep"}));
        for (const int tag : {-1, 4})
            m_folder->openSnapfolder(tag);
        QVERIFY(m_staging->desktop.takeTranscript().isEmpty());
    }

private:
    std::unique_ptr<PictureStaging> m_staging;
    std::unique_ptr<SnapFolder> m_folder;
};

TESSERA_TEST(SnapFolderTest);

#include "snapfoldertest.moc"
