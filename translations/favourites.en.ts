<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="failure_favourites_foreign"><source></source><translation>“%1” is not a list.</translation></message>
    <message id="undo_add_favourite"><source></source><translation>Add to Favourites</translation></message>
    <message id="undo_edit_favourite"><source></source><translation>Edit Favourite</translation></message>
    <message id="undo_remove_favourites"><source></source><translation>Remove from Favourites</translation></message>
</context>
</TS>
