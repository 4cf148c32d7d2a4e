<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="chip_all"><source></source><translation>All</translation></message>
    <message id="chip_bios"><source></source><translation>BIOS</translation></message>
    <message id="chip_favorites"><source></source><translation>Favourites</translation></message>
    <message id="chip_games"><source></source><translation>Games</translation></message>
    <message id="chip_have_rom"><source></source><translation>Have ROM</translation></message>
    <message id="chip_parents"><source></source><translation>Parents</translation></message>
    <message id="chip_playable"><source></source><translation>Playable</translation></message>
    <message id="chip_working"><source></source><translation>Working</translation></message>
    <message id="failure_store_binary"><source></source><translation>“%1” is not a catalogue: it holds binary data.</translation></message>
    <message id="failure_store_empty"><source></source><translation>“%1” is empty.</translation></message>
    <message id="failure_store_encoding"><source></source><translation>“%1” holds bytes that are not valid %2 text.</translation></message>
    <message id="failure_store_foreign"><source></source><translation>“%1” is not a catalogue: its outermost element is “%2”.</translation></message>
    <message id="failure_store_malformed"><source></source><translation>“%1” is not well-formed XML (line %2).</translation></message>
    <message id="failure_store_missing"><source></source><translation>“%1” does not exist.</translation></message>
    <message id="failure_store_model"><source></source><translation>“%1” is not a catalogue: it holds objects of another program, but no game record.</translation></message>
    <message id="failure_store_nofile"><source></source><translation>“%1” is a folder or a device, not a file.</translation></message>
    <message id="failure_store_none"><source></source><translation>“%1” did not exist, so there is no catalogue to save.</translation></message>
    <message id="failure_store_read"><source></source><translation>“%1” could not be read: %2.</translation></message>
    <message id="failure_store_truncated"><source></source><translation>“%1” is incomplete: it ends too early.</translation></message>
    <message id="failure_store_unread"><source></source><translation>“%1” could not be read before, so it is not overwritten.</translation></message>
    <message id="search_help_clone"><source></source><translation>A clone of another set: clone:yes, clone:no</translation></message>
    <message id="search_help_device"><source></source><translation>Its first media device: device:cdrom, device:cassette</translation></message>
    <message id="search_help_have"><source></source><translation>Its ROMs are in your folders: have:yes, have:no; have:own for an archive of its own, have:parent where only the parent’s is there</translation></message>
    <message id="search_help_maker"><source></source><translation>The maker’s name holds this text: maker:konami, maker:&quot;taito corporation&quot;</translation></message>
    <message id="search_help_name"><source></source><translation>Its set name holds this text: name:sf2</translation></message>
    <message id="search_help_parent"><source></source><translation>The set of this name and its clones: parent:puckman</translation></message>
    <message id="search_help_status"><source></source><translation>How well the emulator runs it: status:good, status:imperfect, status:preliminary; status:working is good or imperfect</translation></message>
    <message id="search_help_title"><source></source><translation>One of its titles holds this: title:gradius, title:&quot;road fighter&quot;</translation></message>
    <message id="search_help_type"><source></source><translation>The kind of machine: type:game, type:bios, type:mechanical, type:device</translation></message>
    <message id="search_help_year"><source></source><translation>Released in this year or span: year:1985, year:85, year:80s, year:1985-1989, year:1985-, year:-1989</translation></message>
    <message id="search_near_key"><source></source><translation>“%1” is not a search term. Did you mean “%3:”? The terms are: %2. Quotation marks search for the text itself.</translation></message>
    <message id="search_nearest"><source></source><translation>Nothing has these letters. Nearest:</translation></message>
    <message id="search_no_value"><source></source><translation>“%1” lacks a value.</translation></message>
    <message id="search_no_words"><source></source><translation>“%1” holds nothing to search for.</translation></message>
    <message id="search_open_quote"><source></source><translation>The closing quotation mark is missing.</translation></message>
    <message id="search_reversed_years"><source></source><translation>“%1” ends before it begins.</translation></message>
    <message id="search_wrong_key"><source></source><translation>“%1” is not a search term. The terms are: %2. Quotation marks search for the text itself.</translation></message>
    <message id="search_wrong_value"><source></source><translation>“%1” is not a value for “%2”. Its values are: %3.</translation></message>
    <message id="search_wrong_year"><source></source><translation>“%1” is not a year or a span of years such as 1985, 85, 80s, 1985-1989, 1985- or -1989.</translation></message>
    <message id="undo_edit_record"><source></source><translation>Edit Record</translation></message>
    <message id="undo_remove_records"><source></source><translation>Remove Machines</translation></message>
    <message id="compare_is"><source></source><translation>is</translation></message>
    <message id="compare_isnot"><source></source><translation>is not</translation></message>
    <message id="compare_contains"><source></source><translation>contains</translation></message>
    <message id="compare_containsnot"><source></source><translation>does not contain</translation></message>
    <message id="compare_begins"><source></source><translation>begins with</translation></message>
    <message id="compare_ends"><source></source><translation>ends with</translation></message>
</context>
</TS>
