<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="menu_file"><source></source><translation>ファイル(&amp;F)</translation></message>
    <message id="menu_edit"><source></source><translation>編集(&amp;E)</translation></message>
    <message id="menu_game"><source></source><translation>ゲーム(&amp;G)</translation></message>
    <message id="menu_emulator"><source></source><translation>エミュレータ(&amp;M)</translation></message>
    <message id="menu_window"><source></source><translation>ウインドウ(&amp;W)</translation></message>
    <message id="menu_openrom"><source></source><translation>ROM ファイルを開く(&amp;O)…</translation></message>
    <message id="menu_recent"><source></source><translation>最近使った項目(&amp;R)</translation></message>
    <message id="menu_norecent"><source></source><translation>まだありません</translation></message>
    <message id="menu_save"><source></source><translation>カタログを保存(&amp;S)</translation></message>
    <message id="menu_rebuild"><source></source><translation>MAME からカタログを再作成…</translation></message>
    <message id="menu_tools"><source></source><translation>カタログツール(&amp;T)</translation></message>
    <message id="menu_savelog"><source></source><translation>ログを保存(&amp;L)…</translation></message>
    <message id="menu_quit"><source></source><translation>終了(&amp;Q)</translation></message>
    <message id="menu_undo"><source></source><translation>取り消す(&amp;U)</translation></message>
    <message id="menu_redo"><source></source><translation>やり直す(&amp;R)</translation></message>
    <message id="menu_editcell"><source></source><translation>項目を編集(&amp;F) (F2)</translation></message>
    <message id="menu_preferences"><source></source><translation>環境設定(&amp;P)</translation></message>
    <message id="menu_reset"><source></source><translation>すべての設定を初期値に戻す</translation></message>
    <message id="menu_play"><source></source><translation>プレイ(&amp;P)</translation></message>
    <message id="menu_stop"><source></source><translation>停止(&amp;S)</translation></message>
    <message id="menu_emulatorfile"><source></source><translation>エミュレータを選択(&amp;E)…</translation></message>
    <message id="menu_romfolder"><source></source><translation>ROM フォルダを選択(&amp;R)…</translation></message>
    <message id="menu_main"><source></source><translation>ゲームリスト(&amp;G)</translation></message>
    <message id="menu_log"><source></source><translation>ログ(&amp;L)</translation></message>
    <message id="main_list"><source></source><translation>ゲームの一覧</translation></message>
    <message id="main_play"><source></source><translation>プレイ</translation></message>
    <message id="main_stop"><source></source><translation>ゲームを停止</translation></message>
    <message id="main_log"><source></source><translation>ログ</translation></message>
    <message id="main_tools"><source></source><translation>カタログツール</translation></message>
    <message id="main_preferences"><source></source><translation>環境設定</translation></message>
    <message id="main_count"><source></source><translation>%1 台</translation></message>
    <message id="main_count_some"><source></source><translation>%2 台中 %1 台</translation></message>
    <message id="main_progress"><source></source><translation>処理中</translation></message>
    <message id="main_no_emulator"><source></source><translation>エミュレータが選択されていません</translation></message>
    <message id="preferences_title"><source></source><translation>環境設定</translation></message>
    <message id="preferences_reset"><source></source><translation>すべての設定を初期値に戻す</translation></message>
    <message id="preferences_ini"><source></source><translation>すべての設定を初期値に戻しました。選択したファイルとフォルダはそのままです。</translation></message>
    <message id="empty_catalogue"><source></source><translation>カタログにマシンがありません。このコンピュータの MAME から作成すると、MAME が知っているすべてのマシンが並びます。</translation></message>
    <message id="rebuild_from_mame"><source></source><translation>MAME から作成…</translation></message>
    <message id="rebuild_button"><source></source><translation>再作成</translation></message>
    <message id="rebuild_cancel"><source></source><translation>キャンセル</translation></message>
    <message id="rebuild_running"><source></source><translation>%1 からカタログを作成しています</translation></message>
    <message id="rebuild_count"><source></source><translation>%1 台</translation></message>
    <message id="rebuild_progress"><source></source><translation>カタログを作成中</translation></message>
    <message id="rebuild_unsaved_message"><source></source><translation>カタログに保存していない変更があります。破棄して再作成しますか?</translation></message>
    <message id="rebuild_unsaved_info"><source></source><translation>再作成するとすべてのレコードが置き換わります。最後に保存したファイルは日付付きの名前で残ります。</translation></message>
    <message id="rebuild_same_message"><source></source><translation>カタログはこの MAME から作成済みです。それでも再作成しますか?</translation></message>
    <message id="rebuild_same_info"><source></source><translation>その後エミュレータは変わっていません。現在のファイルは日付付きの名前で残ります。</translation></message>
    <message id="rebuild_no_emulator"><source></source><translation>エミュレータが選択されていないため、作成できません。</translation></message>
    <message id="rebuild_cancelled"><source></source><translation>作成を中止しました。カタログは元のままです。</translation></message>
    <message id="rebuild_done"><source></source><translation>カタログを作成しました（%1台）。</translation></message>
    <message id="rebuild_without_titles"><source></source><translation>日本語タイトルはありません。%1</translation></message>
    <message id="rebuild_failed"><source></source><translation>カタログを作成できませんでした。元のままです。</translation></message>
    <message id="rebuild_outdated"><source></source><translation>カタログの作成後にエミュレータが変わりました。</translation></message>
    <message id="failure_no_profile"><source></source><translation>“%1”は使用できるオプションを答えませんでした。</translation></message>
    <message id="failure_no_emulator"><source></source><translation>エミュレータが見つかりません。環境設定で選択してください。</translation></message>
    <message id="failure_exec"><source></source><translation>“%1”を起動できませんでした: %2</translation></message>
    <message id="rebuild_offer"><source></source><translation>このコンピュータの MAME に、知っているすべてのマシンを問い合わせて、カタログを作成できます。</translation></message>
    <message id="empty_rebuilding"><source></source><translation>カタログができあがると、ここにマシンが並びます。</translation></message>
    <message id="menu_logfront"><source></source><translation>ログを最前面に(&amp;F)</translation></message>
</context>
</TS>
