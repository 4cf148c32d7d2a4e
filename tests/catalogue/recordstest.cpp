#include "catalogue/colortransformer.h"
#include "catalogue/gametypetransformer.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/statusmark.h"
#include "platform/userdefaults.h"

#include "samplerecords.h"
#include "support/testmain.h"

#include <QTemporaryDir>

using namespace tessera;
using namespace tessera::test;

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordDictionaryHasTheNineKeys()
    {
        SampleRecords sample;
        sample.add({"game", "pacman", "puckman", "Pac-Man", "パックマン", "1980", "Namco", "good", ""});
        const RecordDictionary expected{
            {QStringLiteral("type"), QStringLiteral("game")},
            {QStringLiteral("name"), QStringLiteral("pacman")},
            {QStringLiteral("cloneof"), QStringLiteral("puckman")},
            {QStringLiteral("title"), QStringLiteral("Pac-Man")},
            {QStringLiteral("titlejp"), QStringLiteral("パックマン")},
            {QStringLiteral("year"), QStringLiteral("1980")},
            {QStringLiteral("maker"), QStringLiteral("Namco")},
            {QStringLiteral("status"), QStringLiteral("good")},
            {QStringLiteral("device"), QString()},
        };
        QCOMPARE(recordDictionary(sample.store.records[0]), expected);
    }

    void recordDictionaryHasNoEntryForAnAbsentValue()
    {
        SampleRecords sample;
        sample.add({absent, "pong", absent, "", "", "", "", "", ""});
        const RecordDictionary dictionary = recordDictionary(sample.store.records[0]);
        QCOMPARE(dictionary.size(), 7);
        QVERIFY(!dictionary.contains(QStringLiteral("cloneof")));
        QVERIFY(!dictionary.contains(QStringLiteral("type")));
    }

    void objectDictionaryHasSixKeys()
    {
        SampleRecords sample;
        sample.add({"game", "pong", "pong", "Pong", "ポン", "1972", "Atari", "good", "cassette"});
        const RecordDictionary expected{
            {QStringLiteral("name"), QStringLiteral("pong")},
            {QStringLiteral("cloneof"), QStringLiteral("pong")},
            {QStringLiteral("title"), QStringLiteral("Pong")},
            {QStringLiteral("titlejp"), QStringLiteral("ポン")},
            {QStringLiteral("year"), QStringLiteral("1972")},
            {QStringLiteral("maker"), QStringLiteral("Atari")},
        };
        QCOMPARE(objectDictionary(sample.store.records[0]), expected);
    }

    void absentValueReadsAsNull()
    {
        SampleRecords sample;
        sample.add({"game", "pong", absent, "", "", "", "", "", ""});
        const GameRecord& record = sample.store.records[0];
        QCOMPARE(objectDictionary(record).value(QStringLiteral("cloneof")), QStringLiteral("(null)"));
        QCOMPARE(shownValue(record, Field::Cloneof), QStringLiteral("(null)"));
        QCOMPARE(shownValue(record, Field::Name), QStringLiteral("pong"));
        QCOMPARE(shownValue(record, Field::Title), QString());
    }

    void statusHasItsMark_data()
    {
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<QByteArray>("image"); // empty: the old mark stays
        QTest::newRow("good") << QByteArray("good") << QByteArray("plovermark_good");
        QTest::newRow("preliminary") << QByteArray("preliminary") << QByteArray("plovermark_preliminary");
        QTest::newRow("imperfect") << QByteArray("imperfect") << QByteArray("plovermark_imperfect");
        QTest::newRow("empty") << QByteArray("") << QByteArray();
        QTest::newRow("unknown") << QByteArray("????") << QByteArray();
        QTest::newRow("capital") << QByteArray("Good") << QByteArray();
        QTest::newRow("longer") << QByteArray("goods") << QByteArray();
    }
    void statusHasItsMark()
    {
        QFETCH(QByteArray, status);
        QFETCH(QByteArray, image);
        const auto mark
            = statusMark(std::string_view(status.constData(), static_cast<std::size_t>(status.size())));
        QCOMPARE(mark.has_value(), !image.isEmpty());
        if (mark)
            QCOMPARE(QByteArray(mark->data(), static_cast<qsizetype>(mark->size())), image);
    }

    void absentStatusLeavesTheMark() { QVERIFY(!statusMark(std::string_view()).has_value()); }

    void noSelectionHasItsMark()
    {
        QCOMPARE(statusMark(std::nullopt).value(), std::string_view("plovermark_none"));
    }

    void typeHasItsLabel_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QString>("label");
        QTest::newRow("bios") << QByteArray("bios") << QStringLiteral("type : BIOS");
        QTest::newRow("mechanical") << QByteArray("mechanical") << QStringLiteral("type : Mechanical");
        QTest::newRow("device") << QByteArray("device") << QStringLiteral("type : Device");
        QTest::newRow("game") << QByteArray("game") << QString();
        QTest::newRow("unknown") << QByteArray("slot") << QString();
        QTest::newRow("capital") << QByteArray("BIOS") << QString();
        QTest::newRow("empty") << QByteArray("") << QString();
    }
    void typeHasItsLabel()
    {
        QFETCH(QByteArray, type);
        QFETCH(QString, label);
        QCOMPARE(GameTypeTransformer::transformedValue(type.toStdString()), label);
    }

    void absentTypeHasNoLabel() { QCOMPARE(GameTypeTransformer::transformedValue({}), QString()); }

    void rowHasItsColor_data()
    {
        QTest::addColumn<QVariant>("coloring");
        QTest::addColumn<QString>("folder"); // null: never chosen
        QTest::addColumn<QString>("set");
        QTest::addColumn<QColor>("color");
        const QColor usual(0xe6, 0xe6, 0xe6, 0xff);
        const QColor dim(0xe6, 0xe6, 0xe6, 0x80);
        const QString roms = QStringLiteral("roms");
        const QString pong = QStringLiteral("pong");
        QTest::newRow("never chosen") << QVariant() << roms << QStringLiteral("none") << usual;
        QTest::newRow("off") << QVariant(false) << roms << QStringLiteral("none") << usual;
        QTest::newRow("on, archive there") << QVariant(true) << roms << pong << usual;
        QTest::newRow("on, a folder of that name")
            << QVariant(true) << roms << QStringLiteral("folder") << usual;
        QTest::newRow("on, archive missing") << QVariant(true) << roms << QStringLiteral("none") << dim;
        QTest::newRow("on, only another extension")
            << QVariant(true) << roms << QStringLiteral("packed") << dim;
        QTest::newRow("on, no folder chosen") << QVariant(true) << QString() << pong << dim;
        QTest::newRow("on, folder gone") << QVariant(true) << QStringLiteral("gone") << pong << dim;
        QTest::newRow("off, no folder chosen") << QVariant(false) << QString() << pong << usual;
    }
    void rowHasItsColor()
    {
        QFETCH(QVariant, coloring);
        QFETCH(QString, folder);
        QFETCH(QString, set);
        QFETCH(QColor, color);
        const QTemporaryDir home;
        QDir(home.path()).mkpath(QStringLiteral("roms/folder.zip"));
        QVERIFY(writeFile(home.filePath(QStringLiteral("roms/pong.zip")), "PK"));
        QVERIFY(writeFile(home.filePath(QStringLiteral("roms/packed.7z")), "7z"));
        UserDefaults defaults(home.filePath(QStringLiteral("settings.ini")));
        if (coloring.isValid())
            defaults.setValue(keys::GamelistColoring.name, coloring);
        if (!folder.isNull())
            defaults.setValue(keys::RomsPath.name, home.filePath(folder));
        const auto found = ColorTransformer(defaults).transformedValue(set);
        QVERIFY(found.has_value());
        QCOMPARE(found->name(QColor::HexArgb), color.name(QColor::HexArgb));
    }

    void storedColorsAreUsed_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("coloring"); // no ROM folder, so colouring shows the second colour
        QTest::addColumn<QString>("color");
        const QString chosen = QStringLiteral("#40102030");
        QTest::newRow("first") << chosen << false << chosen;
        QTest::newRow("second") << chosen << true << chosen;
        QTest::newRow("first, broken") << QStringLiteral("#4010") << false << QStringLiteral("#ffe6e6e6");
        QTest::newRow("second, broken") << QStringLiteral("bplist00") << true << QStringLiteral("#80e6e6e6");
        QTest::newRow("first, empty") << QString() << false << QStringLiteral("#ffe6e6e6");
    }
    void storedColorsAreUsed()
    {
        QFETCH(QString, stored);
        QFETCH(bool, coloring);
        QFETCH(QString, color);
        const QTemporaryDir home;
        UserDefaults defaults(home.filePath(QStringLiteral("settings.ini")));
        defaults.setValue(keys::GamelistColoring.name, coloring);
        defaults.setValue(coloring ? keys::TableViewTextColor2.name : keys::TableViewTextColor.name, stored);
        const auto found = ColorTransformer(defaults).transformedValue(QStringLiteral("pong"));
        QVERIFY(found.has_value());
        QCOMPARE(found->name(QColor::HexArgb), color);
    }

    void switchOfThePreferencesIsNotTheLists()
    {
        const QTemporaryDir home;
        UserDefaults defaults(home.filePath(QStringLiteral("settings.ini")));
        defaults.setValue(keys::gamelist_coloring.name, true);
        QCOMPARE(ColorTransformer(defaults).transformedValue(QStringLiteral("pong"))->alpha(), 0xff);
    }

    void noNameHasNoColor()
    {
        const QTemporaryDir home;
        UserDefaults defaults(home.filePath(QStringLiteral("settings.ini")));
        QVERIFY(!ColorTransformer(defaults).transformedValue(QString()).has_value());
        QVERIFY(ColorTransformer(defaults).transformedValue(QStringLiteral("")).has_value());
    }
};

TESSERA_TEST(RecordsTest);
#include "recordstest.moc"
