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
    <message id="menu_editcell"><source></source><translation>Edit &amp;Field (F2)</translation></message>
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
    <message id="main_count"><source></source><translation>%1 machines</translation></message>
    <message id="main_count_some"><source></source><translation>%1 of %2 machines</translation></message>
    <message id="main_progress"><source></source><translation>Working</translation></message>
    <message id="main_no_emulator"><source></source><translation>No emulator chosen</translation></message>
    <message id="preferences_title"><source></source><translation>Preferences</translation></message>
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
    <message id="rebuild_failed"><source></source><translation>The catalogue could not be built and is as it was.</translation></message>
    <message id="rebuild_outdated"><source></source><translation>The emulator has changed since the catalogue was built.</translation></message>
    <message id="failure_no_profile"><source></source><translation>“%1” does not say which options it knows.</translation></message>
    <message id="failure_no_emulator"><source></source><translation>No emulator was found; choose one in the preferences.</translation></message>
    <message id="failure_exec"><source></source><translation>“%1” could not be started: %2.</translation></message>
    <message id="rebuild_offer"><source></source><translation>Tessera can ask the MAME on this computer for every machine that it knows, and build the catalogue from that.</translation></message>
    <message id="empty_rebuilding"><source></source><translation>The machines appear here as soon as the catalogue is complete.</translation></message>
    <message id="menu_logfront"><source></source><translation>Bring Log to &amp;Front</translation></message>
</context>
</TS>
