#include "favourites/favourites.h"

#include "favouritetexts.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tessera;
using namespace tessera::test;

class FavouritesListTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Favourites> m_favourites;

    QStringList names() const
    {
        QStringList list;
        for (std::uint32_t i = 0; i < m_favourites->records().size(); ++i)
            list << m_favourites->value(i, FavouriteKey::Name);
        return list;
    }
    QByteArray text() const { return m_favourites->text().value(); }

    void open(const QByteArray& values)
    {
        QVERIFY(writeBytes(m_favourites->path(), listFile(values)));
        QVERIFY(m_favourites->open() == Favourites::Opened::List);
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_favourites = std::make_unique<Favourites>(m_folder->filePath(QStringLiteral("f.xml")));
    }

    void aFavouriteIsACopyOfTheGame()
    {
        m_favourites->append(pong);
        QCOMPARE(text(),
                 listFile("\t<dict>\n"
                          "\t\t<key>name</key>\n\t\t<string>pong</string>\n"
                          "\t\t<key>cloneof</key>\n\t\t<string>pong</string>\n"
                          "\t\t<key>title</key>\n\t\t<string>Pong</string>\n"
                          "\t\t<key>titlejp</key>\n\t\t<string>ポン</string>\n"
                          "\t\t<key>year</key>\n\t\t<string>1972</string>\n"
                          "\t\t<key>maker</key>\n\t\t<string>Atari</string>\n"
                          "\t\t<key>status</key>\n\t\t<string>good</string>\n"
                          "\t\t<key>type</key>\n\t\t<string>game</string>\n"
                          "\t\t<key>device</key>\n\t\t<string></string>\n"
                          "\t</dict>\n"));
        QCOMPARE(m_favourites->records()[0][Field::Titlejp], std::string_view("ポン"));
        QVERIFY(m_favourites->records()[0].has(Field::Device));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Option), QString());
    }

    void anAbsentAttributeReadsNull()
    {
        m_favourites->append(bare);
        QCOMPARE(m_favourites->value(0, FavouriteKey::Cloneof), QStringLiteral("(null)"));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Device), QStringLiteral("(null)"));
    }

    void aGameMayBeAddedTwice()
    {
        m_favourites->append(pong);
        m_favourites->append(pong);
        QCOMPARE(names(), (QStringList{QStringLiteral("pong"), QStringLiteral("pong")}));
    }

    void addingIsUndone()
    {
        open(entryText("galaga", "Galaga"));
        QSignalSpy appended(m_favourites.get(), &Favourites::appended);
        QSignalSpy removed(m_favourites.get(), &Favourites::removed);
        m_favourites->append(pong);
        QCOMPARE(appended.size(), 1);
        m_favourites->undoStack().undo();
        QCOMPARE(names(), QStringList{QStringLiteral("galaga")});
        QCOMPARE(removed.size(), 1);
        m_favourites->undoStack().redo();
        QCOMPARE(names(), (QStringList{QStringLiteral("galaga"), QStringLiteral("pong")}));
    }

    void removedOnesComeBackToTheirPlaces()
    {
        open(entryText("a", "A", "-cheat") + entryText("b", "B") + entryText("c", "C") + entryText("d", "D"));
        const QByteArray before = text();
        QSignalSpy back(m_favourites.get(), &Favourites::putBackAt);
        m_favourites->remove({3, 0, 3, 1});
        QCOMPARE(names(), QStringList{QStringLiteral("c")});
        m_favourites->undoStack().undo();
        QCOMPARE(text(), before);
        QCOMPARE(back.size(), 1);
        QCOMPARE(back[0][0].value<std::vector<std::uint32_t>>(), (std::vector<std::uint32_t>{0, 1, 3}));
        m_favourites->undoStack().redo();
        QCOMPARE(names(), QStringList{QStringLiteral("c")});
        m_favourites->remove({});
        QCOMPARE(m_favourites->undoStack().count(), 1);
    }

    void editsAreUndoneAndRedone()
    {
        open(entryText("a", "A"));
        QSignalSpy changed(m_favourites.get(), &Favourites::valueChanged);
        m_favourites->setValue(0, FavouriteKey::Titlejp, QStringLiteral("あ"));
        m_favourites->setValue(0, FavouriteKey::Option, QStringLiteral("-cheat  -autosave"));
        QCOMPARE(m_favourites->records()[0][Field::Titlejp], std::string_view("あ"));
        QCOMPARE(m_favourites->value(0, FavouriteKey::Option), QStringLiteral("-cheat  -autosave"));
        m_favourites->undoStack().undo();
        m_favourites->undoStack().undo();
        QVERIFY(!m_favourites->records()[0].has(Field::Titlejp));
        QCOMPARE(text(), listFile(entryText("a", "A")));
        m_favourites->undoStack().redo();
        QCOMPARE(m_favourites->value(0, FavouriteKey::Titlejp), QStringLiteral("あ"));
        QCOMPARE(changed.size(), 5);
    }

    void emptyOptionsAreNoOptions()
    {
        open(entryText("a", "A", "-cheat"));
        m_favourites->setValue(0, FavouriteKey::Option, QString());
        QCOMPARE(text(), listFile(entryText("a", "A")));
        m_favourites->setValue(0, FavouriteKey::Title, QString());
        QVERIFY(text().contains("<key>title</key>"));
        QVERIFY(m_favourites->records()[0].has(Field::Title));
    }

    void sameTextIsNoEdit()
    {
        open("<dict><key>name</key><string>a</string><key>year</key><integer>1980</integer></dict>");
        m_favourites->setValue(0, FavouriteKey::Year, QStringLiteral("1980"));
        m_favourites->setValue(0, FavouriteKey::Maker, QString());
        m_favourites->setValue(0, FavouriteKey::Option, QString());
        QCOMPARE(m_favourites->undoStack().count(), 0);
    }

    void undoMakesANumberOfItAgain()
    {
        open("\t<dict>\n\t\t<key>name</key>\n\t\t<string>a</string>\n"
             "\t\t<key>year</key>\n\t\t<integer>1980</integer>\n\t</dict>\n");
        const QByteArray before = text();
        m_favourites->setValue(0, FavouriteKey::Year, QStringLiteral("1981"));
        QVERIFY(text().contains("<string>1981</string>"));
        m_favourites->undoStack().undo();
        QCOMPARE(text(), before);
    }

    void oldRecordsLiveWhileTheListChanges()
    {
        open(entryText("a", "A") + entryText("b", "B"));
        std::span<const GameRecord> held = m_favourites->records();
        QStringList seen;
        const auto look = [&] {
            seen << QString::fromStdString(std::string(held[0][Field::Name]));
            held = m_favourites->records();
        };
        connect(m_favourites.get(), &Favourites::appended, this, look);
        connect(m_favourites.get(), &Favourites::removed, this, look);
        connect(m_favourites.get(), &Favourites::putBackAt, this, look);
        connect(m_favourites.get(), &Favourites::replaced, this, look);
        m_favourites->append(pong);
        m_favourites->remove({0});
        m_favourites->undoStack().undo();
        QVERIFY(m_favourites->open().has_value());
        QCOMPARE(seen,
                 (QStringList{QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("b"),
                              QStringLiteral("a")}));
    }
};

TESSERA_TEST(FavouritesListTest);
#include "favouriteslisttest.moc"
