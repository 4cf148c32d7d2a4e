#include "catalogue/catalogue.h"

#include "catalogue/storereader.h"
#include "support/writestore.h"

#include "samplerecords.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace tessera;
using namespace tessera::test;

class CatalogueTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;

    static QString name(const Catalogue& catalogue, std::size_t record, Field field)
    {
        const std::string_view value = catalogue.records()[record][field];
        return value.data() == nullptr ? QStringLiteral("-") : QString::fromStdString(std::string(value));
    }

    QStringList keptCopies() const
    {
        QStringList paths;
        for (const QFileInfo& file : QDir(m_folder->path()).entryInfoList({QStringLiteral("Tessera *.xml")}))
            paths << file.filePath();
        return paths;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("Tessera.xml"));
        SampleRecords sample;
        sample.addNamed("pong");
        sample.add({"game", "solo", absent, "Solo", "", "1981", "Maker", "good", ""});
        QVERIFY(writeStore(m_path, sample.store.records).has_value());
    }

    void openGivesTheRecordsOfTheFile()
    {
        Catalogue catalogue(m_path);
        QSignalSpy replaced(&catalogue, &Catalogue::replaced);
        QVERIFY(catalogue.records().empty());
        QVERIFY(catalogue.open().has_value());
        QCOMPARE(catalogue.records().size(), std::size_t(2));
        QCOMPARE(replaced.size(), 1);
        QVERIFY(!catalogue.hasChanges());
        QCOMPARE(catalogue.path(), m_path);
    }

    void emptyStoreIsAnEmptyCatalogue()
    {
        QVERIFY(writeStore(m_path, {}).has_value());
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        QVERIFY(catalogue.records().empty());
        QVERIFY(catalogue.save().has_value());
    }

    void missingStoreLeavesTheListEmpty()
    {
        Catalogue catalogue(m_folder->filePath(QStringLiteral("none.xml")));
        const auto opened = catalogue.open();
        QVERIFY(!opened.has_value());
        QCOMPARE(opened.error().key, "failure_store_missing");
        QVERIFY(catalogue.records().empty());
        QVERIFY(!catalogue.hasChanges());
    }

    void storeThatWasNotReadIsNeverOverwritten_data()
    {
        QTest::addColumn<bool>("tried");
        QTest::newRow("never opened") << false;
        QTest::newRow("could not be read") << true;
    }
    void storeThatWasNotReadIsNeverOverwritten()
    {
        QFETCH(bool, tried);
        QVERIFY(writeFile(m_path, "<database>"));
        Catalogue catalogue(m_path);
        if (tried)
            QVERIFY(!catalogue.open().has_value());
        const auto saved = catalogue.save();
        QVERIFY(!saved.has_value());
        QCOMPARE(saved.error().key, "failure_store_unread");
        QCOMPARE(fileBytes(m_path), QByteArray("<database>"));
    }

    void aStoreThatNeverWasIsNotCalledUnreadable()
    {
        QVERIFY(QFile::remove(m_path));
        Catalogue catalogue(m_path);
        QVERIFY(!catalogue.open().has_value());
        const auto saved = catalogue.save();
        QVERIFY(!saved.has_value());
        QCOMPARE(saved.error().key, "failure_store_none");
        QCOMPARE(saved.error().arguments, {m_path});
        QVERIFY(!QFile::exists(m_path));
        // It may have come since: still not ours to overwrite.
        QVERIFY(writeFile(m_path, "broken"));
        QCOMPARE(catalogue.save().error().key, "failure_store_none");
        QVERIFY(!catalogue.open().has_value());
        QCOMPARE(catalogue.save().error().key, "failure_store_unread");
        QCOMPARE(fileBytes(m_path), QByteArray("broken"));
    }

    void failureAfterASuccessForgetsTheRecordsAndRefusesToSave()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Year, QStringLiteral("1972"));
        QVERIFY(writeFile(m_path, "broken"));
        QSignalSpy replaced(&catalogue, &Catalogue::replaced);
        QVERIFY(!catalogue.open().has_value());
        QCOMPARE(replaced.size(), 1);
        QVERIFY(catalogue.records().empty());
        QVERIFY(!catalogue.hasChanges());
        QVERIFY(!catalogue.undoStack().canUndo());
        QVERIFY(!catalogue.save().has_value());
        QCOMPARE(fileBytes(m_path), QByteArray("broken"));
    }

    void editsAreUndoneAndRedone()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        QSignalSpy changed(&catalogue, &Catalogue::recordChanged);
        catalogue.setValue(0, Field::Titlejp, QStringLiteral("ポン"));
        QCOMPARE(name(catalogue, 0, Field::Titlejp), QStringLiteral("ポン"));
        QCOMPARE(name(catalogue, 0, Field::Title), QStringLiteral("pong"));
        QVERIFY(catalogue.hasChanges());
        catalogue.undoStack().undo();
        QCOMPARE(name(catalogue, 0, Field::Titlejp), QStringLiteral("pong"));
        QVERIFY(!catalogue.hasChanges());
        catalogue.undoStack().redo();
        QCOMPARE(name(catalogue, 0, Field::Titlejp), QStringLiteral("ポン"));
        QCOMPARE(changed.size(), 3);
        QCOMPARE(changed.last().first().toUInt(), 0U);
    }

    void undoMakesAValueAbsentAgain()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(1, Field::Cloneof, QStringLiteral("solo"));
        QCOMPARE(name(catalogue, 1, Field::Cloneof), QStringLiteral("solo"));
        catalogue.undoStack().undo();
        QCOMPARE(name(catalogue, 1, Field::Cloneof), QStringLiteral("-"));
    }

    void emptiedValueIsNotAbsent()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Maker, QString());
        QCOMPARE(name(catalogue, 0, Field::Maker), QString());
        QVERIFY(catalogue.records()[0].has(Field::Maker));
    }

    void sameTextIsNoEdit_data()
    {
        QTest::addColumn<int>("record");
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("text");
        QTest::newRow("text") << 0 << static_cast<int>(Field::Name) << QStringLiteral("pong");
        QTest::newRow("empty") << 1 << static_cast<int>(Field::Titlejp) << QString();
        QTest::newRow("absent, shown as empty")
            << 1 << static_cast<int>(Field::Cloneof) << QStringLiteral("");
    }
    void sameTextIsNoEdit()
    {
        QFETCH(int, record);
        QFETCH(int, field);
        QFETCH(QString, text);
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(static_cast<std::uint32_t>(record), static_cast<Field>(field), text);
        QVERIFY(!catalogue.hasChanges());
        QVERIFY(!catalogue.undoStack().canUndo());
    }

    void savedEditsAreInTheFile()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Title, QStringLiteral("Pong & <friends>"));
        QVERIFY(catalogue.save().has_value());
        QVERIFY(!catalogue.hasChanges());
        const auto stored = readStore(m_path);
        QVERIFY(stored.has_value());
        QCOMPARE(stored->records[0][Field::Title], std::string_view("Pong & <friends>"));
        QVERIFY(!stored->records[1].has(Field::Cloneof));
        // An undo after that is a change again.
        catalogue.undoStack().undo();
        QVERIFY(catalogue.hasChanges());
    }

    void failedSaveKeepsTheEdits()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Title, QStringLiteral("edited"));
        const QByteArray before = fileBytes(m_path);
        chmod(qPrintable(m_folder->path()), 0555);
        {
            const OrdinaryUser user;
            QVERIFY(user.holds());
            const auto saved = catalogue.save();
            QVERIFY(!saved.has_value());
            QCOMPARE(saved.error().key, "failure_write");
        }
        chmod(qPrintable(m_folder->path()), 0755);
        QVERIFY(catalogue.hasChanges());
        QCOMPARE(name(catalogue, 0, Field::Title), QStringLiteral("edited"));
        QCOMPARE(fileBytes(m_path), before);
        QVERIFY(catalogue.save().has_value());
    }

    void openDropsEditsAndTheirHistory()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Title, QStringLiteral("edited"));
        QVERIFY(catalogue.open().has_value());
        QCOMPARE(name(catalogue, 0, Field::Title), QStringLiteral("pong"));
        QVERIFY(!catalogue.hasChanges());
        QVERIFY(!catalogue.undoStack().canUndo());
    }

    void aStoreOfAnotherFormIsKeptBeforeOursReplacesIt()
    {
        const QByteArray before = fileBytes(m_path) + '\n';
        QVERIFY(writeFile(m_path, before));
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Title, QStringLiteral("edited"));
        const auto saved = catalogue.save();
        QVERIFY(saved.has_value());
        QCOMPARE(fileBytes(*saved), before);
        QVERIFY(fileBytes(m_path).contains("edited"));
        // From now on it is ours.
        catalogue.setValue(0, Field::Title, QStringLiteral("again"));
        QCOMPARE(catalogue.save().value(), QString());
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Title, QStringLiteral("and again"));
        QCOMPARE(catalogue.save().value(), QString());
        QCOMPARE(keptCopies(), QStringList{*saved});
    }

    void aFailedSaveLeavesNoCopy()
    {
        QVERIFY(writeFile(m_path, fileBytes(m_path) + '\n'));
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        catalogue.setValue(0, Field::Title, QStringLiteral("edited"));
        // The old file gets its second name, but nothing can be written.
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit none = before;
        none.rlim_cur = 100;
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &none);
        const auto saved = catalogue.save();
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!saved.has_value());
        QCOMPARE(keptCopies(), QStringList());
        QVERIFY(catalogue.hasChanges());
    }

    void oldTextsLiveWhileTheRecordsAreReplaced()
    {
        Catalogue catalogue(m_path);
        QVERIFY(catalogue.open().has_value());
        const std::string_view held = catalogue.records()[0][Field::Name];
        std::string seen;
        connect(&catalogue, &Catalogue::replaced, this, [&] { seen = std::string(held); });
        QVERIFY(catalogue.open().has_value());
        QCOMPARE(seen, std::string("pong"));
    }
};

TESSERA_TEST(CatalogueTest);
#include "cataloguetest.moc"
