#include "tools/conversion.h"

#include "support/testmain.h"
#include "tools/titletable.h"

#include <QFile>
#include <QTemporaryDir>

#include <thread>

#include <sys/stat.h>

using namespace tessera;

class ConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Nothing of a process' memory stands at its beginning.
    void aTitleListThatCannotBeReadSaysSo()
    {
        const auto titles = readTitles(QStringLiteral("/proc/self/mem"));
        QVERIFY(!titles);
        QCOMPARE(titles.error().key, "convert_not_read");
        QCOMPARE(titles.error().arguments.constFirst(), QStringLiteral("/proc/self/mem"));
    }

    void saysTheFixedTexts()
    {
        QCOMPARE(conversionReport(0), "The conversion work is finished.  ( 0 games )");
        QCOMPARE(conversionReport(45294), "The conversion work is finished.  ( 45294 games )");
        QCOMPARE(QString(conversiontexts::started), "Now converting...");
        QCOMPARE(QString(conversiontexts::noListxml), "listxml.xml file is not found.");
        QCOMPARE(QString(conversiontexts::noTitles), "mame32jp.lst file is not found.");
        QCOMPARE(QString(conversiontexts::logged), "Search end.");
    }

    void aTitleListWithoutAnEndIsRefused()
    {
        const auto titles = readTitles("/dev/zero");
        QVERIFY(!titles);
        QCOMPARE(QByteArray(titles.error().key), QByteArray("convert_no_titles"));
        QVERIFY(readTitles("/dev/null"));
    }

    void convertsTwoFiles()
    {
        const QString listxml = file("list.xml", "<game name=\"a\" ><description>A</description></game>");
        const QString titles = file("titles.lst", "a\t\x83\x41\r\n");
        const auto list = convertFiles(listxml, titles, {});
        QVERIFY(list);
        QVERIFY(QString::fromStdString(list->text.joined())
                    .contains(QString::fromUtf8("string\">ア</attribute>")));
    }

    // Far behind the first read.
    void aSavedListIsBegunAgainWhereAGameComesAfterAll()
    {
        QByteArray text = "<machine name=\"m\" ></machine>";
        text += QByteArray(600'000, ' ');
        text += "<game name=\"g\" ></game><game name=\"h\" ></game>";
        const auto list = convertFile(file("both.xml", text), TitleTable(), {});
        QVERIFY(list);
        QCOMPARE(list->games, std::size_t(2));
        QVERIFY(list->text.joined().find(">m<") == std::string::npos);
    }

    void aPipeIsReadOnce()
    {
        const QString path = m_folder.filePath("pipe");
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        std::thread writer([&] {
            QFile pipe(path);
            if (pipe.open(QIODevice::WriteOnly))
                pipe.write("<machine name=\"m\" ></machine><game name=\"g\" ></game>");
        });
        const auto list = convertFile(path, TitleTable(), {});
        writer.join();
        QVERIFY(list);
        QCOMPARE(list->games, std::size_t(1));
        QVERIFY(list->text.joined().find(">m<") != std::string::npos);
    }

    void largeListsArePartedBehindEndTags()
    {
        QFile list(file("parted.xml", manyMachines("machine", largeEnough)));
        QVERIFY(list.open(QIODevice::ReadOnly));
        const ListxmlParts parts = partsOf(list, 2);
        QCOMPARE(parts.name, ElementName::Machine);
        QCOMPARE(parts.ends.size(), std::size_t(2));
        QCOMPARE(parts.ends[1], list.size());
        QVERIFY(list.seek(parts.ends[0] - 10));
        QCOMPARE(list.read(10), QByteArray("</machine>"));
        QVERIFY(std::abs(parts.ends[0] - list.size() / 2) < 1000);
        QCOMPARE(partsOf(list, 1).ends.size(), std::size_t(1));
    }

    void smallListsStayInOnePart()
    {
        QFile list(file("small.xml", manyMachines("machine", 1'000'000)));
        QVERIFY(list.open(QIODevice::ReadOnly));
        QCOMPARE(partsOf(list, 4).ends, std::vector<qint64>{list.size()});
    }

    void partsMakeWhatTheWholeMakes_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray half = manyMachines("machine", largeEnough / 2);
        QTest::newRow("machines") << half + half + "</mame>";
        QTest::newRow("games") << manyMachines("game", largeEnough) + "</mame>";
        QTest::newRow("a value is the rest of the text") << half + "<machine x=\"\" ></machine>" + half;
        QTest::newRow("a value of the last part is the rest") << half + half + "<machine x=\"\" ></machine>";
        QTest::newRow("a game comes after all") << half + half + "<game name=\"late\" ></game>";
        QTest::newRow("cut off in an element") << half + half + "<machine name=\"cut\" >";
        QTest::newRow("a NUL") << half + half + QByteArray(1, '\0') + half;
        QTest::newRow("a NUL in an element")
            << half + half + "<machine name=\"" + QByteArray(1, '\0') + "\" ></machine>" + half;
        QTest::newRow("no element's end in the middle")
            << half + "<machine name=\"long\" >" + QByteArray(4'000'000, 'x') + "</machine>" + half;
        QTest::newRow("no elements at all") << QByteArray(largeEnough, ' ');
    }

    void partsMakeWhatTheWholeMakes()
    {
        QFETCH(QByteArray, text);
        const QString path = file("parts.xml", text);
        const auto whole = convertFile(path, TitleTable("m7\tseven\n"), {}, {}, 1);
        const auto parts = convertFile(path, TitleTable("m7\tseven\n"), {}, {}, 3);
        QCOMPARE(parts.has_value(), whole.has_value());
        if (!whole) {
            QCOMPARE(QByteArray(parts.error().key), QByteArray(whole.error().key));
            return;
        }
        QCOMPARE(parts->games, whole->games);
        QCOMPARE(parts->isWhole, whole->isWhole);
        QCOMPARE(parts->text.size(), whole->text.size());
        // Before the objects stands what is drawn anew each time.
        const auto objects = [](const std::string& store) {
            return store.substr(std::min(store.find("<object "), store.size()));
        };
        QVERIFY(objects(parts->text.joined()) == objects(whole->text.joined()));
    }

    void saysWhatCannotBeRead_data()
    {
        QTest::addColumn<QString>("listxml");
        QTest::addColumn<QString>("titles");
        QTest::addColumn<QString>("culprit");
        const QString good = file("good", "");
        const QString folder = m_folder.path();
        const QString none = m_folder.filePath("none");
        QTest::newRow("no list") << none << good << none;
        QTest::newRow("the list is a folder") << folder << good << folder;
        QTest::newRow("no titles") << good << none << none;
        QTest::newRow("the titles are a folder") << good << folder << folder;
    }

    void saysWhatCannotBeRead()
    {
        QFETCH(QString, listxml);
        QFETCH(QString, titles);
        QFETCH(QString, culprit);
        const auto list = convertFiles(listxml, titles, {});
        QVERIFY(!list);
        QCOMPARE(QByteArray(list.error().key), "convert_not_read");
        QCOMPARE(list.error().arguments.first(), culprit);
        QVERIFY(!list.error().arguments.last().isEmpty());
    }

private:
    // Bytes; enough for three parts.
    static constexpr qsizetype largeEnough = 26'000'000;

    static QByteArray manyMachines(const QByteArray& name, qsizetype size)
    {
        QByteArray text;
        text.reserve(size + 200);
        for (int i = 0; text.size() < size; ++i)
            text += "<" + name + " name=\"m" + QByteArray::number(i)
                + "\" ><description>Title</description><year>1980</year>"
                + "<driver status=\"good\" emulation=\"good\"/></" + name + ">\n";
        return text;
    }

    QString file(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            QTest::qFail("no file", __FILE__, __LINE__);
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TESSERA_TEST(ConversionTest);
#include "conversiontest.moc"
