<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="bios_title"><source></source><translation>BIOS リスト</translation></message>
    <message id="bios_blank"><source></source><translation>BIOS なし</translation></message>
    <message id="bios_default"><source></source><translation>標準の BIOS</translation></message>
    <message id="bios_column_name"><source></source><translation>名称</translation></message>
    <message id="bios_column_bios"><source></source><translation>BIOS</translation></message>
    <message id="bios_column_rom"><source></source><translation>アーカイブ</translation></message>
    <message id="bios_add"><source></source><translation>項目を追加</translation></message>
    <message id="bios_remove"><source></source><translation>項目を削除</translation></message>
    <message id="bios_of_game"><source></source><translation>選択したゲームの BIOS</translation></message>
    <message id="bios_of_game_tip"><source></source><translation>選択したゲームで使える BIOS をエミュレータに問い合わせて追加します</translation></message>
    <message id="bios_rebuild"><source></source><translation>MAME から再構築</translation></message>
    <message id="bios_rebuild_tip"><source></source><translation>エミュレータのすべての BIOS を問い合わせます。自分で追加した項目は残ります</translation></message>
    <message id="bios_asking"><source></source><translation>エミュレータに問い合わせ中…</translation></message>
    <message id="bios_added"><source></source><translation>%1 件のセットを追加しました。</translation></message>
    <message id="bios_none_found"><source></source><translation>選べる BIOS はありません。</translation></message>
    <message id="bios_removed"><source></source><translation>“%1”を削除しました。Ctrl+Z で元に戻せます。</translation></message>
    <message id="bios_set_now"><source></source><translation>現在の設定: %1</translation></message>
    <message id="undo_add_bios"><source></source><translation>BIOS の追加</translation></message>
    <message id="undo_edit_bios"><source></source><translation>BIOS の編集</translation></message>
    <message id="undo_remove_bios"><source></source><translation>BIOS の削除</translation></message>
    <message id="undo_extend_bios"><source></source><translation>BIOS リストの拡張</translation></message>
    <message id="bios_no_list"><source></source><translation>“%1”は BIOS リストではありません。</translation></message>
    <message id="bios_not_started"><source></source><translation>“%1”を起動できませんでした: %2</translation></message>
    <message id="bios_no_answer"><source></source><translation>“%1”からリストを取得できませんでした。</translation></message>
</context>
</TS>
