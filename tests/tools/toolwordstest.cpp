#include "support/words.h"
#include "tools/ui/conversionpage.h"
#include "tools/ui/existencepage.h"
#include "tools/ui/favouritespage.h"
#include "tools/ui/scriptpage.h"
#include "tools/ui/separationpage.h"
#include "tools/ui/verificationpage.h"
#include "tools/utilitystage.h"

#include <QListWidget>

using namespace tessera;

namespace {

// clang-format off
const QStringList scriptPageSays{
    "emulatorPop: SDL MAME / MAME OS X / mode_application / named script_emulator",
    "filenamePop: script_setname / script_title / script_titlejp / script_noname / script_emulatorsetname / script_emulatortitle / script_emulatortitlejp / named script_filename",
    "preoptionPop: script_withoptions / script_withoutoptions / named script_options",
    ": script_page",
    ": script_explanation",
    ": named script_format",
    "formatPop: script_tool / script_sh / script_scpt / named script_format",
    "scriptimageView: named script_tool",
    ": script_format / for formatPop",
    ": script_emulator / for emulatorPop",
    ": script_options / for preoptionPop",
    ": script_filename / for filenamePop",
};

const QStringList favouritesPageSays{
    "hiddenText: favourites_hidden",
    "button_showAll: favourites_showall",
    ": favourites_page",
    ": favourites_explanation",
    ": named favourites_file",
    "favoritesTextField: named favourites_file",
    "button_favorites: tool_choose / named tool_choose: favourites_file",
    "reveal_favorites: named tool_reveal: favourites_file / tip tool_reveal",
    ": favourites_file",
};

const QStringList verificationPageSays{
    ": verification_page",
    ": verification_explanation",
    ": named verification_file",
    "verifyromsTextField: named verification_file",
    "button_verifyroms: tool_choose / named tool_choose: verification_file",
    "reveal_verifyroms: named tool_reveal: verification_file / tip tool_reveal",
    ": verification_file",
    ": named verification_verdicts",
    "verifyButton1: is good / tip verdict_isgood",
    "verifyButton2: is best available / tip verdict_isbesta",
    "verifyButton9: INCORRECT LENGTH / tip verdict_iclength",
    "verifyButton10: INCORRECT CHECKSUM / tip verdict_iccsum",
    "verifyButton3: NEEDS REDUMP / tip verdict_nredump",
    "verifyButton4: NO GOOD DUMP KNOWN / tip verdict_ngdk",
    "verifyButton6: is bad / tip verdict_isbad",
    "verifyButton7: NOT FOUND / tip verdict_notfound",
    "verifyButton8: NOT FOUND (shared with parent) / tip verdict_nfsparent",
    "verifyButton_nfngd: NOT FOUND - NO GOOD DUMP KNOWN / tip verdict_nfngd",
    "verifyButton_nfbo: NOT FOUND BUT OPTIONAL / tip verdict_nfbo",
    "verifyButton5: Other / tip verdict_other",
    ": verification_verdicts",
    "setList: named verification_sets",
    ": verification_empty",
    "setDetails: named verification_details",
};

const QStringList separationPageSays{
    "separationList: named separation_page",
    ": separation_empty",
    "failedCopies: named separation_failures",
    ": separation_page",
    ": separation_explanation",
    ": named tool_roms",
    "rompathTextField1: named tool_roms",
    "button_rompath1: tool_choose / named tool_choose: tool_roms",
    "reveal_rompath1: named tool_reveal: tool_roms / tip tool_reveal",
    ": tool_roms",
    ": named tool_listfull",
    "listfullTextField1: named tool_listfull",
    "button_listfull1: tool_choose / named tool_choose: tool_listfull",
    "reveal_listfull1: named tool_reveal: tool_listfull / tip tool_reveal",
    ": tool_listfull",
    ": named separation_destination",
    "movepathTextField: named separation_destination",
    "button_movepath: tool_choose / named tool_choose: separation_destination",
    "reveal_movepath: named tool_reveal: separation_destination / tip tool_reveal",
    ": separation_destination",
};

const QStringList existencePageSays{
    "foundBar: named existence_bar",
    "reportList: named existence_page",
    ": existence_empty",
    ": existence_page",
    ": existence_explanation",
    ": named tool_listfull",
    "listfullTextField2: named tool_listfull",
    "button_listfull2: tool_choose / named tool_choose: tool_listfull",
    "reveal_listfull2: named tool_reveal: tool_listfull / tip tool_reveal",
    ": tool_listfull",
    ": named tool_roms",
    "rompathTextField2: named tool_roms",
    "button_rompath2: tool_choose / named tool_choose: tool_roms",
    "reveal_rompath2: named tool_reveal: tool_roms / tip tool_reveal",
    ": tool_roms",
    "filterField: hint existence_filter / named existence_filter",
    "button_csv: existence_csv",
};

const QStringList conversionPageSays{
    ": convert_heading",
    ": convert_explanation",
    ": named convert_listxml",
    "listxmlTextField: named convert_listxml",
    "button_listxml: tool_choose / named tool_choose: convert_listxml",
    "reveal_listxml: named tool_reveal: convert_listxml / tip tool_reveal",
    ": convert_listxml",
    ": named convert_titles",
    "mame32jpTextField: named convert_titles",
    "button_mame32jp: tool_choose / named tool_choose: convert_titles",
    "reveal_mame32jp: named tool_reveal: convert_titles / tip tool_reveal",
    ": convert_titles",
    ": named convert_leave_out",
    "button_isbios: convert_bios",
    "button_ismechanical: convert_mechanical",
    "button_isdevice: convert_devices",
    ": convert_leave_out / for button_isbios",
    "savedText: convert_nothing_saved",
    "button_useNow: convert_use",
    "button_changes: convert_changes",
    ": for button_useNow",
};

const QStringList footSays{
    "infoTextField: named tool_information",
    "progressInd: named tool_progress",
    "button_cancel: tool_cancel",
    "button_launcher: script_launcher / tip script_launcher_tip",
    "button_make: script_make",
    "button_convert3: favourites_convert",
    "button_ask3: tool_from_mame / tip verification_ask_tip",
    "button_convert2: verification_convert",
    "button_check1: separation_check",
    "button_separete: separation_separate",
    "button_save: existence_save",
    "button_ask2: tool_from_mame / tip existence_ask_tip",
    "button_check2: existence_check",
    "button_convert: convert_button",
};

// clang-format on

} // namespace

/// What the window of the tools says, page by page.
class ToolWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageSaysWhatItIsFor()
    {
        const test::UtilityStage stage;
        const UtilityWindow& window = stage.window;
        QCOMPARE(window.windowTitle(), "tool_title");
        QCOMPARE(window.pageList->accessibleName(), "tool_pages");
        QCOMPARE(test::wordsOf(*window.scriptPage), scriptPageSays);
        QCOMPARE(test::wordsOf(*window.favouritesPage), favouritesPageSays);
        QCOMPARE(test::wordsOf(*window.verificationPage), verificationPageSays);
        QCOMPARE(test::wordsOf(*window.separationPage), separationPageSays);
        QCOMPARE(test::wordsOf(*window.existencePage), existencePageSays);
        QCOMPARE(test::wordsOf(*window.conversionPage), conversionPageSays);
        QCOMPARE(test::wordsOf(*window.foot), footSays);
    }

    void thePagesStandInTheirOrder()
    {
        const test::UtilityStage stage;
        QStringList titles;
        for (int row = 0; row < stage.window.pageList->count(); ++row)
            titles << stage.window.pageList->item(row)->text();
        QCOMPARE(titles,
                 (QStringList{"convert_page", "existence_page", "separation_page", "verification_page",
                              "favourites_page", "script_page"}));
    }
};

TESSERA_TEST(ToolWordsTest);
#include "toolwordstest.moc"
