<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Profil</name>
<message><source>Ascent alarm</source><translation>remontée rapide</translation></message>
<message><source>At the surface</source><translation>en surface</translation></message>
<message><source>Bottom gas</source><translation>Fond</translation></message>
<message><source>Ceiling violated</source><translation>plafond dépassé</translation></message>
<message><source>Data</source><translation>Données…</translation></message>
<message><source>Depth m</source><translation>Profondeur (m)</translation></message>
<message><source>Depth no value</source><translation>Temps : %.1f min</translation></message>
<message><source>Depth time</source><translation>Profondeur : %.1f m   Temps : %.1f min</translation></message>
<message><source>Editor explanation</source><translation>Chaque ligne est un point. L’importation remplace les séries cochées par leurs textes et enregistre la plongée.</translation></message>
<message><source>Gas bar</source><translation>Gaz (bar)</translation></message>
<message><source>Gas switch</source><translation>passage à %d %% O₂</translation></message>
<message><source>Import elsewhere question</source><translation>Des séries ont été saisies pour la plongée %d. Les importer dans la plongée %d ?</translation></message>
<message><source>Import question</source><translation>Importer dans la plongée %d les séries saisies ?</translation></message>
<message><source>Import series</source><translation>Importer les séries cochées</translation></message>
<message><source>No profile</source><translation>Cette plongée n’a pas de profil enregistré.</translation></message>
<message><source>O2</source><translation>O₂</translation></message>
<message><source>Page layout</source><translation>Mise en page…</translation></message>
<message><source>PpO2</source><translation>PpO₂ %.1f bar</translation></message>
<message><source>Profile description</source><translation>%d points sur %.0f minutes, profondeur maximale %.1f m, profondeur moyenne %.1f m.</translation></message>
<message><source>Profile description without average</source><translation>%d points sur %.0f minutes, profondeur maximale %.1f m ; certaines profondeurs ne sont pas des nombres.</translation></message>
<message><source>Profile of the dive</source><translation>Profil de la plongée</translation></message>
<message><source>Replace</source><translation>Remplacer</translation></message>
<message><source>Replace all</source><translation>Tout remplacer par rien</translation></message>
<message><source>Sample ppO2</source><translation>PpO₂ %.2f bar</translation></message>
<message><source>Series ascent</source><translation>Remontée rapide</translation></message>
<message><source>Series ceiling</source><translation>Plafond</translation></message>
<message><source>Series depth</source><translation>Profondeur (m)</translation></message>
<message><source>Series gas</source><translation>Changement de gaz</translation></message>
<message><source>Series pressure</source><translation>Pression (bar)</translation></message>
<message><source>Series slow</source><translation>Ralentir</translation></message>
<message><source>Series surface</source><translation>Surface</translation></message>
<message><source>Slow down</source><translation>ralentir</translation></message>
<message><source>Table depth</source><translation>Profondeur (m)</translation></message>
<message><source>Table events</source><translation>Événements</translation></message>
<message><source>Table oxygen</source><translation>O₂ du gaz</translation></message>
<message><source>Table ppO2</source><translation>PpO₂ (bar)</translation></message>
<message><source>Table pressure</source><translation>Pression (bar)</translation></message>
<message><source>Table sample</source><translation>Point</translation></message>
<message><source>Table time</source><translation>Temps</translation></message>
<message><source>Time min</source><translation>Temps (min)</translation></message>
<message><source>Time scale</source><translation>Intervalle :</translation></message>
<message><source>Tip replace all</source><translation>Vide les sept textes et les choisit tous</translation></message>
<message><source>Typed for dive</source><translation>Saisi pour la plongée %d</translation></message>
<message><source>Values of the sample</source><translation>Valeurs de l’échantillon</translation></message>
</context>
</TS>
