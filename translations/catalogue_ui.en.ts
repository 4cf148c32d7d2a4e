<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="column_name"><source></source><translation>Set</translation></message>
    <message id="column_title"><source></source><translation>Title</translation></message>
    <message id="column_titlejp"><source></source><translation>Japanese title</translation></message>
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
    <message id="facts_picture"><source></source><translation>Picture of the game</translation></message>
    <message id="facts_several"><source></source><translation>%1 machines selected</translation></message>
    <message id="facts_none"><source></source><translation>No machine selected</translation></message>
    <message id="column_status"><source></source><translation>Driver</translation></message>
    <message id="column_type"><source></source><translation>Kind</translation></message>
    <message id="record_remove_Message"><source></source><translation>Remove the selected machines from the catalogue?</translation></message>
    <message id="record_remove_Info"><source></source><translation>The ROM files stay where they are. Undo brings the machines back as long as Tessera runs; the catalogue file changes when it is saved.</translation></message>
    <message id="remove"><source></source><translation>Remove</translation></message>
    <message id="editor_window"><source></source><translation>Record Editor</translation></message>
    <message id="editor_remove"><source></source><translation>&amp;Remove…</translation></message>
    <message id="editor_close"><source></source><translation>&amp;Close</translation></message>
    <message id="editor_previous"><source></source><translation>&amp;Previous</translation></message>
    <message id="editor_next"><source></source><translation>&amp;Next</translation></message>
</context>
</TS>
