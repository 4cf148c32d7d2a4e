#include "stagedfavourites.h"

#include "favourites/ui/favouriteediting.h"
#include "favourites/ui/favouriteeditor.h"
#include "favourites/ui/playedcontroller.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "support/words.h"

#include <QHeaderView>
#include <QPushButton>
#include <QSignalSpy>
#include <QUndoStack>

using namespace tessera;
using namespace tessera::test;

/// What the favourites' table and editor say, and how they are laid out.
class FavouriteWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedFavourites>();
        m_staged->writeFile(entryText("a", "A &amp; &lt;b&gt;", "-cheat") + entryText("b", "B")
                            + entryText("c", "C"));
        m_staged->start();
        m_editing = std::make_unique<FavouriteEditing>(m_staged->favourites, *m_staged->controller);
        connect(m_editing.get(), &FavouriteEditing::commandWanted, this,
                [](FavouriteEditor& editor, const QString& name) { editor.showCommand("mame <b>" + name); });
    }

    void cleanup()
    {
        m_editing.reset();
        m_staged.reset();
    }

    void theEditorSaysWhatEverythingIsFor()
    {
        const InstalledTexts texts("en");
        QCOMPARE(
            wordsOf(m_editing->editor()),
            (QStringList{
                "favouriteEditor: window Favourite",
                ": A & <b>",
                ": Set / for favouriteName",
                "favouriteName: named Set",
                ": Title / for favouriteTitle",
                "favouriteTitle: named Title",
                ": Japanese title / for favouriteTitlejp",
                "favouriteTitlejp: named Japanese title",
                ": Year / for favouriteYear",
                "favouriteYear: named Year",
                ": Maker / for favouriteMaker",
                "favouriteMaker: named Maker",
                ": Parent / for favouriteCloneof",
                "favouriteCloneof: named Parent",
                ": Driver / for favouriteStatus",
                "favouriteStatus: named Driver",
                ": Kind / for favouriteType",
                "favouriteType: named Kind",
                ": Device / for favouriteDevice",
                "favouriteDevice: named Device",
                ": Options / for favouriteOption",
                "favouriteOption: hint Extra options for this game, one blank between words / named Options",
                ": Command line",
                "favouriteCommand: named Command line",
                "favouriteCopy: C&opy",
                QString::fromUtf8("favouriteRemove: &Remove…"),
                "favouritePrevious: &Previous",
                "favouriteNext: &Next",
                "favouriteClose: &Close",
            }));
    }

    void withNothingSelectedTheEditorSaysSo()
    {
        const InstalledTexts texts("en");
        m_staged->table->clearSelection();
        QCOMPARE(wordsOf(m_editing->editor()).value(1), QStringLiteral(": No favourite selected"));
        for (const QPushButton* each : m_editing->editor().findChildren<QPushButton*>())
            QCOMPARE(each->isEnabled(), each == m_editing->editor().closeButton);
    }

    void aWarningSaysWhatIsWrong()
    {
        const InstalledTexts texts("en");
        FavouriteEditor& editor = m_editing->editor();
        editor.setKnownOptions({{}, [](QStringView option) { return option == QStringLiteral("-cheat"); }});
        QVERIFY(!editor.optionWarning->isVisibleTo(&editor));
        editor.optionField->setText(QStringLiteral("-old  -cheat -<b>"));
        QCOMPARE(editor.optionWarning->text(),
                 QStringLiteral("Your emulator does not list -old, -<b>.\n"
                                "A blank too many is sent as an empty word."));
        QVERIFY(editor.optionWarning->isVisibleTo(&editor));
        QCOMPARE(editor.optionWarning->textFormat(), Qt::PlainText);
        QVERIFY(editor.optionWarning->wordWrap());
        QCOMPARE(editor.optionWarning->property("role").toString(), QStringLiteral("notice"));
        for (const char* blank : {" -cheat", "-cheat ", " "}) {
            editor.optionField->setText(QString::fromLatin1(blank));
            QCOMPARE(editor.optionWarning->text(),
                     QStringLiteral("A blank too many is sent as an empty word."));
        }
        editor.optionField->clear();
        QVERIFY(!editor.optionWarning->isVisibleTo(&editor));
    }

    void aCommandLineIsShownFromItsBeginningAndNeverAsMarkup()
    {
        m_editing->editRecord();
        const FavouriteEditor& editor = m_editing->editor();
        QCOMPARE(editor.commandField->text(), QStringLiteral("mame <b>a"));
        QCOMPARE(editor.commandField->cursorPosition(), 0);
        QCOMPARE(editor.commandField->toolTip(), QStringLiteral("<qt>mame &lt;b&gt;a</qt>"));
        QVERIFY(editor.copyButton->isEnabled());
    }

    // The command line costs a look at the whole catalogue.
    void anEditorThatIsNotShownHasNoCommandLine()
    {
        FavouriteEditor& editor = m_editing->editor();
        QCOMPARE(editor.commandField->text(), QString());
        m_editing->editRecord();
        QVERIFY(!editor.commandField->text().isEmpty());
        editor.close();
        m_staged->table->selectRow(1);
        QCOMPARE(editor.commandField->text(), QString());
    }

    void theEditorBeginsInTheOptions()
    {
        QSignalSpy made(m_editing.get(), &FavouriteEditing::windowMade);
        QVERIFY(!m_editing->isMade());
        m_editing->commitEditing();
        QVERIFY(!m_editing->isMade());
        m_editing->editRecord();
        QVERIFY(m_editing->isMade());
        QVERIFY(QTest::qWaitForWindowActive(&m_editing->editor()));
        QVERIFY(m_editing->editor().optionField->hasFocus());
        m_editing->editRecord();
        QCOMPARE(made.size(), 1);
    }

    void theNeighboursAreReachedUpToTheEnds()
    {
        FavouriteEditor& editor = m_editing->editor();
        m_editing->editRecord();
        QStringList visited;
        for (QPushButton* button : {editor.previousButton, editor.nextButton, editor.nextButton,
                                    editor.nextButton, editor.previousButton, editor.previousButton}) {
            QTest::mouseClick(button, Qt::LeftButton);
            visited << editor.field(FavouriteKey::Name)->text();
        }
        QCOMPARE(visited, (QStringList{"a", "b", "c", "c", "b", "a"}));
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("a"));
    }

    void escapeClosesTheEditor()
    {
        m_editing->editRecord();
        QVERIFY(QTest::qWaitForWindowActive(&m_editing->editor()));
        QTest::keyClick(&m_editing->editor(), Qt::Key_Escape);
        QVERIFY(!m_editing->editor().isVisible());
    }

    void theTablesColumnsAreNamed()
    {
        const InstalledTexts texts("en");
        const FavouritesTableModel* model = m_staged->controller->model();
        QStringList headings;
        for (int column = 0; column < model->columnCount(); ++column) {
            headings << model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            QCOMPARE(model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
                     int{Qt::AlignLeft | Qt::AlignVCenter});
        }
        QCOMPARE(headings,
                 (QStringList{"Set", "Title", "Japanese title", "Year", "Maker", "Options", "Parent",
                              "Device", "Driver", "Kind", "Played", "Last played"}));
        for (const int section : {-1, 12})
            QVERIFY(!model->headerData(section, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(!model->headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
        QVERIFY(!model->headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    }

    void whatIsSeldomAskedForIsHiddenAtFirst()
    {
        QStringList hidden;
        for (int column = 0; column < FavouritesTableModel::columns; ++column) {
            if (m_staged->table->isColumnHidden(column))
                hidden << m_staged->controller->model()
                              ->headerData(column, Qt::Horizontal, Qt::DisplayRole)
                              .toString();
        }
        QCOMPARE(hidden, (QStringList{"column_cloneof", "column_device", "column_status", "column_type"}));
    }

    void rowsAreOfWholePixelsWithinReason_data()
    {
        QTest::addColumn<double>("kept");
        QTest::addColumn<int>("height");
        QTest::newRow("a half") << 13.5 << 14;
        QTest::newRow("less than a half") << 13.4 << 13;
        QTest::newRow("the least") << 8.0 << 8;
        QTest::newRow("less than that") << 2.0 << 8;
        QTest::newRow("the most") << 400.0 << 400;
        QTest::newRow("more than that") << 1000.0 << 400;
    }

    void rowsAreOfWholePixelsWithinReason()
    {
        QFETCH(double, kept);
        m_staged->controls.setIndex(keys::rowHeight, kept);
        QTEST(m_staged->table->verticalHeader()->defaultSectionSize(), "height");
    }

    void whatCanBeUndoneIsNamed()
    {
        const InstalledTexts texts("en");
        const QUndoStack& undo = m_staged->favourites.undoStack();
        m_staged->favourites.append(pong);
        QCOMPARE(undo.undoText(), QStringLiteral("Add to Favourites"));
        m_staged->favourites.setValue(0, FavouriteKey::Title, QStringLiteral("x"));
        QCOMPARE(undo.undoText(), QStringLiteral("Edit Favourite"));
        m_staged->favourites.remove({0});
        QCOMPARE(undo.undoText(), QStringLiteral("Remove from Favourites"));
    }

    void theQuestionsSayWhatIsLost()
    {
        const InstalledTexts texts("en");
        PlayedController notes(m_staged->played, m_staged->desktop, m_staged->controls);
        notes.notePlayed(QStringLiteral("a"));
        m_staged->desktop.answerAlert(QStringLiteral("Forget which games were played?"), 1);
        notes.clearPlayed();
        const Alert forget = m_staged->desktop.alerts.back();
        QCOMPARE(forget.informative,
                 QStringLiteral("How often and when last goes for every game. This cannot be undone."));
        QCOMPARE(forget.buttons, (QStringList{"Forget", "Cancel"}));
        QVERIFY(forget.style == Alert::Style::Warning);
        m_staged->desktop.answerAlert(QStringLiteral("Remove selected data?"), 1);
        m_staged->controller->removeFavoritesTable();
        QCOMPARE(m_staged->desktop.alerts.back().informative,
                 QStringLiteral("If you stop processing, please choose Cancel."));
        QSignalSpy said(m_staged->controller.get(), &UCAppController::statusMessage);
        m_staged->controller->saveFavouritesNow();
        QCOMPARE(said.constLast().constFirst().toString(), QStringLiteral("Favourites saved."));
    }

private:
    std::unique_ptr<StagedFavourites> m_staged;
    std::unique_ptr<FavouriteEditing> m_editing;
};

TESSERA_TEST(FavouriteWordsTest);
#include "favouritewordstest.moc"
