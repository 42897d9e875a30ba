<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Preferences</name>
<message><source>Background</source><translation>Background</translation></message>
<message><source>Background color</source><translation>Colour</translation></message>
<message><source>Bar</source><translation>bar</translation></message>
<message><source>Cell life</source><translation>Lifetime</translation></message>
<message><source>Chosen text</source><translation>Chosen text</translation></message>
<message><source>Chosen text in color</source><translation>Highlight a text in one column</translation></message>
<message><source>Close</source><translation>Close</translation></message>
<message><source>Cold water</source><translation>Cold water</translation></message>
<message><source>Color of depths</source><translation>Depths</translation></message>
<message><source>Color of dives abroad</source><translation>Colour of dives abroad</translation></message>
<message><source>Color of gradient lines</source><translation>Colour of lines</translation></message>
<message><source>Color of low temperatures</source><translation>Colour</translation></message>
<message><source>Color of times</source><translation>Times</translation></message>
<message><source>Column to highlight</source><translation>Column</translation></message>
<message><source>Columns</source><translation>Columns of the logbook</translation></message>
<message><source>Curve</source><translation>Profile</translation></message>
<message><source>Curve shadow</source><translation>Shadow below the curve</translation></message>
<message><source>Dashed lines</source><translation>Dashed grid lines</translation></message>
<message><source>Decompression stops</source><translation>Decompression stops</translation></message>
<message><source>Depth and time</source><translation>Depth and time</translation></message>
<message><source>Depth and time in color</source><translation>Depths and times in colour</translation></message>
<message><source>Dives abroad in color</source><translation>Dives abroad in colour</translation></message>
<message><source>Files</source><translation>Files</translation></message>
<message><source>Fill color</source><translation>Fill</translation></message>
<message><source>Fill the curve</source><translation>Fill the area under the profile</translation></message>
<message><source>Gradient factors</source><translation>Gradient factors of new dives</translation></message>
<message><source>Gradient lines</source><translation>Gradient behind the profile</translation></message>
<message><source>Grid</source><translation>Grid</translation></message>
<message><source>High gradient factor</source><translation>High</translation></message>
<message><source>Home country code</source><translation>Home country code</translation></message>
<message><source>Keep backup</source><translation>Keep the previous file as a backup</translation></message>
<message><source>Kinds of dives</source><translation>Kinds of dives</translation></message>
<message><source>Litres</source><translation>L</translation></message>
<message><source>Low gradient factor</source><translation>Low</translation></message>
<message><source>Low temperature</source><translation>Below</translation></message>
<message><source>Low temperatures in color</source><translation>Low temperatures in colour</translation></message>
<message><source>Meters</source><translation>m</translation></message>
<message><source>Minor ticks of depth</source><translation>Minor ticks on the depth axis</translation></message>
<message><source>Minor ticks of time</source><translation>Minor ticks on the time axis</translation></message>
<message><source>Mixes in color</source><translation>Dives on a mix or a rebreather in colour</translation></message>
<message><source>Months</source><translation>months</translation></message>
<message><source>New dive from last</source><translation>A new dive starts from the last one</translation></message>
<message><source>New dives</source><translation>New dives</translation></message>
<message><source>Note US units</source><translation>The numbers stored are taken to be in these units; switching converts nothing. Edit &gt; Convert Units… converts a logbook.</translation></message>
<message><source>Note new dive from last</source><translation>Tanks, gas, equipment, buddies and place are taken over; the surface interval follows from the times.</translation></message>
<message><source>Off</source><translation>off</translation></message>
<message><source>On</source><translation>on</translation></message>
<message><source>Opacity</source><translation>Opacity</translation></message>
<message><source>Oxygen cells</source><translation>Oxygen cells</translation></message>
<message><source>Percent</source><translation>%%</translation></message>
<message><source>Plot color</source><translation>Line</translation></message>
<message><source>Reset</source><translation>Reset All…</translation></message>
<message><source>Reset answer</source><translation>Reset</translation></message>
<message><source>Reset change</source><translation>%@ – %@: %@ → %@</translation></message>
<message><source>Reset more</source><translation>and %d more</translation></message>
<message><source>Reset nothing</source><translation>Every setting has its standard value already.</translation></message>
<message><source>Reset question</source><translation>Give all settings of all pages their standard values? This changes:</translation></message>
<message><source>Stop interval</source><translation>Distance between stops</translation></message>
<message><source>Tank pressure</source><translation>Tank pressure</translation></message>
<message><source>Tank volume</source><translation>Tank volume</translation></message>
<message><source>Text to highlight</source><translation>Text</translation></message>
<message><source>Tip reset</source><translation>Gives the settings of all pages their standard values</translation></message>
<message><source>Tip wreck column</source><translation>The wreck column is set up with the first logbook; this switch does not keep a choice.</translation></message>
<message><source>US units</source><translation>Feet and degrees Fahrenheit</translation></message>
<message><source>Units</source><translation>Units</translation></message>
<message><source>Units in the table</source><translation>Show units in the logbook’s table</translation></message>
<message><source>Window title</source><translation>Preferences – %@</translation></message>
<message><source>ppO2 line</source><translation>Line of the oxygen partial pressure</translation></message>
</context>
</TS>
