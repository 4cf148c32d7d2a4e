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
    <message id="history_title"><source></source><translation>履歴と情報</translation></message>
    <message id="history_set"><source></source><translation>セット名</translation></message>
    <message id="history_parent"><source></source><translation>親</translation></message>
    <message id="history_find"><source></source><translation>本文を検索</translation></message>
    <message id="history_found_of"><source></source><translation>%1 / %2</translation></message>
    <message id="history_not_found"><source></source><translation>見つかりません</translation></message>
    <message id="history_smaller"><source></source><translation>文字を小さく</translation></message>
    <message id="history_bigger"><source></source><translation>文字を大きく</translation></message>
    <message id="history_choose"><source></source><translation>history.dat を選択…</translation></message>
    <message id="mameinfo_choose"><source></source><translation>mameinfo.dat を選択…</translation></message>
    <message id="history_follow"><source></source><translation>選択に合わせて表示</translation></message>
    <message id="history_loading"><source></source><translation>ファイルを読み込み中…</translation></message>
    <message id="infosite_heading"><source></source><translation>情報サイト</translation></message>
    <message id="infosite_explanation"><source></source><translation>ゲームについてのウェブページです。“ゲーム › 情報ページ”でブラウザーに表示します。</translation></message>
    <message id="infosite_number"><source></source><translation>情報サイト %1</translation></message>
    <message id="infosite_site"><source></source><translation>サイト(&amp;S)</translation></message>
    <message id="infosite_host"><source></source><translation>ホスト(&amp;H)</translation></message>
    <message id="infosite_choice"><source></source><translation>情報サイト</translation></message>
    <message id="infosite_address"><source></source><translation>ほかのサイトのアドレス</translation></message>
    <message id="infosite_template"><source></source><translation>ページ(&amp;P)</translation></message>
    <message id="infosite_note"><source></source><translation>{$gamename} はセット名に置き換えられます。サイトは移り変わるため、使う前にホストを入力してください。</translation></message>
    <message id="infosite_url"><source></source><translation>アドレス(&amp;A)</translation></message>
    <message id="infosite_open"><source></source><translation>開く(&amp;O)</translation></message>
    <message id="infosite_no_host"><source></source><translation>情報サイト%1のホストがまだありません：環境設定 › サポート › 情報サイト</translation></message>
    <message id="support_sites"><source></source><translation>情報サイト</translation></message>
</context>
</TS>
