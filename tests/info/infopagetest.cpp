#include "info/ui/infopage.h"

#include "core/settingskeys.h"
#include "platform/defaultscontroller.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "support/words.h"

#include <QPushButton>
#include <QTemporaryDir>

using namespace tessera;

/// The preferences' page of information sites by itself.
class InfoPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_stored = std::make_unique<UserDefaults>(m_folder->filePath("settings.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_stored);
        m_defaults->setInitialValues(QString(), QString());
    }

    void itSaysWhatEverythingIsFor()
    {
        const test::InstalledTexts texts("en");
        const InfoPage page(*m_defaults);
        QCOMPARE(test::wordsOf(page),
                 (QStringList{
                     ": Information sites",
                     QString::fromUtf8(
                         ": Web pages about a game, opened in your browser by Game › Information Page."),
                     ": &Site / for infositePop",
                     "infositePop: Information site 1 / Information site 2 / Information site 3 / "
                     "Information site 4 / "
                     "Information site 5 / Information site 6 / Information site 7 / Information site 1 / "
                     "Other site / "
                     "named Site",
                     ": &Host / for hostField",
                     "hostField: named Host",
                     ": &Page / for rominfoTextField",
                     "rominfoTextField: named Page",
                     (": {$gamename} stands for the set name. Sites come and go, so each needs its host "
                      "here before it can be asked."),
                     ": &Address",
                     ": named Address",
                     "urlTextField: named Address",
                     "openURLButton: &Open",
                 }));
    }

    void theChosenSiteIsKept()
    {
        m_defaults->setIndex(keys::Rominfosite, 3);
        InfoPage page(*m_defaults);
        QCOMPARE(page.infositePop->currentIndex(), 3);
        page.infositePop->setFocus();
        QTest::keyClick(page.infositePop, Qt::Key_Down);
        QCOMPARE(m_defaults->index(keys::Rominfosite), 4);
        m_defaults->setIndex(keys::Rominfosite, 9);
        QCOMPARE(page.infositePop->currentText(), QStringLiteral("Other site"));
    }

    void theTypedAddressIsKept()
    {
        InfoPage page(*m_defaults);
        QCOMPARE(page.urlTextField->text(), QStringLiteral("https://www.mamedev.org/"));
        page.urlTextField->clear();
        QTest::keyClicks(page.urlTextField, "https://a.test/");
        QCOMPARE(m_stored->string(keys::VisitedURLPath.name), QStringLiteral("https://a.test/"));
    }

    void theAddressRowIsReachedByItsLabel()
    {
        InfoPage page(*m_defaults);
        QVERIFY(page.urlTextField->parentWidget() != &page);
        QCOMPARE(page.urlTextField->parentWidget()->focusProxy(), page.urlTextField);
        // Return in the field is the field's.
        QVERIFY(!page.openButton->autoDefault());
    }

    void itsRowsStandAtTheTopInTwoParts()
    {
        InfoPage page(*m_defaults);
        page.resize(700, 2000);
        page.show();
        QVERIFY(page.urlTextField->mapTo(&page, QPoint()).y() < 700);
        QList<const QFrame*> lines;
        for (const QFrame* each : page.findChildren<QFrame*>()) {
            if (each->property("role").toString() == QStringLiteral("line"))
                lines << each;
        }
        QCOMPARE(lines.size(), 1);
        const int between = lines.constFirst()->y();
        QVERIFY(between > page.rominfoTextField->y());
        QVERIFY(between < page.urlTextField->mapTo(&page, QPoint()).y());
    }

    void theButtonStandsBehindItsAddress()
    {
        InfoPage page(*m_defaults);
        page.show();
        QVERIFY(page.openButton->x() >= page.urlTextField->geometry().right());
        QVERIFY(page.urlTextField->width() > page.openButton->width());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_stored;
    std::unique_ptr<DefaultsController> m_defaults;
};

TESSERA_TEST(InfoPageTest);
#include "infopagetest.moc"
