<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Trimix</name>
<message><source>Best Tx</source><extracomment>oxygen, helium, percent</extracomment><translation>Best trimix: %.1f %% O₂, %.1f %% He</translation></message>
<message><source>Best trimix for a depth</source><translation>Best trimix for a depth</translation></message>
<message><source>Best trimix formula</source><extracomment>nitrogen of air, fraction</extracomment><translation>P = D / 10 + 1,  FO₂ = ppO₂ / P
FHe = 1 − FO₂ − %@ × (END / 10 + 1) / P</translation></message>
<message><source>Depth</source><translation>&amp;Depth (D)</translation></message>
<message><source>EAD END</source><extracomment>EAD, END, m</extracomment><translation>EAD: %.1f m
END: %.1f m</translation></message>
<message><source>EAD END formula</source><extracomment>nitrogen of air, fraction</extracomment><translation>EAD = (D + 10) × (1 − FO₂ − FHe) / %@ − 10, at least 0
END = (D + 10) × (1 − FHe) − 10</translation></message>
<message><source>Equivalent depths</source><translation>Equivalent air and narcotic depth (EAD, END)</translation></message>
<message><source>Helium of the mix</source><translation>&amp;Helium of the mix (FHe)</translation></message>
<message><source>Minimum depth formula</source><extracomment>lowest ppO2, bar; least, most oxygen, percent</extracomment><translation>Minimum depth = (%@ / FO₂ − 1) × 10, for %@ to %@ %% O₂</translation></message>
<message><source>Minimum depth of a mix</source><translation>Minimum depth of a hypoxic mix</translation></message>
<message><source>Oxygen of the mix</source><translation>&amp;Oxygen of the mix (FO₂)</translation></message>
<message><source>Planned depth</source><translation>Planned &amp;depth (D)</translation></message>
<message><source>Prof min</source><extracomment>minimum depth, m</extracomment><translation>Minimum depth: %.1f m</translation></message>
<message><source>Wanted narcotic depth</source><translation>Wanted &amp;narcotic depth (END)</translation></message>
<message><source>Wanted ppO2</source><translation>&amp;Oxygen pressure at depth (ppO₂)</translation></message>
</context>
</TS>
