<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Rebreather</name>
<message><source>Absorbent capacity</source><translation>&amp;Absorbing capacity, CO₂ (K)</translation></message>
<message><source>Absorbent endurance</source><translation>Absorbent endurance</translation></message>
<message><source>Absorbent weight</source><translation>Absorbent &amp;weight (W)</translation></message>
<message><source>Breathed frac</source><extracomment>oxygen breathed, percent</extracomment><translation>Breathed fraction: %.2f %% O₂</translation></message>
<message><source>Breathed fraction formula</source><translation>Fr = (Q × Fe − V) / (Q − V)</translation></message>
<message><source>Breathed fraction legend</source><extracomment>oxygen of air, percent</extracomment><translation>Red: below %@ %%,
the oxygen of air</translation></message>
<message><source>Carbon dioxide production</source><translation>CO₂ &amp;production (M)</translation></message>
<message><source>Ideal flow</source><extracomment>supply flow, l/min</extracomment><translation>Ideal flow: %.2f l/min</translation></message>
<message><source>Ideal flow formula</source><translation>Q = V × (1 − Fr) / (Fe − Fr)</translation></message>
<message><source>Ideal flow legend</source><extracomment>lowest, highest supply flow, l/min</extracomment><translation>Red: below %@
or above %@ l/min</translation></message>
<message><source>Oxygen consumption</source><translation>O₂ consumption, &amp;metabolic (V)</translation></message>
<message><source>Oxygen of the supply</source><translation>&amp;Oxygen of the supply gas (Fe)</translation></message>
<message><source>SCR breathed fraction</source><translation>SCR breathed oxygen fraction</translation></message>
<message><source>SCR ideal flow</source><translation>SCR ideal supply flow</translation></message>
<message><source>Soda formula</source><translation>t = W × K / M  (minutes)</translation></message>
<message><source>Soda time</source><extracomment>hours, minutes</extracomment><translation>Absorbent lasts %d h %d min</translation></message>
<message><source>Supply flow</source><translation>&amp;Supply flow (Q)</translation></message>
<message><source>Table breathed frac</source><extracomment>oxygen consumption, l/min; oxygen breathed, percent</extracomment><translation>%.1f l/min : %.2f %%</translation></message>
<message><source>Table flow</source><extracomment>oxygen consumption, supply flow, l/min</extracomment><translation>%.1f l/min : %.2f l/min</translation></message>
<message><source>Wanted breathed oxygen</source><translation>&amp;Wanted breathed oxygen (Fr)</translation></message>
</context>
</TS>
