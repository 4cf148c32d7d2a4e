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
