<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="artwork_snapshot"><source></source><translation>Snapshot</translation></message>
    <message id="artwork_title"><source></source><translation>Title Snapshot</translation></message>
    <message id="artwork_flyer"><source></source><translation>Game Flyer</translation></message>
    <message id="picture_none"><source></source><translation>There is no picture of “%2” in “%1”.</translation></message>
    <message id="download_no_address"><source></source><translation>“%1” is not the address of a picture on the web.</translation></message>
    <message id="download_no_name"><source></source><translation>“%1” names no file.</translation></message>
    <message id="download_silent"><source></source><translation>“%1” does not answer.</translation></message>
</context>
</TS>
