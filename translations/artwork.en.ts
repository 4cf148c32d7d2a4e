<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="picture_none"><source></source><translation>There is no picture of “%2” in “%1”.</translation></message>
    <message id="download_no_address"><source></source><translation>“%1” is not the address of a picture on the web.</translation></message>
    <message id="download_no_name"><source></source><translation>“%1” names no file.</translation></message>
    <message id="download_silent"><source></source><translation>“%1” does not answer.</translation></message>
    <message id="artwork_picture"><source></source><translation>Picture of the game</translation></message>
    <message id="artwork_next"><source></source><translation>Next kind of picture</translation></message>
    <message id="aspect_ratio"><source></source><translation>Aspect ratio</translation></message>
    <message id="aspect_own"><source></source><translation>Original</translation></message>
    <message id="aspect_1_1"><source></source><translation>1 : 1</translation></message>
    <message id="aspect_4_3"><source></source><translation>4 : 3</translation></message>
    <message id="aspect_16_9"><source></source><translation>16 : 9</translation></message>
    <message id="aspect_6_4"><source></source><translation>6 : 4</translation></message>
    <message id="aspect_8_3"><source></source><translation>8 : 3</translation></message>
    <message id="aspect_12_3"><source></source><translation>12 : 3</translation></message>
    <message id="image_view"><source></source><translation>Picture at its own size</translation></message>
    <message id="image_size"><source></source><translation>%1 × %2</translation></message>
    <message id="picture_nopicture"><source></source><translation>There is no picture.</translation></message>
    <message id="picture_ofparent"><source></source><translation>The picture of its parent, %1</translation></message>
    <message id="picture_nofile"><source></source><translation>It is no file.</translation></message>
    <message id="picture_unreadable"><source></source><translation>The picture “%1” cannot be shown: %2</translation></message>
    <message id="picture_toolarge"><source></source><translation>The picture “%1” is too large to be shown: %2 × %3 pixels.</translation></message>
    <message id="download_panel"><source></source><translation>Picture download</translation></message>
    <message id="download_progress"><source></source><translation>Progress of the download</translation></message>
    <message id="download_stop"><source></source><translation>Stop</translation></message>
    <message id="download_close"><source></source><translation>Close</translation></message>
    <message id="download_Message"><source></source><translation>There is a picture of that name already. Do you want to overwrite it?</translation></message>
    <message id="download_info"><source></source><translation>The picture that is there would be lost.</translation></message>
    <message id="download_Miss"><source></source><translation>The picture could not be downloaded.</translation></message>
    <message id="overwrite"><source></source><translation>Overwrite</translation></message>
    <message id="pictures_kind"><source></source><translation>&amp;Shown</translation></message>
    <message id="pictures_suppress"><source></source><translation>Never show the &amp;parent’s picture for a clone</translation></message>
    <message id="pictures_wholesteps"><source></source><translation>Enlarge by &amp;whole steps only, so that every pixel stays even</translation></message>
    <message id="pictures_site"><source></source><translation>&amp;Download from</translation></message>
    <message id="pictures_sitenumber"><source></source><translation>Picture site %1</translation></message>
    <message id="pictures_host"><source></source><translation>&amp;Host</translation></message>
    <message id="pictures_snaptemplate"><source></source><translation>Snapshot address</translation></message>
    <message id="pictures_titletemplate"><source></source><translation>Title address</translation></message>
    <message id="pictures_flyertemplate"><source></source><translation>Flyer address</translation></message>
    <message id="pictures_note"><source></source><translation>{$gamename} stands for the set name; “.png” is added. Nothing is downloaded unless you ask for it, and a site needs its host here first.</translation></message>
    <message id="pictures_no_host"><source></source><translation>Picture site %1 has no host yet: Preferences › Support › Pictures.</translation></message>
    <message id="pictures_heading"><source></source><translation>Pictures</translation></message>
    <message id="pictures_explanation"><source></source><translation>How a game’s picture is shown, and where a missing one is downloaded from.</translation></message>
</context>
</TS>
