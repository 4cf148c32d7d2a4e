#include "biosroom.h"

#include "support/needed.h"
#include "support/testmain.h"

#include <QFileInfo>
#include <QPushButton>

using namespace tessera;

/// The panel and the installed emulator.
class RealBiosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whateverTheEmulatorKnowsCanBeSet()
    {
        const QString mame = QStringLiteral("/usr/games/mame");
        TESSERA_NEEDS(QFileInfo::exists(mame), "MAME");
        test::BiosRoom room;
        room.setEmulator(mame);
        room.panel->show();
        QVERIFY(QTest::qWaitForWindowActive(room.panel.get()));
        const int shipped = keptTitles(room.defaults, growingBiosSets).size();
        QSignalSpy asked(room.list.get(), &Bioslist::asked);
        QTest::mouseClick(room.panel->rebuildButton, Qt::LeftButton);
        QVERIFY(asked.wait(120'000));
        QVERIFY(keptTitles(room.defaults, growingBiosSets).size() > shipped + 100);
        m_rows = 0;
        setEachBeneath(room, {});
        QVERIFY(m_rows > 250);
    }

private:
    void setEachBeneath(test::BiosRoom& room, const QModelIndex& parent)
    {
        for (int row = 0; row < room.model().rowCount(parent); ++row) {
            const QModelIndex index = room.model().index(row, 0, parent);
            const QString bios = room.model().entry(index)->bios;
            room.select(index);
            QTest::keyClick(&room.view(), Qt::Key_Return);
            if (bios != defaultBios) {
                QCOMPARE(storedState(room.defaults, keys::Biostype, growingBiosSets).title, bios);
                QCOMPARE(room.popup.text(), bios);
                ++m_rows;
            }
            setEachBeneath(room, index);
        }
    }

    int m_rows = 0;
};

TESSERA_TEST(RealBiosTest);
#include "realbiostest.moc"
