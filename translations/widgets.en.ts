<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="fontpanel_title"><source></source><translation>Font</translation></message>
    <message id="fontpanel_filter"><source></source><translation>Find a font</translation></message>
    <message id="fontpanel_families"><source></source><translation>Families</translation></message>
    <message id="fontpanel_styles"><source></source><translation>Styles</translation></message>
    <message id="fontpanel_size"><source></source><translation>Size</translation></message>
    <message id="fontpanel_sample"><source></source><translation>Aa Gg 0123 あア亜</translation></message>
    <message id="panel_close"><source></source><translation>Close</translation></message>
    <message id="panel_minimise"><source></source><translation>Minimise</translation></message>
    <message id="editor_remove"><source></source><translation>&amp;Remove…</translation></message>
    <message id="editor_close"><source></source><translation>&amp;Close</translation></message>
    <message id="editor_previous"><source></source><translation>&amp;Previous</translation></message>
    <message id="editor_next"><source></source><translation>&amp;Next</translation></message>
    <message id="general"><source></source><translation>General</translation></message>
    <message id="video"><source></source><translation>Video</translation></message>
    <message id="effect"><source></source><translation>Effects</translation></message>
    <message id="av"><source></source><translation>Sound</translation></message>
    <message id="ioport"><source></source><translation>Input</translation></message>
    <message id="misc"><source></source><translation>Misc</translation></message>
    <message id="support"><source></source><translation>Support</translation></message>
    <message id="appearance"><source></source><translation>Look</translation></message>
</context>
</TS>
