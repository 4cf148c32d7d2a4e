#include "favourites/priorityoption.h"

#include "favouritetexts.h"
#include "support/testmain.h"

#include <QTemporaryDir>

using namespace tessera;
using namespace tessera::test;

/// A favourite's options, as they are read for a launch without a window.
class PriorityOptionTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString path() const { return m_folder.filePath(QStringLiteral("f.xml")); }

private Q_SLOTS:
    void theyAreThoseOfTheFirstFavouriteOfThatName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("options");
        QTest::newRow("with options") << "a" << "-first";
        QTest::newRow("without any") << "b" << "";
        QTest::newRow("several in one") << "c" << "-cheat  -bios euro";
        QTest::newRow("a number") << "d" << "5";
        QTest::newRow("another case") << "A" << "";
        QTest::newRow("no favourite") << "x" << "";
        QTest::newRow("no name") << "" << "";
    }

    void theyAreThoseOfTheFirstFavouriteOfThatName()
    {
        QFETCH(QString, name);
        QFETCH(QString, options);
        QVERIFY(
            writeBytes(path(),
                       listFile("<string>a</string>" + entryText("a", "1", "-first")
                                + entryText("a", "2", "-second") + entryText("b", "3")
                                + entryText("b", "4", "-hidden") + entryText("c", "5", "-cheat  -bios euro")
                                + "<dict><key>name</key><string>d</string>"
                                  "<key>option</key><integer>5</integer></dict>")));
        QCOMPARE(priorityOption(path(), name).value(), options);
    }

    void withoutFavouritesThereAreNone()
    {
        QCOMPARE(priorityOption(m_folder.filePath(QStringLiteral("none.xml")), QStringLiteral("a")).value(),
                 QString());
    }

    void aFileThatIsNoListHasAReason()
    {
        QVERIFY(writeBytes(path(), "<plist><dict/></plist>"));
        const auto options = priorityOption(path(), QStringLiteral("a"));
        QVERIFY(!options);
        QCOMPARE(QByteArray(options.error().key), QByteArray("failure_favourites_foreign"));
        QCOMPARE(options.error().arguments, QStringList{path()});
    }
};

TESSERA_TEST(PriorityOptionTest);
#include "priorityoptiontest.moc"
