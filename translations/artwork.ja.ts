<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="artwork_snapshot"><source></source><translation>スナップショット</translation></message>
    <message id="artwork_title"><source></source><translation>タイトル画面</translation></message>
    <message id="artwork_flyer"><source></source><translation>フライヤー</translation></message>
    <message id="picture_none"><source></source><translation>“%1”に“%2”の画像はありません。</translation></message>
    <message id="download_no_address"><source></source><translation>“%1”はウェブ上の画像のアドレスではありません。</translation></message>
    <message id="download_no_name"><source></source><translation>“%1”にはファイル名がありません。</translation></message>
    <message id="download_silent"><source></source><translation>“%1”からの応答がありません。</translation></message>
</context>
</TS>
