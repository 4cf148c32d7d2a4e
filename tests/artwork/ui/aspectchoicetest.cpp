#include "artwork/ui/aspectchoice.h"

#include "staging.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QMenu>

using namespace tessera;
using test::PictureStaging;

class AspectChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staging = std::make_unique<PictureStaging>();
        m_popup = std::make_unique<QComboBox>();
        m_menu = std::make_unique<QMenu>();
        m_choice = std::make_unique<AspectChoice>(m_staging->defaults);
        m_choice->setPopup(*m_popup);
        m_choice->fillMenu(*m_menu);
    }

    void positionsAreThoseOfTheTable()
    {
        QCOMPARE(m_popup->count(), 9);
        QStringList titles;
        for (int i = 0; i < m_popup->count(); ++i)
            titles << m_popup->itemText(i);
        QCOMPARE(titles,
                 (QStringList{"aspect_own", "", "aspect_1_1", "aspect_4_3", "aspect_16_9", "", "aspect_6_4",
                              "aspect_8_3", "aspect_12_3"}));
        QStringList items;
        for (const QAction* item : m_menu->actions()) {
            items << item->text();
            QCOMPARE(item->isCheckable(), !item->isSeparator());
        }
        QCOMPARE(items, titles);
        QVERIFY(m_menu->actions().at(1)->isSeparator() && m_menu->actions().at(5)->isSeparator());
    }

    void thePopUpMovesTheMenusCheck()
    {
        m_popup->setCurrentIndex(4);
        Q_EMIT m_popup->activated(4);
        QCOMPARE(m_choice->selectMenuitem()->text(), QStringLiteral("aspect_16_9"));
        QCOMPARE(checked(), QStringList{"aspect_16_9"});
        QCOMPARE(m_staging->defaults.index(keys::AspectRatio), 4);
    }

    void theMenuMovesThePopUp()
    {
        m_menu->actions().at(7)->trigger();
        QCOMPARE(m_popup->currentIndex(), 7);
        QCOMPARE(checked(), QStringList{"aspect_8_3"});
        QCOMPARE(m_staging->defaults.number(keys::AspectRatio), 7.0);
    }

    void aChoiceIsWrittenAtOnce()
    {
        m_popup->setCurrentIndex(4);
        Q_EMIT m_popup->activated(4);
        const UserDefaults file(m_staging->path("settings.ini"));
        QCOMPARE(file.value(keys::AspectRatio.name)->toDouble(), 4.0);
    }

    void theStoredRatioIsCheckedAtTheStart()
    {
        m_staging->defaults.setIndex(keys::AspectRatio, 3);
        m_choice->snapviewAction();
        QCOMPARE(checked(), QStringList{"aspect_4_3"});
    }

    void aPositionWithoutATitleChecksNothing()
    {
        m_staging->defaults.setIndex(keys::AspectRatio, 3);
        m_choice->snapviewAction();
        m_staging->defaults.setIndex(keys::AspectRatio, 1);
        m_choice->snapviewAction();
        QVERIFY(checked().isEmpty());
    }

    void everyPopUpFollows()
    {
        QComboBox other;
        m_choice->addPopup(other);
        m_menu->actions().at(2)->trigger();
        QCOMPARE(other.currentIndex(), 2);
        other.setCurrentIndex(3);
        Q_EMIT other.activated(3);
        QCOMPARE(m_popup->currentIndex(), 3);
        QCOMPARE(checked(), QStringList{"aspect_4_3"});
    }

private:
    QStringList checked() const
    {
        QStringList titles;
        for (const QAction* item : m_menu->actions()) {
            if (item->isChecked())
                titles << item->text();
        }
        return titles;
    }

    std::unique_ptr<PictureStaging> m_staging;
    std::unique_ptr<QComboBox> m_popup;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<AspectChoice> m_choice;
};

TESSERA_TEST(AspectChoiceTest);

#include "aspectchoicetest.moc"
