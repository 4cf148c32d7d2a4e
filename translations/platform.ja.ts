<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="color_hue"><source></source><translation>色相</translation></message>
    <message id="color_saturation"><source></source><translation>彩度</translation></message>
    <message id="color_brightness"><source></source><translation>明るさ</translation></message>
    <message id="color_opacity"><source></source><translation>不透明度</translation></message>
    <message id="color_code"><source></source><translation>コード</translation></message>
    <message id="color_code_help"><source></source><translation>#AARRGGBB: 不透明度・赤・緑・青、それぞれ 00〜ff</translation></message>
    <message id="color_ok"><source></source><translation>OK</translation></message>
    <message id="color_cancel"><source></source><translation>キャンセル</translation></message>
    <message id="panel_all_files"><source></source><translation>すべてのファイル</translation></message>
</context>
</TS>
