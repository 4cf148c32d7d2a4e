#include "catalogue/nameset.h"

#include "support/testmain.h"

#include <random>
#include <set>

using namespace tessera;

class NameSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesOfEveryLengthAreToldApart()
    {
        // Each differs from the one before by its last byte alone, and from the next by that it is shorter.
        NameSet names;
        for (std::size_t length = 1; length <= 40; ++length)
            names.insert(std::string(length, 'a'));
        for (std::size_t length = 1; length <= 40; ++length) {
            QVERIFY(names.contains(std::string(length, 'a')));
            for (std::size_t place = 0; place < length; ++place) {
                std::string other(length, 'a');
                other[place] = 'b';
                QVERIFY2(!names.contains(other), other.c_str());
            }
        }
        QVERIFY(!names.contains(std::string(41, 'a')) && !names.contains(""));
    }

    void anyBytesAreAName_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const QByteArray& name :
             {QByteArray(), QByteArray("\0", 1), QByteArray("a\0", 2), QByteArray("a\0b", 3),
              QByteArray("\0a", 2), QByteArray("\xFF\xFF"), QByteArray("ポン"), QByteArray(" "),
              QByteArray(16, '\xFF'), QByteArray(17, '\0')})
            QTest::newRow(name.toPercentEncoding().constData()) << name;
    }

    void anyBytesAreAName()
    {
        QFETCH(QByteArray, name);
        QVERIFY(!NameSet().contains(name.toStdString()));
        NameSet names;
        names.insert("a");
        names.insert(name.toStdString());
        QVERIFY(names.contains(name.toStdString()) && names.contains("a"));
        QVERIFY(!names.contains(name.toStdString() + "x") && !names.contains("x"));
    }

    void agreesWithAPlainSet()
    {
        std::mt19937 random(7);
        const auto name = [&] {
            std::string text(random() % 20, 'a');
            for (char& c : text)
                c = static_cast<char>('a' + random() % 2);
            return text;
        };
        NameSet names;
        std::set<std::string> plain;
        for (int i = 0; i < 3000; ++i) {
            plain.insert(name());
            names.insert(*std::next(plain.begin(), static_cast<int>(random() % plain.size())));
        }
        for (const std::string& each : plain)
            names.insert(each);
        for (int i = 0; i < 20'000; ++i) {
            const std::string asked = name();
            QCOMPARE(names.contains(asked), plain.contains(asked));
        }
    }
};

TESSERA_TEST(NameSetTest);
#include "namesettest.moc"
