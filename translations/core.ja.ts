<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="failure_plist_binary"><source></source><translation>“%1”はバイナリ形式のプロパティリストとして壊れています。</translation></message>
    <message id="failure_plist_empty"><source></source><translation>“%1”は空のファイルです。</translation></message>
    <message id="failure_plist_encoding"><source></source><translation>“%1”はUTF-8のテキストではありません。</translation></message>
    <message id="failure_plist_foreign"><source></source><translation>“%1”はプロパティリストではありません。最も外側の要素が“%2”です。</translation></message>
    <message id="failure_plist_large"><source></source><translation>“%1”は大きすぎるか、入れ子が深すぎます。</translation></message>
    <message id="failure_plist_library"><source></source><translation>“%1”をプロパティリストとして読み込めませんでした。</translation></message>
    <message id="failure_plist_malformed"><source></source><translation>“%1”は正しいプロパティリストではありません（%2行目）。</translation></message>
    <message id="failure_plist_nofile"><source></source><translation>“%1”はファイルではなく、フォルダまたはデバイスです。</translation></message>
    <message id="failure_plist_read"><source></source><translation>“%1”を読み込めませんでした: %2</translation></message>
    <message id="failure_plist_truncated"><source></source><translation>“%1”は途中で終わっており、不完全です。</translation></message>
    <message id="failure_write"><source></source><translation>“%1”に書き込めませんでした: %2</translation></message>
</context>
</TS>
