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
</context>
</TS>
