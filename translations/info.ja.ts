<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="info_no_file"><source></source><translation>“%1”はファイルではありません。</translation></message>
    <message id="info_not_read"><source></source><translation>“%1”を読み込めませんでした: %2</translation></message>
    <message id="info_too_large"><source></source><translation>“%1”は履歴ファイルとしては大きすぎます。</translation></message>
    <message id="info_not_decoded"><source></source><translation>“%1”の文字コードを判別できませんでした。</translation></message>
    <message id="info_bad_xml"><source></source><translation>“%1”は XML 形式の履歴ファイルではありません: %2</translation></message>
    <message id="history_filed_under"><source></source><translation>“%1”の項目に記載</translation></message>
</context>
</TS>
