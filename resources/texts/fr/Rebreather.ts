<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Rebreather</name>
<message><source>Absorbent capacity</source><translation>Capacité d’&amp;absorption, CO₂ (K)</translation></message>
<message><source>Absorbent endurance</source><translation>Autonomie de la chaux sodée</translation></message>
<message><source>Absorbent weight</source><translation>&amp;Masse de chaux (W)</translation></message>
<message><source>Breathed frac</source><extracomment>oxygen breathed, percent</extracomment><translation>Fraction respirée : %.2f %% O₂</translation></message>
<message><source>Breathed fraction formula</source><translation>Fr = (Q × Fe − V) / (Q − V)</translation></message>
<message><source>Breathed fraction legend</source><extracomment>oxygen of air, percent</extracomment><translation>Rouge : moins de %@ %%,
l’oxygène de l’air</translation></message>
<message><source>Carbon dioxide production</source><translation>&amp;Production de CO₂ (M)</translation></message>
<message><source>Ideal flow</source><extracomment>supply flow, l/min</extracomment><translation>Débit idéal : %.2f l/min</translation></message>
<message><source>Ideal flow formula</source><translation>Q = V × (1 − Fr) / (Fe − Fr)</translation></message>
<message><source>Ideal flow legend</source><extracomment>lowest, highest supply flow, l/min</extracomment><translation>Rouge : moins de %@
ou plus de %@ l/min</translation></message>
<message><source>Oxygen consumption</source><translation>Consommation &amp;métabolique d’O₂ (V)</translation></message>
<message><source>Oxygen of the supply</source><translation>&amp;Oxygène du gaz d’alimentation (Fe)</translation></message>
<message><source>SCR breathed fraction</source><translation>Fraction d’oxygène respirée en SCR</translation></message>
<message><source>SCR ideal flow</source><translation>Débit d’alimentation idéal en SCR</translation></message>
<message><source>Soda formula</source><translation>t = W × K / M  (minutes)</translation></message>
<message><source>Soda time</source><extracomment>hours, minutes</extracomment><translation>Autonomie de la chaux : %d h %d min</translation></message>
<message><source>Supply flow</source><translation>&amp;Débit d’alimentation (Q)</translation></message>
<message><source>Table breathed frac</source><extracomment>oxygen consumption, l/min; oxygen breathed, percent</extracomment><translation>%.1f l/min : %.2f %%</translation></message>
<message><source>Table flow</source><extracomment>oxygen consumption, supply flow, l/min</extracomment><translation>%.1f l/min : %.2f l/min</translation></message>
<message><source>Wanted breathed oxygen</source><translation>Oxygène respiré &amp;voulu (Fr)</translation></message>
</context>
</TS>
