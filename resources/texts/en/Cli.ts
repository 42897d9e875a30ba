<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Cli</name>
<message><source>Big-endian</source><translation>Byte order: big-endian</translation></message>
<message><source>Calculator required</source><translation>A calculator is required.</translation></message>
<message><source>Class line</source><translation>  %@, version %d: %d objects</translation></message>
<message><source>Classes</source><translation>Classes:</translation></message>
<message><source>Command required</source><translation>A command is required.</translation></message>
<message><source>Drawn of one row</source><translation>“%@” is drawn of one row only.</translation></message>
<message><source>Drawn without rows</source><translation>--row is not for “%@”, which is drawn of the whole document.</translation></message>
<message><source>File exists</source><translation>“%@” exists already.</translation></message>
<message><source>First number too high</source><translation>The first number can be %d at most, so that the last dive gets one too.</translation></message>
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
<message><source>Option for value</source><translation>“%@” stands where a value is expected.</translation></message>
<message><source>Output not written</source><translation>The output could not be written.</translation></message>
<message><source>Picture endings</source><translation>The file's name must end in .pdf, .svg or .png.</translation></message>
<message><source>Pressure drop line</source><translation>Tank %d: %@</translation></message>
<message><source>References</source><translation>References: %d</translation></message>
<message><source>Row</source><translation>Row</translation></message>
<message><source>Row or new</source><translation>Give either --row or --new.</translation></message>
<message><source>System version</source><translation>System version: %d</translation></message>
<message><source>Usage excludes</source><translation>%@ excludes %@.</translation></message>
<message><source>Usage help</source><translation>Run with --help for more information.</translation></message>
<message><source>Usage no choice</source><translation>%@: “%@” is not one of %@.</translation></message>
<message><source>Usage no value</source><translation>%@: “%@” is not a value that can be given.</translation></message>
<message><source>Usage once</source><translation>%@ can be given once only.</translation></message>
<message><source>Usage required</source><translation>%@ is required.</translation></message>
<message><source>Usage requires</source><translation>%@ requires %@.</translation></message>
<message><source>Usage unexpected</source><translation>Not expected: %@</translation></message>
<message><source>Usage value missing</source><translation>%@: the value is missing.</translation></message>
<message><source>Usual values</source><translation>, usually %@ [%@]</translation></message>
</context>
</TS>
