<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="failure_favourites_foreign"><source></source><translation>“%1”はリストではありません。</translation></message>
    <message id="undo_add_favourite"><source></source><translation>お気に入りへの追加</translation></message>
    <message id="undo_edit_favourite"><source></source><translation>お気に入りの編集</translation></message>
    <message id="undo_remove_favourites"><source></source><translation>お気に入りからの削除</translation></message>
    <message id="column_option"><source></source><translation>オプション</translation></message>
    <message id="column_times"><source></source><translation>回数</translation></message>
    <message id="column_last"><source></source><translation>最後に遊んだ日時</translation></message>
    <message id="favourites_saved"><source></source><translation>お気に入りを保存しました。</translation></message>
    <message id="favourite_gone"><source></source><translation>“%1”はもうカタログにありません。</translation></message>
    <message id="favourite_editor"><source></source><translation>お気に入りの編集</translation></message>
    <message id="favourite_none"><source></source><translation>お気に入りが選択されていません</translation></message>
    <message id="favourite_option_hint"><source></source><translation>このゲームだけの追加オプション（空白1つで区切る）</translation></message>
    <message id="favourite_option_unknown"><source></source><translation>お使いのエミュレーターに%1というオプションはありません。</translation></message>
    <message id="favourite_option_blank"><source></source><translation>余分な空白は空の引数として渡されます。</translation></message>
    <message id="favourite_command"><source></source><translation>コマンドライン</translation></message>
    <message id="favourite_copy"><source></source><translation>コピー(&amp;O)</translation></message>
    <message id="played_clear_message"><source></source><translation>遊んだ記録を消去しますか？</translation></message>
    <message id="played_clear_info"><source></source><translation>すべてのゲームの回数と日時が消えます。この操作は取り消せません。</translation></message>
    <message id="played_clear"><source></source><translation>消去</translation></message>
    <message id="favorites_remove_message"><source></source><translation>選択したデータを削除しますか?</translation></message>
    <message id="favorites_remove_info"><source></source><translation>処理を中止する場合は「キャンセル」を選択してください。</translation></message>
</context>
</TS>
