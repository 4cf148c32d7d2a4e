#include "catalogue/search/wordclass.h"

#include "support/testmain.h"

using namespace tessera;

class WordClassTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The first and the last of each range, and who stands before and behind it.
    void everyCharacterIsAPieceOfSomething_data()
    {
        QTest::addColumn<WordClass>("is");
        const auto row
            = [](char32_t c, WordClass is) { QTest::newRow(qPrintable(QString::number(c, 16))) << is; };
        row(U'あ' - 1, WordClass::Kana); // small ぁ
        row(0x3040, WordClass::None); // not a character
        row(0x309F, WordClass::Kana);
        row(0x30A0, WordClass::None);
        row(0x30A1, WordClass::Kana);
        row(0x30FA, WordClass::Kana);
        row(0x30FB, WordClass::None); // the dot between words
        row(0x3005, WordClass::Ideographs);
        row(0x3007, WordClass::Ideographs);
        row(U'漢', WordClass::Ideographs);
        row(0x20000, WordClass::Ideographs);
        row(0xB2, WordClass::None);
        row(0xE9, WordClass::Letters);
        row(0x7FF, WordClass::None);
        row(0x7CA, WordClass::Letters);
        row(0x905, WordClass::Letters);
        row(0xFFDC, WordClass::Letters);
        row(0x10000, WordClass::Letters);
        row(0x1F600, WordClass::None);
        row('a', WordClass::Letters);
        row('z', WordClass::Letters);
        row('A', WordClass::Letters);
        row('Z', WordClass::Letters);
        row('0', WordClass::Letters);
        row('9', WordClass::Letters);
        for (const char c : {'`', '{', '@', '[', '/', ':', ' ', '_'})
            row(static_cast<char32_t>(c), WordClass::None);
    }

    void everyCharacterIsAPieceOfSomething()
    {
        QFETCH(WordClass, is);
        const auto c = static_cast<char32_t>(QByteArray(QTest::currentDataTag()).toUInt(nullptr, 16));
        const std::string text = QString::fromUcs4(&c, 1).toStdString();
        QCOMPARE(firstClass(text), is);
        QCOMPARE(lastClass(text), is);
        // Between others it is the same.
        QCOMPARE(firstClass(text + "カ"), is);
        QCOMPARE(lastClass("カ" + text), is);
    }

    void nothingIsAPieceOfNothing()
    {
        QCOMPARE(firstClass(""), WordClass::None);
        QCOMPARE(lastClass(""), WordClass::None);
    }
};

TESSERA_TEST(WordClassTest);

#include "wordclasstest.moc"
