<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Nitrox</name>
<message><source>Best Mix</source><extracomment>oxygen, percent</extracomment><translation>Meilleur mélange : %.1f %% O₂</translation></message>
<message><source>Best mix for a depth</source><translation>Meilleur mélange pour une profondeur</translation></message>
<message><source>Best mix formula</source><translation>FO₂ = ppO₂ / (D / 10 + 1)</translation></message>
<message><source>Blending formula</source><extracomment>nitrogen of air, percent</extracomment><translation>O₂ = (Pf − Pi) − ((100 − Ff) × Pf − (100 − Fi) × Pi) / %@
Complément = (Pf × Ff − Pi × Fi) / (Pf − Pi)</translation></message>
<message><source>Depth</source><translation>&amp;Profondeur (D)</translation></message>
<message><source>Depth range of a mix</source><translation>Fenêtre oxygène d’un mélange</translation></message>
<message><source>EAD formula</source><extracomment>nitrogen of air, fraction</extracomment><translation>EAD = (D + 10) × (1 − FO₂) / %@ − 10</translation></message>
<message><source>Equivalent air depth</source><translation>Profondeur équivalente air (EAD)</translation></message>
<message><source>MOD formula</source><translation>MOD = (ppO₂ / FO₂ − 1) × 10</translation></message>
<message><source>Maximum operating depth</source><translation>Profondeur maximale d’utilisation (MOD)</translation></message>
<message><source>Maximum ppO2</source><translation>ppO₂ &amp;maximale</translation></message>
<message><source>Minimum ppO2</source><translation>P&amp;ression d’oxygène minimale (ppO₂ min)</translation></message>
<message><source>Oxygen in the tank</source><translation>O&amp;xygène dans le bloc (Fi)</translation></message>
<message><source>Oxygen of the mix</source><translation>&amp;Oxygène du mélange (FO₂)</translation></message>
<message><source>Oxygen to transfer</source><extracomment>oxygen to add, bar; oxygen of the top-up gas, percent</extracomment><translation>Oxygène à ajouter : %.1f bar, puis air
ou complément unique à %.1f %% O₂</translation></message>
<message><source>Oxygen window</source><extracomment>deepest, shallowest, nitrogen-neutral depth, m</extracomment><translation>Profondeur maximale : %.1f m
Profondeur minimale : %.1f m
Sans charge d’azote jusqu’à : %.1f m</translation></message>
<message><source>Oxygen window formula</source><extracomment>highest ppO2, bar; nitrogen of air, fraction</extracomment><translation>Max = (%@ / FO₂ − 1) × 10,  Min = (ppO₂ min / FO₂ − 1) × 10
Sans charge = (%@ / (1 − FO₂) − 1) × 10, au plus Max</translation></message>
<message><source>Partial pressure blending</source><translation>Fabrication par pressions partielles</translation></message>
<message><source>Planned maximum depth</source><translation>&amp;Profondeur maximale prévue (D)</translation></message>
<message><source>Pressure in the tank</source><translation>Pression dans le &amp;bloc (Pi)</translation></message>
<message><source>Wanted oxygen</source><translation>&amp;Oxygène voulu (Ff)</translation></message>
<message><source>Wanted pressure</source><translation>Pression &amp;voulue (Pf)</translation></message>
</context>
</TS>
