#include "core/propertylistcheck.h"
#include "favourites/favourites.h"
#include "favourites/favouritespath.h"

#include "favouritetexts.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QTemporaryDir>

#include <plist/plist.h>

#include <sys/stat.h>

using namespace tessera;
using namespace tessera::test;

class FavouritesFileTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Favourites> m_favourites;

    QString path() const { return m_favourites->path(); }
    // What stands beside the file.
    QStringList others() const
    {
        QStringList files = QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
        files.removeAll(QStringLiteral("f.xml"));
        return files;
    }
    std::expected<void, Failure> save() { return m_favourites->write(m_favourites->text().value()); }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_favourites = std::make_unique<Favourites>(m_folder->filePath(QStringLiteral("f.xml")));
    }

    void thePathHasItsGivenName()
    {
        QCOMPARE(favouritesPath(QStringLiteral("/x")),
                 QStringLiteral("/x/Plover.Tessera/jp.Plover.Tessera_Favorites.xml"));
        qputenv("XDG_DATA_HOME", "/home/somebody/.data");
        QCOMPARE(standardFavouritesPath(),
                 QStringLiteral("/home/somebody/.data/Plover.Tessera/jp.Plover.Tessera_Favorites.xml"));
        QCOMPARE(QFileInfo(playedPath(standardFavouritesPath())).path(),
                 QFileInfo(standardFavouritesPath()).path());
    }

    void theFileIsAnXmlPropertyListInTheListsOrder()
    {
        const QByteArray bytes
            = listFile(entryText("b", "B &amp; B", "-cheat -autosave") + entryText("a", "あ"));
        QVERIFY(writeBytes(path(), bytes));
        QVERIFY(m_favourites->open() == Favourites::Opened::List);
        QCOMPARE(m_favourites->value(0, FavouriteKey::Title), QStringLiteral("B & B"));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Option), QStringLiteral("-cheat -autosave"));
        QCOMPARE(m_favourites->value(1, FavouriteKey::Title), QStringLiteral("あ"));
        QVERIFY(save());
        QCOMPARE(bytesOf(path()), bytes);
        QCOMPARE(others(), QStringList());
    }

    void noFileIsNoFailure()
    {
        QVERIFY(m_favourites->open() == Favourites::Opened::NoFile);
        m_favourites->append(pong);
        QVERIFY(save());
        Favourites again(path());
        QVERIFY(again.open() == Favourites::Opened::List);
        QCOMPARE(again.value(0, FavouriteKey::Name), QStringLiteral("pong"));
    }

    void anEmptyListIsTold()
    {
        QVERIFY(writeBytes(path(), listFile("")));
        m_favourites->append(pong);
        QVERIFY(m_favourites->open() == Favourites::Opened::EmptyList);
        QCOMPARE(m_favourites->records().size(), std::size_t(1));
        QVERIFY(save());
        QCOMPARE(others(), QStringList());
    }

    void foreignValuesAreShownAndStay_data()
    {
        QTest::addColumn<bool>("binary");
        QTest::newRow("XML") << false;
        QTest::newRow("binary") << true;
    }
    void foreignValuesAreShownAndStay()
    {
        QFETCH(bool, binary);
        const QByteArray xml = listFile("\t<string>not a favourite</string>\n"
                                        "\t<dict>\n"
                                        "\t\t<key>name</key>\n\t\t<integer>1943</integer>\n"
                                        "\t\t<key>year</key>\n\t\t<date>1987-06-05T04:03:02Z</date>\n"
                                        "\t\t<key>maker</key>\n\t\t<true/>\n"
                                        "\t\t<key>title</key>\n\t\t<array/>\n"
                                        "\t\t<key>rating</key>\n\t\t<real>4.5</real>\n"
                                        "\t\t<key>option</key>\n\t\t<integer>-5</integer>\n"
                                        "\t</dict>\n"
                                        "\t<array>\n\t\t<string>x</string>\n\t</array>\n"
                                        + entryText("pong", "Pong") + "\t<integer>7</integer>\n");
        QByteArray bytes = xml;
        if (binary) {
            plist_t node = nullptr;
            plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
            char* text = nullptr;
            std::uint32_t length = 0;
            plist_to_bin(node, &text, &length);
            bytes = QByteArray(text, length);
            plist_to_bin_free(text);
            plist_free(node);
        }
        QVERIFY(writeBytes(path(), bytes));
        QVERIFY(m_favourites->open() == Favourites::Opened::List);
        QCOMPARE(m_favourites->records().size(), std::size_t(2));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Name), QStringLiteral("1943"));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Year), QStringLiteral("1987-06-05T04:03:02Z"));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Maker), QStringLiteral("true"));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Option), QStringLiteral("-5"));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Title), QString());
        QCOMPARE(m_favourites->records()[0][Field::Name], std::string_view("1943"));
        QCOMPARE(m_favourites->text().value(), xml);

        // An edit changes its own value only; what is no favourite keeps its place as long as there is one.
        m_favourites->setValue(0, FavouriteKey::Title, QStringLiteral("1943"));
        QVERIFY(m_favourites->text().value().contains("<key>rating</key>\n\t\t<real>4.5</real>"));
        m_favourites->remove({0, 1});
        QVERIFY(save());
        QCOMPARE(bytesOf(path()),
                 listFile("\t<string>not a favourite</string>\n"
                          "\t<array>\n\t\t<string>x</string>\n\t</array>\n"
                          "\t<integer>7</integer>\n"));
    }

    void brokenFilesAreKeptUnderADatedName_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("key");
        const QByteArray good = listFile(entryText("a", "A"));
        const auto row = [](const char* name, const QByteArray& bytes, const char* key) {
            QTest::newRow(name) << bytes << QByteArray(key);
        };
        row("broken off", good.first(good.size() / 2), "failure_plist_truncated");
        row("no property list", "<html/>", "failure_plist_foreign");
        row("nothing", "", "failure_plist_empty");
        row("a dictionary", "<plist><dict><key>name</key><string>a</string></dict></plist>",
            "failure_favourites_foreign");
        row("nested deeply",
            listFile(QByteArray("<array>").repeated(100'000) + QByteArray("</array>").repeated(100'000)),
            "failure_plist_large");
        row("large", listFile("<string>" + QByteArray(largestPropertyList, 'x') + "</string>"),
            "failure_plist_large");
    }
    void brokenFilesAreKeptUnderADatedName()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, key);
        QVERIFY(writeBytes(path(), bytes));
        m_favourites->append(pong);
        const auto opened = m_favourites->open();
        QVERIFY(!opened.has_value());
        QCOMPARE(QByteArray(opened.error().key), key);
        QCOMPARE(opened.error().arguments.value(0), path());
        // The list stays as it was, and nothing is lost on either side.
        QCOMPARE(m_favourites->records().size(), std::size_t(1));
        QVERIFY(save());
        QVERIFY(Favourites(path()).open() == Favourites::Opened::List);
        QCOMPARE(others().size(), 1);
        QVERIFY(bytesOf(m_folder->filePath(others().constFirst())) == bytes);
        // Ours is replaced without more ado.
        m_favourites->append(pong);
        QVERIFY(save());
        QCOMPARE(others().size(), 1);
    }

    void aFileThatSomebodyElseWroteSinceIsKept()
    {
        QVERIFY(writeBytes(path(), listFile(entryText("a", "A"))));
        QVERIFY(m_favourites->open().has_value());
        const QByteArray newer = listFile(entryText("b", "B") + entryText("c", "C"));
        QVERIFY(writeBytes(path(), newer));
        QVERIFY(save());
        QCOMPARE(bytesOf(path()), listFile(entryText("a", "A")));
        QCOMPARE(others().size(), 1);
        QCOMPARE(bytesOf(m_folder->filePath(others().constFirst())), newer);
    }

    void aFailedWriteLeavesTheOldFile()
    {
        const QByteArray old = listFile(entryText("a", "A"));
        QVERIFY(writeBytes(path(), old));
        QVERIFY(m_favourites->open().has_value());
        m_favourites->append(pong);
        chmod(qPrintable(m_folder->path()), 0555);
        {
            const OrdinaryUser user;
            QVERIFY(user.holds());
            const auto saved = save();
            QVERIFY(!saved.has_value());
            QCOMPARE(saved.error().key, "failure_write");
        }
        chmod(qPrintable(m_folder->path()), 0755);
        QCOMPARE(bytesOf(path()), old);
        QVERIFY(!m_favourites->undoStack().isClean());
        QVERIFY(save());
        QVERIFY(m_favourites->undoStack().isClean());
    }

    void aFileThatMayNotBeReadIsNotLost()
    {
        const QByteArray old = listFile(entryText("a", "A"));
        QVERIFY(writeBytes(path(), old));
        chmod(qPrintable(path()), 0000);
        chmod(qPrintable(m_folder->path()), 0777);
        {
            const OrdinaryUser user;
            QVERIFY(user.holds());
            const auto opened = m_favourites->open();
            QVERIFY(!opened.has_value());
            QCOMPARE(opened.error().key, "failure_plist_read");
            m_favourites->append(pong);
            // Where it cannot be kept it is not replaced either.
            const bool isSaved = save().has_value();
            QCOMPARE(isSaved, !others().isEmpty());
        }
        const QStringList kept = others();
        QCOMPARE(bytesOf(kept.isEmpty() ? path() : m_folder->filePath(kept.constFirst())), old);
    }

    void openingAnewDropsEditsAndTheirHistory()
    {
        QVERIFY(writeBytes(path(), listFile(entryText("a", "A"))));
        QVERIFY(m_favourites->open().has_value());
        m_favourites->setValue(0, FavouriteKey::Title, QStringLiteral("edited"));
        QVERIFY(m_favourites->open().has_value());
        QCOMPARE(m_favourites->value(0, FavouriteKey::Title), QStringLiteral("A"));
        QVERIFY(!m_favourites->undoStack().canUndo());
        QVERIFY(m_favourites->undoStack().isClean());
    }
};

TESSERA_TEST(FavouritesFileTest);
#include "favouritesfiletest.moc"
