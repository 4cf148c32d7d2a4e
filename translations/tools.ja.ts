<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="tool_title"><source></source><translation>カタログツール</translation></message>
    <message id="tool_pages"><source></source><translation>ツール</translation></message>
    <message id="tool_information"><source></source><translation>情報</translation></message>
    <message id="tool_progress"><source></source><translation>進行状況</translation></message>
    <message id="tool_choose"><source></source><translation>選択…</translation></message>
    <message id="tool_reveal"><source></source><translation>ファイルマネージャーで表示</translation></message>
    <message id="convert_page"><source></source><translation>カタログの作成</translation></message>
    <message id="convert_heading"><source></source><translation>カタログの作成</translation></message>
    <message id="convert_explanation"><source></source><translation>エミュレータの -listxml の出力を保存したファイルと、日本語タイトルのリストから作成します。結果は指定した場所に保存されます。</translation></message>
    <message id="convert_listxml"><source></source><translation>-listxml の出力(&amp;L)</translation></message>
    <message id="convert_titles"><source></source><translation>日本語タイトル(&amp;J)</translation></message>
    <message id="convert_leave_out"><source></source><translation>除外するもの</translation></message>
    <message id="convert_bios"><source></source><translation>BIOS セット(&amp;B)</translation></message>
    <message id="convert_mechanical"><source></source><translation>メカニカル(&amp;M)</translation></message>
    <message id="convert_devices"><source></source><translation>デバイス(&amp;D)</translation></message>
    <message id="convert_button"><source></source><translation>変換(&amp;C)</translation></message>
    <message id="convert_not_read"><source></source><translation>“%1”を読み込めませんでした: %2</translation></message>
    <message id="convert_has_nul"><source></source><translation>リストに NUL バイトが含まれています。エミュレータの出力にはないものです。UTF-16 で保存された可能性があります。UTF-8 で保存し直してください。</translation></message>
    <message id="convert_too_large"><source></source><translation>リストを変換できません。カタログが 2 GiB を超えてしまいます。</translation></message>
    <message id="build_missing"><source></source><translation>“%1”にエミュレータがありません。</translation></message>
    <message id="build_is_folder"><source></source><translation>“%1”はフォルダーで、エミュレータではありません。</translation></message>
    <message id="build_not_executable"><source></source><translation>“%1”は実行できるプログラムではありません。</translation></message>
    <message id="build_read_only"><source></source><translation>カタログを書き込めません。フォルダー“%1”は変更できません。</translation></message>
    <message id="build_not_started"><source></source><translation>“%1”を起動できませんでした: %2</translation></message>
    <message id="build_crashed"><source></source><translation>“%1”はリストを出力し終える前に異常終了しました（シグナル %2）。カタログは変更されていません。</translation></message>
    <message id="build_status"><source></source><translation>“%1”はリストを出力し終えずに終了しました（ステータス %2）。カタログは変更されていません。</translation></message>
    <message id="build_status_words"><source></source><translation>“%1”はリストを出力し終えずに終了しました（ステータス %2）。カタログは変更されていません。エミュレータのメッセージ:
%3</translation></message>
    <message id="build_nothing_printed"><source></source><translation>“%1”にリストを要求しましたが、何も出力されませんでした。カタログは変更されていません。</translation></message>
    <message id="build_no_list"><source></source><translation>“%1”の出力はマシンのリストではありません。カタログは変更されていません。</translation></message>
    <message id="build_cut_off"><source></source><translation>“%1”の出力したリストは途中で切れています。カタログは変更されていません。</translation></message>
    <message id="build_unreadable"><source></source><translation>“%1”の一覧は、カタログにできない形式です。</translation></message>
    <message id="convert_no_titles"><source></source><translation>“%1”はタイトルのリストではありません。</translation></message>
    <message id="tool_text_too_large"><source></source><translation>“%1”は大きすぎます。エミュレータの出力ではないようです。</translation></message>
    <message id="existence_no_header"><source></source><translation>“Name:”で始まる見出し行がリストにないか、同じ名前のものが ROM フォルダーにあるため、表示できません。-listfull の出力をそのまま保存したファイルを指定してください。</translation></message>
    <message id="copy_exists"><source></source><translation>“%1”はすでに存在します。</translation></message>
    <message id="copy_special"><source></source><translation>“%1”はファイルでもフォルダーでもありません。</translation></message>
    <message id="copy_into_itself"><source></source><translation>“%1”はコピー先のフォルダーそのものです。</translation></message>
    <message id="copy_cancelled"><source></source><translation>コピーはキャンセルされました。</translation></message>
    <message id="separate_failed"><source></source><translation>コピーできなかった項目: %1。最初のもの: %2</translation></message>
</context>
</TS>
