#include "core/propertylistcheck.h"

#include "support/testmain.h"

#include <functional>

using namespace tessera;

namespace {

void add(QByteArray& to, quint64 number, int width)
{
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8)
        to += shift < 64 ? static_cast<char>(number >> shift) : '\0';
}

/// The parts of a file in binary form; whatever is not stated is as it should be.
struct Parts {
    QList<QByteArray> objects; ///< the first one is the outermost
    int offsetWidth = 1;
    int referenceWidth = 1;
    std::optional<quint64> count = {};
    quint64 top = 0;
    qint64 moved = 0; ///< by how much the table of offsets is said to stand further
    int behind = 0; ///< bytes between the table and the end's own
    std::optional<quint64> statedOffsetWidth = {};
    std::optional<quint64> statedReferenceWidth = {};

    QByteArray file() const
    {
        QByteArray bytes = "bplist00";
        QByteArray offsets;
        for (const QByteArray& object : objects) {
            add(offsets, static_cast<quint64>(bytes.size()), offsetWidth);
            bytes += object;
        }
        const qint64 table = bytes.size();
        bytes += offsets + QByteArray(behind, '\0') + QByteArray(6, '\0');
        add(bytes, statedOffsetWidth.value_or(static_cast<quint64>(offsetWidth)), 1);
        add(bytes, statedReferenceWidth.value_or(static_cast<quint64>(referenceWidth)), 1);
        add(bytes, count.value_or(static_cast<quint64>(objects.size())), 8);
        add(bytes, top, 8);
        add(bytes, static_cast<quint64>(table + moved), 8);
        return bytes;
    }
};

bool isSound(const QByteArray& file)
{
    return checkBinaryPropertyList(file, QStringLiteral("x.plist")).has_value();
}

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray all;
    for (const int value : values)
        all += static_cast<char>(value);
    return all;
}

const QByteArray shortText = "\x51x";

} // namespace

/// What a file in binary form says of itself, held against the bytes that there are.
class BinaryShapeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatTheEndSaysIsHeldAgainstTheFile_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("sound");
        const auto row = [](const char* name, const Parts& parts, bool sound) {
            QTest::newRow(name) << parts.file() << sound;
        };
        // Of references none is read where there is nothing to refer to.
        row("one text", {.objects = {shortText}}, true);
        row("offsets of eight bytes", {.objects = {shortText}, .offsetWidth = 8}, true);
        row("references of eight bytes", {.objects = {shortText}, .referenceWidth = 8}, true);
        row("offsets of no bytes", {.objects = {shortText}, .statedOffsetWidth = 0}, false);
        row("offsets of nine bytes", {.objects = {shortText}, .offsetWidth = 9}, false);
        row("references of no bytes", {.objects = {shortText}, .statedReferenceWidth = 0}, false);
        row("references of nine bytes", {.objects = {shortText}, .statedReferenceWidth = 9}, false);
        row("more objects than offsets", {.objects = {shortText}, .count = 2}, false);
        row("more objects than there could be", {.objects = {shortText}, .count = ~quint64{0}}, false);
        row("no objects", {.objects = {shortText}, .count = 0}, false);
        row("the last one is the outermost", {.objects = {shortText, shortText}, .top = 1}, true);
        row("one behind the last is", {.objects = {shortText, shortText}, .top = 2}, false);
        row("a table that begins at the end", {.objects = {shortText}, .moved = 1}, false);
        row("a table behind the end", {.objects = {shortText}, .moved = 2}, false);
        row("a table that begins before everything", {.objects = {shortText}, .moved = -1000}, false);
        row("bytes that belong to nothing", {.objects = {shortText}, .behind = 5}, true);
        QTest::newRow("a name and an end") << QByteArray("bplist00") + QByteArray(32, '\0') << false;
        QTest::newRow("a byte less") << QByteArray("bplist00") + QByteArray(31, '\0') << false;
    }
    void whatTheEndSaysIsHeldAgainstTheFile()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, sound);
        QCOMPARE(isSound(file), sound);
    }

    void anObjectStandsBeforeTheTable_data()
    {
        QTest::addColumn<QByteArray>("object");
        QTest::addColumn<bool>("sound");
        const auto row = [](const char* name, const QByteArray& object, bool sound) {
            QTest::newRow(name) << object << sound;
        };
        row("a text to the table", bytes({0x52, 'a', 'b'}), true);
        row("a text beyond it", bytes({0x53, 'a', 'b'}), false);
        row("a text of two bytes a character", bytes({0x61, 0, 'a'}), true);
        row("and one that goes beyond", bytes({0x62, 0, 'a', 0}), false);
        row("data to the table", bytes({0x42, 0, 0}), true);
        row("data beyond it", bytes({0x43, 0, 0}), false);
        row("a length of its own", bytes({0x5F, 0x10, 3, 'a', 'b', 'c'}), true);
        row("one too much", bytes({0x5F, 0x10, 4, 'a', 'b', 'c'}), false);
        row("a length of two bytes", bytes({0x5F, 0x11, 0, 3, 'a', 'b', 'c'}), true);
        row("a length of eight bytes", bytes({0x5F, 0x13, 0, 0, 0, 0, 0, 0, 0, 1, 'a'}), true);
        row("no length", bytes({0x5F}), false);
        row("a length that is no integer", bytes({0x5F, 0x20, 1, 'a'}), false);
        row("a length of sixteen bytes", bytes({0x5F, 0x14}) + QByteArray(15, '\0') + bytes({1, 'a'}), false);
        row("a length that ends with the table", bytes({0x5F, 0x11, 0, 0}), true);
        row("a length that goes beyond", bytes({0x5F, 0x11, 0}), false);
        row("an array of itself alone", bytes({0xA1, 0}), false);
        row("an array of nothing", bytes({0xA0}), true);
        row("an array beyond the table", bytes({0xA1}), false);
        row("a set beyond the table", bytes({0xC1}), false);
        row("a dictionary beyond the table", bytes({0xD1, 1}), false);
        row("a dictionary of nothing", bytes({0xD0}), true);
        row("more than there could be", bytes({0xDF, 0x13, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}),
            false);
        row("a number", bytes({0x10, 7}), true);
    }
    void anObjectStandsBeforeTheTable()
    {
        QFETCH(QByteArray, object);
        QFETCH(bool, sound);
        // Only what the object says is asked here: the table's own bytes would be another object's otherwise.
        QCOMPARE(isSound(Parts{.objects = {object}}.file()), sound);
    }

    void referencesNameObjects_data()
    {
        QTest::addColumn<QByteArray>("outermost");
        QTest::addColumn<bool>("sound");
        const auto row = [](const char* name, const QByteArray& outermost, bool sound) {
            QTest::newRow(name) << outermost << sound;
        };
        row("the last one", bytes({0xA1, 2}), true);
        row("one behind the last", bytes({0xA1, 3}), false);
        row("two of a dictionary", bytes({0xD1, 1, 2}), true);
        row("a dictionary whose second is none", bytes({0xD1, 1, 3}), false);
        row("a set's", bytes({0xC2, 1, 2}), true);
        row("a set's that is none", bytes({0xC2, 1, 3}), false);
    }
    void referencesNameObjects()
    {
        QFETCH(QByteArray, outermost);
        QFETCH(bool, sound);
        QCOMPARE(isSound(Parts{.objects = {outermost, shortText, shortText}}.file()), sound);
    }

    // What is named twice is looked into once, and is as deep everywhere.
    void anObjectIsAsDeepAsWhatItNames()
    {
        const auto nested = [](int depth, bool isKnownBefore) {
            // Each names the next one, the last is empty. The outermost names a short way down first.
            QList<QByteArray> objects;
            const auto reference = [](int object) { return bytes({object >> 8, object & 0xFF}); };
            QByteArray outermost = isKnownBefore ? bytes({0xA2}) : bytes({0xA1});
            if (isKnownBefore)
                outermost += reference(depth / 2);
            objects << QByteArray(outermost + reference(1));
            for (int i = 1; i + 1 < depth; ++i)
                objects << QByteArray(bytes({0xA1}) + reference(i + 1));
            objects << bytes({0xA0});
            return Parts{.objects = objects, .offsetWidth = 2, .referenceWidth = 2}.file();
        };
        for (const bool isKnownBefore : {false, true}) {
            QVERIFY(isSound(nested(deepestPropertyList, isKnownBefore)));
            QVERIFY(!isSound(nested(deepestPropertyList + 1, isKnownBefore)));
        }
    }
};

TESSERA_TEST(BinaryShapeTest);
#include "binaryshapetest.moc"
