#include "launch/growingitems.h"

#include "launch/storedoptions.h"
#include "launch/ui/growingpopup.h"
#include "platform/defaultscontroller.h"
#include "support/launchpage.h"
#include "support/testmain.h"
#include "widgets/boundcontrols.h"

#include <QComboBox>
#include <QTemporaryDir>

#include <memory>

using namespace tessera;

namespace {

const QStringList shipped{"soft", "accel", "opengl", "bgfx", "none"};

QStringList itemsOf(const QComboBox& popup)
{
    QStringList items;
    for (int i = 0; i < popup.count(); ++i)
        items << popup.itemText(i);
    return items;
}

} // namespace

class GrowingItemsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_settings;
    std::unique_ptr<DefaultsController> m_defaults;
    std::unique_ptr<test::StagedPages> m_staged;

    // The next run of the program, with nothing but its settings file from this one.
    QComboBox* restart()
    {
        m_staged.reset();
        m_defaults.reset();
        m_settings = std::make_unique<UserDefaults>(m_folder->filePath("Tessera.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_settings);
        m_defaults->setInitialValues("Sans", "/home/me");
        m_staged = std::make_unique<test::StagedPages>(*m_defaults);
        return driver();
    }
    QComboBox* driver() const { return test::control<QComboBox>(m_staged->pages, "devicevideoPop"); }
    // What an emulator takes besides.
    void offer(const QStringList& titles) { driver()->findChild<GrowingPopup*>()->offer(titles); }

    void choose(QComboBox& popup, const QString& title)
    {
        const int index = popup.findText(title);
        QVERIFY(index >= 0);
        popup.setCurrentIndex(index);
        Q_EMIT popup.activated(index);
    }

    QString stored() const { return storedOptions(*m_defaults, {}).devicevideoPop.title; }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        restart();
    }
    void cleanup()
    {
        m_staged.reset();
        m_defaults.reset();
        m_settings.reset();
    }

    void offeredValuesStandBehindTheShippedOnes()
    {
        offer({"none", "vulkan", "soft", "metal", "vulkan"});
        QCOMPARE(itemsOf(*driver()), shipped + QStringList({"vulkan", "metal"}));
        QCOMPARE(driver()->currentText(), QStringLiteral("opengl"));
        offer({"soft", "d3d"});
        QCOMPARE(itemsOf(*driver()), shipped + QStringList({"d3d"}));
        offer({});
        QCOMPARE(itemsOf(*driver()), shipped);
    }

    void whatIsOfferedIsNotStored()
    {
        offer({"vulkan"});
        QVERIFY(!m_settings->value(keys::KeptVideoDrivers.name));
        choose(*driver(), "accel");
        QVERIFY(!m_settings->value(keys::KeptVideoDrivers.name));
    }

    void wordsThatNoCommandLineCouldHoldAreNotOffered()
    {
        offer({"", "-window", "two words", "\"quoted\"", "fine"});
        QCOMPARE(itemsOf(*driver()), shipped + QStringList({"fine"}));
    }

    void aChosenValueKeepsItsPositionWithEveryEmulator()
    {
        offer({"vulkan", "metal"});
        choose(*driver(), "metal");
        QCOMPARE(m_defaults->index(keys::Videodriver), 6);
        QCOMPARE(stored(), QStringLiteral("metal"));

        // Another emulator has others, or none at all.
        offer({"d3d", "metal"});
        QCOMPARE(itemsOf(*driver()), shipped + QStringList({"vulkan", "metal", "d3d"}));
        QCOMPARE(driver()->currentText(), QStringLiteral("metal"));

        restart();
        QCOMPARE(driver()->currentText(), QStringLiteral("metal"));
        QCOMPARE(stored(), QStringLiteral("metal"));
        offer({"d3d"});
        choose(*driver(), "d3d");
        QCOMPARE(m_defaults->index(keys::Videodriver), 7);
        choose(*driver(), "vulkan");
        QCOMPARE(restart()->currentText(), QStringLiteral("vulkan"));
        QCOMPARE(m_defaults->index(keys::Videodriver), 5);
        QCOMPARE(itemsOf(*driver()), shipped + QStringList({"vulkan", "metal", "d3d"}));
    }

    void keptValuesOutlastTheReset()
    {
        offer({"vulkan"});
        choose(*driver(), "vulkan");
        m_defaults->revertToInitialValues();
        QCOMPARE(driver()->currentText(), QStringLiteral("opengl"));
        m_defaults->setIndex(keys::Videodriver, 5);
        QCOMPARE(driver()->currentText(), QStringLiteral("vulkan"));
    }

    void aPositionBehindEverythingIsNone()
    {
        m_defaults->setIndex(keys::Videodriver, 5);
        const PopupState none = storedState(*m_defaults, keys::Videodriver, growingVideoDrivers);
        QCOMPARE(none.index, -1);
        QCOMPARE(none.title, QString());
        keepTitles(*m_defaults, growingVideoDrivers, {"vulkan", "soft"});
        QCOMPARE(keptTitles(*m_defaults, growingVideoDrivers), QStringList{"vulkan"});
        QCOMPARE(stored(), QStringLiteral("vulkan"));
    }
};

TESSERA_TEST(GrowingItemsTest);
#include "growingitemstest.moc"
