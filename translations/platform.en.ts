<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="color_hue"><source></source><translation>Hue</translation></message>
    <message id="color_saturation"><source></source><translation>Saturation</translation></message>
    <message id="color_brightness"><source></source><translation>Brightness</translation></message>
    <message id="color_opacity"><source></source><translation>Opacity</translation></message>
    <message id="color_code"><source></source><translation>Code</translation></message>
    <message id="color_code_help"><source></source><translation>#AARRGGBB: opacity, red, green, blue, each from 00 to ff</translation></message>
    <message id="color_ok"><source></source><translation>OK</translation></message>
    <message id="color_cancel"><source></source><translation>Cancel</translation></message>
    <message id="panel_all_files"><source></source><translation>All files</translation></message>
</context>
</TS>
