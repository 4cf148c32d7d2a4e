#include "platform/websites.h"

#include "support/settings.h"
#include "support/testmain.h"

using namespace tessera;

namespace {

constexpr std::array sites{WebSite{7, secondSharedHost, {"a", nullptr, "c"}},
                           WebSite{9, {&keys::InfositeHost2}, {"d", "e", "f"}}};
constexpr std::array own{keys::snapdownloadPath, keys::titlessdownloadPath};
constexpr SiteTable table{&keys::Snapdownsite, sites, 3, own, 2};

} // namespace

class WebSitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_settings = std::make_unique<test::Settings>(); }

    void theFormerSettingServesWhereTheOtherIsEmpty_data()
    {
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("former");
        QTest::addColumn<QString>("host");
        QTest::newRow("none") << QString() << QString() << QString();
        QTest::newRow("now") << QStringLiteral(" now.test ") << QStringLiteral("old.test")
                             << QStringLiteral("now.test");
        QTest::newRow("former") << QStringLiteral("  ") << QStringLiteral(" old.test\t")
                                << QStringLiteral("old.test");
    }
    void theFormerSettingServesWhereTheOtherIsEmpty()
    {
        QFETCH(QString, now);
        QFETCH(QString, former);
        set(keys::InfositeHost5, now);
        set(keys::SnapsiteHost3, former);
        QTEST(hostText(secondSharedHost, m_settings->defaults), "host");
    }

    void aSiteOfItsOwnHasNoFormerSetting()
    {
        set(keys::InfositeHost2, QStringLiteral(" "));
        set(keys::SnapsiteHost2, QStringLiteral("old.test"));
        QCOMPARE(hostText({&keys::InfositeHost2}, m_settings->defaults), QString());
    }

    void thereAreTemplatesForEachKindOfTheUsersOwn()
    {
        set(keys::InfositeHost5, QStringLiteral("x.test"));
        set(keys::snapdownloadPath, QStringLiteral("mine"));
        QCOMPARE(templatesAt(table, 0, m_settings->defaults), (QStringList{"http://x.test/a", ""}));
        QCOMPARE(templatesAt(table, 3, m_settings->defaults), (QStringList{"mine", ""}));
    }

    void aPositionWithoutASiteEmptiesTheTemplatesOrKeepsThem()
    {
        SiteTable keeping = table;
        keeping.kept.reset();
        for (const int position : {-1, 2, 4})
            QVERIFY(!templatesAt(keeping, position, m_settings->defaults));
        QVERIFY(!templatesAt(table, 2, m_settings->defaults));
        for (const int position : {-1, 4})
            QCOMPARE(templatesAt(table, position, m_settings->defaults), (QStringList{"", ""}));
    }

    void aSiteWithoutAHostIsNamedByItsNumber()
    {
        set(keys::InfositeHost2, QStringLiteral("y.test"));
        QCOMPARE(siteWithoutHost(table, 0, m_settings->defaults), std::optional(7));
        for (const int position : {-1, 1, 2, 3})
            QVERIFY(!siteWithoutHost(table, position, m_settings->defaults));
    }

private:
    void set(const ChosenKey& key, const QString& text) { m_settings->defaults.setText(key, text); }

    std::unique_ptr<test::Settings> m_settings;
};

TESSERA_TEST(WebSitesTest);
#include "websitestest.moc"
