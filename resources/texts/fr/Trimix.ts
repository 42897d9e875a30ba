<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Trimix</name>
<message><source>Best Tx</source><extracomment>oxygen, helium, percent</extracomment><translation>Meilleur trimix : %.1f %% O₂, %.1f %% He</translation></message>
<message><source>Best trimix for a depth</source><translation>Meilleur trimix pour une profondeur</translation></message>
<message><source>Best trimix formula</source><extracomment>nitrogen of air, fraction</extracomment><translation>P = D / 10 + 1,  FO₂ = ppO₂ / P
FHe = 1 − FO₂ − %@ × (END / 10 + 1) / P</translation></message>
<message><source>Depth</source><translation>&amp;Profondeur (D)</translation></message>
<message><source>EAD END</source><extracomment>EAD, END, m</extracomment><translation>EAD : %.1f m
END : %.1f m</translation></message>
<message><source>EAD END formula</source><extracomment>nitrogen of air, fraction</extracomment><translation>EAD = (D + 10) × (1 − FO₂ − FHe) / %@ − 10, au moins 0
END = (D + 10) × (1 − FHe) − 10</translation></message>
<message><source>Equivalent depths</source><translation>Profondeurs équivalentes air et narcotique (EAD, END)</translation></message>
<message><source>Helium of the mix</source><translation>&amp;Hélium du mélange (FHe)</translation></message>
<message><source>Minimum depth formula</source><extracomment>lowest ppO2, bar; least, most oxygen, percent</extracomment><translation>Profondeur minimale = (%@ / FO₂ − 1) × 10, de %@ à %@ %% O₂</translation></message>
<message><source>Minimum depth of a mix</source><translation>Profondeur minimale d’un mélange hypoxique</translation></message>
<message><source>Oxygen of the mix</source><translation>&amp;Oxygène du mélange (FO₂)</translation></message>
<message><source>Planned depth</source><translation>&amp;Profondeur prévue (D)</translation></message>
<message><source>Prof min</source><extracomment>minimum depth, m</extracomment><translation>Profondeur minimale : %.1f m</translation></message>
<message><source>Wanted narcotic depth</source><translation>Profondeur &amp;narcotique voulue (END)</translation></message>
<message><source>Wanted ppO2</source><translation>Pression d’&amp;oxygène au fond (ppO₂)</translation></message>
</context>
</TS>
