<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Cli</name>
<message><source>File exists</source><translation>“%@” exists already.</translation></message>
<message><source>No such row</source><translation>There is no row %d: the document has %d records, counted from 0.</translation></message>
<message><source>No such type</source><translation>“%@” is not a type of document. Types: %@.</translation></message>
<message><source>Not an entry</source><translation>“%@” is not of the form field=value.</translation></message>
<message><source>Output not written</source><translation>The output could not be written.</translation></message>
<message><source>Row</source><translation>Row</translation></message>
<message><source>Unknown records</source><translation>It holds records that no document here has (%@).</translation></message>
</context>
</TS>
