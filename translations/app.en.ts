<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="menu_file"><source></source><translation>&amp;File</translation></message>
    <message id="menu_edit"><source></source><translation>&amp;Edit</translation></message>
    <message id="menu_game"><source></source><translation>&amp;Game</translation></message>
    <message id="menu_emulator"><source></source><translation>E&amp;mulator</translation></message>
    <message id="menu_window"><source></source><translation>&amp;Window</translation></message>
    <message id="menu_openrom"><source></source><translation>&amp;Open ROM File…</translation></message>
    <message id="menu_recent"><source></source><translation>Open &amp;Recent</translation></message>
    <message id="menu_norecent"><source></source><translation>Nothing opened yet</translation></message>
    <message id="menu_save"><source></source><translation>&amp;Save Catalogue</translation></message>
    <message id="menu_rebuild"><source></source><translation>Rebuild catalogue from MAME…</translation></message>
    <message id="menu_tools"><source></source><translation>Catalogue &amp;Tools</translation></message>
    <message id="menu_savelog"><source></source><translation>Save &amp;Log…</translation></message>
    <message id="menu_quit"><source></source><translation>&amp;Quit</translation></message>
    <message id="menu_undo"><source></source><translation>&amp;Undo</translation></message>
    <message id="menu_redo"><source></source><translation>&amp;Redo</translation></message>
    <message id="menu_editcell"><source></source><translation>E&amp;dit Field (F2)</translation></message>
    <message id="menu_preferences"><source></source><translation>&amp;Preferences</translation></message>
    <message id="menu_reset"><source></source><translation>Reset All Settings</translation></message>
    <message id="menu_play"><source></source><translation>&amp;Play</translation></message>
    <message id="menu_stop"><source></source><translation>&amp;Stop</translation></message>
    <message id="menu_emulatorfile"><source></source><translation>Choose &amp;Emulator…</translation></message>
    <message id="menu_romfolder"><source></source><translation>Choose &amp;ROM Folder…</translation></message>
    <message id="menu_main"><source></source><translation>&amp;Game List</translation></message>
    <message id="menu_log"><source></source><translation>&amp;Log</translation></message>
    <message id="main_list"><source></source><translation>List of games</translation></message>
    <message id="main_play"><source></source><translation>Play</translation></message>
    <message id="main_stop"><source></source><translation>Stop the game</translation></message>
    <message id="main_log"><source></source><translation>Log</translation></message>
    <message id="main_tools"><source></source><translation>Catalogue tools</translation></message>
    <message id="main_preferences"><source></source><translation>Preferences</translation></message>
    <message id="search_hidden_set"><source></source><translation>“%1” (%3) is hidden by “%2”.</translation></message>
    <message id="main_count"><source></source><translation>%1 machines</translation></message>
    <message id="main_count_some"><source></source><translation>%1 of %2 machines</translation></message>
    <message id="main_progress"><source></source><translation>Working</translation></message>
    <message id="main_no_emulator"><source></source><translation>No emulator chosen</translation></message>
    <message id="preferences_title"><source></source><translation>Preferences</translation></message>
    <message id="reset_Message"><source></source><translation>Reset all settings?</translation></message>
    <message id="reset_Info"><source></source><translation>Every page of the preferences goes back to its first values. The paths that you chose stay. This cannot be undone.</translation></message>
    <message id="reset_reset"><source></source><translation>Reset</translation></message>
    <message id="reset_cancel"><source></source><translation>Cancel</translation></message>
    <message id="preferences_reset"><source></source><translation>Reset all settings</translation></message>
    <message id="preferences_ini"><source></source><translation>All settings are back at their initial values. Chosen files and folders were kept.</translation></message>
    <message id="empty_catalogue"><source></source><translation>The catalogue holds no machine. Build it from the MAME on this computer: it lists every machine that it knows.</translation></message>
    <message id="rebuild_from_mame"><source></source><translation>Build from MAME…</translation></message>
    <message id="rebuild_button"><source></source><translation>Rebuild</translation></message>
    <message id="rebuild_cancel"><source></source><translation>Cancel</translation></message>
    <message id="rebuild_running"><source></source><translation>Building the catalogue from %1</translation></message>
    <message id="rebuild_count"><source></source><translation>%1 machines</translation></message>
    <message id="rebuild_progress"><source></source><translation>Building the catalogue</translation></message>
    <message id="rebuild_unsaved_message"><source></source><translation>The catalogue has edits that are not saved. Rebuild it without them?</translation></message>
    <message id="rebuild_unsaved_info"><source></source><translation>A rebuild replaces every record. The file as it was last saved is kept under a dated name.</translation></message>
    <message id="rebuild_same_message"><source></source><translation>The catalogue was already built from this MAME. Rebuild it all the same?</translation></message>
    <message id="rebuild_same_info"><source></source><translation>The emulator has not changed since. The present file is kept under a dated name.</translation></message>
    <message id="rebuild_no_emulator"><source></source><translation>No emulator was chosen, so there is nothing to build from.</translation></message>
    <message id="rebuild_cancelled"><source></source><translation>Building was cancelled; the catalogue is as it was.</translation></message>
    <message id="rebuild_done"><source></source><translation>The catalogue was built: %1 machines.</translation></message>
    <message id="rebuild_without_titles"><source></source><translation>Japanese titles are missing: %1</translation></message>
    <message id="rebuild_kept"><source></source><translation>The file before it is kept: %1</translation></message>
    <message id="rebuild_failed"><source></source><translation>The catalogue could not be built and is as it was.</translation></message>
    <message id="rebuild_outdated"><source></source><translation>The emulator has changed since the catalogue was built.</translation></message>
    <message id="failure_no_profile"><source></source><translation>“%1” does not say which options it knows.</translation></message>
    <message id="failure_no_emulator"><source></source><translation>No emulator was found; choose one in the preferences.</translation></message>
    <message id="failure_exec"><source></source><translation>“%1” could not be started: %2.</translation></message>
    <message id="rebuild_offer"><source></source><translation>Tessera can ask the MAME on this computer for every machine that it knows, and build the catalogue from that.</translation></message>
    <message id="empty_rebuilding"><source></source><translation>The machines appear here as soon as the catalogue is complete.</translation></message>
    <message id="menu_logfront"><source></source><translation>&amp;Bring Log to Front</translation></message>
    <message id="menu_view"><source></source><translation>&amp;View</translation></message>
    <message id="menu_copy"><source></source><translation>&amp;Copy</translation></message>
    <message id="menu_editrecord"><source></source><translation>&amp;Edit Record…</translation></message>
    <message id="menu_removerecord"><source></source><translation>Re&amp;move from Catalogue…</translation></message>
    <message id="menu_random"><source></source><translation>&amp;Random Game</translation></message>
    <message id="menu_home"><source></source><translation>To the &amp;Top</translation></message>
    <message id="menu_end"><source></source><translation>To the &amp;End</translation></message>
    <message id="menu_columns"><source></source><translation>&amp;Columns</translation></message>
    <message id="menu_bigger"><source></source><translation>&amp;Bigger Text</translation></message>
    <message id="menu_smaller"><source></source><translation>S&amp;maller Text</translation></message>
    <message id="menu_font"><source></source><translation>F&amp;ont…</translation></message>
    <message id="menu_find"><source></source><translation>&amp;Find</translation></message>
    <message id="menu_filter"><source></source><translation>&amp;Filter Panel…</translation></message>
    <message id="menu_showall"><source></source><translation>Show &amp;All</translation></message>
    <message id="main_random"><source></source><translation>Random game</translation></message>
    <message id="main_filter"><source></source><translation>Filter panel</translation></message>
    <message id="main_showall"><source></source><translation>Show all</translation></message>
    <message id="empty_filtered"><source></source><translation>No machine matches what you are looking for.</translation></message>
    <message id="mini_above"><source></source><translation>Above other windows</translation></message>
    <message id="mini_main"><source></source><translation>Game list</translation></message>
    <message id="mini_picture"><source></source><translation>Picture of the game</translation></message>
    <message id="mini_set"><source></source><translation>Set name or title</translation></message>
    <message id="favorites_window"><source></source><translation>Tessera  |  Favourites</translation></message>
    <message id="favorites_list"><source></source><translation>Favourites</translation></message>
    <message id="favorites_empty"><source></source><translation>No favourites yet. Ctrl+D adds the selected game of the list.</translation></message>
    <message id="favorites_none_found"><source></source><translation>No favourite fits the search.</translation></message>
    <message id="favorites_none_recent"><source></source><translation>None of the favourites was played lately.</translation></message>
    <message id="favorites_edit"><source></source><translation>Edit the selected favourite</translation></message>
    <message id="favorites_remove"><source></source><translation>Remove the selected favourites</translation></message>
    <message id="favorites_recent"><source></source><translation>Recently played</translation></message>
    <message id="favorites_mini"><source></source><translation>Mini window</translation></message>
    <message id="favorites_unsaved"><source></source><translation>Not saved yet</translation></message>
    <message id="favorites_save"><source></source><translation>Save favourites</translation></message>
    <message id="favorites_count"><source></source><translation>%1 favourites</translation></message>
    <message id="favorites_count_some"><source></source><translation>%1 of %2 favourites</translation></message>
    <message id="menu_savefavorites"><source></source><translation>Save Fa&amp;vourites</translation></message>
    <message id="menu_addfavorite"><source></source><translation>Add to &amp;Favourites</translation></message>
    <message id="menu_clearplayed"><source></source><translation>&amp;Clear What Was Played…</translation></message>
    <message id="menu_favorites"><source></source><translation>&amp;Favourites</translation></message>
    <message id="menu_mini"><source></source><translation>M&amp;ini Window</translation></message>
    <message id="menu_help"><source></source><translation>&amp;Help</translation></message>
    <message id="menu_showhelp"><source></source><translation>Tessera &amp;Help</translation></message>
    <message id="help_title"><source></source><translation>Help</translation></message>
    <message id="help_guide"><source></source><translation>Guide</translation></message>
    <message id="help_subject"><source></source><translation>Subject:</translation></message>
    <message id="help_keys"><source></source><translation>Keys</translation></message>
    <message id="help_terms_title"><source></source><translation>Search terms</translation></message>
    <message id="help_start_title"><source></source><translation>First start</translation></message>
    <message id="help_search_title"><source></source><translation>Finding a game</translation></message>
    <message id="help_launch_title"><source></source><translation>Playing</translation></message>
    <message id="help_tools_title"><source></source><translation>Catalogue tools</translation></message>
    <message id="help_favorites_title"><source></source><translation>Favourites and the mini window</translation></message>
    <message id="help_start"><source></source><translation>&lt;p&gt;Tessera needs two things: MAME, and the folder that holds your ROM archives.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;1. The catalogue.&lt;/b&gt; At the first start Tessera offers to build its list from your MAME. It asks MAME for every machine it knows, which takes a minute or two, and can be cancelled. Later, after a new MAME was installed, the status line offers the same again; the command is &lt;i&gt;File › Rebuild catalogue from MAME&lt;/i&gt;. The list that was there before is kept under a dated name.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. MAME itself&lt;/b&gt; is found where your system installs it. Another one is chosen in &lt;i&gt;Emulator › Choose Emulator&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Your ROM folder&lt;/b&gt; is chosen in &lt;i&gt;Emulator › Choose ROM Folder&lt;/i&gt;. Folders that MAME's own settings name are looked into as well. A machine without ROMs, such as &lt;i&gt;pong&lt;/i&gt;, runs at once.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Play.&lt;/b&gt; A double click, or the Return key, starts the selected game.&lt;/p&gt;
&lt;p&gt;Nothing is sent or fetched over the network unless you ask for it.&lt;/p&gt;</translation></message>
    <message id="help_search"><source></source><translation>&lt;p&gt;Just type: whatever you type in the list goes into the search field (&lt;b&gt;Ctrl+F&lt;/b&gt;). Set name, both titles, maker and year are searched; the words may come in any order. Capitals, accents and full or half width make no difference, hiragana finds katakana, and romaji finds kana: &lt;i&gt;guradi&lt;/i&gt; finds グラディウス.&lt;/p&gt;
&lt;p&gt;What fits best comes first: the exact set name, then a title or a part of one, then beginnings of words, and initials (&lt;i&gt;mvc&lt;/i&gt;) last. Punctuation need not be typed: &lt;i&gt;spiderman&lt;/i&gt;, &lt;i&gt;r type 2&lt;/i&gt;. Where nothing has these letters, the nearest titles are shown; Return starts one when it is pressed twice. A click on a column header sorts by that column until the field is emptied.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;The chips&lt;/b&gt; above the list show a part of it, with their counts: &lt;b&gt;Working&lt;/b&gt; is what runs without known faults, &lt;b&gt;Playable&lt;/b&gt; what runs with some as well. &lt;b&gt;Families&lt;/b&gt; folds clones beneath their parents; the right and left arrow keys open and close one. The clock in the search field (&lt;b&gt;Alt+Down&lt;/b&gt;) shows your last searches; the menu beside it keeps a search under a name, as one more chip. Makers complete behind &lt;i&gt;maker:&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;The filter panel&lt;/b&gt; (&lt;i&gt;View › Filter Panel&lt;/i&gt;) joins several rules, and holds the maker filter.&lt;/p&gt;
&lt;p&gt;Whatever hides rows is named beside the count, with &lt;b&gt;Show all&lt;/b&gt;.&lt;/p&gt;</translation></message>
    <message id="help_launch"><source></source><translation>&lt;p&gt;A double click, the Return key or &lt;b&gt;Play&lt;/b&gt; starts the selected game. What MAME prints goes into the log window (&lt;b&gt;Ctrl+L&lt;/b&gt;), together with the command line. While it runs the status line says so; &lt;b&gt;Stop&lt;/b&gt; beside it (&lt;b&gt;Ctrl+.&lt;/b&gt;) ends it.&lt;/p&gt;
&lt;p&gt;How games are started is set in the &lt;b&gt;preferences&lt;/b&gt; (&lt;b&gt;Ctrl+,&lt;/b&gt;). Options that your MAME does not know are struck through there and left out; the log names them in one line. Where no ROM folder is chosen, those that MAME itself looks in are proposed. A favourite may have options of its own, which come last and so win.&lt;/p&gt;
&lt;p&gt;When MAME ends with an error, Tessera says so, and the log shows why: mostly a file is missing from an archive, or the archive is of another MAME version.&lt;/p&gt;
&lt;p&gt;The log window also asks MAME itself: a command for the selected game or for all of them, or a listing into a file. &lt;b&gt;Ctrl+I&lt;/b&gt; shows what is told of a game, &lt;b&gt;Ctrl+B&lt;/b&gt; lists the BIOSes to choose from.&lt;/p&gt;</translation></message>
    <message id="help_tools"><source></source><translation>&lt;p&gt;&lt;i&gt;File › Catalogue Tools&lt;/i&gt; (&lt;b&gt;Ctrl+T&lt;/b&gt;) opens a window with a page for each job:&lt;/p&gt;
&lt;ul&gt;&lt;li&gt;&lt;b&gt;Build catalogue&lt;/b&gt; makes a catalogue from a saved listing of MAME and a list of titles.&lt;/li&gt;
&lt;li&gt;&lt;b&gt;ROM existence&lt;/b&gt; compares a list of names with a folder, and reports what is there and what is missing.&lt;/li&gt;
&lt;li&gt;&lt;b&gt;ROM separation&lt;/b&gt; copies what MAME no longer lists into another folder. It never replaces and never deletes.&lt;/li&gt;
&lt;li&gt;&lt;b&gt;Verification report&lt;/b&gt; sorts what MAME's own check says by its verdicts.&lt;/li&gt;
&lt;li&gt;&lt;b&gt;Old favourites&lt;/b&gt; turns a favourites file of the older form into the present one, and keeps the one before.&lt;/li&gt;
&lt;li&gt;&lt;b&gt;Launch script&lt;/b&gt; saves a small script that starts the selected game without Tessera.&lt;/li&gt;&lt;/ul&gt;
&lt;p&gt;Each job can be cancelled. Most of them can also be run without windows: &lt;i&gt;tessera --help&lt;/i&gt; in a terminal names the commands.&lt;/p&gt;</translation></message>
    <message id="help_favorites"><source></source><translation>&lt;p&gt;&lt;b&gt;Ctrl+D&lt;/b&gt; adds the selected game to the favourites; &lt;b&gt;Ctrl+2&lt;/b&gt; shows them in the same place, &lt;b&gt;Ctrl+1&lt;/b&gt; goes back. Each favourite may have options of its own; &lt;i&gt;Edit record&lt;/i&gt; completes them from what your MAME lists, and shows the whole command line. &lt;b&gt;Ctrl+F&lt;/b&gt; searches them like the game list; they keep their order.&lt;/p&gt;
&lt;p&gt;Favourites that were added or removed are saved when you quit. An edit alone is saved by &lt;b&gt;Ctrl+S&lt;/b&gt; in the favourites window, which also says when something is not saved yet.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Ctrl+3&lt;/b&gt; leaves a small launcher: type a set name, or let the dice choose, and press Return. It can stay above all other windows.&lt;/p&gt;
&lt;p&gt;What you played, how often and when last, is kept beside the favourites. The &lt;i&gt;Game&lt;/i&gt; menu switches it off, and clears it.&lt;/p&gt;</translation></message>
    <message id="help_terms_before"><source></source><translation>&lt;p&gt;Besides words, the search field takes terms: a key, a colon and a value. Several of them must all hold.&lt;/p&gt;</translation></message>
    <message id="help_terms_after"><source></source><translation>&lt;p&gt;A minus before a word or a term leaves out what it finds: &lt;b&gt;-bootleg&lt;/b&gt;. Words in quotation marks are found as they stand: &lt;b&gt;"street fighter"&lt;/b&gt;. A term that is wrong is underlined, and the reason stands beside the chips.&lt;/p&gt;&lt;p&gt;Together: &lt;b&gt;maker:konami year:1985-1989 status:good -bootleg&lt;/b&gt;&lt;/p&gt;</translation></message>
    <message id="help_keys_list"><source></source><translation>&lt;h2&gt;In the list&lt;/h2&gt;&lt;p&gt;&lt;b&gt;Return&lt;/b&gt; starts the selected game. &lt;b&gt;F2&lt;/b&gt; edits a field. Letters go into the search field; the &lt;b&gt;down&lt;/b&gt; arrow goes from there into the list. &lt;b&gt;Right&lt;/b&gt; and &lt;b&gt;left&lt;/b&gt; open and close a family. &lt;b&gt;Esc&lt;/b&gt; closes any other window, and clears the search field.&lt;/p&gt;</translation></message>
    <message id="menu_notesplayed"><source></source><translation>&amp;Note What Is Played</translation></message>
    <message id="menu_audit"><source></source><translation>Quick &amp;Audit</translation></message>
    <message id="audit_roms"><source></source><translation>Verify the ROMs</translation></message>
    <message id="audit_samples"><source></source><translation>Verify the samples</translation></message>
    <message id="audit_listroms"><source></source><translation>List the ROMs</translation></message>
    <message id="audit_romident"><source></source><translation>Identify the archive</translation></message>
    <message id="menu_currentdir"><source></source><translation>Open the Emulator’s Fol&amp;der</translation></message>
    <message id="menu_openroms"><source></source><translation>&amp;Open the ROM Folder</translation></message>
    <message id="menu_launcher"><source></source><translation>Save as &amp;Launcher…</translation></message>
    <message id="launcher_save"><source></source><translation>Save as launcher</translation></message>
    <message id="launcher_saved"><source></source><translation>The launcher was saved: %1</translation></message>
    <message id="main_changes"><source></source><translation>What changed…</translation></message>
    <message id="catalogue_save_nothing"><source></source><translation>Nothing was saved: the catalogue has no changes.</translation></message>
    <message id="catalogue_saved"><source></source><translation>The catalogue was saved.</translation></message>
    <message id="catalogue_saved_kept"><source></source><translation>The catalogue was saved. The file that was there before was kept: %1</translation></message>
    <message id="catalogue_used"><source></source><translation>The file is the catalogue now: %1 machines.</translation></message>
    <message id="catalogue_use"><source></source><translation>Use it</translation></message>
    <message id="catalogue_unsaved_message"><source></source><translation>The catalogue has edits that are not saved. Put the file in its place without them?</translation></message>
    <message id="catalogue_unsaved_info"><source></source><translation>Every record is replaced. The file as it was last saved is kept under a dated name.</translation></message>
    <message id="menu_history"><source></source><translation>History and &amp;Info</translation></message>
    <message id="menu_rominfo"><source></source><translation>Information Pa&amp;ge</translation></message>
    <message id="menu_historywindow"><source></source><translation>&amp;History and Info</translation></message>
    <message id="menu_bioslist"><source></source><translation>&amp;BIOS List</translation></message>
    <message id="empty_noroms"><source></source><translation>No ROM folder was chosen, and MAME’s own folders hold no ROMs.</translation></message>
    <message id="empty_chooseroms"><source></source><translation>Choose ROM Folder…</translation></message>
    <message id="menu_artwork"><source></source><translation>&amp;Artwork</translation></message>
    <message id="menu_showpicture"><source></source><translation>&amp;Show Picture</translation></message>
    <message id="menu_nextkind"><source></source><translation>&amp;Next Kind of Picture</translation></message>
    <message id="menu_kinds"><source></source><translation>&amp;Kind of Picture</translation></message>
    <message id="menu_downloadpicture"><source></source><translation>&amp;Download Picture</translation></message>
    <message id="menu_revealpicture"><source></source><translation>Show Picture &amp;File in the File Manager</translation></message>
    <message id="menu_revealrom"><source></source><translation>Show &amp;ROM in the File Manager</translation></message>
    <message id="menu_picturefolders"><source></source><translation>&amp;Open Picture Folder</translation></message>
    <message id="menu_snapfolder"><source></source><translation>&amp;Snapshots</translation></message>
    <message id="menu_titlefolder"><source></source><translation>&amp;Title Snapshots</translation></message>
    <message id="menu_flyerfolder"><source></source><translation>&amp;Game Flyers</translation></message>
    <message id="support_pictures"><source></source><translation>Pictures</translation></message>
    <message id="side_history"><source></source><translation>History</translation></message>
    <message id="side_page"><source></source><translation>Web page</translation></message>
    <message id="side_verify"><source></source><translation>Verify ROM</translation></message>
    <message id="side_reveal"><source></source><translation>Show ROM file</translation></message>
    <message id="help_pictures_title"><source></source><translation>Pictures and history</translation></message>
    <message id="help_pictures"><source></source><translation>&lt;p&gt;Beside the list stands a picture of the selected game: its snapshot, title screen or flyer. The button beneath it, or &lt;b&gt;Ctrl+K&lt;/b&gt;, shows the next kind; the arrow beside the button lists all three.&lt;/p&gt;
&lt;p&gt;Say in &lt;i&gt;Preferences › Support&lt;/i&gt; where your pictures are. A file is looked for under the set's name, then under its parent's: &lt;i&gt;pacman/0000.png&lt;/i&gt;, &lt;i&gt;pacman.png&lt;/i&gt;. MAME's own snapshots, which F12 makes while you play, can be used as they are.&lt;/p&gt;
&lt;p&gt;A click on the picture opens it at its own size; the choice at the right sets the proportions that it is drawn in.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Ctrl+Shift+D&lt;/b&gt; downloads the picture of the kind that is shown, from the site that you have set on that page. A picture that is there is only replaced after a question.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Ctrl+I&lt;/b&gt; shows what history.dat, history.xml and mameinfo.dat tell of the game; choose the files at the foot of its window. &lt;b&gt;Ctrl+Shift+I&lt;/b&gt; opens its page on an information site.&lt;/p&gt;</translation></message>
    <message id="support_files"><source></source><translation>Folders and files</translation></message>
    <message id="main_stopnow"><source></source><translation>Stop</translation></message>
    <message id="quit_unsaved_message"><source></source><translation>Could not save changes while quitting. Quit anyway?</translation></message>
    <message id="quit_anyway"><source></source><translation>Quit anyway</translation></message>
</context>
</TS>
