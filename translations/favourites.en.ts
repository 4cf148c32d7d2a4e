<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="failure_favourites_foreign"><source></source><translation>“%1” is not a list.</translation></message>
    <message id="undo_add_favourite"><source></source><translation>Add to Favourites</translation></message>
    <message id="undo_edit_favourite"><source></source><translation>Edit Favourite</translation></message>
    <message id="undo_remove_favourites"><source></source><translation>Remove from Favourites</translation></message>
    <message id="column_option"><source></source><translation>Options</translation></message>
    <message id="column_times"><source></source><translation>Played</translation></message>
    <message id="column_last"><source></source><translation>Last played</translation></message>
    <message id="favourites_saved"><source></source><translation>Favourites saved.</translation></message>
    <message id="favourite_gone"><source></source><translation>“%1” is not in the catalogue any more.</translation></message>
    <message id="favourite_editor"><source></source><translation>Favourite</translation></message>
    <message id="favourite_none"><source></source><translation>No favourite selected</translation></message>
    <message id="favourite_option_hint"><source></source><translation>Extra options for this game, one blank between words</translation></message>
    <message id="favourite_option_unknown"><source></source><translation>Your emulator does not list %1.</translation></message>
    <message id="favourite_option_blank"><source></source><translation>A blank too many is sent as an empty word.</translation></message>
    <message id="favourite_command"><source></source><translation>Command line</translation></message>
    <message id="favourite_copy"><source></source><translation>C&amp;opy</translation></message>
    <message id="played_clear_message"><source></source><translation>Forget which games were played?</translation></message>
    <message id="played_clear_info"><source></source><translation>How often and when last goes for every game. This cannot be undone.</translation></message>
    <message id="played_clear"><source></source><translation>Forget</translation></message>
    <message id="favorites_remove_message"><source></source><translation>Remove selected data?</translation></message>
    <message id="favorites_remove_info"><source></source><translation>If you stop processing, please choose Cancel.</translation></message>
</context>
</TS>
