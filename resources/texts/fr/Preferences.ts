<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Preferences</name>
<message><source>Background</source><translation>Fond</translation></message>
<message><source>Background color</source><translation>Couleur</translation></message>
<message><source>Bar</source><translation>bar</translation></message>
<message><source>Cell life</source><translation>Durée de vie</translation></message>
<message><source>Chosen text</source><translation>Texte choisi</translation></message>
<message><source>Chosen text in color</source><translation>Mettre un texte en évidence dans une colonne</translation></message>
<message><source>Close</source><translation>Fermer</translation></message>
<message><source>Cold water</source><translation>Eau froide</translation></message>
<message><source>Color of depths</source><translation>Profondeurs</translation></message>
<message><source>Color of dives abroad</source><translation>Couleur des plongées à l’étranger</translation></message>
<message><source>Color of gradient lines</source><translation>Couleur des lignes</translation></message>
<message><source>Color of low temperatures</source><translation>Couleur</translation></message>
<message><source>Color of times</source><translation>Durées</translation></message>
<message><source>Column to highlight</source><translation>Colonne</translation></message>
<message><source>Columns</source><translation>Colonnes du carnet</translation></message>
<message><source>Curve</source><translation>Profil</translation></message>
<message><source>Curve shadow</source><translation>Ombre sous la courbe</translation></message>
<message><source>Dashed lines</source><translation>Grille en pointillés</translation></message>
<message><source>Decompression stops</source><translation>Paliers de décompression</translation></message>
<message><source>Depth and time</source><translation>Profondeur et durée</translation></message>
<message><source>Depth and time in color</source><translation>Profondeurs et durées en couleur</translation></message>
<message><source>Dives abroad in color</source><translation>Plongées à l’étranger en couleur</translation></message>
<message><source>Files</source><translation>Fichiers</translation></message>
<message><source>Fill color</source><translation>Remplissage</translation></message>
<message><source>Fill the curve</source><translation>Remplir l’aire sous le profil</translation></message>
<message><source>Gradient factors</source><translation>Facteurs de gradient des nouvelles plongées</translation></message>
<message><source>Gradient lines</source><translation>Dégradé derrière le profil</translation></message>
<message><source>Grid</source><translation>Grille</translation></message>
<message><source>High gradient factor</source><translation>Haut</translation></message>
<message><source>Home country code</source><translation>Code du pays d’origine</translation></message>
<message><source>Keep backup</source><translation>Conserver le fichier précédent comme copie de secours</translation></message>
<message><source>Kinds of dives</source><translation>Types de plongées</translation></message>
<message><source>Litres</source><translation>L</translation></message>
<message><source>Low gradient factor</source><translation>Bas</translation></message>
<message><source>Low temperature</source><translation>En dessous de</translation></message>
<message><source>Low temperatures in color</source><translation>Basses températures en couleur</translation></message>
<message><source>Meters</source><translation>m</translation></message>
<message><source>Minor ticks of depth</source><translation>Graduations fines des profondeurs</translation></message>
<message><source>Minor ticks of time</source><translation>Graduations fines du temps</translation></message>
<message><source>Mixes in color</source><translation>Plongées au mélange ou en recycleur en couleur</translation></message>
<message><source>Months</source><translation>mois</translation></message>
<message><source>New dive from last</source><translation>Une nouvelle plongée part de la précédente</translation></message>
<message><source>New dives</source><translation>Nouvelles plongées</translation></message>
<message><source>Note US units</source><translation>Les nombres enregistrés sont pris pour exprimés dans ces unités ; ce réglage ne convertit rien. Édition &gt; Convertir les unités… convertit un carnet.</translation></message>
<message><source>Note new dive from last</source><translation>Blocs, gaz, équipement, équipiers et lieu sont repris ; l’intervalle de surface découle des heures.</translation></message>
<message><source>Off</source><translation>non</translation></message>
<message><source>On</source><translation>oui</translation></message>
<message><source>Opacity</source><translation>Opacité</translation></message>
<message><source>Oxygen cells</source><translation>Cellules à oxygène</translation></message>
<message><source>Percent</source><translation>%%</translation></message>
<message><source>Plot color</source><translation>Ligne</translation></message>
<message><source>Reset</source><translation>Tout réinitialiser…</translation></message>
<message><source>Reset answer</source><translation>Réinitialiser</translation></message>
<message><source>Reset change</source><translation>%@ – %@ : %@ → %@</translation></message>
<message><source>Reset more</source><translation>et %d autres</translation></message>
<message><source>Reset nothing</source><translation>Tous les réglages ont déjà leur valeur standard.</translation></message>
<message><source>Reset question</source><translation>Donner à tous les réglages de toutes les pages leurs valeurs standard ? Voici ce qui change :</translation></message>
<message><source>Stop interval</source><translation>Écart entre les paliers</translation></message>
<message><source>Tank pressure</source><translation>Pression du bloc</translation></message>
<message><source>Tank volume</source><translation>Volume du bloc</translation></message>
<message><source>Text to highlight</source><translation>Texte</translation></message>
<message><source>Tip reset</source><translation>Rétablit les valeurs standard de toutes les pages</translation></message>
<message><source>Tip wreck column</source><translation>La colonne des épaves est réglée avec le premier carnet ; cette case ne garde aucun choix.</translation></message>
<message><source>US units</source><translation>Pieds et degrés Fahrenheit</translation></message>
<message><source>Units</source><translation>Unités</translation></message>
<message><source>Units in the table</source><translation>Afficher les unités dans le tableau</translation></message>
<message><source>Window title</source><translation>Préférences – %@</translation></message>
<message><source>ppO2 line</source><translation>Courbe de pression partielle d’oxygène</translation></message>
</context>
</TS>
