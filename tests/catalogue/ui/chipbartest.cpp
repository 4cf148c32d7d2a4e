#include "catalogue/ui/chipbar.h"
#include "support/installedtexts.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>

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

    void nothingOverlapsAtAnyWidth_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<std::size_t>("count");
        for (const char* language : {"en", "ja"}) {
            QTest::addRow("%s, small counts", language) << language << std::size_t(0);
            QTest::addRow("%s, a whole catalogue", language) << language << std::size_t(45'294);
            QTest::addRow("%s, a huge one", language) << language << std::size_t(88'888'888);
        }
    }
    void nothingOverlapsAtAnyWidth()
    {
        QFETCH(QString, language);
        QFETCH(std::size_t, count);
        const test::InstalledTexts texts(language);
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        m_bar = std::make_unique<ChipBar>();
        layout->addWidget(m_bar.get());
        layout->addWidget(new QWidget, 1);
        ChipCounts counts;
        counts.fill(count);
        m_bar->setCounts(counts);
        window.show();
        int most = 0;
        for (int width = std::max(272, m_bar->minimumSizeHint().width()); width < 1700; width += 13) {
            window.resize(width, 400);
            QVERIFY2(standApart(), qPrintable(QString::number(width)));
            most = std::max(most, m_bar->height());
        }
        // In the end there is one row again, which says all counts.
        QVERIFY(m_bar->height() < most);
        for (const ChipRow& row : chips)
            QVERIFY(button(row.chip)->width() >= button(row.chip)->sizeHint().width());
        m_bar->setParent(nullptr);
    }

    void aChipWithoutRoomForMoreShowsItsWholeLabel()
    {
        for (const QString& label :
             {QStringLiteral("BIOS"), QStringLiteral("Favourites"), QStringLiteral("親")}) {
            ChipButton chip(label);
            QFont font = chip.font();
            // Widths that are parts of a pixel are among these.
            for (int size = 10; size < 24; ++size) {
                font.setPixelSize(size);
                chip.setFont(font);
                const QSize least = chip.minimumSizeHint();
                const auto labelAt = [&](int width) {
                    chip.resize(width, least.height());
                    // Without the round end, which stands elsewhere.
                    return chip.grab(QRect(0, 0, least.width() - least.height() / 2, least.height()))
                        .toImage();
                };
                QVERIFY2(labelAt(least.width()) == labelAt(least.width() + 100), qPrintable(label));
            }
        }
    }

    void aCountThatFindsNoRoomIsOnlyTold()
    {
        m_bar->setCounts({45294, 2, 3, 4, 5, 0});
        QAbstractButton* chip = button(Chip::All);
        QCOMPARE(chip->toolTip(), chip->accessibleName());
        chip->resize(chip->minimumSizeHint());
        const QImage withCount = drawn(*chip);
        ChipButton plain(chip->text());
        plain.setChecked(true);
        plain.resize(chip->size());
        QCOMPARE(withCount, drawn(plain));
        chip->resize(chip->sizeHint());
        plain.resize(chip->size());
        QVERIFY(drawn(*chip) != drawn(plain));
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
    // What it draws itself, without what is behind it.
    static QImage drawn(QWidget& widget)
    {
        QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

    // Each within the bar, clear of the others, and with room for what it says.
    bool standApart() const
    {
        QRegion taken;
        std::vector<QWidget*> all{m_bar->familiesBox};
        for (const ChipRow& row : chips)
            all.push_back(button(row.chip));
        for (const QWidget* each : all) {
            if (!m_bar->rect().contains(each->geometry()) || taken.intersects(each->geometry())
                || each->width() < each->minimumSizeHint().width())
                return false;
            taken += each->geometry();
        }
        return true;
    }

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
