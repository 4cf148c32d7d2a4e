#include "widgets/boundcontrols.h"

#include "support/testmain.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTemporaryDir>

using namespace tessera;

class BoundControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_defaults = std::make_unique<UserDefaults>(m_folder->filePath(QStringLiteral("settings.ini")));
        m_controller = std::make_unique<DefaultsController>(*m_defaults);
        m_controller->setInitialValues(QString(), QString());
    }

    void showingAnInitialValueStoresNothing()
    {
        QCheckBox box;
        QComboBox popup;
        popup.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        QLineEdit field;
        bind(box, *m_controller, keys::Keepaspect);
        bind(popup, *m_controller, keys::Videodriver);
        bind(field, *m_controller, keys::Displaybeam);
        QVERIFY(box.isChecked());
        QCOMPARE(popup.currentIndex(), 2);
        QCOMPARE(field.text(), QStringLiteral("1"));
        QVERIFY(!m_defaults->value(keys::Keepaspect.name));
        QVERIFY(!m_defaults->value(keys::Videodriver.name));
        QVERIFY(!m_defaults->value(keys::Displaybeam.name));
    }

    void aClickIsStoredAtOnce()
    {
        QCheckBox box;
        bind(box, *m_controller, keys::Keepaspect);
        box.click();
        QCOMPARE(m_defaults->value(keys::Keepaspect.name), QVariant(false));
    }

    void aChosenFlagIsStored()
    {
        QCheckBox box;
        bind(box, *m_controller, keys::GamelistColoring);
        QVERIFY(!box.isChecked());
        box.click();
        QCOMPARE(m_defaults->flag(keys::GamelistColoring.name), true);
        box.click();
        QCOMPARE(m_defaults->flag(keys::GamelistColoring.name), false);
    }

    void choosingInAPopupIsStored()
    {
        QComboBox popup;
        popup.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        bind(popup, *m_controller, keys::Videodriver);
        QTest::keyClick(&popup, Qt::Key_Up);
        QCOMPARE(m_controller->index(keys::Videodriver), 1);
    }

    void aStoredPositionThatThePopupLacksSelectsNothing()
    {
        m_controller->setIndex(keys::Videodriver, 9);
        QComboBox popup;
        popup.addItems({QStringLiteral("a"), QStringLiteral("b")});
        bind(popup, *m_controller, keys::Videodriver);
        QCOMPARE(popup.currentIndex(), -1);
        QCOMPARE(m_controller->index(keys::Videodriver), 9);
    }

    void typingIsStoredAtOnceAndKeepsTheCursor()
    {
        QLineEdit field;
        bind(field, *m_controller, keys::Effectname);
        field.setFocus();
        field.clear();
        QTest::keyClicks(&field, QStringLiteral("scan"));
        QTest::keyClick(&field, Qt::Key_Left);
        QTest::keyClicks(&field, QStringLiteral("X"));
        QCOMPARE(m_controller->text(keys::Effectname), QStringLiteral("scaXn"));
        QCOMPARE(field.cursorPosition(), 4);
    }

    void aRowThatNoButtonHasChecksNone()
    {
        QRadioButton first;
        QButtonGroup group;
        group.addButton(&first, 0);
        bind(group, *m_controller, keys::Moviematrix);
        QVERIFY(first.isChecked());
        m_controller->setIndex(keys::Moviematrix, 5);
        QCOMPARE(group.checkedId(), -1);
        m_controller->setIndex(keys::Moviematrix, 0);
        QVERIFY(first.isChecked());
    }

    void controlsFollowAReset()
    {
        QCheckBox box;
        QLineEdit field;
        QRadioButton first;
        QRadioButton second;
        QButtonGroup group;
        group.addButton(&first, 0);
        group.addButton(&second, 1);
        bind(box, *m_controller, keys::Maximize);
        bind(field, *m_controller, keys::Wavfilename);
        bind(group, *m_controller, keys::Moviematrix);
        box.click();
        second.click();
        field.setText(QString());
        QTest::keyClicks(&field, QStringLiteral("x.wav"));
        QCOMPARE(m_controller->index(keys::Moviematrix), 1);
        m_controller->revertToInitialValues();
        QVERIFY(!box.isChecked());
        QVERIFY(first.isChecked());
        QCOMPARE(field.text(), QStringLiteral("Sound_record.wav"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<DefaultsController> m_controller;
};

TESSERA_TEST(BoundControlsTest);
#include "boundcontrolstest.moc"
