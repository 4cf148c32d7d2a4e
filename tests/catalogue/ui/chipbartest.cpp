#include "catalogue/ui/chipbar.h"
#include "support/testmain.h"

#include <QLabel>
#include <QSignalSpy>

using namespace tessera;

class ChipBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bar = std::make_unique<ChipBar>();
        m_bar->show();
    }

    void cleanup() { m_bar.reset(); }

    void everyChipHasAButtonThatSaysItsCount()
    {
        m_bar->setCounts({45294, 2, 3, 4, 5, 0});
        for (const ChipRow& row : chips) {
            QVERIFY2(button(row.chip) != nullptr, row.label);
            QCOMPARE(button(row.chip)->text(), QString::fromUtf8(row.label));
        }
        QCOMPARE(button(Chip::All)->accessibleName(), QStringLiteral("chip_all 45,294"));
        QCOMPARE(button(Chip::Bios)->accessibleName(), QStringLiteral("chip_bios 0"));
    }

    void aChipGrowsWithItsCount()
    {
        m_bar->setCounts({1, 0, 0, 0, 0, 0});
        const int narrow = button(Chip::All)->sizeHint().width();
        m_bar->setCounts({100000, 0, 0, 0, 0, 0});
        QVERIFY(button(Chip::All)->sizeHint().width() > narrow);
    }

    void aClickChooses()
    {
        QSignalSpy chosen(m_bar.get(), &ChipBar::chosen);
        QTest::mouseClick(button(Chip::Working), Qt::LeftButton);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.constFirst().constFirst().value<Chip>(), Chip::Working);
        QVERIFY(button(Chip::Working)->isChecked());
        QVERIFY(!button(Chip::All)->isChecked());
    }

    void theKeyboardChoosesToo()
    {
        QSignalSpy chosen(m_bar.get(), &ChipBar::chosen);
        QVERIFY(button(Chip::Parents)->focusPolicy() & Qt::TabFocus);
        QTest::keyClick(button(Chip::Parents), Qt::Key_Space);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.constFirst().constFirst().value<Chip>(), Chip::Parents);
    }

    void settingAChipTellsNobody()
    {
        QSignalSpy chosen(m_bar.get(), &ChipBar::chosen);
        m_bar->setChip(Chip::Games);
        QVERIFY(button(Chip::Games)->isChecked());
        QCOMPARE(chosen.count(), 0);
    }

    void aComplaintHasALineOfItsOwn()
    {
        auto* complaint = m_bar->findChild<QLabel*>(QStringLiteral("complaintLabel"));
        QVERIFY(!complaint->isVisible());
        m_bar->complain(QStringLiteral("<b>no</b> such term"));
        QVERIFY(complaint->isVisible());
        QCOMPARE(complaint->text(), QStringLiteral("<b>no</b> such term"));
        QCOMPARE(complaint->textFormat(), Qt::PlainText);
        m_bar->complain(QString());
        QVERIFY(!complaint->isVisible());
    }

    void aLongComplaintDoesNotWidenTheWindow()
    {
        const int width = m_bar->minimumSizeHint().width();
        m_bar->complain(QString(2000, u'x'));
        QVERIFY(m_bar->minimumSizeHint().width() <= width);
    }

private:
    QAbstractButton* button(Chip chip) const
    {
        for (const ChipRow& row : chips) {
            if (row.chip == chip)
                return m_bar->findChild<QAbstractButton*>(
                    QString(QStringLiteral("chip_")
                            + QString::fromUtf8(row.name.data(), qsizetype(row.name.size()))));
        }
        return nullptr;
    }

    std::unique_ptr<ChipBar> m_bar;
};

TESSERA_TEST(ChipBarTest);
#include "chipbartest.moc"
