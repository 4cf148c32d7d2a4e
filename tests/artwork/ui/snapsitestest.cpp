#include "artwork/ui/snapsites.h"

#include "artwork/ui/picturespage.h"
#include "staging.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QLineEdit>

using namespace tessera;
using test::PictureStaging;

class SnapSitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staging = std::make_unique<PictureStaging>();
        m_staging->defaults.setText(keys::SnapsiteHost1, QStringLiteral("one.test"));
        m_staging->defaults.setText(keys::SnapsiteHost2, QStringLiteral("two.test"));
        m_page = std::make_unique<PicturesPage>(m_staging->defaults);
        m_sites = std::make_unique<SnapSites>(m_staging->defaults);
        m_sites->setPage(*m_page);
    }

    void cleanup()
    {
        m_sites.reset();
        m_page.reset();
    }

    void aSiteFillsTheFieldsAndLocksThem()
    {
        choose(1);
        QCOMPARE(fields(),
                 (QStringList{"http://two.test/snap/{$gamename}", "http://two.test/titles/{$gamename}", ""}));
        for (const QLineEdit* field : m_page->templateFields())
            QVERIFY(!field->isEnabled());
        QCOMPARE(m_sites->templateOf(0), QStringLiteral("http://two.test/snap/{$gamename}"));
        QCOMPARE(m_sites->templateOf(2), QString());
        QCOMPARE(m_sites->templateOf(3), QString());
    }

    void theOtherSiteBringsTheUsersTemplatesBack()
    {
        m_staging->defaults.setText(keys::snapdownloadPath, QStringLiteral("http://mine.test/a"));
        m_staging->defaults.setText(keys::titlessdownloadPath, QStringLiteral("http://mine.test/b"));
        m_staging->defaults.setText(keys::flyersdownloadPath, QStringLiteral("http://mine.test/c"));
        choose(0);
        choose(m_page->snapdownsitePop->findText(QStringLiteral("Other site")));
        QCOMPARE(fields(), (QStringList{"http://mine.test/a", "http://mine.test/b", "http://mine.test/c"}));
        for (const QLineEdit* field : m_page->templateFields())
            QVERIFY(field->isEnabled());
    }

    void whatIsTypedIsTheUsersOwn()
    {
        choose(3);
        m_page->titlesdownTextField->clear();
        QTest::keyClicks(m_page->titlesdownTextField, QStringLiteral("http://mine.test/{$gamename}"));
        QCOMPARE(m_staging->defaults.text(keys::titlessdownloadPath),
                 QStringLiteral("http://mine.test/{$gamename}"));
        QCOMPARE(m_sites->templateOf(1), QStringLiteral("http://mine.test/{$gamename}"));
    }

    void anyOtherPositionLeavesTheText()
    {
        choose(1);
        m_staging->defaults.setIndex(keys::Snapdownsite, 7);
        QCOMPARE(fields().constFirst(), QStringLiteral("http://two.test/snap/{$gamename}"));
        QVERIFY(!m_page->snapdownTextField->isEnabled());
    }

    void aHostIsTypedOncePerSite()
    {
        choose(2);
        QVERIFY(m_page->hostField->isEnabled());
        QTest::keyClicks(m_page->hostField, QStringLiteral("three.test"));
        QCOMPARE(m_staging->defaults.text(keys::InfositeHost5), QStringLiteral("three.test"));
        QVERIFY(fields().constFirst().startsWith(QStringLiteral("http://three.test/maws/")));
        choose(3);
        QVERIFY(!m_page->hostField->isEnabled());
    }

    // The web site that gives information, too; what was stored for the pictures alone serves for both.
    void theFirstAndTheThirdSiteHaveTheHostsOfTheInformation()
    {
        choose(0);
        QCOMPARE(m_page->hostField->text(), QStringLiteral("one.test"));
        m_staging->defaults.setText(keys::InfositeHost1, QStringLiteral("shared.test"));
        QCOMPARE(m_page->hostField->text(), QStringLiteral("shared.test"));
        QVERIFY(fields().constFirst().startsWith(QStringLiteral("http://shared.test/")));
        m_page->hostField->selectAll();
        QTest::keyClick(m_page->hostField, Qt::Key_Delete);
        QCOMPARE(m_page->hostField->text(), QString());
        QCOMPARE(m_sites->siteWithoutHost(), std::optional(1));
        m_staging->defaults.setText(keys::InfositeHost5, QStringLiteral("five.test"));
        choose(2);
        QVERIFY(fields().constFirst().startsWith(QStringLiteral("http://five.test/")));
        QVERIFY(!m_sites->siteWithoutHost());
        choose(3);
        QVERIFY(!m_sites->siteWithoutHost());
    }

    void theResetTakesTheFirstSite()
    {
        m_staging->defaults.setText(keys::snapdownloadPath, QStringLiteral("http://mine.test/a"));
        choose(3);
        m_staging->defaults.revertToInitialValues();
        QCOMPARE(fields().constFirst(), QStringLiteral("http://one.test/mmedia/snap/{$gamename}"));
        QVERIFY(!m_page->snapdownTextField->isEnabled());
        QCOMPARE(m_sites->templateOf(0), fields().constFirst());
    }

    // The page comes later than the sites, where a picture was downloaded before.
    void theResetReachesAPageThatCameLater()
    {
        m_sites.reset();
        m_page.reset();
        m_staging->defaults.setIndex(keys::Snapdownsite, 3);
        m_sites = std::make_unique<SnapSites>(m_staging->defaults);
        m_page = std::make_unique<PicturesPage>(m_staging->defaults);
        m_sites->setPage(*m_page);
        m_staging->defaults.revertToInitialValues();
        QCOMPARE(fields().constFirst(), QStringLiteral("http://one.test/mmedia/snap/{$gamename}"));
        QVERIFY(!m_page->snapdownTextField->isEnabled());
    }

    void theSavedSiteServesWithoutAPage()
    {
        m_staging->defaults.setIndex(keys::Snapdownsite, 0);
        const SnapSites sites(m_staging->defaults);
        QCOMPARE(sites.templateOf(1), QStringLiteral("http://one.test/mmedia/titles/{$gamename}"));
    }

    void whatIsTypedStaysWhereItIsTyped()
    {
        choose(1);
        m_page->hostField->setCursorPosition(0);
        QTest::keyClicks(m_page->hostField, " x");
        QCOMPARE(m_page->hostField->text(), QStringLiteral(" xtwo.test"));
        QCOMPARE(m_page->hostField->cursorPosition(), 2);
        choose(3);
        m_page->flyersdownTextField->setText(QStringLiteral("//mine.test"));
        m_page->flyersdownTextField->setCursorPosition(0);
        QTest::keyClicks(m_page->flyersdownTextField, "http:");
        QCOMPARE(m_staging->defaults.text(keys::flyersdownloadPath), QStringLiteral("http://mine.test"));
        QCOMPARE(m_page->flyersdownTextField->cursorPosition(), 5);
    }

    // What is kept for other sites, or for none, is not touched.
    void nothingElseIsStoredWithAHost()
    {
        choose(2);
        QTest::keyClicks(m_page->hostField, "x");
        QVERIFY(!m_staging->defaults.stored().value(keys::SnapsiteHost3.name).has_value());
        QVERIFY(!m_staging->defaults.stored().value(keys::snapdownloadPath.name).has_value());
        QCOMPARE(m_staging->defaults.text(keys::SnapsiteHost2), QStringLiteral("two.test"));
    }

    void everySiteButTheUsersOwnHasAHost()
    {
        for (const int site : {0, 1, 2, 3}) {
            choose(site);
            QCOMPARE(m_page->hostField->isEnabled(), site < 3);
        }
        QCOMPARE(m_page->hostField->text(), QString());
    }

    void theSiteThatLacksAHostIsTold()
    {
        m_staging->defaults.setText(keys::SnapsiteHost1, QString());
        m_staging->defaults.setText(keys::SnapsiteHost2, QStringLiteral("  "));
        for (const int site : {0, 1, 2}) {
            choose(site);
            QCOMPARE(m_sites->siteWithoutHost(), std::optional(site + 1));
        }
        m_staging->defaults.setText(keys::SnapsiteHost3, QStringLiteral("three.test"));
        QVERIFY(!m_sites->siteWithoutHost());
    }

    void thereIsNoTemplateOfAnotherKind()
    {
        choose(0);
        QVERIFY(!m_sites->templateOf(0).isEmpty() && !m_sites->templateOf(2).isEmpty());
        for (const int kind : {-1, 3})
            QCOMPARE(m_sites->templateOf(kind), QString());
    }

    void whatChangesElsewhereIsShown()
    {
        choose(3);
        m_staging->defaults.setText(keys::titlessdownloadPath, QStringLiteral("http://mine.test/t"));
        QCOMPARE(fields(), (QStringList{"", "http://mine.test/t", ""}));
        choose(1);
        m_staging->defaults.setText(keys::SnapsiteHost2, QStringLiteral("new.test"));
        QCOMPARE(m_page->hostField->text(), QStringLiteral("new.test"));
        QCOMPARE(fields().constFirst(), QStringLiteral("http://new.test/snap/{$gamename}"));
    }

private:
    void choose(int position)
    {
        m_page->snapdownsitePop->setCurrentIndex(position);
        Q_EMIT m_page->snapdownsitePop->activated(position);
    }

    QStringList fields() const
    {
        QStringList texts;
        for (const QLineEdit* field : m_page->templateFields())
            texts << field->text();
        return texts;
    }

    std::unique_ptr<PictureStaging> m_staging;
    std::unique_ptr<PicturesPage> m_page;
    std::unique_ptr<SnapSites> m_sites;
};

TESSERA_TEST(SnapSitesTest);

#include "snapsitestest.moc"
