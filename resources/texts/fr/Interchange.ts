<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Interchange</name>
<message><source>All dives</source><translation>Toutes (%d)</translation></message>
<message><source>Already there</source><translation>déjà présente</translation></message>
<message><source>Chosen</source><translation>Choisies : %d</translation></message>
<message><source>Column depth</source><translation>Profondeur</translation></message>
<message><source>Column duration</source><translation>Durée</translation></message>
<message><source>Column example</source><translation>Exemple</translation></message>
<message><source>Column field</source><translation>Champ de la plongée</translation></message>
<message><source>Column gas</source><translation>Gaz</translation></message>
<message><source>Column heading</source><translation>Colonne du fichier</translation></message>
<message><source>Column left out</source><translation>(laissée de côté)</translation></message>
<message><source>Column place</source><translation>Lieu</translation></message>
<message><source>Column profile</source><translation>Profil</translation></message>
<message><source>Column remarks</source><translation>Remarques</translation></message>
<message><source>Column start</source><translation>Date et heure</translation></message>
<message><source>Columns of table</source><translation>Colonnes du tableau</translation></message>
<message><source>Damaged</source><translation>Le fichier est endommagé en %@ (ligne:colonne) ; des plongées ou des mots peuvent manquer après cet endroit.</translation></message>
<message><source>Dive files</source><translation>Fichiers de plongées</translation></message>
<message><source>Dives found</source><translation>Plongées trouvées : %d</translation></message>
<message><source>Dives last found</source><translation>Trouvées (%d)</translation></message>
<message><source>Doubt group skipped</source><translation>hors des groupes du fichier</translation></message>
<message><source>Doubt in future</source><translation>dans le futur</translation></message>
<message><source>Doubt no date</source><translation>pas de date</translation></message>
<message><source>Doubt no samples</source><translation>pas de profil</translation></message>
<message><source>Doubt too deep</source><translation>plus de 350 m de profondeur</translation></message>
<message><source>Export</source><translation>Exporter</translation></message>
<message><source>Export columns</source><translation>Colonnes</translation></message>
<message><source>Export comes back</source><translation>Les pertes sont ce qui diffère quand le fichier est relu.</translation></message>
<message><source>Export dives</source><translation>Exporter des plongées</translation></message>
<message><source>Export format</source><translation>Format</translation></message>
<message><source>Export which</source><translation>Plongées</translation></message>
<message><source>Format UDCF</source><translation>UDCF</translation></message>
<message><source>Format UDDF</source><translation>UDDF 2.2</translation></message>
<message><source>Format UDDF 3</source><translation>UDDF 3.2</translation></message>
<message><source>Format commas</source><translation>Liste des plongées en texte, virgules</translation></message>
<message><source>Format profiles</source><translation>Profils en texte, virgules</translation></message>
<message><source>Format semicolons</source><translation>Liste des plongées en texte, points-virgules</translation></message>
<message><source>Format table</source><translation>CSV, tous les champs ou au choix (UTF-8)</translation></message>
<message><source>Format tabs</source><translation>Liste des plongées en texte, tabulations</translation></message>
<message><source>Implausible</source><translation>À la profondeur invraisemblable : %d.</translation></message>
<message><source>Import</source><translation>Importer</translation></message>
<message><source>Import dives</source><translation>Importer des plongées</translation></message>
<message><source>Import dives command</source><translation>Importer des plongées…</translation></message>
<message><source>Left out</source><translation>Dans des groupes que ce format laisse de côté : %d.</translation></message>
<message><source>Looking for losses</source><translation>Recherche de ce qui serait perdu…</translation></message>
<message><source>Loss of dives</source><translation>%@ de %d plongées</translation></message>
<message><source>Loss of one dive</source><translation>%@ d’une plongée</translation></message>
<message><source>Losses</source><translation>Ce que le fichier ne contiendra pas</translation></message>
<message><source>Losses not known</source><translation>Non recherché.</translation></message>
<message><source>Lost of dives</source><translation>%@ (plongées : %d)</translation></message>
<message><source>No columns to choose</source><translation>Ce format n’a pas de colonnes à choisir.</translation></message>
<message><source>No dives of this kind</source><translation>Le document ne contient pas de plongées.</translation></message>
<message><source>No place for</source><translation>Une plongée n’a pas de place pour : %@.</translation></message>
<message><source>No such column</source><translation>Les plongées n’ont pas de champ « %@ ».</translation></message>
<message><source>Nothing lost</source><translation>Rien n’est perdu.</translation></message>
<message><source>Numbered on</source><translation>Leurs numéros dans le fichier manquent, se répètent ou existent déjà ; elles ont été numérotées à la suite.</translation></message>
<message><source>Reading file</source><translation>Lecture de « %@ »…</translation></message>
<message><source>Reads better</source><translation>Le fichier est de l’UDDF 3 ; lu selon son sens, il a ses dates, ses gaz et ses profils.</translation></message>
<message><source>Renumber by date</source><translation>Classer toutes les plongées par date et les renuméroter</translation></message>
<message><source>Say the date</source><translation>Indiquez la colonne de la date ; les plongées sont alors lues.</translation></message>
<message><source>Selected dives</source><translation>Sélectionnées (%d)</translation></message>
<message><source>Skipped</source><translation>Déjà présentes et laissées de côté : %d.</translation></message>
<message><source>Table columns</source><translation>Colonnes…</translation></message>
<message><source>Table without date</source><translation>Aucune colonne de « %@ » n’est connue pour contenir la date.</translation></message>
<message><source>Texts to notes</source><translation>Ajouter aux notes les textes sans champ à eux</translation></message>
<message><source>Tick all</source><translation>Tout cocher</translation></message>
<message><source>Tick none</source><translation>Tout décocher</translation></message>
<message><source>Twice</source><translation>Présentes deux fois : %d.</translation></message>
<message><source>Without date</source><translation>Sans date : %d.</translation></message>
</context>
</TS>
