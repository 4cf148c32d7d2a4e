<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="column_name"><source></source><translation>セット</translation></message>
    <message id="column_title"><source></source><translation>タイトル</translation></message>
    <message id="column_titlejp"><source></source><translation>日本語タイトル</translation></message>
    <message id="column_year"><source></source><translation>年</translation></message>
    <message id="column_maker"><source></source><translation>メーカー</translation></message>
    <message id="column_cloneof"><source></source><translation>親セット</translation></message>
    <message id="column_device"><source></source><translation>デバイス</translation></message>
    <message id="fact_name"><source></source><translation>セット</translation></message>
    <message id="fact_cloneof"><source></source><translation>親セット</translation></message>
    <message id="fact_maker"><source></source><translation>メーカー</translation></message>
    <message id="fact_year"><source></source><translation>年</translation></message>
    <message id="fact_device"><source></source><translation>デバイス</translation></message>
    <message id="fact_status"><source></source><translation>ドライバ</translation></message>
    <message id="facts_picture"><source></source><translation>ゲームの画像</translation></message>
    <message id="facts_several"><source></source><translation>%1 台を選択中</translation></message>
    <message id="facts_none"><source></source><translation>何も選択されていません</translation></message>
    <message id="column_status"><source></source><translation>ドライバ</translation></message>
    <message id="column_type"><source></source><translation>種類</translation></message>
    <message id="record_remove_Message"><source></source><translation>選択したマシンをカタログから削除しますか?</translation></message>
    <message id="record_remove_Info"><source></source><translation>ROM ファイルはそのまま残ります。Tessera の実行中は取り消しで元に戻せます。カタログのファイルは保存したときに変わります。</translation></message>
    <message id="remove"><source></source><translation>削除</translation></message>
    <message id="editor_window"><source></source><translation>レコードの編集</translation></message>
    <message id="editor_remove"><source></source><translation>削除(&amp;R)…</translation></message>
    <message id="editor_close"><source></source><translation>閉じる(&amp;C)</translation></message>
    <message id="editor_previous"><source></source><translation>前へ(&amp;P)</translation></message>
    <message id="editor_next"><source></source><translation>次へ(&amp;N)</translation></message>
</context>
</TS>
