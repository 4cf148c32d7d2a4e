<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="failure_write"><source></source><translation>“%1” could not be written: %2.</translation></message>
</context>
</TS>
