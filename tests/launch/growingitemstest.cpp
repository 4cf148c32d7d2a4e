#include "launch/growingitems.h"

#include "launch/storedoptions.h"
#include "launch/ui/growingpopup.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/videopage.h"
#include "platform/defaultscontroller.h"
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
    std::unique_ptr<LaunchPages> m_pages;

    // The next run of the program, with nothing but its settings file from this one.
    VideoPage& restart()
    {
        m_pages.reset();
        m_defaults.reset();
        m_settings = std::make_unique<UserDefaults>(m_folder->filePath("Tessera.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_settings);
        m_defaults->setInitialValues("Sans", "/home/me");
        m_pages = std::make_unique<LaunchPages>(*m_defaults, [] { return QString(); });
        return m_pages->video();
    }

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
        m_pages.reset();
        m_defaults.reset();
        m_settings.reset();
    }

    void offeredValuesStandBehindTheShippedOnes()
    {
        VideoPage& page = m_pages->video();
        page.moreVideoDrivers->offer({"none", "vulkan", "soft", "metal", "vulkan"});
        QCOMPARE(itemsOf(*page.devicevideoPop), shipped + QStringList({"vulkan", "metal"}));
        QCOMPARE(page.devicevideoPop->currentText(), QStringLiteral("opengl"));
        page.moreVideoDrivers->offer({"soft", "d3d"});
        QCOMPARE(itemsOf(*page.devicevideoPop), shipped + QStringList({"d3d"}));
        page.moreVideoDrivers->offer({});
        QCOMPARE(itemsOf(*page.devicevideoPop), shipped);
    }

    void whatIsOfferedIsNotStored()
    {
        m_pages->video().moreVideoDrivers->offer({"vulkan"});
        QVERIFY(!m_settings->value(keys::KeptVideoDrivers.name));
        choose(*m_pages->video().devicevideoPop, "accel");
        QVERIFY(!m_settings->value(keys::KeptVideoDrivers.name));
    }

    void wordsThatNoCommandLineCouldHoldAreNotOffered()
    {
        VideoPage& page = m_pages->video();
        page.moreVideoDrivers->offer({"", "-window", "two words", "\"quoted\"", "fine"});
        QCOMPARE(itemsOf(*page.devicevideoPop), shipped + QStringList({"fine"}));
    }

    void aChosenValueKeepsItsPositionWithEveryEmulator()
    {
        m_pages->video().moreVideoDrivers->offer({"vulkan", "metal"});
        choose(*m_pages->video().devicevideoPop, "metal");
        QCOMPARE(m_defaults->index(keys::Videodriver), 6);
        QCOMPARE(stored(), QStringLiteral("metal"));

        // Another emulator has others, or none at all.
        m_pages->video().moreVideoDrivers->offer({"d3d", "metal"});
        QCOMPARE(itemsOf(*m_pages->video().devicevideoPop),
                 shipped + QStringList({"vulkan", "metal", "d3d"}));
        QCOMPARE(m_pages->video().devicevideoPop->currentText(), QStringLiteral("metal"));

        VideoPage& next = restart();
        QCOMPARE(next.devicevideoPop->currentText(), QStringLiteral("metal"));
        QCOMPARE(stored(), QStringLiteral("metal"));
        next.moreVideoDrivers->offer({"d3d"});
        choose(*next.devicevideoPop, "d3d");
        QCOMPARE(m_defaults->index(keys::Videodriver), 7);
        choose(*next.devicevideoPop, "vulkan");
        QCOMPARE(restart().devicevideoPop->currentText(), QStringLiteral("vulkan"));
        QCOMPARE(m_defaults->index(keys::Videodriver), 5);
        QCOMPARE(itemsOf(*m_pages->video().devicevideoPop),
                 shipped + QStringList({"vulkan", "metal", "d3d"}));
    }

    void keptValuesOutlastTheReset()
    {
        m_pages->video().moreVideoDrivers->offer({"vulkan"});
        choose(*m_pages->video().devicevideoPop, "vulkan");
        m_defaults->revertToInitialValues();
        QCOMPARE(m_pages->video().devicevideoPop->currentText(), QStringLiteral("opengl"));
        m_defaults->setIndex(keys::Videodriver, 5);
        QCOMPARE(m_pages->video().devicevideoPop->currentText(), QStringLiteral("vulkan"));
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
