<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Interchange</name>
<message><source>All dives</source><translation>All (%d)</translation></message>
<message><source>Already there</source><translation>already there</translation></message>
<message><source>Chosen</source><translation>Chosen: %d</translation></message>
<message><source>Column depth</source><translation>Depth</translation></message>
<message><source>Column duration</source><translation>Duration</translation></message>
<message><source>Column example</source><translation>Example</translation></message>
<message><source>Column field</source><translation>Field of the dive</translation></message>
<message><source>Column gas</source><translation>Gas</translation></message>
<message><source>Column heading</source><translation>Column of the file</translation></message>
<message><source>Column left out</source><translation>(left out)</translation></message>
<message><source>Column place</source><translation>Place</translation></message>
<message><source>Column profile</source><translation>Profile</translation></message>
<message><source>Column remarks</source><translation>Remarks</translation></message>
<message><source>Column start</source><translation>Date and time</translation></message>
<message><source>Columns of table</source><translation>Columns of the table</translation></message>
<message><source>Damaged</source><translation>The file is damaged at %@ (line:column); dives or words behind it may be missing.</translation></message>
<message><source>Dive files</source><translation>Files with dives</translation></message>
<message><source>Dives found</source><translation>Dives found: %d</translation></message>
<message><source>Dives last found</source><translation>Found (%d)</translation></message>
<message><source>Doubt group skipped</source><translation>outside the file’s groups</translation></message>
<message><source>Doubt in future</source><translation>in the future</translation></message>
<message><source>Doubt no date</source><translation>no date</translation></message>
<message><source>Doubt no samples</source><translation>no profile</translation></message>
<message><source>Doubt too deep</source><translation>deeper than 350 m</translation></message>
<message><source>Export</source><translation>Export</translation></message>
<message><source>Export columns</source><translation>Columns</translation></message>
<message><source>Export comes back</source><translation>The losses are what differs when the file is read back.</translation></message>
<message><source>Export dives</source><translation>Export Dives</translation></message>
<message><source>Export format</source><translation>Format</translation></message>
<message><source>Export which</source><translation>Dives</translation></message>
<message><source>Format UDCF</source><translation>UDCF</translation></message>
<message><source>Format UDDF</source><translation>UDDF 2.2</translation></message>
<message><source>Format UDDF 3</source><translation>UDDF 3.2</translation></message>
<message><source>Format commas</source><translation>Dive list as text, commas</translation></message>
<message><source>Format profiles</source><translation>Profiles as text, commas</translation></message>
<message><source>Format semicolons</source><translation>Dive list as text, semicolons</translation></message>
<message><source>Format table</source><translation>CSV, all fields or chosen ones (UTF-8)</translation></message>
<message><source>Format tabs</source><translation>Dive list as text, tabs</translation></message>
<message><source>Implausible</source><translation>With an implausible depth: %d.</translation></message>
<message><source>Import</source><translation>Import</translation></message>
<message><source>Import dives</source><translation>Import Dives</translation></message>
<message><source>Import dives command</source><translation>Import Dives…</translation></message>
<message><source>Left out</source><translation>In groups that this format leaves out: %d.</translation></message>
<message><source>Looking for losses</source><translation>Looking for what would be lost…</translation></message>
<message><source>Loss of dives</source><translation>%@ of %d dives</translation></message>
<message><source>Loss of one dive</source><translation>%@ of one dive</translation></message>
<message><source>Losses</source><translation>What the file will not hold</translation></message>
<message><source>Losses not known</source><translation>Not looked for.</translation></message>
<message><source>Lost of dives</source><translation>%@ (dives: %d)</translation></message>
<message><source>No columns to choose</source><translation>This format has no columns to choose.</translation></message>
<message><source>No dives of this kind</source><translation>The document holds no dives.</translation></message>
<message><source>No place for</source><translation>A dive has no place for: %@.</translation></message>
<message><source>No such column</source><translation>Dives have no field “%@”.</translation></message>
<message><source>Nothing lost</source><translation>Nothing is lost.</translation></message>
<message><source>Numbered on</source><translation>Their numbers in the file are missing, repeat or are in use; they were numbered on.</translation></message>
<message><source>Reading file</source><translation>Reading “%@”…</translation></message>
<message><source>Reads better</source><translation>The file is UDDF 3; read by its meaning it has its dates, gases and profiles.</translation></message>
<message><source>Renumber by date</source><translation>Order all dives by date and number them on</translation></message>
<message><source>Say the date</source><translation>Say which column holds the date; then the dives are read.</translation></message>
<message><source>Selected dives</source><translation>Selected (%d)</translation></message>
<message><source>Skipped</source><translation>Already there and left out: %d.</translation></message>
<message><source>Table columns</source><translation>Columns…</translation></message>
<message><source>Table without date</source><translation>No column of “%@” is known to hold the date.</translation></message>
<message><source>Texts to notes</source><translation>Add words that have no field of their own to the notes</translation></message>
<message><source>Tick all</source><translation>Tick All</translation></message>
<message><source>Tick none</source><translation>Tick None</translation></message>
<message><source>Twice</source><translation>Now there twice: %d.</translation></message>
<message><source>Without date</source><translation>Without a date: %d.</translation></message>
</context>
</TS>
