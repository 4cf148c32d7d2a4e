<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="info_no_file"><source></source><translation>“%1” is not a file.</translation></message>
    <message id="info_not_read"><source></source><translation>“%1” cannot be read: %2</translation></message>
    <message id="info_too_large"><source></source><translation>“%1” is too large for a history file.</translation></message>
    <message id="info_not_decoded"><source></source><translation>“%1” is not text in any encoding that is known here.</translation></message>
    <message id="info_bad_xml"><source></source><translation>“%1” is not a history file in XML form: %2</translation></message>
    <message id="history_filed_under"><source></source><translation>Filed under %1</translation></message>
    <message id="history_title"><source></source><translation>History and Info</translation></message>
    <message id="history_set"><source></source><translation>Set name</translation></message>
    <message id="history_parent"><source></source><translation>Parent</translation></message>
    <message id="history_find"><source></source><translation>Find in the text</translation></message>
    <message id="history_found_of"><source></source><translation>%1 of %2</translation></message>
    <message id="history_not_found"><source></source><translation>Not found</translation></message>
    <message id="history_smaller"><source></source><translation>Smaller text</translation></message>
    <message id="history_bigger"><source></source><translation>Bigger text</translation></message>
    <message id="history_choose"><source></source><translation>Choose history.dat…</translation></message>
    <message id="mameinfo_choose"><source></source><translation>Choose mameinfo.dat…</translation></message>
    <message id="history_follow"><source></source><translation>Follow the selection</translation></message>
    <message id="history_loading"><source></source><translation>Reading the files…</translation></message>
    <message id="infosite_heading"><source></source><translation>Information sites</translation></message>
    <message id="infosite_explanation"><source></source><translation>Web pages about a game, opened in your browser by Game › Information Page.</translation></message>
    <message id="infosite_number"><source></source><translation>Information site %1</translation></message>
    <message id="infosite_site"><source></source><translation>&amp;Site</translation></message>
    <message id="infosite_host"><source></source><translation>&amp;Host</translation></message>
    <message id="infosite_choice"><source></source><translation>Information site</translation></message>
    <message id="infosite_address"><source></source><translation>Address of another site</translation></message>
    <message id="infosite_template"><source></source><translation>&amp;Page</translation></message>
    <message id="infosite_note"><source></source><translation>{$gamename} stands for the set name. Sites come and go, so each needs its host here before it can be asked.</translation></message>
    <message id="infosite_url"><source></source><translation>&amp;Address</translation></message>
    <message id="infosite_open"><source></source><translation>&amp;Open</translation></message>
    <message id="infosite_no_host"><source></source><translation>Information site %1 has no host yet: Preferences › Support › Information sites.</translation></message>
    <message id="support_sites"><source></source><translation>Information sites</translation></message>
</context>
</TS>
