<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Archive</name>
<message><source>At byte</source><translation>at byte %lld</translation></message>
<message><source>Cancelled</source><translation>Cancelled.</translation></message>
<message><source>Class loop</source><translation>The file is damaged: a class descends from itself.</translation></message>
<message><source>Count too large</source><translation>The file is damaged: it announces more data than it holds.</translation></message>
<message><source>Missing item</source><translation>The file is damaged: a record ends before its last field.</translation></message>
<message><source>Nil name</source><translation>The file is damaged: a type or class has no name.</translation></message>
<message><source>No color</source><translation>The archive holds no colour.</translation></message>
<message><source>Not number</source><translation>The file is damaged: a series holds something else than numbers.</translation></message>
<message><source>Not typed stream</source><translation>The file is not a document of this program.</translation></message>
<message><source>Root not array</source><translation>The file holds no list of records.</translation></message>
<message><source>Too deep</source><translation>The file is nested too deeply.</translation></message>
<message><source>Too much</source><translation>The file unfolds to far more than it could mean.</translation></message>
<message><source>Truncated</source><translation>The file is damaged: it ends too early.</translation></message>
<message><source>Undefined reference</source><translation>The file is damaged: it refers to something that it has not defined.</translation></message>
<message><source>Unexpected tag</source><translation>The file is damaged: an unexpected mark stands in it.</translation></message>
<message><source>Unknown type</source><translation>The file is damaged: it holds a value of an unknown type.</translation></message>
<message><source>Unknown version</source><translation>The file is written in an unknown version of the archive format.</translation></message>
<message><source>Value out of range</source><translation>The file is damaged: a number does not fit its field.</translation></message>
<message><source>Version</source><translation>version %d</translation></message>
<message><source>Wrong class</source><translation>The file holds records of another kind.</translation></message>
<message><source>Wrong item object</source><translation>The file is damaged: a field holds something of another kind.</translation></message>
<message><source>Wrong item type</source><translation>The file is damaged: a field has another type than it must have.</translation></message>
<message><source>Wrong reference</source><translation>The file is damaged: it refers to something of another kind.</translation></message>
</context>
</TS>
