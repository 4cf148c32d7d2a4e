<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="failure_plist_binary"><source></source><translation>“%1” is a broken property list in binary form.</translation></message>
    <message id="failure_plist_empty"><source></source><translation>“%1” is empty.</translation></message>
    <message id="failure_plist_encoding"><source></source><translation>“%1” is not a text in UTF-8.</translation></message>
    <message id="failure_plist_foreign"><source></source><translation>“%1” is not a property list. Its outermost element is “%2”.</translation></message>
    <message id="failure_plist_large"><source></source><translation>“%1” is too large, or nested too deeply.</translation></message>
    <message id="failure_plist_library"><source></source><translation>“%1” could not be read as a property list.</translation></message>
    <message id="failure_plist_malformed"><source></source><translation>“%1” is not a well-formed property list (line %2).</translation></message>
    <message id="failure_plist_nofile"><source></source><translation>“%1” is a folder or a device, not a file.</translation></message>
    <message id="failure_plist_read"><source></source><translation>“%1” could not be read: %2.</translation></message>
    <message id="failure_plist_truncated"><source></source><translation>“%1” is incomplete. It breaks off before its end.</translation></message>
    <message id="failure_write"><source></source><translation>“%1” could not be written: %2.</translation></message>
</context>
</TS>
