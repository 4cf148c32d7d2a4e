<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="panel_close"><source></source><translation>Close</translation></message>
    <message id="panel_minimise"><source></source><translation>Minimise</translation></message>
</context>
</TS>
