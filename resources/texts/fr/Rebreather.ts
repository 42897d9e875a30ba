<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Rebreather</name>
<message><source>Absorbent capacity</source><translation>Capacité d’&amp;absorption, CO₂ (K)</translation></message>
<message><source>Absorbent endurance</source><translation>Autonomie de la chaux sodée</translation></message>
<message><source>Absorbent weight</source><translation>&amp;Masse de chaux (W)</translation></message>
<message><source>Battery</source><translation>&#13;- Pile remplacée</translation></message>
<message><source>Breathed frac</source><extracomment>oxygen breathed, percent</extracomment><translation>Fraction respirée : %.2f %% O₂</translation></message>
<message><source>Breathed fraction formula</source><translation>Fr = (Q × Fe − V) / (Q − V)</translation></message>
<message><source>Breathed fraction legend</source><extracomment>oxygen of air, percent</extracomment><translation>Rouge : moins de %@ %%,
l’oxygène de l’air</translation></message>
<message><source>Carbon dioxide production</source><translation>&amp;Production de CO₂ (M)</translation></message>
<message><source>Cell 1</source><translation>&#13;Cellule 1 : </translation></message>
<message><source>Cell 2</source><translation>&#13;Cellule 2 : </translation></message>
<message><source>Cell 3</source><translation>&#13;Cellule 3 : </translation></message>
<message><source>Cell 4</source><translation>&#13;Cellule 4 : </translation></message>
<message><source>Cell 5</source><translation>&#13;Cellule 5 : </translation></message>
<message><source>Cells</source><translation>&#13;&#13;Cellules à oxygène</translation></message>
<message><source>Cells replacement</source><translation>&#13;- Cellules remplacées</translation></message>
<message><source>Date</source><translation>Date : </translation></message>
<message><source>Disinfection</source><translation>&#13;- Désinfection</translation></message>
<message><source>Edit window title</source><translation>Intervention du %@</translation></message>
<message><source>Electonic head</source><translation>&#13;- Tête électronique</translation></message>
<message><source>Group cells</source><translation>Cellules 1 à 5</translation></message>
<message><source>Group intervention</source><translation>Intervention</translation></message>
<message><source>Group operations</source><translation>Opérations</translation></message>
<message><source>Group oxygen</source><translation>Oxygène</translation></message>
<message><source>Group remarks</source><translation>Remarques</translation></message>
<message><source>Ideal flow</source><extracomment>supply flow, l/min</extracomment><translation>Débit idéal : %.2f l/min</translation></message>
<message><source>Ideal flow formula</source><translation>Q = V × (1 − Fr) / (Fe − Fr)</translation></message>
<message><source>Ideal flow legend</source><extracomment>lowest, highest supply flow, l/min</extracomment><translation>Rouge : moins de %@
ou plus de %@ l/min</translation></message>
<message><source>Injector</source><translation>&#13;- Injecteur</translation></message>
<message><source>Inventory</source><translation>Interventions sur le recycleur</translation></message>
<message><source>Label O-rings</source><translation>Joints toriques</translation></message>
<message><source>Label absorbent</source><translation>Chaux</translation></message>
<message><source>Label absorbent time</source><translation>Durée de la chaux</translation></message>
<message><source>Label battery</source><translation>Pile</translation></message>
<message><source>Label cell count</source><translation>Nombre de cellules</translation></message>
<message><source>Label cells replaced</source><translation>Cellules remplacées</translation></message>
<message><source>Label date</source><translation>Date</translation></message>
<message><source>Label disinfection</source><translation>Désinfection</translation></message>
<message><source>Label electronic head</source><translation>Tête électronique</translation></message>
<message><source>Label end of life</source><translation>Fin de vie</translation></message>
<message><source>Label fitted</source><translation>Montée</translation></message>
<message><source>Label fitted on</source><translation>Montée le</translation></message>
<message><source>Label injector</source><translation>Injecteur</translation></message>
<message><source>Label life used</source><translation>Vie écoulée</translation></message>
<message><source>Label oxygen check</source><translation>Contrôle de la PpO₂</translation></message>
<message><source>Label oxygen pressure</source><translation>PpO₂ mesurée</translation></message>
<message><source>Label scrubber</source><translation>Épurateur</translation></message>
<message><source>Label unit time</source><translation>Temps d’utilisation</translation></message>
<message><source>Label valve</source><translation>Soupape</translation></message>
<message><source>Menu</source><translation>Intervention</translation></message>
<message><source>MpO2</source><translation>&#13;- Pression partielle d’oxygène</translation></message>
<message><source>ORing</source><translation>&#13;- Joints toriques</translation></message>
<message><source>Oxygen consumption</source><translation>Consommation &amp;métabolique d’O₂ (V)</translation></message>
<message><source>Oxygen of the supply</source><translation>&amp;Oxygène du gaz d’alimentation (Fe)</translation></message>
<message><source>Page cells</source><translation>Cellules</translation></message>
<message><source>Page intervention</source><translation>Intervention</translation></message>
<message><source>Page remarks</source><translation>Remarques</translation></message>
<message><source>Rebreather history</source><translation>&#13;&#13;Historique</translation></message>
<message><source>Rebreather time</source><translation>&#13;Temps de fonctionnement : </translation></message>
<message><source>Remarks</source><translation>&#13;&#13;Remarques : </translation></message>
<message><source>SCR breathed fraction</source><translation>Fraction d’oxygène respirée en SCR</translation></message>
<message><source>SCR ideal flow</source><translation>Débit d’alimentation idéal en SCR</translation></message>
<message><source>Scrubber</source><translation>&#13;- Cartouche épuratrice</translation></message>
<message><source>Soda formula</source><translation>t = W × K / M  (minutes)</translation></message>
<message><source>Soda time</source><translation>Durée de la chaux : %d h %d min</translation></message>
<message><source>Sofnolime</source><translation>&#13;- Chaux remplacée</translation></message>
<message><source>Supply flow</source><translation>&amp;Débit d’alimentation (Q)</translation></message>
<message><source>Table breathed frac</source><extracomment>oxygen consumption, l/min; oxygen breathed, percent</extracomment><translation>%.1f l/min : %.2f %%</translation></message>
<message><source>Table flow</source><extracomment>oxygen consumption, supply flow, l/min</extracomment><translation>%.1f l/min : %.2f l/min</translation></message>
<message><source>Table name</source><translation>Interventions sur le recycleur</translation></message>
<message><source>Valve</source><translation>&#13;- Soupape</translation></message>
<message><source>Wanted breathed oxygen</source><translation>Oxygène respiré &amp;voulu (Fr)</translation></message>
</context>
</TS>
