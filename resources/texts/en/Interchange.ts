<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Interchange</name>
<message><source>Already there</source><translation>already there</translation></message>
<message><source>Chosen</source><translation>Chosen: %d</translation></message>
<message><source>Column depth</source><translation>Depth</translation></message>
<message><source>Column duration</source><translation>Duration</translation></message>
<message><source>Column gas</source><translation>Gas</translation></message>
<message><source>Column place</source><translation>Place</translation></message>
<message><source>Column profile</source><translation>Profile</translation></message>
<message><source>Column remarks</source><translation>Remarks</translation></message>
<message><source>Column start</source><translation>Date and time</translation></message>
<message><source>Dive files</source><translation>Files with dives</translation></message>
<message><source>Dives found</source><translation>Dives found: %d</translation></message>
<message><source>Doubt group skipped</source><translation>outside the file’s groups</translation></message>
<message><source>Doubt in future</source><translation>in the future</translation></message>
<message><source>Doubt no date</source><translation>no date</translation></message>
<message><source>Doubt no samples</source><translation>no profile</translation></message>
<message><source>Doubt too deep</source><translation>deeper than 350 m</translation></message>
<message><source>Implausible</source><translation>With an implausible depth: %d.</translation></message>
<message><source>Import</source><translation>Import</translation></message>
<message><source>Import dives</source><translation>Import Dives</translation></message>
<message><source>Import dives command</source><translation>Import Dives…</translation></message>
<message><source>Left out</source><translation>In groups that this format leaves out: %d.</translation></message>
<message><source>Lost of dives</source><translation>%@ (dives: %d)</translation></message>
<message><source>No dives of this kind</source><translation>The document holds no dives.</translation></message>
<message><source>No place for</source><translation>A dive has no place for: %@.</translation></message>
<message><source>No such column</source><translation>Dives have no field “%@”.</translation></message>
<message><source>Nothing lost</source><translation>Nothing is lost.</translation></message>
<message><source>Reading file</source><translation>Reading “%@” …</translation></message>
<message><source>Reads better</source><translation>The file is UDDF 3; read by its meaning it has its dates, gases and profiles.</translation></message>
<message><source>Renumber by date</source><translation>Order all dives by date and number them on</translation></message>
<message><source>Skipped</source><translation>Already there and left out: %d.</translation></message>
<message><source>Texts to notes</source><translation>Add words that have no field of their own to the notes</translation></message>
<message><source>Tick all</source><translation>Tick All</translation></message>
<message><source>Tick none</source><translation>Tick None</translation></message>
<message><source>Twice</source><translation>Now there twice: %d.</translation></message>
<message><source>Without date</source><translation>Without a date: %d.</translation></message>
</context>
</TS>
