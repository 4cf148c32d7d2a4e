#include "core/sitehost.h"

#include "support/testmain.h"

using namespace tessera;

class SiteHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QFETCH(QString, host);
        const SettingReader settingOf = [&](const ChosenKey& key) {
            return &key == &keys::InfositeHost5 ? now : &key == &keys::SnapsiteHost3 ? former : QString("no");
        };
        QCOMPARE(hostText(secondSharedHost, settingOf), host);
    }

    void aSiteOfItsOwnHasNoFormerSetting()
    {
        const SettingReader nothing = [](const ChosenKey&) { return QStringLiteral(" "); };
        QCOMPARE(hostText(SiteHost{&keys::InfositeHost2}, nothing), QString());
    }

    void bothKindsOfSitesHaveHosts()
    {
        QVERIFY(isHostSetting("InfositeHost3"));
        QVERIFY(isHostSetting("SnapsiteHost2"));
        QVERIFY(!isHostSetting("Rominfosite"));
        QVERIFY(!isHostSetting("MyInfositeHost3"));
        QVERIFY(!isHostSetting(QString()));
    }
};

TESSERA_TEST(SiteHostTest);
#include "sitehosttest.moc"
