<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Nitrox</name>
<message><source>Best Mix</source><extracomment>oxygen, percent</extracomment><translation>Best mix: %.1f %% O₂</translation></message>
<message><source>Best mix for a depth</source><translation>Best mix for a depth</translation></message>
<message><source>Best mix formula</source><translation>FO₂ = ppO₂ / (D / 10 + 1)</translation></message>
<message><source>Blending formula</source><extracomment>nitrogen of air, percent</extracomment><translation>O₂ = (Pf − Pi) − ((100 − Ff) × Pf − (100 − Fi) × Pi) / %@
Top-up = (Pf × Ff − Pi × Fi) / (Pf − Pi)</translation></message>
<message><source>Depth</source><translation>&amp;Depth (D)</translation></message>
<message><source>Depth range of a mix</source><translation>Oxygen window of a mix</translation></message>
<message><source>EAD formula</source><extracomment>nitrogen of air, fraction</extracomment><translation>EAD = (D + 10) × (1 − FO₂) / %@ − 10</translation></message>
<message><source>Equivalent air depth</source><translation>Equivalent air depth (EAD)</translation></message>
<message><source>MOD formula</source><translation>MOD = (ppO₂ / FO₂ − 1) × 10</translation></message>
<message><source>Maximum operating depth</source><translation>Maximum operating depth (MOD)</translation></message>
<message><source>Maximum ppO2</source><translation>Maximum &amp;ppO₂</translation></message>
<message><source>Minimum ppO2</source><translation>M&amp;inimum oxygen pressure (ppO₂ min)</translation></message>
<message><source>Oxygen in the tank</source><translation>O&amp;xygen in the tank (Fi)</translation></message>
<message><source>Oxygen of the mix</source><translation>&amp;Oxygen of the mix (FO₂)</translation></message>
<message><source>Oxygen to transfer</source><extracomment>oxygen to add, bar; oxygen of the top-up gas, percent</extracomment><translation>Oxygen to add: %.1f bar, then air
or a single top-up with %.1f %% O₂</translation></message>
<message><source>Oxygen window</source><extracomment>deepest, shallowest, nitrogen-neutral depth, m</extracomment><translation>Maximum depth: %.1f m
Minimum depth: %.1f m
No nitrogen uptake down to: %.1f m</translation></message>
<message><source>Oxygen window formula</source><extracomment>highest ppO2, bar; nitrogen of air, fraction</extracomment><translation>Max = (%@ / FO₂ − 1) × 10,  Min = (ppO₂ min / FO₂ − 1) × 10
No uptake = (%@ / (1 − FO₂) − 1) × 10, at most Max</translation></message>
<message><source>Partial pressure blending</source><translation>Partial-pressure blending</translation></message>
<message><source>Planned maximum depth</source><translation>Planned maximum &amp;depth (D)</translation></message>
<message><source>Pressure in the tank</source><translation>Pressure in the &amp;tank (Pi)</translation></message>
<message><source>Wanted oxygen</source><translation>Wanted &amp;oxygen (Ff)</translation></message>
<message><source>Wanted pressure</source><translation>&amp;Wanted pressure (Pf)</translation></message>
</context>
</TS>
