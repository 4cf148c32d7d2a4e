<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="chip_all"><source></source><translation>すべて</translation></message>
    <message id="chip_bios"><source></source><translation>BIOS</translation></message>
    <message id="chip_favorites"><source></source><translation>お気に入り</translation></message>
    <message id="chip_games"><source></source><translation>ゲーム</translation></message>
    <message id="chip_have_rom"><source></source><translation>ROMあり</translation></message>
    <message id="chip_parents"><source></source><translation>親</translation></message>
    <message id="chip_playable"><source></source><translation>プレイ可</translation></message>
    <message id="chip_working"><source></source><translation>動作可</translation></message>
    <message id="failure_store_binary"><source></source><translation>“%1”はカタログではありません。バイナリデータが含まれています。</translation></message>
    <message id="failure_store_empty"><source></source><translation>“%1”は空のファイルです。</translation></message>
    <message id="failure_store_encoding"><source></source><translation>“%1”に%2として正しくない文字が含まれています。</translation></message>
    <message id="failure_store_foreign"><source></source><translation>“%1”はカタログではありません。最も外側の要素が“%2”です。</translation></message>
    <message id="failure_store_malformed"><source></source><translation>“%1”は正しいXMLではありません（%2行目）。</translation></message>
    <message id="failure_store_missing"><source></source><translation>“%1”が見つかりません。</translation></message>
    <message id="failure_store_model"><source></source><translation>“%1”はカタログではありません。ほかのプログラムのオブジェクトだけで、ゲームのレコードがありません。</translation></message>
    <message id="failure_store_nofile"><source></source><translation>“%1”はファイルではなく、フォルダまたはデバイスです。</translation></message>
    <message id="failure_store_none"><source></source><translation>“%1”がなかったため、保存するカタログはありません。</translation></message>
    <message id="failure_store_read"><source></source><translation>“%1”を読み込めませんでした: %2</translation></message>
    <message id="failure_store_truncated"><source></source><translation>“%1”は途中で終わっており、不完全です。</translation></message>
    <message id="failure_store_unread"><source></source><translation>“%1”を読み込めなかったため、上書き保存は行いません。</translation></message>
    <message id="search_help_clone"><source></source><translation>ほかのセットのクローンかどうか: clone:yes、clone:no</translation></message>
    <message id="search_help_device"><source></source><translation>最初のメディア装置: device:cdrom、device:cassette</translation></message>
    <message id="search_help_have"><source></source><translation>ROMがフォルダーにあるかどうか: have:yes、have:no。have:ownは自身のアーカイブがあるもの、have:parentは親のアーカイブだけがあるもの</translation></message>
    <message id="search_help_maker"><source></source><translation>メーカー名にこの文字を含むもの: maker:konami、maker:&quot;taito corporation&quot;</translation></message>
    <message id="search_help_name"><source></source><translation>セット名にこの文字を含むもの: name:sf2</translation></message>
    <message id="search_help_parent"><source></source><translation>この名前のセットとそのクローン: parent:puckman</translation></message>
    <message id="search_help_status"><source></source><translation>エミュレーターでの動作状況: status:good、status:imperfect、status:preliminary。status:workingはgoodとimperfectの両方</translation></message>
    <message id="search_help_title"><source></source><translation>タイトルにこの言葉を含むもの: title:gradius、title:&quot;road fighter&quot;</translation></message>
    <message id="search_help_type"><source></source><translation>機械の種類: type:game、type:bios、type:mechanical、type:device</translation></message>
    <message id="search_help_year"><source></source><translation>発売年またはその範囲: year:1985、year:85、year:80s、year:1985-1989、year:1985-、year:-1989</translation></message>
    <message id="search_near_key"><source></source><translation>“%1”という検索条件はありません。“%3:”のことですか？ 使える条件: %2。文字そのものを探すには引用符で囲んでください。</translation></message>
    <message id="search_nearest"><source></source><translation>この文字を含むものはありません。近いもの：</translation></message>
    <message id="search_no_value"><source></source><translation>“%1”に値がありません。</translation></message>
    <message id="search_no_words"><source></source><translation>“%1”には検索できる文字がありません。</translation></message>
    <message id="search_open_quote"><source></source><translation>閉じる引用符がありません。</translation></message>
    <message id="search_reversed_years"><source></source><translation>“%1”は終わりが始まりより前です。</translation></message>
    <message id="search_wrong_key"><source></source><translation>“%1”という検索条件はありません。使える条件: %2。文字そのものを探すには引用符で囲んでください。</translation></message>
    <message id="search_wrong_value"><source></source><translation>“%1”は“%2”の値ではありません。使える値: %3。</translation></message>
    <message id="search_wrong_year"><source></source><translation>“%1”は年でも年の範囲でもありません。例: 1985、85、80s、1985-1989、1985-、-1989。</translation></message>
    <message id="undo_edit_record"><source></source><translation>レコードの編集</translation></message>
    <message id="undo_remove_records"><source></source><translation>マシンの削除</translation></message>
    <message id="compare_is"><source></source><translation>が次と等しい</translation></message>
    <message id="compare_isnot"><source></source><translation>が次と等しくない</translation></message>
    <message id="compare_contains"><source></source><translation>が次を含む</translation></message>
    <message id="compare_containsnot"><source></source><translation>が次を含まない</translation></message>
    <message id="compare_begins"><source></source><translation>が次で始まる</translation></message>
    <message id="compare_ends"><source></source><translation>が次で終わる</translation></message>
</context>
</TS>
