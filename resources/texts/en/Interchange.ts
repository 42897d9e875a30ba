<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Interchange</name>
<message><source>Already there</source><translation>already there</translation></message>
<message><source>Doubt group skipped</source><translation>outside the file’s groups</translation></message>
<message><source>Doubt in future</source><translation>in the future</translation></message>
<message><source>Doubt no date</source><translation>no date</translation></message>
<message><source>Doubt no samples</source><translation>no profile</translation></message>
<message><source>Doubt too deep</source><translation>deeper than 350 m</translation></message>
<message><source>Implausible</source><translation>With an implausible depth: %d.</translation></message>
<message><source>Left out</source><translation>In groups that this format leaves out: %d.</translation></message>
<message><source>Lost of dives</source><translation>%@ (dives: %d)</translation></message>
<message><source>No dives of this kind</source><translation>The document holds no dives.</translation></message>
<message><source>No such column</source><translation>Dives have no field “%@”.</translation></message>
<message><source>Nothing lost</source><translation>Nothing is lost.</translation></message>
<message><source>Reads better</source><translation>The file is UDDF 3; read by its meaning it has its dates, gases and profiles.</translation></message>
<message><source>Skipped</source><translation>Already there and left out: %d.</translation></message>
<message><source>Twice</source><translation>Now there twice: %d.</translation></message>
<message><source>Without date</source><translation>Without a date: %d.</translation></message>
</context>
</TS>
