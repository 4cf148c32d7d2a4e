#include "widgets/fontname.h"

#include "support/testmain.h"

#include <QFontDatabase>
#include <QRawFont>

using namespace tessera;

namespace {

// What tells one face from every other: the names that stand in it.
QByteArray face(const QFont& font)
{
    return QRawFont::fromFont(font).fontTable("name");
}

} // namespace

class FontNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFontHasAName_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("name");
        QTest::newRow("its usual style is left out") << "DejaVu Sans" << "Book" << "DejaVu Sans";
        QTest::newRow("bold") << "DejaVu Sans" << "Bold" << "DejaVu Sans Bold";
        QTest::newRow("two words") << "DejaVu Sans" << "Bold Oblique" << "DejaVu Sans Bold Oblique";
        QTest::newRow("a family that begins like another")
            << "DejaVu Sans Mono" << "Bold" << "DejaVu Sans Mono Bold";
        QTest::newRow("regular") << "Inter" << "Regular" << "Inter";
        QTest::newRow("a family with its maker")
            << "DejaVu Sans [PfEd]" << "Bold Oblique" << "DejaVu Sans [PfEd] Bold Oblique";
        QTest::newRow("semi bold") << "Inter" << "Semi Bold" << "Inter Semi Bold";
    }

    void aFontHasAName()
    {
        QFETCH(QString, family);
        QFETCH(QString, style);
        QFETCH(QString, name);
        const QFont font = QFontDatabase::font(family, style, 12);
        QCOMPARE(fontName(font), name);
        QCOMPARE(face(namedFont(name)), face(font));
    }

    void everyInstalledFontComesBackByItsName()
    {
        int tried = 0;
        for (const QString& family : QFontDatabase::families()) {
            if (!QFontDatabase::hasFamily(family))
                continue;
            for (const QString& style : QFontDatabase::styles(family)) {
                const QFont font = QFontDatabase::font(family, style, 12);
                const QString name = fontName(font);
                QVERIFY(name.startsWith(family));
                QVERIFY2(face(namedFont(name)) == face(font), qPrintable(name));
                ++tried;
            }
        }
        QVERIFY(tried > 8);
    }

    void weightAndSlantAreTheStyles()
    {
        const QFont font = namedFont(QStringLiteral("DejaVu Sans Bold Oblique"));
        QCOMPARE(font.family(), QStringLiteral("DejaVu Sans"));
        QCOMPARE(font.styleName(), QStringLiteral("Bold Oblique"));
        QCOMPARE(font.weight(), QFont::Bold);
        QVERIFY(font.italic());
    }

    void whatItLacksComesFromTheProgramsFamilies()
    {
        const QStringList own = QFont().families();
        for (const char* name : {"DejaVu Sans", "DejaVu Sans Bold", "No Such Font"})
            QCOMPARE(namedFont(QLatin1String(name)).families().sliced(1), own);
    }

    void anUnknownNameLooksLikeTheProgram_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("gone") << "No Such Font";
        QTest::newRow("a style that the family lacks") << "No Such Bold";
        QTest::newRow("empty") << "";
        QTest::newRow("spaces") << "  ";
    }

    void anUnknownNameLooksLikeTheProgram()
    {
        QFETCH(QString, name);
        const QFont font = namedFont(name);
        QCOMPARE(font.weight(), QFont().weight());
        QCOMPARE(font.styleName(), QString());
        QCOMPARE(face(font), face(QFont()));
    }
};

TESSERA_TEST(FontNameTest);
#include "fontnametest.moc"
