#include "app/windows/helpwindow.h"
#include "stagedapp.h"

#include "app/windows/mainwindow.h"
#include "catalogue/search/searchkeys.h"
#include "support/testmain.h"

#include <QAction>
#include <QComboBox>
#include <QMenuBar>
#include <QTabWidget>
#include <QTextBrowser>

using namespace tessera;
using test::StagedApp;

class HelpWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        m_staged->start();
    }

    void cleanup() { m_staged.reset(); }

    void theCommandShowsAndHidesIt()
    {
        m_staged->app->showHelpWindow();
        QVERIFY(help().isVisible());
        m_staged->app->showHelpWindow();
        QVERIFY(!help().isVisible());
    }

    void eachSubjectHasItsPage()
    {
        QCOMPARE(help().helpPopmenu->currentIndex(), 0);
        QStringList texts;
        for (int i = 0; i < help().helpPopmenu->count(); ++i) {
            help().helpPopmenu->setCurrentIndex(i);
            Q_EMIT help().helpPopmenu->activated(i);
            const QString text = page("helpGuide").toPlainText();
            QVERIFY(text.startsWith(help().helpPopmenu->currentText()));
            QVERIFY(!texts.contains(text));
            texts << text;
        }
        QCOMPARE(texts.size(), 6);
    }

    void subjectAndTabAreAsTheyWereLeft()
    {
        help().helpPopmenu->setCurrentIndex(2);
        Q_EMIT help().helpPopmenu->activated(2);
        help().helpTabview->setCurrentIndex(1);
        m_staged->app.reset();
        m_staged->start();
        QCOMPARE(help().helpPopmenu->currentIndex(), 2);
        QCOMPARE(help().helpTabview->currentIndex(), 1);
        QVERIFY(page("helpGuide").toPlainText().startsWith(help().helpPopmenu->currentText()));
    }

    void aStoredSubjectThatIsNotThereShowsTheFirst()
    {
        m_staged->defaults.setValue(keys::helpPopmenu.name, 99);
        QVERIFY(page("helpGuide").toPlainText().startsWith(help().helpPopmenu->itemText(0)));
    }

    void everySearchKeyIsExplained()
    {
        const QString terms = page("helpTerms").toPlainText();
        for (const SearchKey& key : searchKeys)
            QVERIFY2(terms.contains(QLatin1String(key.name.data(), static_cast<qsizetype>(key.name.size()))
                                    + u':'),
                     key.name.data());
    }

    void everyKeyOfTheMenusIsListed()
    {
        const QString keys = page("helpKeys").toPlainText();
        int listed = 0;
        for (const QAction* action : m_staged->app->mainWindow().menuBar()->findChildren<QAction*>()) {
            if (action->shortcut().isEmpty())
                continue;
            ++listed;
            QVERIFY2(keys.contains(action->shortcut().toString(QKeySequence::NativeText)),
                     qPrintable(action->text()));
        }
        QVERIFY(listed > 20);
    }

private:
    HelpWindow& help() const { return m_staged->app->helpWindow(); }
    QTextBrowser& page(const char* name) const
    {
        return *help().findChild<QTextBrowser*>(QLatin1String(name));
    }

    std::unique_ptr<StagedApp> m_staged;
};

TESSERA_TEST(HelpWindowTest);
#include "helpwindowtest.moc"
