<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Compresseur</name>
<message><source>Alumin</source><translation>&#13;    - Alumine activée</translation></message>
<message><source>Analyse CO</source><translation>&#13;CO : </translation></message>
<message><source>Analyse CO2</source><translation>&#13;CO₂ : </translation></message>
<message><source>Analyse H2O</source><translation>&#13;H₂O : </translation></message>
<message><source>Analyse huile</source><translation>&#13;Huile : </translation></message>
<message><source>Analyzes</source><translation>&#13;&#13;Analyses d’air</translation></message>
<message><source>Cardridge</source><translation>&#13;- Cartouche filtrante</translation></message>
<message><source>Charcoal</source><translation>&#13;    - Charbon actif</translation></message>
<message><source>Cleaning</source><translation>&#13;- Dépoussiérage</translation></message>
<message><source>Controls</source><translation>&#13;- Contrôles</translation></message>
<message><source>Date</source><translation>Date : </translation></message>
<message><source>Edit window title</source><translation>Révision du %@</translation></message>
<message><source>Filter cleaning</source><translation>&#13;- Filtre à air nettoyé</translation></message>
<message><source>Filter replacement</source><translation>&#13;- Filtre à air remplacé</translation></message>
<message><source>Group analyses</source><translation>Analyses d’air</translation></message>
<message><source>Group cartridge</source><translation>Cartouche filtrante</translation></message>
<message><source>Group checks</source><translation>Contrôles</translation></message>
<message><source>Group oil and filter</source><translation>Huile et filtre à air</translation></message>
<message><source>Group remarks</source><translation>Remarques</translation></message>
<message><source>Group service</source><translation>Révision</translation></message>
<message><source>Inventory</source><translation>Maintenance du compresseur</translation></message>
<message><source>Label air filter</source><translation>Filtre à air</translation></message>
<message><source>Label alumina</source><translation>Alumine activée</translation></message>
<message><source>Label brand</source><translation>Marque</translation></message>
<message><source>Label carbon dioxide</source><translation>CO₂</translation></message>
<message><source>Label carbon dioxide unit</source><translation>Unité du CO₂</translation></message>
<message><source>Label carbon monoxide</source><translation>CO</translation></message>
<message><source>Label carbon monoxide unit</source><translation>Unité du CO</translation></message>
<message><source>Label cartridge</source><translation>Cartouche changée</translation></message>
<message><source>Label charcoal</source><translation>Charbon actif</translation></message>
<message><source>Label checks</source><translation>Contrôles</translation></message>
<message><source>Label cleaning</source><translation>Dépoussiérage</translation></message>
<message><source>Label date</source><translation>Date</translation></message>
<message><source>Label filter operation</source><translation>Opération</translation></message>
<message><source>Label model</source><translation>Modèle</translation></message>
<message><source>Label oil</source><translation>Huile</translation></message>
<message><source>Label oil change</source><translation>Vidange</translation></message>
<message><source>Label oil content</source><translation>Huile</translation></message>
<message><source>Label running time</source><translation>Temps</translation></message>
<message><source>Label sieve</source><translation>Tamis moléculaire</translation></message>
<message><source>Label sum time</source><translation>Temps cumulé</translation></message>
<message><source>Label valve operation</source><translation>Intervention sur les soupapes</translation></message>
<message><source>Label valves</source><translation>Soupapes</translation></message>
<message><source>Label water</source><translation>Eau</translation></message>
<message><source>Menu</source><translation>Révision</translation></message>
<message><source>Mineral</source><translation>Minérale</translation></message>
<message><source>Model</source><translation>&#13;Modèle : </translation></message>
<message><source>Molecular mesh</source><translation>&#13;    - Tamis moléculaire</translation></message>
<message><source>Operations</source><translation>&#13;&#13;Opérations</translation></message>
<message><source>Page analyses</source><translation>Analyses</translation></message>
<message><source>Page operations</source><translation>Opérations</translation></message>
<message><source>Page service</source><translation>Révision</translation></message>
<message><source>Remarks</source><translation>&#13;&#13;Remarques : </translation></message>
<message><source>Retarage</source><translation>retarage</translation></message>
<message><source>Service</source><translation>Révision n° </translation></message>
<message><source>Sum time</source><translation>&#13;Temps cumulé : </translation></message>
<message><source>Synthetic</source><translation>Synthétique</translation></message>
<message><source>Table name</source><translation>Révisions du compresseur</translation></message>
<message><source>TableView cleaning</source><translation>Nettoyage</translation></message>
<message><source>TableView replacement</source><translation>Remplacement</translation></message>
<message><source>TableView retarage</source><translation>Retarage</translation></message>
<message><source>TableView verification</source><translation>Vérification</translation></message>
<message><source>Time</source><translation>&#13;Temps de fonctionnement : </translation></message>
<message><source>Trade mark</source><translation>&#13;Marque : </translation></message>
<message><source>Valves</source><translation>&#13;- Soupapes : </translation></message>
<message><source>Verification</source><translation>vérification</translation></message>
<message><source>Vidange mineral</source><translation>&#13;- Vidange, huile minérale</translation></message>
<message><source>Vidange synthesis</source><translation>&#13;- Vidange, huile synthétique</translation></message>
</context>
</TS>
