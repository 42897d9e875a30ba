<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Help</name>
<message><source>A field of texts</source><translation>A field of texts</translation></message>
<message><source>A new record</source><translation>A new record</translation></message>
<message><source>Adds a record through the document's form</source><translation>Adds a record through the document's form</translation></message>
<message><source>Adds words that have no field of their own to the notes</source><translation>Adds words that have no field of their own to the notes</translation></message>
<message><source>Any typed stream</source><translation>Any typed stream</translation></message>
<message><source>Appends the dives of a file to a logbook: UDDF 3, another logbook and, with --format standard, anything that holds dives are read by their meaning. In the other formats a dive that cannot be taken ends the import: the dives before it are kept and saved, the reason is told, and the exit code is 1.</source><translation>Appends the dives of a file to a logbook: UDDF 3, another logbook and, with --format standard, anything that holds dives are read by their meaning. In the other formats a dive that cannot be taken ends the import: the dives before it are kept and saved, the reason is told, and the exit code is 1.</translation></message>
<message><source>As one JSON object</source><translation>As one JSON object</translation></message>
<message><source>COMMANDS</source><translation>COMMANDS</translation></message>
<message><source>Changes a record through the document's form</source><translation>Changes a record through the document's form</translation></message>
<message><source>Changes the file although another program has it open or changes it meanwhile, or a newer version wrote it</source><translation>Changes the file although another program has it open or changes it meanwhile, or a newer version wrote it</translation></message>
<message><source>Decimal degrees: ed50-wgs84 (default) or wgs84-ed50</source><translation>Decimal degrees: ed50-wgs84 (default) or wgs84-ed50</translation></message>
<message><source>Display program version information and exit</source><translation>Display program version information and exit</translation></message>
<message><source>Diving calculators</source><translation>Diving calculators</translation></message>
<message><source>Draws what the windows print into a PDF, SVG or PNG</source><translation>Draws what the windows print into a PDF, SVG or PNG</translation></message>
<message><source>ED50 to WGS84 from "degrees minutes seconds", with a report; the parts are added, so west and south each takes its minus sign</source><translation>ED50 to WGS84 from "degrees minutes seconds", with a report; the parts are added, so west and south each takes its minus sign</translation></message>
<message><source>Either</source><translation>Either</translation></message>
<message><source>Everything, as one JSON object</source><translation>Everything, as one JSON object</translation></message>
<message><source>Exit codes: 0 done, 1 failed (the reason on standard error, the file as it was), 2 wrong usage.</source><translation>Exit codes: 0 done, 1 failed (the reason on standard error, the file as it was), 2 wrong usage.</translation></message>
<message><source>Gas consumption and oxygen clock of a dive</source><translation>Gas consumption and oxygen clock of a dive</translation></message>
<message><source>Height above the ellipsoid, m</source><translation>Height above the ellipsoid, m</translation></message>
<message><source>How SOURCE is read; told by its contents when not given</source><translation>How SOURCE is read; told by its contents when not given</translation></message>
<message><source>KEY=VALUE, a setting for this run only; a dictionary as a JSON object</source><translation>KEY=VALUE, a setting for this run only; a dictionary as a JSON object</translation></message>
<message><source>Latitude, positive to the north</source><translation>Latitude, positive to the north</translation></message>
<message><source>Leaves out dives that the logbook holds already; on for standard</source><translation>Leaves out dives that the logbook holds already; on for standard</translation></message>
<message><source>Leaves out the dives before the logbook</source><translation>Leaves out the dives before the logbook</translation></message>
<message><source>Lists the records of a document</source><translation>Lists the records of a document</translation></message>
<message><source>Lists the records whose field holds a text, case aside</source><translation>Lists the records whose field holds a text, case aside</translation></message>
<message><source>Longitude, positive to the east</source><translation>Longitude, positive to the east</translation></message>
<message><source>Makes an empty document</source><translation>Makes an empty document</translation></message>
<message><source>NAME</source><translation>NAME</translation></message>
<message><source>NOTES</source><translation>NOTES</translation></message>
<message><source>NUMBER</source><translation>NUMBER</translation></message>
<message><source>Numbers all records in their order</source><translation>Numbers all records in their order</translation></message>
<message><source>OPTIONS</source><translation>OPTIONS</translation></message>
<message><source>One JSON object, unrounded</source><translation>One JSON object, unrounded</translation></message>
<message><source>One series, an element to a line</source><translation>One series, an element to a line</translation></message>
<message><source>Options</source><translation>Options</translation></message>
<message><source>Orders all dives by date and numbers them on</source><translation>Orders all dives by date and numbers them on</translation></message>
<message><source>Oxygen partial pressure, bar</source><translation>Oxygen partial pressure, bar</translation></message>
<message><source>Positionals</source><translation>Positionals</translation></message>
<message><source>Print this help message and exit</source><translation>Print this help message and exit</translation></message>
<message><source>Prints the completion script for bash or the manual page</source><translation>Prints the completion script for bash or the manual page</translation></message>
<message><source>Prints the dives that SOURCE holds and changes nothing</source><translation>Prints the dives that SOURCE holds and changes nothing</translation></message>
<message><source>Prints them as JSON</source><translation>Prints them as JSON</translation></message>
<message><source>Prints which fields the format would lose, and of how many dives; writes nothing</source><translation>Prints which fields the format would lose, and of how many dives; writes nothing</translation></message>
<message><source>REQUIRED</source><translation>REQUIRED</translation></message>
<message><source>Removes records</source><translation>Removes records</translation></message>
<message><source>SERIES=TEXTFILE: replaces a series by the lines of a file, and saves the logbook</source><translation>SERIES=TEXTFILE: replaces a series by the lines of a file, and saves the logbook</translation></message>
<message><source>SUBCOMMAND</source><translation>SUBCOMMAND</translation></message>
<message><source>SYNOPSIS</source><translation>SYNOPSIS</translation></message>
<message><source>Shows the edit form with a record, or a new one, and entries; stores nothing</source><translation>Shows the edit form with a record, or a new one, and entries; stores nothing</translation></message>
<message><source>Shows the synthesis card</source><translation>Shows the synthesis card</translation></message>
<message><source>Shows the table of a document as its window does</source><translation>Shows the table of a document as its window does</translation></message>
<message><source>Sorts as clicks on the headers of these columns do, and saves the order</source><translation>Sorts as clicks on the headers of these columns do, and saves the order</translation></message>
<message><source>Statistics of all dives and of those before the logbook</source><translation>Statistics of all dives and of those before the logbook</translation></message>
<message><source>Subcommands</source><translation>Subcommands</translation></message>
<message><source>Summary and geometry as JSON</source><translation>Summary and geometry as JSON</translation></message>
<message><source>TEXT</source><translation>TEXT</translation></message>
<message><source>Takes them too</source><translation>Takes them too</translation></message>
<message><source>Tavrel on the command line: the documents and calculators of the divers' application</source><translation>Tavrel on the command line: the documents and calculators of the divers' application</translation></message>
<message><source>Tells what a typed stream holds</source><translation>Tells what a typed stream holds</translation></message>
<message><source>The columns' fields, in the order of the clicks</source><translation>The columns' fields, in the order of the clicks</translation></message>
<message><source>The decimal converter's steps on standard error</source><translation>The decimal converter's steps on standard error</translation></message>
<message><source>The dive's row, from 0</source><translation>The dive's row, from 0</translation></message>
<message><source>The document</source><translation>The document</translation></message>
<message><source>The fields that a table gets columns for; all of them else</source><translation>The fields that a table gets columns for; all of them else</translation></message>
<message><source>The fields to list, separated by commas</source><translation>The fields to list, separated by commas</translation></message>
<message><source>The file to write, ending in .pdf, .svg or .png</source><translation>The file to write, ending in .pdf, .svg or .png</translation></message>
<message><source>The file to write; - is the standard output</source><translation>The file to write; - is the standard output</translation></message>
<message><source>The file with the dives</source><translation>The file with the dives</translation></message>
<message><source>The first number</source><translation>The first number</translation></message>
<message><source>The format</source><translation>The format</translation></message>
<message><source>The logbook</source><translation>The logbook</translation></message>
<message><source>The moment that counts as now, as 2024-05-03T10:30:00</source><translation>The moment that counts as now, as 2024-05-03T10:30:00</translation></message>
<message><source>The picture's file, such as copy.png; .tiff gives the stored bytes</source><translation>The picture's file, such as copy.png; .tiff gives the stored bytes</translation></message>
<message><source>The record's row, from 0</source><translation>The record's row, from 0</translation></message>
<message><source>The recorded profile of a dive: what it amounts to, its picture in figures, its series, and replacing them</source><translation>The recorded profile of a dive: what it amounts to, its picture in figures, its series, and replacing them</translation></message>
<message><source>The records' rows, from 0</source><translation>The records' rows, from 0</translation></message>
<message><source>The records' rows, from 0, of a card; the dive's of a profile</source><translation>The records' rows, from 0, of a card; the dive's of a profile</translation></message>
<message><source>The records' rows, from 0; all when not given</source><translation>The records' rows, from 0; all when not given</translation></message>
<message><source>The text</source><translation>The text</translation></message>
<message><source>The type's name, such as "Carnet de plongee", or its record class</source><translation>The type's name, such as "Carnet de plongee", or its record class</translation></message>
<message><source>The unit of the value</source><translation>The unit of the value</translation></message>
<message><source>The value</source><translation>The value</translation></message>
<message><source>The whole tree, as one JSON object</source><translation>The whole tree, as one JSON object</translation></message>
<message><source>Time, min</source><translation>Time, min</translation></message>
<message><source>Usage</source><translation>Usage</translation></message>
<message><source>What to draw</source><translation>What to draw</translation></message>
<message><source>Writes a logbook in another format; TARGET is written as a whole or, on a failure, not at all.</source><translation>Writes a logbook in another format; TARGET is written as a whole or, on a failure, not at all.</translation></message>
<message><source>Writes a stored picture as a file</source><translation>Writes a stored picture as a file</translation></message>
<message><source>field=value, by the field's or the control's name</source><translation>field=value, by the field's or the control's name</translation></message>
</context>
</TS>
