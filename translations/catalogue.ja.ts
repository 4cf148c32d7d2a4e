<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="failure_store_binary"><source></source><translation>“%1”はカタログではありません。バイナリデータが含まれています。</translation></message>
    <message id="failure_store_empty"><source></source><translation>“%1”は空のファイルです。</translation></message>
    <message id="failure_store_encoding"><source></source><translation>“%1”に%2として正しくない文字が含まれています。</translation></message>
    <message id="failure_store_foreign"><source></source><translation>“%1”はカタログではありません。最も外側の要素が“%2”です。</translation></message>
    <message id="failure_store_library"><source></source><translation>“%1”をXMLとして読み込めませんでした: %2</translation></message>
    <message id="failure_store_malformed"><source></source><translation>“%1”は正しいXMLではありません（%2行目）。</translation></message>
    <message id="failure_store_missing"><source></source><translation>“%1”が見つかりません。</translation></message>
    <message id="failure_store_nofile"><source></source><translation>“%1”はファイルではなく、フォルダまたはデバイスです。</translation></message>
    <message id="failure_store_none"><source></source><translation>“%1”がなかったため、保存するカタログはありません。</translation></message>
    <message id="failure_store_read"><source></source><translation>“%1”を読み込めませんでした: %2</translation></message>
    <message id="failure_store_truncated"><source></source><translation>“%1”は途中で終わっており、不完全です。</translation></message>
    <message id="failure_store_unread"><source></source><translation>“%1”を読み込めなかったため、上書き保存は行いません。</translation></message>
    <message id="undo_edit_record"><source></source><translation>レコードの編集</translation></message>
</context>
</TS>
