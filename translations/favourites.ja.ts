<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="failure_favourites_foreign"><source></source><translation>“%1”はリストではありません。</translation></message>
    <message id="undo_add_favourite"><source></source><translation>お気に入りへの追加</translation></message>
    <message id="undo_edit_favourite"><source></source><translation>お気に入りの編集</translation></message>
    <message id="undo_remove_favourites"><source></source><translation>お気に入りからの削除</translation></message>
</context>
</TS>
