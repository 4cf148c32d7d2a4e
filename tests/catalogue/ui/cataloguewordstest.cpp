#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/filterpanel.h"
#include "catalogue/ui/recordeditor.h"
#include "catalogue/ui/searchfield.h"
#include "stagedpage.h"
#include "support/argumenttexts.h"
#include "support/testmain.h"
#include "support/words.h"

#include <QAbstractItemModel>
#include <QCompleter>
#include <QMenu>
#include <QToolButton>

using namespace tessera;

namespace {

const GameRecord neogeo{{"bios", "neogeo", "parent", "Neo-Geo", "ネオジオ", "1990", "SNK", "good", "dev"}};

// Those that are not hidden, of which there are more.
QStringList shownWords(const QWidget& panel)
{
    QStringList words;
    for (const QLabel* label : panel.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&panel) && !label->text().isEmpty())
            words << label->text();
    }
    return words;
}

QStringList proposals(const QLineEdit* field)
{
    QStringList texts;
    const QAbstractItemModel* model = field->completer() ? field->completer()->model() : nullptr;
    for (int row = 0; model != nullptr && row < model->rowCount(); ++row)
        texts << model->index(row, 0).data().toString();
    return texts;
}

} // namespace

class CatalogueWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLookPageSaysWhatItIsAbout()
    {
        test::StagedPage at;
        QCOMPARE(
            test::wordsOf(at.page),
            QStringList({"coloringBox: appearance_coloring",
                         ": named appearance_font",
                         "fontSampleField: named appearance_font",
                         "fontButton: appearance_choosefont / named appearance_font – appearance_choosefont",
                         ": appearance_font",
                         ": named appearance_favoritefont",
                         "favoriteFontField: named appearance_favoritefont",
                         ("favoriteFontButton: appearance_choosefont / named appearance_favoritefont – "
                          "appearance_choosefont"),
                         ": appearance_favoritefont",
                         ": named appearance_size",
                         "fontSizeField: named appearance_size",
                         "smallerButton: named appearance_smaller / tip appearance_smaller",
                         "biggerButton: named appearance_bigger / tip appearance_bigger",
                         ": appearance_size",
                         ": appearance_rows / for coloringBox",
                         ": named appearance_color",
                         "textColorWell: named appearance_color / tip #ffe6e6e6",
                         "initialColorButton: named appearance_initialcolor / tip appearance_initialcolor",
                         ": appearance_color",
                         ": named appearance_color2",
                         "textColorWell2: named appearance_color2 / tip #80e6e6e6",
                         "initialColorButton2: named appearance_initialcolor2 / tip appearance_initialcolor2",
                         ": appearance_color2",
                         ": appearance_note"}));
    }

    void theFilterPanelSaysWhatItIsAbout()
    {
        FilterPanel panel;
        QCOMPARE(test::wordsOf(panel),
                 QStringList({"filterPanel: window filter_window", ": filter_heading",
                              "joinPopup: filter_all / filter_any / named filter_join", ": filter_add",
                              ": filter_clear", ": filter_hint", ": filter_maker",
                              "filterTextView: hint filter_maker_placeholder / named filter_maker",
                              ": filter_maker_apply", ": filter_maker_clear", ": filter_maker_none"}));
        panel.addRow();
        QCOMPARE(test::wordsOf(panel),
                 QStringList(
                     {"filterPanel: window filter_window", ": filter_heading",
                      "joinPopup: filter_all / filter_any / named filter_join", ": filter_add",
                      ": filter_clear", ": filter_hint",
                      (": column_title / column_titlejp / column_name / column_maker / column_year / "
                       "column_cloneof / column_status / column_type / column_device / named filter_field"),
                      (": compare_is / compare_isnot / compare_contains / compare_containsnot / "
                       "compare_begins / compare_ends / named filter_comparison"),
                      ": named filter_value", ": named filter_remove / tip filter_remove", ": filter_maker",
                      "filterTextView: hint filter_maker_placeholder / named filter_maker",
                      ": filter_maker_apply", ": filter_maker_clear", ": filter_maker_none"}));
    }

    void theHintStandsWhereThereIsNoRule()
    {
        FilterPanel panel;
        panel.show();
        QVERIFY(shownWords(panel).contains("filter_hint"));
        panel.addRow();
        panel.addRow();
        QVERIFY(!shownWords(panel).contains("filter_hint"));
        panel.findChildren<QToolButton*>().at(1)->click();
        QVERIFY(!shownWords(panel).contains("filter_hint"));
        panel.clear();
        QVERIFY(shownWords(panel).contains("filter_hint"));
    }

    void theMakerThatIsShownIsSaid()
    {
        const test::ArgumentTexts texts;
        FilterPanel panel;
        QVERIFY(shownWords(panel).contains("filter_maker_none (%1, %2)"));
        panel.showMaker("Konami");
        QVERIFY(shownWords(panel).contains("hides_maker (Konami, %2)"));
        panel.showMaker(QString());
        QVERIFY(shownWords(panel).contains("filter_maker_empty (%1, %2)"));
    }

    void theFactsOfOneRecordAreSaid()
    {
        FactsPanel panel;
        QCOMPARE(shownWords(panel), QStringList("facts_none"));
        panel.showRecord(&neogeo, 1);
        QCOMPARE(shownWords(panel),
                 QStringList({"Neo-Geo", "ネオジオ", "fact_name", "neogeo", "fact_cloneof", "parent",
                              "fact_maker", "SNK", "fact_year", "1990", "fact_device", "dev", "fact_status",
                              "good", "type : BIOS"}));
        // What is not known, or says the same as the title, has no line.
        const GameRecord plain{{"game", "pong", "", "Pong", "Pong", "", "Atari", "", {}}};
        panel.showRecord(&plain, 1);
        QCOMPARE(shownWords(panel), QStringList({"Pong", "fact_name", "pong", "fact_maker", "Atari"}));
        const GameRecord untitled{{"game", "pong", "", "", "", "", "", "", ""}};
        panel.showRecord(&untitled, 0);
        QCOMPARE(shownWords(panel), QStringList({"pong", "fact_name", "pong"}));
        panel.showRecord(&neogeo, 2);
        QCOMPARE(shownWords(panel), QStringList("facts_several"));
        panel.showRecord(nullptr, 0);
        QCOMPARE(shownWords(panel), QStringList("facts_none"));
    }

    void severalRecordsAreCounted()
    {
        const test::ArgumentTexts texts;
        FactsPanel panel;
        panel.showRecord(&neogeo, 12);
        QCOMPARE(shownWords(panel), QStringList("facts_several (12, %2)"));
    }

    void whatTheFoldersHoldIsSaid()
    {
        const test::ArgumentTexts texts;
        FactsPanel panel;
        panel.showRecord(&neogeo, 1);
        const auto* have = panel.findChild<QLabel*>("haveLabel");
        QVERIFY(!shownWords(panel).contains("fact_rom (%1, %2)"));
        panel.showHave(Have::Here, &neogeo);
        QCOMPARE(have->text(), QStringLiteral("have_here (%1, %2)"));
        QVERIFY(shownWords(panel).contains("fact_rom (%1, %2)"));
        panel.showHave(Have::InParent, &neogeo);
        QCOMPARE(have->text(), QStringLiteral("have_in_parent (parent, %2)"));
        panel.showHave(Have::Missing, &neogeo);
        QCOMPARE(have->text(), QStringLiteral("have_missing (%1, %2)"));
        QVERIFY(have->isVisibleTo(&panel));
        panel.showHave(Have::Missing, nullptr);
        QVERIFY(!have->isVisibleTo(&panel));
        panel.showHave(std::nullopt, &neogeo);
        QVERIFY(!have->isVisibleTo(&panel));
        QVERIFY(!shownWords(panel).contains("fact_rom (%1, %2)"));
    }

    void factsAreTextThatCanBeCopied()
    {
        FactsPanel panel;
        panel.showRecord(&neogeo, 1);
        for (const QLabel* label : panel.findChildren<QLabel*>()) {
            if (label->text() != "SNK" && label->text() != "Neo-Geo")
                continue;
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QVERIFY(label->textInteractionFlags() & Qt::TextSelectableByMouse);
            QVERIFY(label->wordWrap());
        }
        panel.showMark("plovermark_good");
        QCOMPARE(panel.romMark->property("mark").toString(), QStringLiteral("plovermark_good"));
    }

    void theEditorSaysWhatItEdits()
    {
        RecordEditor editor;
        QCOMPARE(test::wordsOf(editor),
                 QStringList({"recordEditor: window editor_window",
                              ": column_name / for editSetname",
                              "editSetname: named column_name",
                              ": column_title / for editTitle",
                              "editTitle: named column_title",
                              ": column_titlejp / for editTitlejp",
                              "editTitlejp: named column_titlejp",
                              ": column_year / for editYear",
                              "editYear: named column_year",
                              ": column_maker / for editManufacture",
                              "editManufacture: named column_maker",
                              ": column_cloneof / for editParent",
                              "editParent: named column_cloneof",
                              ": column_status / for editStatus",
                              "editStatus: named column_status",
                              ": column_type / for editType",
                              "editType: named column_type",
                              ": column_device / for editDevice",
                              "editDevice: named column_device",
                              "editRemove: editor_remove",
                              "previousButton: editor_previous",
                              "nextButton: editor_next",
                              "editClose: editor_close"}));
        QCOMPARE(proposals(editor.editStatus), QStringList({"good", "imperfect", "preliminary"}));
        QCOMPARE(proposals(editor.editType), QStringList({"game", "bios", "mechanical", "device"}));
        QCOMPARE(proposals(editor.editManufacture), QStringList());
    }

    void theEditorShowsARecordUnderItsTitle()
    {
        RecordEditor editor;
        const std::array records{neogeo};
        editor.show(0, records, true);
        QVERIFY(shownWords(editor).contains("Neo-Geo"));
        QStringList values;
        for (const QLineEdit* field : editor.findChildren<QLineEdit*>())
            values << field->text();
        QCOMPARE(
            values,
            QStringList({"neogeo", "Neo-Geo", "ネオジオ", "1990", "SNK", "parent", "good", "bios", "dev"}));
        QVERIFY(editor.editTitle->isEnabled());
        editor.show(0, records, false);
        QVERIFY(!editor.editTitle->isEnabled());
        editor.show(std::nullopt, records, true);
        QVERIFY(shownWords(editor).contains("facts_none"));
        QCOMPARE(editor.editTitle->text(), QString());
    }

    void theChipsSayWhatTheyShow()
    {
        ChipBar bar;
        QCOMPARE(test::wordsOf(bar),
                 QStringList({"chip_all: chip_all", "chip_games: chip_games", "chip_haverom: chip_have_rom",
                              "chip_working: chip_working", "chip_playable: chip_playable",
                              "chip_parents: chip_parents", "chip_bios: chip_bios",
                              "chip_favorites: chip_favorites",
                              "familiesBox: chips_families / tip chips_families_help"}));
        bar.setCounts({1, 2, 3, 4, 5, 6, 7, 1234});
        QStringList names;
        for (const auto* chip : bar.findChildren<ChipButton*>())
            names << chip->accessibleName();
        QCOMPARE(names,
                 QStringList({"chip_all 1", "chip_games 2", "chip_have_rom 3", "chip_working 4",
                              "chip_playable 5", "chip_parents 6", "chip_bios 7", "chip_favorites 1,234"}));
    }

    void theSearchFieldSaysWhatCanBeSearched()
    {
        SearchField field;
        field.offerSearches();
        QCOMPARE(test::wordsOf(field),
                 QStringList({"titleSearchField: hint search_placeholder / named search_field",
                              ": search_terms / tip search_terms", ": search_last / tip search_last"}));
        const auto* terms = field.findChild<QMenu*>();
        QStringList items;
        for (const QAction* action : terms->actions())
            items << action->text();
        QCOMPARE(
            items,
            QStringList({"title:\tsearch_help_title", "name:\tsearch_help_name", "maker:\tsearch_help_maker",
                         "year:\tsearch_help_year", "status:\tsearch_help_status", "type:\tsearch_help_type",
                         "parent:\tsearch_help_parent", "clone:\tsearch_help_clone",
                         "have:\tsearch_help_have", "device:\tsearch_help_device", "", "search_keep"}));
        QVERIFY(field.isClearButtonEnabled());
    }
};

TESSERA_TEST(CatalogueWordsTest);
#include "cataloguewordstest.moc"
