<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="picture_none"><source></source><translation>“%1”に“%2”の画像はありません。</translation></message>
    <message id="download_no_address"><source></source><translation>“%1”はウェブ上の画像のアドレスではありません。</translation></message>
    <message id="download_no_name"><source></source><translation>“%1”にはファイル名がありません。</translation></message>
    <message id="download_silent"><source></source><translation>“%1”からの応答がありません。</translation></message>
    <message id="artwork_picture"><source></source><translation>ゲームの画像</translation></message>
    <message id="artwork_next"><source></source><translation>次の種類の画像</translation></message>
    <message id="aspect_ratio"><source></source><translation>縦横比</translation></message>
    <message id="aspect_own"><source></source><translation>元のまま</translation></message>
    <message id="aspect_1_1"><source></source><translation>1 : 1</translation></message>
    <message id="aspect_4_3"><source></source><translation>4 : 3</translation></message>
    <message id="aspect_16_9"><source></source><translation>16 : 9</translation></message>
    <message id="aspect_6_4"><source></source><translation>6 : 4</translation></message>
    <message id="aspect_8_3"><source></source><translation>8 : 3</translation></message>
    <message id="aspect_12_3"><source></source><translation>12 : 3</translation></message>
    <message id="image_view"><source></source><translation>原寸の画像</translation></message>
    <message id="image_size"><source></source><translation>%1 × %2</translation></message>
    <message id="picture_nopicture"><source></source><translation>画像はありません。</translation></message>
    <message id="picture_ofparent"><source></source><translation>親セット %1 の画像</translation></message>
    <message id="picture_nofile"><source></source><translation>ファイルではありません。</translation></message>
    <message id="picture_unreadable"><source></source><translation>画像“%1”を表示できません: %2</translation></message>
    <message id="picture_toolarge"><source></source><translation>画像“%1”は大きすぎて表示できません: %2 × %3 ピクセル</translation></message>
    <message id="download_panel"><source></source><translation>画像のダウンロード</translation></message>
    <message id="download_progress"><source></source><translation>ダウンロードの進行</translation></message>
    <message id="download_stop"><source></source><translation>停止</translation></message>
    <message id="download_close"><source></source><translation>閉じる</translation></message>
    <message id="download_Message"><source></source><translation>同じ名前の画像がすでにあります。上書きしますか?</translation></message>
    <message id="download_info"><source></source><translation>元の画像は失われます。</translation></message>
    <message id="download_Miss"><source></source><translation>画像をダウンロードできませんでした。</translation></message>
    <message id="overwrite"><source></source><translation>上書き</translation></message>
    <message id="pictures_kind"><source></source><translation>表示する画像(&amp;S)</translation></message>
    <message id="pictures_suppress"><source></source><translation>クローンに親セットの画像を表示しない(&amp;P)</translation></message>
    <message id="pictures_wholesteps"><source></source><translation>整数倍だけで拡大し、ピクセルをそろえる(&amp;W)</translation></message>
    <message id="pictures_site"><source></source><translation>ダウンロード元(&amp;D)</translation></message>
    <message id="pictures_sitenumber"><source></source><translation>画像サイト %1</translation></message>
    <message id="pictures_host"><source></source><translation>ホスト(&amp;H)</translation></message>
    <message id="pictures_snaptemplate"><source></source><translation>スナップショットのアドレス</translation></message>
    <message id="pictures_titletemplate"><source></source><translation>タイトル画面のアドレス</translation></message>
    <message id="pictures_flyertemplate"><source></source><translation>フライヤーのアドレス</translation></message>
    <message id="pictures_note"><source></source><translation>{$gamename} はセット名に置き換えられ、最後に“.png”が付きます。指示があるまで何もダウンロードしません。使う前にホストを入力してください。</translation></message>
    <message id="pictures_no_host"><source></source><translation>画像サイト%1のホストがまだありません：環境設定 › サポート › 画像</translation></message>
    <message id="pictures_heading"><source></source><translation>画像</translation></message>
    <message id="pictures_explanation"><source></source><translation>ゲームの画像の表示方法と、画像がないときのダウンロード元です。</translation></message>
</context>
</TS>
