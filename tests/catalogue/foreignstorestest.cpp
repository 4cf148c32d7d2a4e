#include "catalogue/storereader.h"

#include "support/testmain.h"

#include <QDir>

using namespace tessera;

/// Stores that other programs saved, where the machine has some.
class ForeignStoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesOfOtherProgramsHoldNoRecords_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(qEnvironmentVariable("TESSERA_REAL_DATA") + QStringLiteral("/store"));
        const QStringList names = folder.entryList({QStringLiteral("*.xml")});
        QVERIFY(!names.isEmpty());
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
    void storesOfOtherProgramsHoldNoRecords()
    {
        QFETCH(QString, path);
        const auto store = readStore(path);
        QVERIFY2(store.has_value(), store ? "" : store.error().key);
        QCOMPARE(store->records.size(), std::size_t(0));
    }
};

static const bool registered = [] {
    if (!qEnvironmentVariableIsEmpty("TESSERA_REAL_DATA"))
        test::suites().push_back([] { return std::make_unique<ForeignStoresTest>(); });
    return true;
}();
#include "foreignstorestest.moc"
