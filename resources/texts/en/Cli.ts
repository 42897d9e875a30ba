<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Cli</name>
<message><source>Big-endian</source><translation>Byte order: big-endian</translation></message>
<message><source>Class line</source><translation>  %@, version %d: %d objects</translation></message>
<message><source>Classes</source><translation>Classes:</translation></message>
<message><source>File exists</source><translation>“%@” exists already.</translation></message>
<message><source>Groups</source><translation>Groups: %d</translation></message>
<message><source>Little-endian</source><translation>Byte order: little-endian</translation></message>
<message><source>No card</source><translation>Documents of the type “%@” have no card.</translation></message>
<message><source>No picture field</source><translation>Documents of the type “%@” hold no pictures.</translation></message>
<message><source>No such row</source><translation>There is no row %d: the document has %d records, counted from 0.</translation></message>
<message><source>No such type</source><translation>“%@” is not a type of document. Types: %@.</translation></message>
<message><source>Not a logbook</source><translation>“%@” is not a logbook.</translation></message>
<message><source>Not a moment</source><translation>“%@” is not a date with a time, such as 2024-05-03T10:30:00.</translation></message>
<message><source>Not a replacement</source><translation>“%@” is not a replacement. Replacements are SERIES=TEXTFILE; the series are depth, ascent, slow, ceiling, surface, gas and pressure.</translation></message>
<message><source>Not an entry</source><translation>“%@” is not of the form field=value.</translation></message>
<message><source>Not decimal degrees</source><translation>“%@” is not decimal degrees. Is --sexagesimal meant?</translation></message>
<message><source>Not sexagesimal</source><translation>“%@” is not degrees, minutes and seconds.</translation></message>
<message><source>Objects</source><translation>Objects: %d</translation></message>
<message><source>Output not written</source><translation>The output could not be written.</translation></message>
<message><source>Picture endings</source><translation>The file's name must end in .pdf, .svg or .png.</translation></message>
<message><source>Pressure drop line</source><translation>Tank %d: %@</translation></message>
<message><source>References</source><translation>References: %d</translation></message>
<message><source>Row</source><translation>Row</translation></message>
<message><source>Row or new</source><translation>Give either --row or --new.</translation></message>
<message><source>System version</source><translation>System version: %d</translation></message>
<message><source>Unit of the value</source><translation>Unit of the value: %@</translation></message>
<message><source>Usual values</source><translation>, usually %@ [%@]</translation></message>
</context>
</TS>
