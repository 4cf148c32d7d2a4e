<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="tool_title"><source></source><translation>Catalogue tools</translation></message>
    <message id="tool_pages"><source></source><translation>Tools</translation></message>
    <message id="tool_information"><source></source><translation>Information</translation></message>
    <message id="tool_progress"><source></source><translation>Progress</translation></message>
    <message id="tool_choose"><source></source><translation>Choose…</translation></message>
    <message id="tool_reveal"><source></source><translation>Show in file manager</translation></message>
    <message id="convert_page"><source></source><translation>Build catalogue</translation></message>
    <message id="convert_heading"><source></source><translation>Build the catalogue</translation></message>
    <message id="convert_explanation"><source></source><translation>From what your emulator prints for -listxml, saved to a file, and a list of Japanese titles. The result is saved where you say.</translation></message>
    <message id="convert_listxml"><source></source><translation>-&amp;listxml output</translation></message>
    <message id="convert_titles"><source></source><translation>&amp;Japanese titles</translation></message>
    <message id="convert_leave_out"><source></source><translation>Leave out</translation></message>
    <message id="convert_bios"><source></source><translation>&amp;BIOS sets</translation></message>
    <message id="convert_mechanical"><source></source><translation>&amp;Mechanical</translation></message>
    <message id="convert_devices"><source></source><translation>&amp;Devices</translation></message>
    <message id="convert_button"><source></source><translation>&amp;Convert</translation></message>
    <message id="convert_not_read"><source></source><translation>“%1” could not be read: %2.</translation></message>
    <message id="convert_has_nul"><source></source><translation>The list holds NUL bytes, which no emulator prints. Perhaps it was saved as UTF-16; save it as UTF-8.</translation></message>
    <message id="convert_too_large"><source></source><translation>The list cannot be converted: the catalogue would be larger than 2 GiB.</translation></message>
    <message id="build_missing"><source></source><translation>There is no emulator at “%1”.</translation></message>
    <message id="build_is_folder"><source></source><translation>“%1” is a folder, not an emulator.</translation></message>
    <message id="build_not_executable"><source></source><translation>“%1” is not a program that may be run.</translation></message>
    <message id="build_read_only"><source></source><translation>The catalogue cannot be written: the folder “%1” may not be changed.</translation></message>
    <message id="build_not_started"><source></source><translation>“%1” could not be started: %2.</translation></message>
    <message id="build_crashed"><source></source><translation>“%1” crashed (signal %2) before its list was complete. The catalogue was not changed.</translation></message>
    <message id="build_status"><source></source><translation>“%1” ended with status %2 instead of a complete list. The catalogue was not changed.</translation></message>
    <message id="build_status_words"><source></source><translation>“%1” ended with status %2 instead of a complete list. The catalogue was not changed. It said:
%3</translation></message>
    <message id="build_nothing_printed"><source></source><translation>“%1” printed nothing when it was asked for its list. The catalogue was not changed.</translation></message>
    <message id="build_no_list"><source></source><translation>What “%1” printed is not a list of machines. The catalogue was not changed.</translation></message>
    <message id="build_cut_off"><source></source><translation>The list that “%1” printed is cut off. The catalogue was not changed.</translation></message>
    <message id="build_unreadable"><source></source><translation>“%1” lists machines in a form that no catalogue can be made of.</translation></message>
    <message id="convert_no_titles"><source></source><translation>“%1” is not a list of titles.</translation></message>
    <message id="tool_text_too_large"><source></source><translation>“%1” is too large to be what an emulator prints.</translation></message>
    <message id="existence_no_header"><source></source><translation>The list has no header line that begins with “Name:”, or the ROM folder holds something of that name; so it is not shown. Save what the emulator prints for -listfull as it is.</translation></message>
    <message id="copy_exists"><source></source><translation>“%1” is already there.</translation></message>
    <message id="copy_special"><source></source><translation>“%1” is neither a file nor a folder.</translation></message>
    <message id="copy_into_itself"><source></source><translation>“%1” is the folder that is copied to.</translation></message>
    <message id="copy_cancelled"><source></source><translation>The copy was cancelled.</translation></message>
    <message id="separate_failed"><source></source><translation>Not copied: %1. The first: %2</translation></message>
</context>
</TS>
