<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Calculators</name>
<message><source>Altitude</source><translation>&amp;Altitude</translation></message>
<message><source>Bar</source><translation>&amp;Bar</translation></message>
<message><source>Both converters</source><translation>Both converters</translation></message>
<message><source>By consumption</source><translation>By oxygen consumption</translation></message>
<message><source>Calculate</source><translation>&amp;Calculate</translation></message>
<message><source>Conversions</source><translation>Conversions</translation></message>
<message><source>Convert</source><translation>&amp;Convert</translation></message>
<message><source>Convert decimal</source><translation>Con&amp;vert</translation></message>
<message><source>Convert from</source><translation>Convert from</translation></message>
<message><source>Convert sexagesimal</source><translation>&amp;Convert to WGS84</translation></message>
<message><source>Copy</source><translation>Cop&amp;y</translation></message>
<message><source>Copy hint</source><translation>Copies the result</translation></message>
<message><source>Copy report</source><translation>Copy &amp;report</translation></message>
<message><source>Cubic feet (US)</source><translation>Cubic &amp;feet (US)</translation></message>
<message><source>Cubic inches (US)</source><translation>Cubic &amp;inches (US)</translation></message>
<message><source>Decimal converter</source><translation>Decimal degrees</translation></message>
<message><source>Decimal latitude</source><translation>Latit&amp;ude</translation></message>
<message><source>Decimal longitude</source><translation>L&amp;ongitude</translation></message>
<message><source>Degrees</source><translation>degrees</translation></message>
<message><source>Degrees Celsius</source><translation>Degrees C&amp;elsius</translation></message>
<message><source>Degrees Fahrenheit</source><translation>Degrees &amp;Fahrenheit</translation></message>
<message><source>Direction</source><translation>&amp;Direction</translation></message>
<message><source>Feet</source><translation>&amp;Feet</translation></message>
<message><source>Formula</source><translation>Formula</translation></message>
<message><source>GPS datum conversion</source><translation>GPS datum conversion</translation></message>
<message><source>Gives a negative depth</source><translation>gives a negative depth</translation></message>
<message><source>Gives infinity</source><translation>gives infinity</translation></message>
<message><source>Inputs</source><translation>Inputs</translation></message>
<message><source>Is negative</source><translation>is a negative depth</translation></message>
<message><source>Kelvin</source><translation>&amp;Kelvin</translation></message>
<message><source>Kilograms</source><translation>&amp;Kilograms</translation></message>
<message><source>Latitude</source><translation>Latitude</translation></message>
<message><source>Latitude ED50</source><translation>La&amp;titude</translation></message>
<message><source>Length</source><translation>Length</translation></message>
<message><source>Letter of the west</source><translation>W</translation></message>
<message><source>Litres</source><translation>&amp;Litres</translation></message>
<message><source>Longitude</source><translation>Longitude</translation></message>
<message><source>Longitude ED50</source><translation>&amp;Longitude</translation></message>
<message><source>Mass</source><translation>Mass</translation></message>
<message><source>Metres</source><translation>&amp;Metres</translation></message>
<message><source>Minutes</source><translation>minutes</translation></message>
<message><source>Nitrox</source><translation>Nitrox</translation></message>
<message><source>Position as typed</source><translation>Position, latitude first</translation></message>
<message><source>Position hint</source><translation>As on a chart or a receiver: 43° 12.345' N 5° 20.7' W, or 43.2057, -5.345. It fills the fields of both converters.</translation></message>
<message><source>Position hint short</source><translation>Degrees with decimals or with minutes; N, S, E, W or signs</translation></message>
<message><source>Position not read</source><translation>No position yet: latitude, then longitude</translation></message>
<message><source>Position read</source><translation>Read as %@</translation></message>
<message><source>Pounds (US)</source><translation>&amp;Pounds (US)</translation></message>
<message><source>Pounds per square inch</source><translation>&amp;Pounds per square inch</translation></message>
<message><source>Pressure</source><translation>Pressure</translation></message>
<message><source>Rebreather</source><translation>Rebreather</translation></message>
<message><source>Report</source><translation>Report</translation></message>
<message><source>Result</source><translation>Result</translation></message>
<message><source>Resulting altitude</source><translation>Altitude</translation></message>
<message><source>Resulting position</source><translation>Position</translation></message>
<message><source>Seconds</source><translation>seconds</translation></message>
<message><source>Sexagesimal converter</source><translation>Degrees, minutes and seconds: ED50 → WGS84</translation></message>
<message><source>Signs hint</source><translation>The three parts are added: west of Greenwich or
south of the equator each takes its minus sign.</translation></message>
<message><source>Stale result</source><translation>This result belongs to what was typed before.</translation></message>
<message><source>Temperature</source><translation>Temperature</translation></message>
<message><source>Trimix</source><translation>Trimix</translation></message>
<message><source>Typed position</source><translation>&amp;Position</translation></message>
<message><source>Unit conversions</source><translation>Unit conversions</translation></message>
<message><source>Volume</source><translation>Volume</translation></message>
</context>
</TS>
