<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="panel_close"><source></source><translation>閉じる</translation></message>
    <message id="panel_minimise"><source></source><translation>最小化</translation></message>
</context>
</TS>
