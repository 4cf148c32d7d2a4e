<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="bios_title"><source></source><translation>BIOS List</translation></message>
    <message id="bios_blank"><source></source><translation>No BIOS</translation></message>
    <message id="bios_default"><source></source><translation>Default BIOS</translation></message>
    <message id="bios_column_name"><source></source><translation>Name</translation></message>
    <message id="bios_column_bios"><source></source><translation>BIOS</translation></message>
    <message id="bios_column_rom"><source></source><translation>Archive</translation></message>
    <message id="bios_add"><source></source><translation>Add an entry</translation></message>
    <message id="bios_remove"><source></source><translation>Remove the entry</translation></message>
    <message id="bios_of_game"><source></source><translation>Of the Selected Game</translation></message>
    <message id="bios_of_game_tip"><source></source><translation>Asks the emulator what the selected game can choose from, and adds it</translation></message>
    <message id="bios_rebuild"><source></source><translation>Rebuild from MAME</translation></message>
    <message id="bios_rebuild_tip"><source></source><translation>Asks the emulator for every BIOS that it knows; your own entries stay</translation></message>
    <message id="bios_asking"><source></source><translation>Asking the emulator…</translation></message>
    <message id="bios_added"><source></source><translation>%1 sets added.</translation></message>
    <message id="bios_none_found"><source></source><translation>The emulator names no BIOS here.</translation></message>
    <message id="bios_removed"><source></source><translation>“%1” was removed. Ctrl+Z brings it back.</translation></message>
    <message id="bios_set_now"><source></source><translation>Set now: %1</translation></message>
    <message id="undo_add_bios"><source></source><translation>Add BIOS</translation></message>
    <message id="undo_edit_bios"><source></source><translation>Edit BIOS</translation></message>
    <message id="undo_remove_bios"><source></source><translation>Remove BIOS</translation></message>
    <message id="undo_extend_bios"><source></source><translation>Extend BIOS List</translation></message>
    <message id="bios_no_list"><source></source><translation>“%1” is not a BIOS list.</translation></message>
    <message id="bios_not_started"><source></source><translation>“%1” could not be started: %2</translation></message>
    <message id="bios_no_answer"><source></source><translation>“%1” gave no list.</translation></message>
</context>
</TS>
