<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="menu_file"><source></source><translation>ファイル(&amp;F)</translation></message>
    <message id="menu_edit"><source></source><translation>編集(&amp;E)</translation></message>
    <message id="menu_game"><source></source><translation>ゲーム(&amp;G)</translation></message>
    <message id="menu_emulator"><source></source><translation>エミュレータ(&amp;M)</translation></message>
    <message id="menu_window"><source></source><translation>ウインドウ(&amp;W)</translation></message>
    <message id="menu_openrom"><source></source><translation>ROM ファイルを開く(&amp;O)…</translation></message>
    <message id="menu_recent"><source></source><translation>最近使った項目(&amp;R)</translation></message>
    <message id="menu_norecent"><source></source><translation>まだありません</translation></message>
    <message id="menu_save"><source></source><translation>カタログを保存(&amp;S)</translation></message>
    <message id="menu_rebuild"><source></source><translation>MAME からカタログを再作成…</translation></message>
    <message id="menu_tools"><source></source><translation>カタログツール(&amp;T)</translation></message>
    <message id="menu_savelog"><source></source><translation>ログを保存(&amp;L)…</translation></message>
    <message id="menu_quit"><source></source><translation>終了(&amp;Q)</translation></message>
    <message id="menu_undo"><source></source><translation>取り消す(&amp;U)</translation></message>
    <message id="menu_redo"><source></source><translation>やり直す(&amp;R)</translation></message>
    <message id="menu_editcell"><source></source><translation>項目を編集(&amp;D) (F2)</translation></message>
    <message id="menu_preferences"><source></source><translation>環境設定(&amp;P)</translation></message>
    <message id="menu_reset"><source></source><translation>すべての設定を初期値に戻す</translation></message>
    <message id="menu_play"><source></source><translation>プレイ(&amp;P)</translation></message>
    <message id="menu_stop"><source></source><translation>停止(&amp;S)</translation></message>
    <message id="menu_emulatorfile"><source></source><translation>エミュレータを選択(&amp;E)…</translation></message>
    <message id="menu_romfolder"><source></source><translation>ROM フォルダを選択(&amp;R)…</translation></message>
    <message id="menu_main"><source></source><translation>ゲームリスト(&amp;G)</translation></message>
    <message id="menu_log"><source></source><translation>ログ(&amp;L)</translation></message>
    <message id="main_list"><source></source><translation>ゲームの一覧</translation></message>
    <message id="main_play"><source></source><translation>プレイ</translation></message>
    <message id="main_stop"><source></source><translation>ゲームを停止</translation></message>
    <message id="main_log"><source></source><translation>ログ</translation></message>
    <message id="main_tools"><source></source><translation>カタログツール</translation></message>
    <message id="main_preferences"><source></source><translation>環境設定</translation></message>
    <message id="search_hidden_set"><source></source><translation>“%1”（%3）は“%2”によって隠れています。</translation></message>
    <message id="main_count"><source></source><translation>%1 台</translation></message>
    <message id="main_count_some"><source></source><translation>%2 台中 %1 台</translation></message>
    <message id="main_progress"><source></source><translation>処理中</translation></message>
    <message id="main_no_emulator"><source></source><translation>エミュレータが選択されていません</translation></message>
    <message id="preferences_title"><source></source><translation>環境設定</translation></message>
    <message id="reset_Message"><source></source><translation>すべての設定を初期値に戻しますか?</translation></message>
    <message id="reset_Info"><source></source><translation>環境設定のすべてのページが初期値に戻ります。選択したパスはそのままです。この操作は取り消せません。</translation></message>
    <message id="reset_reset"><source></source><translation>初期値に戻す</translation></message>
    <message id="reset_cancel"><source></source><translation>キャンセル</translation></message>
    <message id="preferences_reset"><source></source><translation>すべての設定を初期値に戻す</translation></message>
    <message id="preferences_ini"><source></source><translation>すべての設定を初期値に戻しました。選択したファイルとフォルダはそのままです。</translation></message>
    <message id="empty_catalogue"><source></source><translation>カタログにマシンがありません。このコンピュータの MAME から作成すると、MAME が知っているすべてのマシンが並びます。</translation></message>
    <message id="rebuild_from_mame"><source></source><translation>MAME から作成…</translation></message>
    <message id="rebuild_button"><source></source><translation>再作成</translation></message>
    <message id="rebuild_cancel"><source></source><translation>キャンセル</translation></message>
    <message id="rebuild_running"><source></source><translation>%1 からカタログを作成しています</translation></message>
    <message id="rebuild_count"><source></source><translation>%1 台</translation></message>
    <message id="rebuild_progress"><source></source><translation>カタログを作成中</translation></message>
    <message id="rebuild_unsaved_message"><source></source><translation>カタログに保存していない変更があります。破棄して再作成しますか?</translation></message>
    <message id="rebuild_unsaved_info"><source></source><translation>再作成するとすべてのレコードが置き換わります。最後に保存したファイルは日付付きの名前で残ります。</translation></message>
    <message id="rebuild_same_message"><source></source><translation>カタログはこの MAME から作成済みです。それでも再作成しますか?</translation></message>
    <message id="rebuild_same_info"><source></source><translation>その後エミュレータは変わっていません。現在のファイルは日付付きの名前で残ります。</translation></message>
    <message id="rebuild_no_emulator"><source></source><translation>エミュレータが選択されていないため、作成できません。</translation></message>
    <message id="rebuild_cancelled"><source></source><translation>作成を中止しました。カタログは元のままです。</translation></message>
    <message id="rebuild_done"><source></source><translation>カタログを作成しました（%1台）。</translation></message>
    <message id="rebuild_without_titles"><source></source><translation>日本語タイトルはありません。%1</translation></message>
    <message id="rebuild_kept"><source></source><translation>以前のファイルは残してあります: %1</translation></message>
    <message id="rebuild_failed"><source></source><translation>カタログを作成できませんでした。元のままです。</translation></message>
    <message id="rebuild_outdated"><source></source><translation>カタログの作成後にエミュレータが変わりました。</translation></message>
    <message id="failure_no_profile"><source></source><translation>“%1”は使用できるオプションを答えませんでした。</translation></message>
    <message id="failure_no_emulator"><source></source><translation>エミュレータが見つかりません。環境設定で選択してください。</translation></message>
    <message id="failure_exec"><source></source><translation>“%1”を起動できませんでした: %2</translation></message>
    <message id="rebuild_offer"><source></source><translation>このコンピュータの MAME に、知っているすべてのマシンを問い合わせて、カタログを作成できます。</translation></message>
    <message id="empty_rebuilding"><source></source><translation>カタログができあがると、ここにマシンが並びます。</translation></message>
    <message id="menu_logfront"><source></source><translation>ログを最前面に(&amp;B)</translation></message>
    <message id="menu_view"><source></source><translation>表示(&amp;V)</translation></message>
    <message id="menu_copy"><source></source><translation>コピー(&amp;C)</translation></message>
    <message id="menu_editrecord"><source></source><translation>レコードを編集(&amp;E)…</translation></message>
    <message id="menu_removerecord"><source></source><translation>カタログから削除(&amp;M)…</translation></message>
    <message id="menu_random"><source></source><translation>ランダムに選ぶ(&amp;R)</translation></message>
    <message id="menu_home"><source></source><translation>先頭へ(&amp;T)</translation></message>
    <message id="menu_end"><source></source><translation>末尾へ(&amp;E)</translation></message>
    <message id="menu_columns"><source></source><translation>表示する列(&amp;C)</translation></message>
    <message id="menu_bigger"><source></source><translation>文字を大きく(&amp;B)</translation></message>
    <message id="menu_smaller"><source></source><translation>文字を小さく(&amp;M)</translation></message>
    <message id="menu_font"><source></source><translation>フォント(&amp;O)…</translation></message>
    <message id="menu_find"><source></source><translation>検索(&amp;F)</translation></message>
    <message id="menu_filter"><source></source><translation>フィルタパネル(&amp;F)…</translation></message>
    <message id="menu_showall"><source></source><translation>すべて表示(&amp;A)</translation></message>
    <message id="main_random"><source></source><translation>ランダムに選ぶ</translation></message>
    <message id="main_filter"><source></source><translation>フィルタパネル</translation></message>
    <message id="main_showall"><source></source><translation>すべて表示</translation></message>
    <message id="empty_filtered"><source></source><translation>条件に合うマシンがありません。</translation></message>
    <message id="mini_above"><source></source><translation>常に手前に表示</translation></message>
    <message id="mini_main"><source></source><translation>ゲームリスト</translation></message>
    <message id="mini_picture"><source></source><translation>ゲームの画像</translation></message>
    <message id="mini_set"><source></source><translation>セット名またはタイトル</translation></message>
    <message id="favorites_window"><source></source><translation>Tessera  |  お気に入り</translation></message>
    <message id="favorites_list"><source></source><translation>お気に入り</translation></message>
    <message id="favorites_empty"><source></source><translation>お気に入りはまだありません。リストで選択したゲームを Ctrl+D で追加します。</translation></message>
    <message id="favorites_none_found"><source></source><translation>検索に合うお気に入りはありません。</translation></message>
    <message id="favorites_none_recent"><source></source><translation>最近プレイしたお気に入りはありません。</translation></message>
    <message id="favorites_edit"><source></source><translation>選択したお気に入りを編集</translation></message>
    <message id="favorites_remove"><source></source><translation>選択したお気に入りを削除</translation></message>
    <message id="favorites_recent"><source></source><translation>最近プレイ</translation></message>
    <message id="favorites_mini"><source></source><translation>ミニウインドウ</translation></message>
    <message id="favorites_unsaved"><source></source><translation>未保存</translation></message>
    <message id="favorites_save"><source></source><translation>お気に入りを保存</translation></message>
    <message id="favorites_count"><source></source><translation>お気に入り %1 件</translation></message>
    <message id="favorites_count_some"><source></source><translation>お気に入り %2 件中 %1 件</translation></message>
    <message id="menu_savefavorites"><source></source><translation>お気に入りを保存(&amp;V)</translation></message>
    <message id="menu_addfavorite"><source></source><translation>お気に入りに追加(&amp;F)</translation></message>
    <message id="menu_clearplayed"><source></source><translation>プレイ記録を消去(&amp;C)…</translation></message>
    <message id="menu_favorites"><source></source><translation>お気に入り(&amp;F)</translation></message>
    <message id="menu_mini"><source></source><translation>ミニウインドウ(&amp;I)</translation></message>
    <message id="menu_help"><source></source><translation>ヘルプ(&amp;H)</translation></message>
    <message id="menu_showhelp"><source></source><translation>Tesseraヘルプ(&amp;H)</translation></message>
    <message id="help_title"><source></source><translation>ヘルプ</translation></message>
    <message id="help_guide"><source></source><translation>ガイド</translation></message>
    <message id="help_subject"><source></source><translation>項目:</translation></message>
    <message id="help_keys"><source></source><translation>キー操作</translation></message>
    <message id="help_terms_title"><source></source><translation>検索の書き方</translation></message>
    <message id="help_start_title"><source></source><translation>はじめに</translation></message>
    <message id="help_search_title"><source></source><translation>ゲームを探す</translation></message>
    <message id="help_launch_title"><source></source><translation>ゲームを起動する</translation></message>
    <message id="help_tools_title"><source></source><translation>カタログツール</translation></message>
    <message id="help_favorites_title"><source></source><translation>お気に入りとミニウインドウ</translation></message>
    <message id="help_start"><source></source><translation>&lt;p&gt;Tesseraに必要なのは、MAMEと、ROMアーカイブを入れたフォルダの二つです。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;1. カタログ。&lt;/b&gt;最初の起動時に、お使いのMAMEから一覧を作るかどうかをたずねます。MAMEが知っているすべてのマシンを読み出すので一、二分かかりますが、途中で取り消せます。新しいMAMEを入れたあとは、ステータス行に同じ案内が出ます。コマンドは「ファイル › MAMEからカタログを再作成」です。それまでの一覧は日付の付いた名前で残ります。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. MAME本体&lt;/b&gt;は、システムがインストールした場所から見つけます。別のものは「エミュレータ › エミュレータを選択」で選びます。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. ROMフォルダ&lt;/b&gt;は「エミュレータ › ROMフォルダを選択」で選びます。MAME自身の設定にあるフォルダも調べます。「pong」のようにROMのいらないマシンは、すぐに動きます。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. 起動。&lt;/b&gt;ダブルクリックかReturnキーで、選択したゲームが始まります。&lt;/p&gt;
&lt;p&gt;頼まれないかぎり、ネットワークとは何もやりとりしません。&lt;/p&gt;</translation></message>
    <message id="help_search"><source></source><translation>&lt;p&gt;そのまま入力してください。一覧で打った文字は検索欄（&lt;b&gt;Ctrl+F&lt;/b&gt;）に入ります。セット名、英語と日本語のタイトル、メーカー、年を探し、語の順序は問いません。大文字と小文字、アクセント記号、全角と半角は区別せず、ひらがなでカタカナが、ローマ字でかなが見つかります。「guradi」でグラディウスが見つかります。&lt;/p&gt;
&lt;p&gt;もっともよく合うものが先に並びます。セット名の一致、タイトルまたはその一部の一致、語の先頭の一致、頭文字（「mvc」）の順です。記号は省いてもかまいません（「spiderman」、「r type 2」）。打った文字を含むものがないときは、つづりの近いタイトルが並びます。その起動にはリターンを2回押します。見出しをクリックすると、検索欄を空にするまでその列の順に並びます。&lt;/p&gt;
&lt;p&gt;一覧の上の&lt;b&gt;チップ&lt;/b&gt;は、その一部だけを件数とともに表示します。&lt;b&gt;動作可&lt;/b&gt;は不具合なく動くもの、&lt;b&gt;プレイ可&lt;/b&gt;は不具合があっても動くものまでです。&lt;b&gt;ファミリー&lt;/b&gt;はクローンを親の下にたたみ、右と左の矢印キーで開閉します。検索欄の時計（&lt;b&gt;Alt+Down&lt;/b&gt;）で最近の検索が開きます。その隣のメニューで検索に名前を付けて保存すると、チップとして並びます。「maker:」の後ではメーカー名の候補が出ます。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;フィルタパネル&lt;/b&gt;（「表示 › フィルタパネル」）では、いくつもの条件を組み合わせられます。メーカーフィルタもここにあります。&lt;/p&gt;
&lt;p&gt;隠れている行があるときは、その理由が件数の横に出ます。&lt;b&gt;すべて表示&lt;/b&gt;で元に戻ります。&lt;/p&gt;</translation></message>
    <message id="help_launch"><source></source><translation>&lt;p&gt;ダブルクリック、Returnキー、&lt;b&gt;プレイ&lt;/b&gt;ボタンのどれでも、選択したゲームが始まります。MAMEの出力はコマンドラインとともにログウインドウ（&lt;b&gt;Ctrl+L&lt;/b&gt;）に出ます。実行中はステータス行にそう表示され、その横の&lt;b&gt;停止&lt;/b&gt;（&lt;b&gt;Ctrl+.&lt;/b&gt;）で終えます。&lt;/p&gt;
&lt;p&gt;起動のしかたは&lt;b&gt;環境設定&lt;/b&gt;（&lt;b&gt;Ctrl+,&lt;/b&gt;）で決めます。お使いのMAMEが知らないオプションは、そこに取り消し線で示され、起動時に省かれて、ログの一行に示されます。ROMフォルダを選んでいなければ、MAME自身が探す場所が候補として出ます。お気に入りには独自のオプションを付けられ、最後に渡されるので優先されます。&lt;/p&gt;
&lt;p&gt;MAMEがエラーで終わると、Tesseraが知らせます。理由はログで分かります。多くは、アーカイブにファイルが足りないか、アーカイブが別のバージョンのMAME用です。&lt;/p&gt;
&lt;p&gt;ログウインドウからは、MAME自身に問い合わせることもできます。選択したゲームまたは全体についてのコマンドと、ファイルへの書き出しがあります。&lt;b&gt;Ctrl+I&lt;/b&gt;でゲームの解説を、&lt;b&gt;Ctrl+B&lt;/b&gt;で選べるBIOSの一覧を表示します。&lt;/p&gt;</translation></message>
    <message id="help_tools"><source></source><translation>&lt;p&gt;「ファイル › カタログツール」（&lt;b&gt;Ctrl+T&lt;/b&gt;）で、作業ごとのページがあるウインドウが開きます。&lt;/p&gt;
&lt;ul&gt;&lt;li&gt;&lt;b&gt;カタログの作成&lt;/b&gt;は、保存したMAMEの一覧とタイトル一覧からカタログを作ります。&lt;/li&gt;
&lt;li&gt;&lt;b&gt;ROM の有無&lt;/b&gt;は、名前の一覧とフォルダを比べ、あるものとないものを報告します。&lt;/li&gt;
&lt;li&gt;&lt;b&gt;ROM の仕分け&lt;/b&gt;は、MAMEの一覧にないものを別のフォルダにコピーします。置き換えたり消したりはしません。&lt;/li&gt;
&lt;li&gt;&lt;b&gt;検証レポート&lt;/b&gt;は、MAME自身の検査結果を判定ごとに整理します。&lt;/li&gt;
&lt;li&gt;&lt;b&gt;旧お気に入り&lt;/b&gt;は、古い形式のお気に入りを今の形式に変換し、それまでのものを残します。&lt;/li&gt;
&lt;li&gt;&lt;b&gt;起動スクリプト&lt;/b&gt;は、選択したゲームをTesseraなしで起動する小さなスクリプトを保存します。&lt;/li&gt;&lt;/ul&gt;
&lt;p&gt;どの作業も取り消せます。多くはウインドウなしでも実行できます。ターミナルで「tessera --help」と入力すると、コマンドの一覧が出ます。&lt;/p&gt;</translation></message>
    <message id="help_favorites"><source></source><translation>&lt;p&gt;&lt;b&gt;Ctrl+D&lt;/b&gt;で、選択したゲームがお気に入りに加わります。&lt;b&gt;Ctrl+2&lt;/b&gt;で同じ場所にお気に入りが開き、&lt;b&gt;Ctrl+1&lt;/b&gt;で戻ります。お気に入りにはそれぞれ独自のオプションを付けられます。「項目を編集」では、お使いのMAMEのオプションが補完され、コマンドライン全体が見られます。&lt;b&gt;Ctrl+F&lt;/b&gt;で、一覧と同じように検索できます。並び順は変わりません。&lt;/p&gt;
&lt;p&gt;追加や削除は終了時に保存されます。編集だけのときは、お気に入りウインドウで&lt;b&gt;Ctrl+S&lt;/b&gt;を押すと保存されます。保存していない変更があるときは、そこに表示されます。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Ctrl+3&lt;/b&gt;は小さなランチャーだけを残します。セット名を入力するか、サイコロにまかせて、Returnキーを押してください。ほかのウインドウより手前に置いておけます。&lt;/p&gt;
&lt;p&gt;遊んだ回数と最後に遊んだ日時は、お気に入りの横のファイルに残ります。「ゲーム」メニューで切ることも、消去することもできます。&lt;/p&gt;</translation></message>
    <message id="help_terms_before"><source></source><translation>&lt;p&gt;検索欄には、語のほかに条件を書けます。キー、コロン、値の順に書きます。いくつも書くと、すべてに合うものだけが残ります。&lt;/p&gt;</translation></message>
    <message id="help_terms_after"><source></source><translation>&lt;p&gt;語や条件の前にマイナスを付けると、当てはまるものを除きます: &lt;b&gt;-bootleg&lt;/b&gt;。引用符か「」で囲むと、そのままの並びで探します: &lt;b&gt;"street fighter"&lt;/b&gt;。誤った条件には下線が付き、理由がチップの横に出ます。&lt;/p&gt;&lt;p&gt;組み合わせの例: &lt;b&gt;maker:konami year:1985-1989 status:good -bootleg&lt;/b&gt;&lt;/p&gt;</translation></message>
    <message id="help_keys_list"><source></source><translation>&lt;h2&gt;一覧で&lt;/h2&gt;&lt;p&gt;&lt;b&gt;Return&lt;/b&gt;で選択したゲームを起動します。&lt;b&gt;F2&lt;/b&gt;で欄を編集します。文字は検索欄に入り、そこから&lt;b&gt;下矢印&lt;/b&gt;で一覧に移ります。&lt;b&gt;右&lt;/b&gt;と&lt;b&gt;左&lt;/b&gt;でファミリーを開閉します。&lt;b&gt;Esc&lt;/b&gt;はほかのウインドウを閉じ、検索欄を空にします。&lt;/p&gt;</translation></message>
    <message id="menu_notesplayed"><source></source><translation>プレイ履歴を残す(&amp;N)</translation></message>
    <message id="menu_audit"><source></source><translation>クイック検査(&amp;A)</translation></message>
    <message id="audit_roms"><source></source><translation>ROMを検査</translation></message>
    <message id="audit_samples"><source></source><translation>サンプルを検査</translation></message>
    <message id="audit_listroms"><source></source><translation>ROMの一覧</translation></message>
    <message id="audit_romident"><source></source><translation>アーカイブを識別</translation></message>
    <message id="menu_currentdir"><source></source><translation>エミュレータのフォルダを開く(&amp;D)</translation></message>
    <message id="menu_openroms"><source></source><translation>ROMフォルダを開く(&amp;O)</translation></message>
    <message id="menu_launcher"><source></source><translation>ランチャーとして保存(&amp;L)…</translation></message>
    <message id="launcher_save"><source></source><translation>ランチャーとして保存</translation></message>
    <message id="launcher_saved"><source></source><translation>ランチャーを保存しました: %1</translation></message>
    <message id="main_changes"><source></source><translation>変更点…</translation></message>
    <message id="catalogue_save_nothing"><source></source><translation>カタログに変更がないため、保存しませんでした。</translation></message>
    <message id="catalogue_saved"><source></source><translation>カタログを保存しました。</translation></message>
    <message id="catalogue_saved_kept"><source></source><translation>カタログを保存しました。以前のファイルは残してあります: %1</translation></message>
    <message id="catalogue_used"><source></source><translation>ファイルをカタログにしました（%1台）。</translation></message>
    <message id="catalogue_use"><source></source><translation>使用</translation></message>
    <message id="catalogue_unsaved_message"><source></source><translation>カタログに保存していない変更があります。破棄してファイルと置き換えますか?</translation></message>
    <message id="catalogue_unsaved_info"><source></source><translation>すべてのレコードが置き換わります。最後に保存したファイルは日付付きの名前で残ります。</translation></message>
    <message id="menu_history"><source></source><translation>履歴と情報(&amp;I)</translation></message>
    <message id="menu_rominfo"><source></source><translation>情報ページ(&amp;G)</translation></message>
    <message id="menu_historywindow"><source></source><translation>履歴と情報(&amp;H)</translation></message>
    <message id="menu_bioslist"><source></source><translation>BIOS リスト(&amp;B)</translation></message>
    <message id="empty_noroms"><source></source><translation>ROMフォルダが選択されておらず、MAME自身のフォルダにもROMがありません。</translation></message>
    <message id="empty_chooseroms"><source></source><translation>ROMフォルダを選択…</translation></message>
    <message id="menu_artwork"><source></source><translation>アートワーク(&amp;A)</translation></message>
    <message id="menu_showpicture"><source></source><translation>画像を表示(&amp;S)</translation></message>
    <message id="menu_nextkind"><source></source><translation>次の種類の画像(&amp;N)</translation></message>
    <message id="menu_kinds"><source></source><translation>画像の種類(&amp;K)</translation></message>
    <message id="menu_downloadpicture"><source></source><translation>画像をダウンロード(&amp;D)</translation></message>
    <message id="menu_revealpicture"><source></source><translation>画像ファイルをファイルマネージャで表示(&amp;F)</translation></message>
    <message id="menu_revealrom"><source></source><translation>ROMをファイルマネージャで表示(&amp;R)</translation></message>
    <message id="menu_picturefolders"><source></source><translation>画像フォルダを開く(&amp;O)</translation></message>
    <message id="menu_snapfolder"><source></source><translation>スナップショット(&amp;S)</translation></message>
    <message id="menu_titlefolder"><source></source><translation>タイトル画面(&amp;T)</translation></message>
    <message id="menu_flyerfolder"><source></source><translation>フライヤー(&amp;G)</translation></message>
    <message id="support_pictures"><source></source><translation>画像</translation></message>
    <message id="side_history"><source></source><translation>履歴</translation></message>
    <message id="side_page"><source></source><translation>ウェブページ</translation></message>
    <message id="side_verify"><source></source><translation>ROMを検査</translation></message>
    <message id="side_reveal"><source></source><translation>ROMを表示</translation></message>
    <message id="help_pictures_title"><source></source><translation>画像と履歴</translation></message>
    <message id="help_pictures"><source></source><translation>&lt;p&gt;一覧の横には、選択中のゲームのスナップショット、タイトル画面、またはフライヤーが表示されます。下のボタンか &lt;b&gt;Ctrl+K&lt;/b&gt; で次の種類に切り替わり、ボタン横の矢印で三種類から選べます。&lt;/p&gt;
&lt;p&gt;画像の場所は&lt;i&gt;環境設定 › サポート&lt;/i&gt;で指定します。ファイルはセット名、続いて親セット名で探されます: &lt;i&gt;pacman/0000.png&lt;/i&gt;、&lt;i&gt;pacman.png&lt;/i&gt;。プレイ中に F12 で保存されるMAME自身のスナップショットも、そのまま使えます。&lt;/p&gt;
&lt;p&gt;画像をクリックすると原寸で開きます。右側の選択肢で、表示する縦横比を選べます。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Ctrl+Shift+D&lt;/b&gt; で、表示中の種類の画像を、同じページで指定したサイトからダウンロードします。すでにある画像は、確認なしに置き換えられることはありません。&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Ctrl+I&lt;/b&gt; で history.dat、history.xml、mameinfo.dat の内容を表示します。ファイルはそのウインドウの下部で選びます。&lt;b&gt;Ctrl+Shift+I&lt;/b&gt; で情報サイトのページを開きます。&lt;/p&gt;</translation></message>
    <message id="support_files"><source></source><translation>フォルダとファイル</translation></message>
    <message id="main_stopnow"><source></source><translation>停止</translation></message>
    <message id="quit_unsaved_message"><source></source><translation>変更を保存できませんでした。それでも終了しますか?</translation></message>
    <message id="quit_anyway"><source></source><translation>終了する</translation></message>
</context>
</TS>
