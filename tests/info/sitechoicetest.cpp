#include "info/ui/sitechoice.h"

#include "core/settingskeys.h"
#include "platform/defaultscontroller.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "support/words.h"

#include <QTemporaryDir>

using namespace tessera;

/// The favourites' own choice of an information site.
class SiteChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_choice.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        m_stored = std::make_unique<UserDefaults>(m_folder->filePath("settings.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_stored);
        m_defaults->setInitialValues(QString(), QString());
    }

    void cleanup() { m_choice.reset(); }

    void aSiteIsTitledByItsAddressAndWithoutAHostByItsName()
    {
        const test::InstalledTexts texts("en");
        m_defaults->setText(keys::InfositeHost2, QStringLiteral("two.test"));
        m_defaults->setText(keys::InfositeHost6, QStringLiteral("six.test"));
        make();
        QCOMPARE(test::wordsOf(*m_choice),
                 (QStringList{
                     "infositePop2: Information site 1 / "
                     "http://two.test/php/emulator_game.php?id=mame&game={$gamename} / Information site 3 / "
                     "Information site 4 / Information site 5 / Information site 6 / Other site / "
                     "named Information site / tip Information site 1",
                     QString::fromUtf8(
                         "addressField2: hint https://…/{$gamename} / named Address of another site"),
                 }));
    }

    // They may be longer than the window is wide.
    void everyAddressIsItsItemsToolTipToo()
    {
        const test::InstalledTexts texts("en");
        make();
        m_defaults->setText(keys::InfositeHost4, QStringLiteral("four.test"));
        for (int item = 0; item < 6; ++item)
            QCOMPARE(m_choice->infositePop2->itemData(item, Qt::ToolTipRole).toString(),
                     m_choice->infositePop2->itemText(item));
        m_choice->infositePop2->setCurrentIndex(3);
        QCOMPARE(m_choice->infositePop2->toolTip(), QStringLiteral("http://four.test/r/{$gamename}"));
        m_defaults->setText(keys::InfositeHost4, QStringLiteral("other.test"));
        QCOMPARE(m_choice->infositePop2->toolTip(), QStringLiteral("http://other.test/r/{$gamename}"));
    }

    void itBeginsWithWhatThePreferencesSay_data()
    {
        QTest::addColumn<int>("preferred");
        QTest::addColumn<int>("item");
        const auto row = [](int preferred, int item) {
            QTest::newRow(qPrintable(QString::number(preferred))) << preferred << item;
        };
        row(-1, 0);
        row(0, 0);
        row(1, 1);
        row(4, 4);
        // What has no template here is the first one.
        row(5, 0);
        row(6, 0);
        row(7, 0);
        row(8, 0);
        row(9, 6);
        row(10, 0);
    }

    void itBeginsWithWhatThePreferencesSay()
    {
        QFETCH(int, preferred);
        QFETCH(int, item);
        m_defaults->setIndex(keys::Rominfosite, preferred);
        m_defaults->setText(keys::VisitedRomPath, QStringLiteral("https://mine.test/{$gamename}"));
        make();
        QCOMPARE(m_choice->infositePop2->currentIndex(), item);
        QCOMPARE(m_choice->addressField2->text(), QStringLiteral("https://mine.test/{$gamename}"));
        QCOMPARE(m_choice->addressField2->isVisibleTo(m_choice.get()), item == 6);
        // From then on it is a choice of its own.
        m_defaults->setIndex(keys::Rominfosite, 2);
        m_defaults->setText(keys::VisitedRomPath, QStringLiteral("https://another.test"));
        QCOMPARE(m_choice->infositePop2->currentIndex(), item);
        QCOMPARE(m_choice->addressField2->text(), QStringLiteral("https://mine.test/{$gamename}"));
        m_choice->infositePop2->setCurrentIndex(1);
        QCOMPARE(m_defaults->index(keys::Rominfosite), 2);
    }

    void theFieldIsThereForAnAddressThatIsNotInTheList()
    {
        make();
        for (int item = 0; item < m_choice->infositePop2->count(); ++item) {
            m_choice->infositePop2->setCurrentIndex(item);
            QCOMPARE(m_choice->addressField2->isVisibleTo(m_choice.get()), item == 6);
        }
        m_choice->addressField2->setText(QStringLiteral("https://mine.test/{$gamename}/{$gamename}"));
        QCOMPARE(pageOf("qix"), QStringLiteral("https://mine.test/qix/qix"));
    }

    void everyItemHasItsPage_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<QString>("page"); // empty for none
        const auto row = [](int item, const char* page) {
            QTest::newRow(qPrintable(QString::number(item))) << item << QString::fromLatin1(page);
        };
        row(-1, "");
        row(0, "http://site1.test/index.php?p=roms&jeu=qix");
        row(1, "http://site2.test/php/emulator_game.php?id=mame&game=qix");
        row(2, "http://site3.test/game/qix");
        row(3, "http://site4.test/r/qix");
        row(4, "http://site5.test/maws/romset/qix");
        row(5, "");
        row(6, "http://typed.test/qix");
    }

    void everyItemHasItsPage()
    {
        QFETCH(int, item);
        QFETCH(QString, page);
        int site = 0;
        for (const ChosenKey& key : {keys::InfositeHost1, keys::InfositeHost2, keys::InfositeHost3,
                                     keys::InfositeHost4, keys::InfositeHost5, keys::InfositeHost6})
            m_defaults->setText(key, QStringLiteral("site%1.test").arg(++site));
        m_defaults->setText(keys::VisitedRomPath, QStringLiteral("http://typed.test/{$gamename}"));
        make();
        m_choice->infositePop2->setCurrentIndex(item);
        QCOMPARE(pageOf("qix"), page);
        QCOMPARE(m_choice->hindrance(), QString());
    }

    void aSiteThatWantsAHostSaysWhich_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<int>("number"); // 0 where it is not for want of a host
        const auto row = [](int item, int number) {
            QTest::newRow(qPrintable(QString::number(item))) << item << number;
        };
        row(-1, 0);
        row(0, 1);
        row(1, 2);
        row(3, 4);
        row(4, 5);
        row(5, 0);
        row(6, 0);
    }

    void aSiteThatWantsAHostSaysWhich()
    {
        QFETCH(int, item);
        QFETCH(int, number);
        const test::InstalledTexts texts("en");
        make();
        m_choice->infositePop2->setCurrentIndex(item);
        QCOMPARE(m_choice->hindrance(),
                 number == 0 ? QString()
                             : QString::fromUtf8("Information site %1 has no host yet: "
                                                 "Preferences › Support › Information sites.")
                                   .arg(number));
        QCOMPARE(pageOf("qix"), QString());
    }

private:
    void make() { m_choice = std::make_unique<SiteChoice>(*m_defaults); }

    QString pageOf(const char* name) const
    {
        const auto page = m_choice->page(QString::fromLatin1(name));
        return page ? page->toString() : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_stored;
    std::unique_ptr<DefaultsController> m_defaults;
    std::unique_ptr<SiteChoice> m_choice;
};

TESSERA_TEST(SiteChoiceTest);
#include "sitechoicetest.moc"
