<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="failure_store_binary"><source></source><translation>“%1” is not a catalogue: it holds binary data.</translation></message>
    <message id="failure_store_empty"><source></source><translation>“%1” is empty.</translation></message>
    <message id="failure_store_encoding"><source></source><translation>“%1” holds bytes that are not valid %2 text.</translation></message>
    <message id="failure_store_foreign"><source></source><translation>“%1” is not a catalogue: its outermost element is “%2”.</translation></message>
    <message id="failure_store_library"><source></source><translation>“%1” could not be read as XML: %2.</translation></message>
    <message id="failure_store_malformed"><source></source><translation>“%1” is not well-formed XML (line %2).</translation></message>
    <message id="failure_store_missing"><source></source><translation>“%1” does not exist.</translation></message>
    <message id="failure_store_nofile"><source></source><translation>“%1” is a folder or a device, not a file.</translation></message>
    <message id="failure_store_none"><source></source><translation>“%1” did not exist, so there is no catalogue to save.</translation></message>
    <message id="failure_store_read"><source></source><translation>“%1” could not be read: %2.</translation></message>
    <message id="failure_store_truncated"><source></source><translation>“%1” is incomplete: it ends too early.</translation></message>
    <message id="failure_store_unread"><source></source><translation>“%1” could not be read before, so it is not overwritten.</translation></message>
    <message id="undo_edit_record"><source></source><translation>Edit Record</translation></message>
</context>
</TS>
