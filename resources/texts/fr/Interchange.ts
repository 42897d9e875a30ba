<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Interchange</name>
<message><source>Already there</source><translation>déjà présente</translation></message>
<message><source>Chosen</source><translation>Choisies : %d</translation></message>
<message><source>Column depth</source><translation>Profondeur</translation></message>
<message><source>Column duration</source><translation>Durée</translation></message>
<message><source>Column gas</source><translation>Gaz</translation></message>
<message><source>Column place</source><translation>Lieu</translation></message>
<message><source>Column profile</source><translation>Profil</translation></message>
<message><source>Column remarks</source><translation>Remarques</translation></message>
<message><source>Column start</source><translation>Date et heure</translation></message>
<message><source>Dive files</source><translation>Fichiers de plongées</translation></message>
<message><source>Dives found</source><translation>Plongées trouvées : %d</translation></message>
<message><source>Doubt group skipped</source><translation>hors des groupes du fichier</translation></message>
<message><source>Doubt in future</source><translation>dans le futur</translation></message>
<message><source>Doubt no date</source><translation>pas de date</translation></message>
<message><source>Doubt no samples</source><translation>pas de profil</translation></message>
<message><source>Doubt too deep</source><translation>plus de 350 m de profondeur</translation></message>
<message><source>Implausible</source><translation>À la profondeur invraisemblable : %d.</translation></message>
<message><source>Import</source><translation>Importer</translation></message>
<message><source>Import dives</source><translation>Importer des plongées</translation></message>
<message><source>Import dives command</source><translation>Importer des plongées…</translation></message>
<message><source>Left out</source><translation>Dans des groupes que ce format laisse de côté : %d.</translation></message>
<message><source>Lost of dives</source><translation>%@ (plongées : %d)</translation></message>
<message><source>No dives of this kind</source><translation>Le document ne contient pas de plongées.</translation></message>
<message><source>No place for</source><translation>Une plongée n’a pas de place pour : %@.</translation></message>
<message><source>No such column</source><translation>Les plongées n’ont pas de champ « %@ ».</translation></message>
<message><source>Nothing lost</source><translation>Rien n’est perdu.</translation></message>
<message><source>Reading file</source><translation>Lecture de « %@ » …</translation></message>
<message><source>Reads better</source><translation>Le fichier est de l’UDDF 3 ; lu selon son sens, il a ses dates, ses gaz et ses profils.</translation></message>
<message><source>Renumber by date</source><translation>Classer toutes les plongées par date et les renuméroter</translation></message>
<message><source>Skipped</source><translation>Déjà présentes et laissées de côté : %d.</translation></message>
<message><source>Texts to notes</source><translation>Ajouter aux notes les textes sans champ à eux</translation></message>
<message><source>Tick all</source><translation>Tout cocher</translation></message>
<message><source>Tick none</source><translation>Tout décocher</translation></message>
<message><source>Twice</source><translation>Présentes deux fois : %d.</translation></message>
<message><source>Without date</source><translation>Sans date : %d.</translation></message>
</context>
</TS>
