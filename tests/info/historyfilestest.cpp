#include "info/historystaging.h"

#include "info/ui/historywindow.h"
#include "widgets/logview.h"
#include "platform/defaultscontroller.h"
#include "support/installedtexts.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

using namespace tessera;

namespace {

QByteArray historyOf(const char* name, const char* text)
{
    return QByteArray("$info=") + name + "\r\n$bio\r\n" + text + "\r\n$end\r\n";
}

} // namespace

/// When the history window's files are read, and what happens meanwhile.
class HistoryFilesTest : public test::HistoryStaging
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        stage();
        write("history.dat", historyOf("pong", "Bats.") + historyOf("qix", "Lines."));
        write("mameinfo.dat", "$info=pong\r\n$mame\r\n0.36b1\r\n$end\r\n");
    }

    void cleanup() { clear(); }

    void aFileThatChangedIsReadAnewWhenItIsAskedFor()
    {
        start();
        m_object->searchHistoryInfo("pong");
        QVERIFY(m_object->mstr_Mameinfo().contains("Bats."));
        write("history.dat", historyOf("pong", "Two bats."));
        m_object->set_histryString();
        QVERIFY(m_object->isLoading());
        m_object->searchHistoryInfo("pong");
        QTRY_VERIFY(!m_object->isLoading());
        QVERIFY(m_object->mstr_Mameinfo().contains("Two bats."));
        write("mameinfo.dat", "$info=pong\r\n$mame\r\n0.37b2\r\n$end\r\n");
        m_object->set_infoString();
        QVERIFY(m_object->isLoading());
        m_object->searchHistoryInfo("pong");
        QTRY_VERIFY(!m_object->isLoading());
        QVERIFY(m_object->mstr_Mameinfo().contains("0.37b2"));
    }

    // The first one is read by the time the second one is.
    void theFileThatWasChosenLastIsTheOneThatCounts()
    {
        start();
        write("large.dat", historyOf("pong", "Last.") + QByteArray(5'000'000, 'x'));
        m_object->set_histryString();
        m_defaults->setText(keys::HistoryPath, m_folder->filePath("large.dat"));
        m_object->searchHistoryInfo("pong");
        QTRY_VERIFY(!m_object->isLoading());
        QVERIFY2(m_object->mstr_Mameinfo().contains("Last."), qPrintable(m_object->mstr_Mameinfo()));
    }

    void aSearchWaitsForBothFiles()
    {
        setPaths();
        write("mameinfo.dat", "$info=pong\r\n$mame\r\n0.36b1\r\n$end\r\n" + QByteArray(5'000'000, 'x'));
        make();
        m_object->awakeFromNib();
        m_object->searchHistoryInfo("pong");
        QTRY_VERIFY(!m_object->mstr_Mameinfo().isEmpty());
        QVERIFY(m_object->str_hist() != nullptr && m_object->str_info() != nullptr);
        QCOMPARE(m_object->mstr_Mameinfo(),
                 QStringLiteral("MAME History\r\n\r\nBats.\r\nMAME Info\r\n\r\n0.36b1\r\n"));
    }

    void anEmptyNameTakesBackWhatWaits()
    {
        setPaths();
        make();
        m_object->awakeFromNib();
        m_object->searchHistoryInfo("pong");
        m_object->searchHistoryInfo(QString());
        QTRY_VERIFY(!m_object->isLoading());
        QCOMPARE(m_window->historyinfoTextView->text(), QStringLiteral("No result."));
        QVERIFY(m_desktop->transcript().isEmpty());
    }

    void whileTheyAreReadTheWindowSaysSo()
    {
        setPaths();
        make();
        QCOMPARE(m_window->historyinfoTextView->placeholderText(), QString());
        m_object->awakeFromNib();
        QCOMPARE(m_window->historyinfoTextView->placeholderText(), QStringLiteral("history_loading"));
        QTRY_VERIFY(!m_object->isLoading());
        QCOMPARE(m_window->historyinfoTextView->placeholderText(), QString());
    }

    void aStartBeginsWithAnEmptyText()
    {
        make();
        m_object->awakeFromNib();
        const QString missing = m_object->mstr_Mameinfo();
        m_object->awakeFromNib();
        QCOMPARE(m_object->mstr_Mameinfo(), missing);
    }

    void whyAFileIsAbsentIsInTheLog()
    {
        const test::InstalledTexts texts("en");
        write("broken.xml", "<history><entry>");
        m_defaults->setText(keys::HistoryPath, m_folder->filePath("broken.xml"));
        m_defaults->setText(keys::MameinfoPath, m_folder->path());
        make();
        m_object->awakeFromNib();
        QTRY_VERIFY(!m_object->isLoading());
        QStringList log = m_desktop->takeTranscript();
        log.sort();
        QCOMPARE(log.size(), 2);
        QVERIFY2(log[0].startsWith(QString::fromUtf8("log history load error: “%1” is not a history file in "
                                                     "XML form: ")
                                       .arg(m_folder->filePath("broken.xml"))),
                 qPrintable(log[0]));
        QCOMPARE(log[1],
                 QString::fromUtf8("log mameinfo load error: “%1” is not a file.").arg(m_folder->path()));
    }

    void aFolderThatIsTypedIsNotReadYet()
    {
        start();
        m_defaults->setText(keys::MameinfoPath, m_folder->path());
        QVERIFY(!m_object->isLoading());
        m_defaults->setText(keys::HistoryPath, m_folder->filePath("nothing.dat"));
        QVERIFY(!m_object->isLoading());
        QVERIFY(m_window->historyinfoTextView->text().isEmpty());
        QVERIFY(m_object->str_hist() != nullptr && m_object->str_info() != nullptr);
    }

    void eachPathReadsItsOwnFile()
    {
        start();
        const InfoFile* history = m_object->str_hist();
        write("typed.dat", "$info=pong\r\n$mame\r\nTyped.\r\n$end\r\n");
        m_defaults->setText(keys::MameinfoPath, m_folder->filePath("typed.dat"));
        QVERIFY(m_object->isLoading());
        QTRY_VERIFY(!m_object->isLoading());
        QCOMPARE(m_object->str_hist(), history);
        m_object->searchHistoryInfo("pong");
        QVERIFY(m_object->mstr_Mameinfo().endsWith("MAME Info\r\n\r\nTyped.\r\n"));
        // Another setting reads nothing.
        m_defaults->setText(keys::VisitedRomPath, QStringLiteral("x"));
        QVERIFY(!m_object->isLoading());
    }

    void theButtonsTellThePathsAsTheyAre()
    {
        setPaths();
        make();
        QCOMPARE(m_window->historyButton->toolTip(), m_folder->filePath("history.dat"));
        QCOMPARE(m_window->mameinfoButton->toolTip(), m_folder->filePath("mameinfo.dat"));
        m_defaults->setText(keys::HistoryPath, QStringLiteral("/a"));
        QCOMPARE(m_window->historyButton->toolTip(), QStringLiteral("/a"));
        m_defaults->setText(keys::MameinfoPath, QStringLiteral("/b"));
        QCOMPARE(m_window->mameinfoButton->toolTip(), QStringLiteral("/b"));
    }

    void aShownEntryBeginsAtItsTop()
    {
        start();
        m_window->findField->setText(QStringLiteral("MAME"));
        m_object->searchHistoryInfo("pong");
        QCOMPARE(m_window->historyinfoTextView->textCursor().position(), 0);
        // What is looked for is marked in every text anew.
        QCOMPARE(m_window->historyinfoTextView->extraSelections().size(), 2);
        QCOMPARE(m_window->findCount->text(), QStringLiteral("2"));
    }

    void noResultHasNoOtherName()
    {
        write("history.dat", "$info=pong,tennis,\r\n$bio\r\n\r\nBats.\r\n$end\r\n");
        start();
        m_object->searchHistoryInfo("tennis");
        QVERIFY(m_window->filedButton->isVisibleTo(m_window.get()));
        m_object->searchHistoryInfo(QString());
        QVERIFY(!m_window->filedButton->isVisibleTo(m_window.get()));
    }

    void aSearchTakesThePlaceOfWhatIsFollowed()
    {
        start();
        auto* following = m_object->findChild<QTimer*>();
        if (following == nullptr)
            QFAIL("nothing is followed");
        m_object->followTo("qix", "qix");
        QVERIFY(following->isActive());
        // Running through a list searches nothing.
        QVERIFY(following->interval() > 0);
        QVERIFY(m_object->mstr_Mameinfo().isEmpty());
        m_object->searchHistoryInfo("pong");
        QVERIFY(!following->isActive());
        m_object->followTo("qix", "qix");
        QTRY_VERIFY(m_object->mstr_Mameinfo().contains("Lines."));
        QVERIFY(!following->isActive());
    }

    void followingIsKept()
    {
        make();
        QVERIFY(!m_window->followBox->isChecked());
        m_window->followBox->click();
        QVERIFY(m_stored->flag(keys::HistoryFollows.name));
        m_defaults->setText(keys::HistoryFollows, QStringLiteral("false"));
        QVERIFY(!m_window->followBox->isChecked());
    }

    void theSizeThatIsKeptIsHeldWithinReason_data()
    {
        QTest::addColumn<int>("kept");
        QTest::addColumn<int>("size");
        for (const auto& [kept, size] : {std::pair(-5, 4), std::pair(3, 4), std::pair(4, 4), std::pair(5, 5),
                                         std::pair(200, 200), std::pair(201, 200)})
            QTest::newRow(qPrintable(QString::number(kept))) << kept << size;
    }

    void theSizeThatIsKeptIsHeldWithinReason()
    {
        QFETCH(int, kept);
        QFETCH(int, size);
        m_defaults->setIndex(keys::History_fontsize, kept);
        make();
        QCOMPARE(m_window->historyinfoTextView->font().pixelSize(), size);
        m_defaults->setIndex(keys::History_fontsize, 20);
        QCOMPARE(m_window->historyinfoTextView->font().pixelSize(), 20);
        m_defaults->setIndex(keys::History_fontsize, kept);
        QCOMPARE(m_window->historyinfoTextView->font().pixelSize(), size);
    }

    void aStepIsTakenWithinItsLimitsOnly_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("bigger"); // 0 for a beep
        QTest::addColumn<int>("smaller");
        const auto row = [](int from, int bigger, int smaller) {
            QTest::newRow(qPrintable(QString::number(from))) << from << bigger << smaller;
        };
        row(8, 0, 0);
        row(9, 10, 0);
        row(10, 11, 9);
        row(27, 28, 26);
        row(28, 0, 27);
        row(29, 0, 0);
    }

    void aStepIsTakenWithinItsLimitsOnly()
    {
        QFETCH(int, from);
        QFETCH(int, bigger);
        QFETCH(int, smaller);
        make();
        const auto sizeBehind = [this, from](QToolButton& button) {
            m_defaults->setIndex(keys::History_fontsize, from);
            button.click();
            const int size = m_defaults->index(keys::History_fontsize);
            return m_desktop->takeTranscript() == QStringList{"beep"} && size == from ? 0 : size;
        };
        QCOMPARE(sizeBehind(*m_window->biggerButton), bigger);
        QCOMPARE(sizeBehind(*m_window->smallerButton), smaller);
    }

private:
    /// With both files read.
    void start()
    {
        setPaths();
        make();
        m_object->awakeFromNib();
        QTRY_VERIFY(!m_object->isLoading());
    }
};

TESSERA_TEST(HistoryFilesTest);
#include "historyfilestest.moc"
