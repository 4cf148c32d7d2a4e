#include "stagedfavourites.h"

#include "favourites/ui/favouriteediting.h"
#include "favourites/ui/favouriteeditor.h"
#include "support/testmain.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QCompleter>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

using namespace tessera;
using namespace tessera::test;

class FavouriteEditorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedFavourites>();
        m_staged->writeFile(entryText("a", "A", "-cheat") + entryText("b", "B"));
        m_staged->start();
        m_editing = std::make_unique<FavouriteEditing>(m_staged->favourites, *m_staged->controller);
        connect(m_editing.get(), &FavouriteEditing::commandWanted, this,
                [this](FavouriteEditor& editor, const QString& name) {
                    editor.showCommand("mame " + name + ' '
                                       + m_staged->controller->search_priorityOption(name));
                });
        m_editor = &m_editing->editor();
        m_editing->editRecord();
        QVERIFY(QTest::qWaitForWindowActive(m_editor));
    }
    void cleanup()
    {
        m_editing.reset();
        m_staged.reset();
    }

    void thereIsAFieldForEachKey()
    {
        for (std::size_t i = 0; i < favouriteKeyCount; ++i) {
            const auto key = static_cast<FavouriteKey>(i);
            QLineEdit* field = m_editor->field(key);
            QVERIFY(!field->accessibleName().isEmpty());
            type(field, QStringLiteral("x") + QString::number(i));
            QTest::keyClick(field, Qt::Key_Return);
            QCOMPARE(m_staged->favourites.value(0, key), QStringLiteral("x") + QString::number(i));
        }
        QVERIFY(!m_staged->controller->favoritesUpdate());
    }

    void itShowsTheSelectedFavourite()
    {
        QCOMPARE(m_editor->field(FavouriteKey::Title)->text(), QStringLiteral("A"));
        QCOMPARE(m_editor->optionField->text(), QStringLiteral("-cheat"));
        QTest::mouseClick(m_editor->nextButton, Qt::LeftButton);
        QCOMPARE(m_editor->field(FavouriteKey::Title)->text(), QStringLiteral("B"));
        QTest::mouseClick(m_editor->nextButton, Qt::LeftButton);
        QCOMPARE(m_editor->field(FavouriteKey::Title)->text(), QStringLiteral("B"));
        m_staged->table->clearSelection();
        QCOMPARE(m_editor->field(FavouriteKey::Title)->text(), QString());
        QVERIFY(!m_editor->optionField->isEnabled());
    }

    void aFieldThatWasNotLeftGoesToItsOwnFavourite()
    {
        type(m_editor->optionField, QStringLiteral("-autosave"));
        m_staged->table->selectRow(1);
        QCOMPARE(m_staged->favourites.value(0, FavouriteKey::Option), QStringLiteral("-autosave"));
        QCOMPARE(m_staged->favourites.value(1, FavouriteKey::Option), QString());
    }

    void aFieldThatWasNotLeftIsSavedToo()
    {
        type(m_editor->optionField, QStringLiteral("-autosave"));
        m_staged->controller->saveFavouritesNow();
        QVERIFY(m_staged->file().contains("-autosave"));
    }

    void removingDropsWhatWasTyped()
    {
        type(m_editor->field(FavouriteKey::Title), QStringLiteral("typed"));
        m_staged->favourites.remove({0});
        QCOMPARE(m_staged->favourites.value(0, FavouriteKey::Title), QStringLiteral("B"));
        QCOMPARE(m_editor->field(FavouriteKey::Name)->text(), QStringLiteral("b"));
    }

    void optionsAreStoredAsTheyAreTyped()
    {
        type(m_editor->optionField, QStringLiteral("-cheat  -bios euro "));
        QTest::keyClick(m_editor->optionField, Qt::Key_Return);
        QCOMPARE(m_staged->favourites.value(0, FavouriteKey::Option), QStringLiteral("-cheat  -bios euro "));
        QVERIFY(warning().contains(QStringLiteral("favourite_option_blank")));
    }

    void anUnknownOptionIsWarnedOf()
    {
        // Nobody has asked the emulator yet.
        type(m_editor->optionField, QStringLiteral("-nosuch"));
        QCOMPARE(warning(), QString());
        knowSome();
        QVERIFY(warning().contains(QStringLiteral("favourite_option_unknown")));
        type(m_editor->optionField, QStringLiteral("-cheat"));
        QCOMPARE(warning(), QString());
        QVERIFY(!m_editor->optionWarning->isVisible());
    }

    void theTypedOptionIsCompleted()
    {
        knowSome();
        QLineEdit* field = m_editor->optionField;
        type(field, QStringLiteral("-cheat -auto"));
        QAbstractItemView* popup = m_editor->optionField->findChild<QCompleter*>()->popup();
        QVERIFY(popup->isVisible());
        QCOMPARE(popup->model()->rowCount(), 2);
        QVERIFY(popup->model()->index(0, 0).data().toString().contains(QStringLiteral("boot into ")));
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
        QCOMPARE(field->text(), QStringLiteral("-cheat -autoboot_delay"));
        QVERIFY(!popup->isVisible());
        // A word in the middle, and one that is whole.
        field->setText(QStringLiteral("-auto -cheat"));
        field->setCursorPosition(5);
        QTest::keyClicks(field, QStringLiteral("s"));
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
        QCOMPARE(field->text(), QStringLiteral("-autosave -cheat"));
        type(field, QStringLiteral("-cheat"));
        QVERIFY(!popup->isVisible());
        type(field, QStringLiteral("cheat"));
        QVERIFY(!popup->isVisible());
    }

    void theCommandLineIsShownAndCopied()
    {
        QCOMPARE(m_editor->commandField->text(), QStringLiteral("mame a -cheat"));
        type(m_editor->optionField, QStringLiteral("-autosave"));
        QTest::keyClick(m_editor->optionField, Qt::Key_Return);
        QCOMPARE(m_editor->commandField->text(), QStringLiteral("mame a -autosave"));
        QVERIFY(m_editor->commandField->isReadOnly());
        QTest::mouseClick(m_editor->copyButton, Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mame a -autosave"));
        m_staged->table->clearSelection();
        QCOMPARE(m_editor->commandField->text(), QString());
        QVERIFY(!m_editor->copyButton->isEnabled());
    }

    void removingFromTheEditorAsksToo()
    {
        m_staged->desktop.answerAlert(QStringLiteral("favorites_remove_message"), 0);
        QTest::mouseClick(m_editor->removeButton, Qt::LeftButton);
        QCOMPARE(m_staged->shownNames(), QStringList{QStringLiteral("b")});
    }

    // The others that are selected stay.
    void removingFromTheEditorTakesWhatItShows()
    {
        m_staged->table->selectAll();
        QCOMPARE(m_staged->controller->selectedRecords().size(), std::size_t(2));
        QCOMPARE(m_editor->field(FavouriteKey::Title)->text(), QStringLiteral("A"));
        m_staged->desktop.answerAlert(QStringLiteral("favorites_remove_message"), 0);
        QTest::mouseClick(m_editor->removeButton, Qt::LeftButton);
        QCOMPARE(m_staged->shownNames(), QStringList{QStringLiteral("b")});
        QCOMPARE(m_editor->field(FavouriteKey::Title)->text(), QStringLiteral("B"));
        m_staged->favourites.undoStack().undo();
        QCOMPARE(m_staged->shownNames(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    }

private:
    static void type(QLineEdit* field, const QString& text)
    {
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
    }
    QString warning() const { return m_editor->optionWarning->text(); }
    void knowSome()
    {
        const QList<KnownOption> options{
            {QStringLiteral("-autoboot_delay"), QStringLiteral("seconds to boot into a command")},
            {QStringLiteral("-autosave"), QStringLiteral("restore and save state")},
            {QStringLiteral("-cheat"), QString()}};
        m_editor->setKnownOptions({options, [options](QStringView option) {
                                       return std::ranges::any_of(options,
                                                                  [option](const KnownOption& known) {
                                                                      return known.option == option;
                                                                  });
                                   }});
    }

    std::unique_ptr<StagedFavourites> m_staged;
    std::unique_ptr<FavouriteEditing> m_editing;
    FavouriteEditor* m_editor = nullptr;
};

TESSERA_TEST(FavouriteEditorTest);
#include "favouriteeditortest.moc"
