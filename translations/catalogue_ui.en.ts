<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="column_name"><source></source><translation>Set</translation></message>
    <message id="column_title"><source></source><translation>Title</translation></message>
    <message id="column_titlejp"><source></source><translation>Japanese title</translation></message>
    <message id="column_second_down"><source></source><translation>Equal ones are in this column’s order, descending.</translation></message>
    <message id="column_second_up"><source></source><translation>Equal ones are in this column’s order, ascending.</translation></message>
    <message id="column_year"><source></source><translation>Year</translation></message>
    <message id="column_maker"><source></source><translation>Maker</translation></message>
    <message id="column_cloneof"><source></source><translation>Parent</translation></message>
    <message id="column_device"><source></source><translation>Device</translation></message>
    <message id="fact_name"><source></source><translation>Set</translation></message>
    <message id="fact_cloneof"><source></source><translation>Parent</translation></message>
    <message id="fact_maker"><source></source><translation>Maker</translation></message>
    <message id="fact_year"><source></source><translation>Year</translation></message>
    <message id="fact_device"><source></source><translation>Device</translation></message>
    <message id="fact_status"><source></source><translation>Driver</translation></message>
    <message id="facts_several"><source></source><translation>%1 machines selected</translation></message>
    <message id="facts_none"><source></source><translation>No machine selected</translation></message>
    <message id="fact_rom"><source></source><translation>ROM</translation></message>
    <message id="have_here"><source></source><translation>found</translation></message>
    <message id="have_in_parent"><source></source><translation>with its parent, %1</translation></message>
    <message id="have_missing"><source></source><translation>not found</translation></message>
    <message id="row_clone"><source></source><translation>clone</translation></message>
    <message id="row_clones_shown" numerus="yes"><source></source><translation><numerusform>%n clone shown</numerusform><numerusform>%n clones shown</numerusform></translation></message>
    <message id="row_clones_folded" numerus="yes"><source></source><translation><numerusform>%n clone folded</numerusform><numerusform>%n clones folded</numerusform></translation></message>
    <message id="column_status"><source></source><translation>Driver</translation></message>
    <message id="column_type"><source></source><translation>Kind</translation></message>
    <message id="record_remove_Message"><source></source><translation>Remove the selected machines from the catalogue?</translation></message>
    <message id="record_remove_Info"><source></source><translation>The ROM files stay where they are. Undo brings the machines back as long as Tessera runs; the catalogue file changes when it is saved.</translation></message>
    <message id="remove"><source></source><translation>Remove</translation></message>
    <message id="editor_window"><source></source><translation>Record Editor</translation></message>
    <message id="appearance_font"><source></source><translation>List font</translation></message>
    <message id="appearance_favoritefont"><source></source><translation>Favourites font</translation></message>
    <message id="appearance_choosefont"><source></source><translation>Choose…</translation></message>
    <message id="appearance_size"><source></source><translation>Size</translation></message>
    <message id="appearance_smaller"><source></source><translation>Smaller</translation></message>
    <message id="appearance_bigger"><source></source><translation>Bigger</translation></message>
    <message id="appearance_rows"><source></source><translation>Rows</translation></message>
    <message id="appearance_coloring"><source></source><translation>Show which machines have a ROM archive</translation></message>
    <message id="appearance_color"><source></source><translation>Text</translation></message>
    <message id="appearance_color2"><source></source><translation>Without an archive</translation></message>
    <message id="appearance_initialcolor"><source></source><translation>Initial colour of the text</translation></message>
    <message id="appearance_initialcolor2"><source></source><translation>Initial colour without an archive</translation></message>
    <message id="appearance_note"><source></source><translation>An archive is looked for under the set name in the ROM folder: pong.zip.</translation></message>
    <message id="search_placeholder"><source></source><translation>Search title, set, maker, year</translation></message>
    <message id="search_field"><source></source><translation>Search</translation></message>
    <message id="search_return_again"><source></source><translation>This is only the nearest. Return starts “%1” when it is pressed again.</translation></message>
    <message id="search_terms"><source></source><translation>Search terms</translation></message>
    <message id="makers_popup"><source></source><translation>Makers</translation></message>
    <message id="search_keep"><source></source><translation>Keep This Search…</translation></message>
    <message id="search_last"><source></source><translation>Last searches</translation></message>
    <message id="search_last_none"><source></source><translation>Nothing has been searched for yet</translation></message>
    <message id="search_last_forget"><source></source><translation>Forget These</translation></message>
    <message id="kept_chip"><source></source><translation>Kept search “%1”: %2</translation></message>
    <message id="kept_rename"><source></source><translation>Rename…</translation></message>
    <message id="kept_remove"><source></source><translation>Remove</translation></message>
    <message id="kept_left"><source></source><translation>Move Left</translation></message>
    <message id="kept_right"><source></source><translation>Move Right</translation></message>
    <message id="kept_removed"><source></source><translation>“%1” is kept no more. What it searched for is among the last searches.</translation></message>
    <message id="searchname_keep_title"><source></source><translation>Keep Search</translation></message>
    <message id="searchname_rename_title"><source></source><translation>Rename Kept Search</translation></message>
    <message id="searchname_field"><source></source><translation>Name</translation></message>
    <message id="searchname_query"><source></source><translation>Searches for: %1</translation></message>
    <message id="searchname_keep"><source></source><translation>Keep</translation></message>
    <message id="searchname_rename"><source></source><translation>Rename</translation></message>
    <message id="searchname_replace"><source></source><translation>Replace</translation></message>
    <message id="searchname_cancel"><source></source><translation>Cancel</translation></message>
    <message id="searchname_replaces"><source></source><translation>“%1” is kept already, for: %2. It will be replaced.</translation></message>
    <message id="searchname_taken"><source></source><translation>“%1” is the name of another kept search.</translation></message>
    <message id="chips_families"><source></source><translation>Families</translation></message>
    <message id="chips_families_help"><source></source><translation>Fold clones beneath their parents</translation></message>
    <message id="hides_search"><source></source><translation>search</translation></message>
    <message id="hides_maker"><source></source><translation>maker is “%1”</translation></message>
    <message id="hides_families"><source></source><translation>families folded</translation></message>
    <message id="filter_window"><source></source><translation>Filter</translation></message>
    <message id="filter_heading"><source></source><translation>Show machines for which</translation></message>
    <message id="filter_join"><source></source><translation>How the rows are joined</translation></message>
    <message id="filter_all"><source></source><translation>all rows hold</translation></message>
    <message id="filter_any"><source></source><translation>any row holds</translation></message>
    <message id="filter_add"><source></source><translation>Add row</translation></message>
    <message id="filter_clear"><source></source><translation>Clear</translation></message>
    <message id="filter_hint"><source></source><translation>Without rows every machine is shown.</translation></message>
    <message id="filter_field"><source></source><translation>Field</translation></message>
    <message id="filter_comparison"><source></source><translation>Comparison</translation></message>
    <message id="filter_value"><source></source><translation>Value</translation></message>
    <message id="filter_remove"><source></source><translation>Remove this row</translation></message>
    <message id="filter_maker"><source></source><translation>One maker only</translation></message>
    <message id="filter_maker_placeholder"><source></source><translation>The maker exactly as it stands in the list</translation></message>
    <message id="filter_maker_apply"><source></source><translation>Filter</translation></message>
    <message id="filter_maker_clear"><source></source><translation>Show every maker</translation></message>
    <message id="filter_maker_none"><source></source><translation>Every maker is shown.</translation></message>
    <message id="filter_maker_empty"><source></source><translation>Only machines with an empty maker are shown.</translation></message>
    <message id="hides_rules" numerus="yes"><source></source><translation><numerusform>%n filter row</numerusform><numerusform>%n filter rows</numerusform></translation></message>
    <message id="appearance_language"><source></source><translation>Language</translation></message>
    <message id="appearance_language_system"><source></source><translation>That of the system</translation></message>
    <message id="appearance_language_note"><source></source><translation>The windows are in it from the next start on.</translation></message>
    <message id="choose_archive"><source></source><translation>Choose a ROM Archive</translation></message>
</context>
</TS>
