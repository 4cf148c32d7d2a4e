<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="column_name"><source></source><translation>セット</translation></message>
    <message id="column_title"><source></source><translation>タイトル</translation></message>
    <message id="column_titlejp"><source></source><translation>日本語タイトル</translation></message>
    <message id="column_second_down"><source></source><translation>同じものはこの列の降順に並びます。</translation></message>
    <message id="column_second_up"><source></source><translation>同じものはこの列の昇順に並びます。</translation></message>
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
    <message id="facts_several"><source></source><translation>%1 台を選択中</translation></message>
    <message id="facts_none"><source></source><translation>何も選択されていません</translation></message>
    <message id="fact_rom"><source></source><translation>ROM</translation></message>
    <message id="have_here"><source></source><translation>あり</translation></message>
    <message id="have_in_parent"><source></source><translation>親セット %1 に含まれる可能性</translation></message>
    <message id="have_missing"><source></source><translation>なし</translation></message>
    <message id="row_clone"><source></source><translation>クローン</translation></message>
    <message id="row_clones_shown" numerus="yes"><source></source><translation><numerusform>クローン %n 台を表示中</numerusform></translation></message>
    <message id="row_clones_folded" numerus="yes"><source></source><translation><numerusform>クローン %n 台を折りたたみ中</numerusform></translation></message>
    <message id="column_status"><source></source><translation>ドライバ</translation></message>
    <message id="column_type"><source></source><translation>種類</translation></message>
    <message id="record_remove_Message"><source></source><translation>選択したマシンをカタログから削除しますか?</translation></message>
    <message id="record_remove_Info"><source></source><translation>ROM ファイルはそのまま残ります。Tessera の実行中は取り消しで元に戻せます。カタログのファイルは保存したときに変わります。</translation></message>
    <message id="remove"><source></source><translation>削除</translation></message>
    <message id="editor_window"><source></source><translation>レコードの編集</translation></message>
    <message id="appearance_font"><source></source><translation>リストのフォント</translation></message>
    <message id="appearance_favoritefont"><source></source><translation>お気に入りのフォント</translation></message>
    <message id="appearance_choosefont"><source></source><translation>選択…</translation></message>
    <message id="appearance_size"><source></source><translation>サイズ</translation></message>
    <message id="appearance_smaller"><source></source><translation>小さく</translation></message>
    <message id="appearance_bigger"><source></source><translation>大きく</translation></message>
    <message id="appearance_rows"><source></source><translation>行</translation></message>
    <message id="appearance_coloring"><source></source><translation>ROM アーカイブの有無を色で示す</translation></message>
    <message id="appearance_color"><source></source><translation>文字色</translation></message>
    <message id="appearance_color2"><source></source><translation>アーカイブがない場合</translation></message>
    <message id="appearance_initialcolor"><source></source><translation>文字色を初期値に戻す</translation></message>
    <message id="appearance_initialcolor2"><source></source><translation>アーカイブがない場合の色を初期値に戻す</translation></message>
    <message id="appearance_note"><source></source><translation>アーカイブは ROM フォルダの中をセット名で探します（例: pong.zip）。</translation></message>
    <message id="search_placeholder"><source></source><translation>タイトル・セット・メーカー・年を検索</translation></message>
    <message id="search_field"><source></source><translation>検索</translation></message>
    <message id="search_return_again"><source></source><translation>近いものを表示しています。もう一度リターンを押すと“%1”を起動します。</translation></message>
    <message id="search_terms"><source></source><translation>検索条件</translation></message>
    <message id="makers_popup"><source></source><translation>メーカー</translation></message>
    <message id="search_keep"><source></source><translation>この検索を保存…</translation></message>
    <message id="search_last"><source></source><translation>最近の検索</translation></message>
    <message id="search_last_none"><source></source><translation>まだ検索していません</translation></message>
    <message id="search_last_forget"><source></source><translation>履歴を消去</translation></message>
    <message id="kept_chip"><source></source><translation>保存した検索“%1”: %2</translation></message>
    <message id="kept_rename"><source></source><translation>名前を変更…</translation></message>
    <message id="kept_remove"><source></source><translation>削除</translation></message>
    <message id="kept_left"><source></source><translation>左へ移動</translation></message>
    <message id="kept_right"><source></source><translation>右へ移動</translation></message>
    <message id="kept_removed"><source></source><translation>“%1”を削除しました。検索語は「最近の検索」に残っています。</translation></message>
    <message id="searchname_keep_title"><source></source><translation>検索を保存</translation></message>
    <message id="searchname_rename_title"><source></source><translation>保存した検索の名前を変更</translation></message>
    <message id="searchname_field"><source></source><translation>名前</translation></message>
    <message id="searchname_query"><source></source><translation>検索語: %1</translation></message>
    <message id="searchname_keep"><source></source><translation>保存</translation></message>
    <message id="searchname_rename"><source></source><translation>変更</translation></message>
    <message id="searchname_replace"><source></source><translation>置き換え</translation></message>
    <message id="searchname_cancel"><source></source><translation>キャンセル</translation></message>
    <message id="searchname_replaces"><source></source><translation>“%1”はすでに保存されています（検索語: %2）。置き換えられます。</translation></message>
    <message id="searchname_taken"><source></source><translation>“%1”はほかの保存した検索の名前です。</translation></message>
    <message id="chips_families"><source></source><translation>ファミリー</translation></message>
    <message id="chips_families_help"><source></source><translation>クローンを親セットの下にまとめる</translation></message>
    <message id="hides_search"><source></source><translation>検索</translation></message>
    <message id="hides_maker"><source></source><translation>メーカーが「%1」</translation></message>
    <message id="hides_families"><source></source><translation>ファミリー表示</translation></message>
    <message id="filter_window"><source></source><translation>フィルタ</translation></message>
    <message id="filter_heading"><source></source><translation>次の条件のマシンを表示</translation></message>
    <message id="filter_join"><source></source><translation>条件の組み合わせ</translation></message>
    <message id="filter_all"><source></source><translation>すべての条件に合う</translation></message>
    <message id="filter_any"><source></source><translation>いずれかの条件に合う</translation></message>
    <message id="filter_add"><source></source><translation>条件を追加</translation></message>
    <message id="filter_clear"><source></source><translation>クリア</translation></message>
    <message id="filter_hint"><source></source><translation>条件がなければすべて表示されます。</translation></message>
    <message id="filter_field"><source></source><translation>項目</translation></message>
    <message id="filter_comparison"><source></source><translation>比較</translation></message>
    <message id="filter_value"><source></source><translation>値</translation></message>
    <message id="filter_remove"><source></source><translation>この条件を削除</translation></message>
    <message id="filter_maker"><source></source><translation>メーカーで絞り込む</translation></message>
    <message id="filter_maker_placeholder"><source></source><translation>リストにあるとおりのメーカー名</translation></message>
    <message id="filter_maker_apply"><source></source><translation>絞り込む</translation></message>
    <message id="filter_maker_clear"><source></source><translation>すべてのメーカー</translation></message>
    <message id="filter_maker_none"><source></source><translation>すべてのメーカーを表示しています。</translation></message>
    <message id="filter_maker_empty"><source></source><translation>メーカーが空のマシンだけを表示しています。</translation></message>
    <message id="hides_rules" numerus="yes"><source></source><translation><numerusform>フィルタ条件 %n 件</numerusform></translation></message>
    <message id="appearance_language"><source></source><translation>言語</translation></message>
    <message id="appearance_language_system"><source></source><translation>システムの言語</translation></message>
    <message id="appearance_language_note"><source></source><translation>次に起動したときから変わります。</translation></message>
    <message id="choose_archive"><source></source><translation>ROM のアーカイブを選択</translation></message>
</context>
</TS>
