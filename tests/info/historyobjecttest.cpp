#include "info/historystaging.h"

#include "info/ui/historywindow.h"
#include "widgets/logview.h"
#include "platform/defaultscontroller.h"
#include "support/installedtexts.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"
#include "widgets/boundcontrols.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>

using namespace tessera;

namespace {

constexpr char history[]
    = "$info=pacman,puckman,\r\n$bio\r\n\r\nA maze\r\n with ghosts.\r\n\r\nEnd.\r\n$end\r\n";
constexpr char notes[] = "$info=pacman\r\n$mame\r\n0.36b1\r\n$end\r\n";
const QString bothMissing
    = QStringLiteral("history.dat  is not found.\r\n\r\nmameinfo.dat  is not found.\r\n");
const QString found
    = QStringLiteral("MAME History\r\n\r\nA maze with ghosts.\r\nEnd.\r\nMAME Info\r\n\r\n0.36b1\r\n");

} // namespace

/// The history window on files of its own.
class HistoryObjectTest : public test::HistoryStaging
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        stage();
        make();
    }

    void cleanup() { clear(); }

    void bothMissingFilesAreNamed()
    {
        m_object->awakeFromNib();
        QCOMPARE(m_object->mstr_Mameinfo(), bothMissing);
        QCOMPARE(m_window->historyinfoTextView->text(), bothMissing);
        QVERIFY(m_object->str_hist() == nullptr && m_object->str_info() == nullptr);
        QVERIFY(m_desktop->transcript().isEmpty());
    }

    void aFileThatIsMissingAfterASearchIsNamedBehindIt()
    {
        useFiles();
        m_object->searchHistoryInfo("pacman");
        QCOMPARE(m_object->mstr_Mameinfo(), found);
        QVERIFY(QFile::remove(m_folder->filePath("mameinfo.dat")));
        m_object->set_infoString();
        QCOMPARE(m_object->mstr_Mameinfo(), found + "mameinfo.dat  is not found.\r\n");
        // What was read before stays in use.
        m_object->searchHistoryInfo("pacman");
        QCOMPARE(m_object->mstr_Mameinfo(), found);
    }

    void aFoundSetIsShownWithASound()
    {
        useFiles();
        m_object->searchHistoryInfo("pacman");
        QCOMPARE(m_window->historyinfoTextView->text(), found);
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"sound sound_page"});
        m_object->searchHistoryInfo("pong");
        QCOMPARE(m_object->mstr_Mameinfo(), QStringLiteral("No MAME history.\r\n\r\nNo MAME Info\r\n"));
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"sound sound_page"});
    }

    void anEmptyNameHasNoResultAndNoSound()
    {
        useFiles();
        m_window->showParent("pacman");
        m_object->searchHistoryInfo(QString());
        QCOMPARE(m_window->historyinfoTextView->text(), QStringLiteral("No result."));
        QVERIFY(m_window->parentTextField->text().isEmpty());
        QVERIFY(m_desktop->transcript().isEmpty());
    }

    void aMissingFileIsNamedBehindTheSearchAndNotBehindNoResult()
    {
        useFiles();
        m_object->searchHistoryInfo("pacman");
        m_object->searchHistoryInfo(QString());
        QVERIFY(QFile::remove(m_folder->filePath("mameinfo.dat")));
        m_object->set_infoString();
        QCOMPARE(m_window->historyinfoTextView->text(), found + "mameinfo.dat  is not found.\r\n");
    }

    void aTypedPathIsReadAtOnce()
    {
        useFiles();
        write("h.dat", "$info=pacman\r\n$bio\r\nTyped.\r\n$end\r\n");
        QLineEdit field;
        bind(field, *m_defaults, keys::HistoryPath);
        field.clear();
        QTest::keyClicks(&field, m_folder->filePath("h.dat"));
        QTRY_VERIFY(!m_object->isLoading());
        m_object->searchHistoryInfo("pacman");
        QVERIFY(m_window->historyinfoTextView->text().startsWith("MAME History\r\n\r\nTyped.\r\n"));
        // What is no file, or not yet, says nothing, and what was read stays.
        const QString shown = m_window->historyinfoTextView->text();
        QTest::keyClicks(&field, "x");
        QCOMPARE(m_window->historyinfoTextView->text(), shown);
        QVERIFY(!m_object->isLoading() && m_object->str_hist() != nullptr);
    }

    void typingANameEmptiesTheParent()
    {
        useFiles();
        m_window->showParent("puckman");
        m_window->historySearchField->setText("pacman");
        QTest::keyClick(m_window->historySearchField, Qt::Key_Return);
        QCOMPARE(m_object->mstr_Mameinfo(), found);
        QVERIFY(m_window->parentTextField->text().isEmpty());
    }

    void aSearchWaitsForTheFiles()
    {
        write("history.dat", history);
        write("mameinfo.dat", notes);
        setPaths();
        m_object->awakeFromNib();
        QVERIFY(m_object->isLoading());
        m_object->searchHistoryInfo("pong");
        m_object->searchHistoryInfo("pacman");
        QVERIFY(m_desktop->transcript().isEmpty());
        QTRY_VERIFY(!m_object->isLoading());
        QCOMPARE(m_object->mstr_Mameinfo(), found);
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"sound sound_page"});
    }

    void whatCannotBeReadIsAbsentAndInTheLogOnly()
    {
        m_defaults->setText(keys::HistoryPath, m_folder->path());
        write("broken.xml", "<history><entry>");
        m_defaults->setText(keys::MameinfoPath, m_folder->filePath("broken.xml"));
        m_object->awakeFromNib();
        QTRY_VERIFY(!m_object->isLoading());
        QVERIFY(m_object->mstr_Mameinfo().isEmpty());
        const QStringList log = m_desktop->takeTranscript();
        QCOMPARE(log.size(), 2);
        QCOMPARE(log.filter("log history load error: ").size(), 1);
        QCOMPARE(log.filter("log mameinfo load error: ").size(), 1);
        m_object->searchHistoryInfo("pacman");
        QCOMPARE(m_object->mstr_Mameinfo(), QStringLiteral("MAME History\r\n\r\n\r\nMAME Info\r\n\r\n\r\n"));
    }

    void aFailedReloadForgetsWhatWasRead()
    {
        useFiles();
        m_defaults->setText(keys::HistoryPath, m_folder->path());
        m_object->set_histryString();
        QTRY_VERIFY(!m_object->isLoading());
        QVERIFY(m_object->str_hist() == nullptr && m_object->str_info() != nullptr);
    }

    void anotherFileReadsThatFileOnly()
    {
        useFiles();
        const InfoFile* info = m_object->str_info();
        write("other.dat", "$info=pacman\r\n$bio\r\nAnother.\r\n$end\r\n");
        m_defaults->setText(keys::HistoryPath, m_folder->filePath("other.dat"));
        m_object->set_histryString();
        QTRY_VERIFY(!m_object->isLoading());
        QCOMPARE(m_object->str_info(), info);
        m_object->searchHistoryInfo("pacman");
        QVERIFY(m_object->mstr_Mameinfo().startsWith("MAME History\r\n\r\nAnother.\r\n"));
    }

    void anEntryUnderAnotherNameIsOneButtonAway()
    {
        useFiles();
        m_object->searchHistoryInfo("puckman");
        QCOMPARE(m_object->mstr_Mameinfo(), QStringLiteral("No MAME history.\r\n\r\nNo MAME Info\r\n"));
        QVERIFY(m_window->filedButton->isVisibleTo(m_window.get()));
        QTest::mouseClick(m_window->filedButton, Qt::LeftButton);
        QVERIFY(m_object->mstr_Mameinfo().startsWith("MAME History\r\n\r\n\r\nA maze with ghosts."));
        QVERIFY(!m_window->filedButton->isVisibleTo(m_window.get()));
    }

    void aTextIsFoundWithinTheEntry()
    {
        useFiles();
        m_object->searchHistoryInfo("pacman");
        QTest::keyClicks(m_window->findField, "m");
        QTextCursor cursor = m_window->historyinfoTextView->textCursor();
        QCOMPARE(cursor.selectedText(), QStringLiteral("M"));
        QCOMPARE(m_window->historyinfoTextView->extraSelections().size(), 5);
        const int first = cursor.position();
        QTest::keyClick(m_window->findField, Qt::Key_Return);
        QVERIFY(m_window->historyinfoTextView->textCursor().position() > first);
        QTest::keyClick(m_window->findField, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(m_window->historyinfoTextView->textCursor().position(), first);
        QTest::keyClick(m_window->findField, Qt::Key_Return, Qt::ShiftModifier);
        QVERIFY(m_window->historyinfoTextView->textCursor().position() > first);
        m_window->findField->setText("nowhere");
        QCOMPARE(m_window->findCount->text(), QStringLiteral("history_not_found"));
        QTest::keyClick(m_window->findField, Qt::Key_Return);
        QTest::keyClick(m_window->findField, Qt::Key_Escape);
        QVERIFY(m_window->findField->text().isEmpty() && m_window->findCount->text().isEmpty());
    }

    void whatIsCopiedIsTheTextAsItStands()
    {
        useFiles();
        m_object->searchHistoryInfo("pacman");
        m_window->historyinfoTextView->selectAll();
        m_window->historyinfoTextView->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), found);
    }

    void followingShowsTheLastOneWithoutASound()
    {
        useFiles();
        m_object->followTo("other", "pong");
        m_object->followTo("puckman", "pacman");
        QCOMPARE(m_window->historySearchField->text(), QStringLiteral("puckman"));
        QCOMPARE(m_window->parentTextField->text(), QStringLiteral("pacman"));
        QTRY_COMPARE(m_object->mstr_Mameinfo(), found);
        QVERIFY(m_desktop->transcript().isEmpty());
        m_object->followTo(QString(), QString());
        QCOMPARE(m_window->parentTextField->text(), QStringLiteral("pacman"));
    }

    void theTextGrowsAndShrinksWithinItsLimits()
    {
        const auto size = [this] { return m_window->historyinfoTextView->font().pixelSize(); };
        QCOMPARE(size(), 12);
        QTest::mouseClick(m_window->biggerButton, Qt::LeftButton);
        QCOMPARE(size(), 13);
        QCOMPARE(m_defaults->index(keys::History_fontsize), 13);
        m_defaults->setIndex(keys::History_fontsize, 28);
        QTest::mouseClick(m_window->biggerButton, Qt::LeftButton);
        QCOMPARE(size(), 28);
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        m_defaults->setIndex(keys::History_fontsize, 9);
        QTest::mouseClick(m_window->smallerButton, Qt::LeftButton);
        QCOMPARE(size(), 9);
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        QTest::mouseClick(m_window->biggerButton, Qt::LeftButton);
        QCOMPARE(size(), 10);
    }

    void aNameIsNeverMarkup()
    {
        write("history.dat", "$info=<b>a&b</b>,x\r\n$bio\r\nA$end");
        setPaths();
        m_object->awakeFromNib();
        QTRY_VERIFY(!m_object->isLoading());
        m_window->showParent("<b>bold</b>");
        QCOMPARE(m_window->parentTextField->textFormat(), Qt::PlainText);
        const test::InstalledTexts texts("en");
        m_object->searchHistoryInfo("x");
        QVERIFY(m_window->filedButton->isVisibleTo(m_window.get()));
        // A button underlines the letter behind a single ampersand.
        QCOMPARE(m_window->filedButton->text(), QStringLiteral("Filed under <b>a&&b</b>"));
    }

    void theObjectMayEndWhileAFileIsRead()
    {
        write("history.dat", QByteArray(5'000'000, 'x'));
        setPaths();
        // A folder, which cannot be read: that would be in the log.
        m_defaults->setText(keys::MameinfoPath, m_folder->path());
        m_object->awakeFromNib();
        QVERIFY(m_object->isLoading());
        m_window->historyinfoTextView->replace("still here");
        m_object.reset();
        // What was under way has sent its end by now, to nobody.
        QCoreApplication::processEvents();
        QVERIFY(m_desktop->transcript().isEmpty());
        QCOMPARE(m_window->historyinfoTextView->text(), QStringLiteral("still here"));
    }

private:
    void useFiles()
    {
        write("history.dat", history);
        write("mameinfo.dat", notes);
        setPaths();
        m_object->awakeFromNib();
        QTRY_VERIFY(!m_object->isLoading());
    }
};

TESSERA_TEST(HistoryObjectTest);
#include "historyobjecttest.moc"
