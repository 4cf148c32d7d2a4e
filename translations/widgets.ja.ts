<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="fontpanel_title"><source></source><translation>フォント</translation></message>
    <message id="fontpanel_filter"><source></source><translation>フォントを検索</translation></message>
    <message id="fontpanel_families"><source></source><translation>ファミリ</translation></message>
    <message id="fontpanel_styles"><source></source><translation>スタイル</translation></message>
    <message id="fontpanel_size"><source></source><translation>サイズ</translation></message>
    <message id="fontpanel_sample"><source></source><translation>あア亜 Aa Gg 0123</translation></message>
    <message id="panel_close"><source></source><translation>閉じる</translation></message>
    <message id="panel_minimise"><source></source><translation>最小化</translation></message>
    <message id="editor_remove"><source></source><translation>削除(&amp;R)…</translation></message>
    <message id="editor_close"><source></source><translation>閉じる(&amp;C)</translation></message>
    <message id="editor_previous"><source></source><translation>前へ(&amp;P)</translation></message>
    <message id="editor_next"><source></source><translation>次へ(&amp;N)</translation></message>
    <message id="general"><source></source><translation>一般</translation></message>
    <message id="video"><source></source><translation>ビデオ</translation></message>
    <message id="effect"><source></source><translation>効果</translation></message>
    <message id="av"><source></source><translation>サウンド</translation></message>
    <message id="ioport"><source></source><translation>入力</translation></message>
    <message id="misc"><source></source><translation>その他</translation></message>
    <message id="support"><source></source><translation>サポート</translation></message>
    <message id="appearance"><source></source><translation>外観</translation></message>
</context>
</TS>
