#include "catalogue/storereader.h"

#include "support/testmain.h"

#include <QDir>

using namespace tessera;

/// Stores of other models that other programs saved, where the machine has some.
class ForeignStoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesOfOtherModelsAreRefused_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(qEnvironmentVariable("TESSERA_REAL_DATA") + QStringLiteral("/store"));
        const QStringList names = folder.entryList({QStringLiteral("*.xml")});
        QVERIFY(!names.isEmpty());
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
    void storesOfOtherModelsAreRefused()
    {
        QFETCH(QString, path);
        const auto store = readStore(path);
        QVERIFY(!store.has_value());
        QCOMPARE(store.error().key, "failure_store_model");
        QCOMPARE(store.error().arguments, QStringList{path});
    }
};

static const bool registered = [] {
    if (!qEnvironmentVariableIsEmpty("TESSERA_REAL_DATA"))
        test::suites().push_back([] { return std::make_unique<ForeignStoresTest>(); });
    return true;
}();
#include "foreignstorestest.moc"
