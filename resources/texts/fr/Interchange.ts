<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Interchange</name>
<message><source>Already there</source><translation>déjà présente</translation></message>
<message><source>Doubt group skipped</source><translation>hors des groupes du fichier</translation></message>
<message><source>Doubt in future</source><translation>dans le futur</translation></message>
<message><source>Doubt no date</source><translation>pas de date</translation></message>
<message><source>Doubt no samples</source><translation>pas de profil</translation></message>
<message><source>Doubt too deep</source><translation>plus de 350 m de profondeur</translation></message>
<message><source>Implausible</source><translation>À la profondeur invraisemblable : %d.</translation></message>
<message><source>Left out</source><translation>Dans des groupes que ce format laisse de côté : %d.</translation></message>
<message><source>Lost of dives</source><translation>%@ (plongées : %d)</translation></message>
<message><source>No dives of this kind</source><translation>Le document ne contient pas de plongées.</translation></message>
<message><source>No such column</source><translation>Les plongées n’ont pas de champ « %@ ».</translation></message>
<message><source>Nothing lost</source><translation>Rien n’est perdu.</translation></message>
<message><source>Reads better</source><translation>Le fichier est de l’UDDF 3 ; lu selon son sens, il a ses dates, ses gaz et ses profils.</translation></message>
<message><source>Skipped</source><translation>Déjà présentes et laissées de côté : %d.</translation></message>
<message><source>Twice</source><translation>Présentes deux fois : %d.</translation></message>
<message><source>Without date</source><translation>Sans date : %d.</translation></message>
</context>
</TS>
