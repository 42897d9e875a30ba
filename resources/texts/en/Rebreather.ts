<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Rebreather</name>
<message><source>Absorbent capacity</source><translation>&amp;Absorbing capacity, CO₂ (K)</translation></message>
<message><source>Absorbent endurance</source><translation>Absorbent endurance</translation></message>
<message><source>Absorbent weight</source><translation>Absorbent &amp;weight (W)</translation></message>
<message><source>Battery</source><translation>&#13;- Battery replaced</translation></message>
<message><source>Breathed frac</source><extracomment>oxygen breathed, percent</extracomment><translation>Breathed fraction: %.2f %% O₂</translation></message>
<message><source>Breathed fraction formula</source><translation>Fr = (Q × Fe − V) / (Q − V)</translation></message>
<message><source>Breathed fraction legend</source><extracomment>oxygen of air, percent</extracomment><translation>Red: below %@ %%,
the oxygen of air</translation></message>
<message><source>Carbon dioxide production</source><translation>CO₂ &amp;production (M)</translation></message>
<message><source>Cell 1</source><translation>&#13;Cell 1: </translation></message>
<message><source>Cell 2</source><translation>&#13;Cell 2: </translation></message>
<message><source>Cell 3</source><translation>&#13;Cell 3: </translation></message>
<message><source>Cell 4</source><translation>&#13;Cell 4: </translation></message>
<message><source>Cell 5</source><translation>&#13;Cell 5: </translation></message>
<message><source>Cells</source><translation>&#13;&#13;Oxygen cells</translation></message>
<message><source>Cells replacement</source><translation>&#13;- Cells replaced</translation></message>
<message><source>Date</source><translation>Date: </translation></message>
<message><source>Disinfection</source><translation>&#13;- Disinfection</translation></message>
<message><source>Edit window title</source><translation>Intervention of %@</translation></message>
<message><source>Electonic head</source><translation>&#13;- Electronic head</translation></message>
<message><source>Group cells</source><translation>Cells 1 to 5</translation></message>
<message><source>Group intervention</source><translation>Intervention</translation></message>
<message><source>Group operations</source><translation>Operations</translation></message>
<message><source>Group oxygen</source><translation>Oxygen</translation></message>
<message><source>Group remarks</source><translation>Remarks</translation></message>
<message><source>Ideal flow</source><extracomment>supply flow, l/min</extracomment><translation>Ideal flow: %.2f l/min</translation></message>
<message><source>Ideal flow formula</source><translation>Q = V × (1 − Fr) / (Fe − Fr)</translation></message>
<message><source>Ideal flow legend</source><extracomment>lowest, highest supply flow, l/min</extracomment><translation>Red: below %@
or above %@ l/min</translation></message>
<message><source>Injector</source><translation>&#13;- Injector</translation></message>
<message><source>Inventory</source><translation>Rebreather interventions</translation></message>
<message><source>Label O-rings</source><translation>O-rings</translation></message>
<message><source>Label absorbent</source><translation>Absorbent</translation></message>
<message><source>Label absorbent time</source><translation>Absorbent time</translation></message>
<message><source>Label battery</source><translation>Battery</translation></message>
<message><source>Label cell count</source><translation>Number of cells</translation></message>
<message><source>Label cells replaced</source><translation>Cells replaced</translation></message>
<message><source>Label date</source><translation>Date</translation></message>
<message><source>Label disinfection</source><translation>Disinfection</translation></message>
<message><source>Label electronic head</source><translation>Electronic head</translation></message>
<message><source>Label end of life</source><translation>End of life</translation></message>
<message><source>Label fitted</source><translation>Fitted</translation></message>
<message><source>Label fitted on</source><translation>Fitted on</translation></message>
<message><source>Label injector</source><translation>Injector</translation></message>
<message><source>Label life used</source><translation>Life used</translation></message>
<message><source>Label oxygen check</source><translation>Oxygen pressure checked</translation></message>
<message><source>Label oxygen pressure</source><translation>Oxygen pressure</translation></message>
<message><source>Label scrubber</source><translation>Scrubber</translation></message>
<message><source>Label unit time</source><translation>Running time</translation></message>
<message><source>Label valve</source><translation>Valve</translation></message>
<message><source>Menu</source><translation>Intervention</translation></message>
<message><source>MpO2</source><translation>&#13;- Oxygen partial pressure</translation></message>
<message><source>ORing</source><translation>&#13;- O-rings</translation></message>
<message><source>Oxygen consumption</source><translation>O₂ consumption, &amp;metabolic (V)</translation></message>
<message><source>Oxygen of the supply</source><translation>&amp;Oxygen of the supply gas (Fe)</translation></message>
<message><source>Page cells</source><translation>Cells</translation></message>
<message><source>Page intervention</source><translation>Intervention</translation></message>
<message><source>Page remarks</source><translation>Remarks</translation></message>
<message><source>Rebreather history</source><translation>&#13;&#13;History</translation></message>
<message><source>Rebreather time</source><translation>&#13;Running time: </translation></message>
<message><source>Remarks</source><translation>&#13;&#13;Remarks: </translation></message>
<message><source>SCR breathed fraction</source><translation>SCR breathed oxygen fraction</translation></message>
<message><source>SCR ideal flow</source><translation>SCR ideal supply flow</translation></message>
<message><source>Scrubber</source><translation>&#13;- Scrubber</translation></message>
<message><source>Soda formula</source><translation>t = W × K / M  (minutes)</translation></message>
<message><source>Soda time</source><translation>Absorbent time: %d h %d min</translation></message>
<message><source>Sofnolime</source><translation>&#13;- Absorbent replaced</translation></message>
<message><source>Supply flow</source><translation>&amp;Supply flow (Q)</translation></message>
<message><source>Table breathed frac</source><extracomment>oxygen consumption, l/min; oxygen breathed, percent</extracomment><translation>%.1f l/min : %.2f %%</translation></message>
<message><source>Table flow</source><extracomment>oxygen consumption, supply flow, l/min</extracomment><translation>%.1f l/min : %.2f l/min</translation></message>
<message><source>Table name</source><translation>Rebreather interventions</translation></message>
<message><source>Valve</source><translation>&#13;- Valve</translation></message>
<message><source>Wanted breathed oxygen</source><translation>&amp;Wanted breathed oxygen (Fr)</translation></message>
</context>
</TS>
