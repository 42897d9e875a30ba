<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Documents</name>
<message><source>Column date</source><translation>Date</translation></message>
<message><source>Column issuer</source><translation>Émetteur</translation></message>
<message><source>Column renew</source><translation>À renouveler</translation></message>
<message><source>Column renewal date</source><translation>Renouvellement</translation></message>
<message><source>Column title</source><translation>Titre</translation></message>
<message><source>Column type</source><translation>Type</translation></message>
<message><source>Documents</source><translation>Documents</translation></message>
<message><source>Edit window</source><translation>Document : %@</translation></message>
<message><source>Group copy</source><translation>Copie</translation></message>
<message><source>Group document</source><translation>Document</translation></message>
<message><source>Group notes</source><translation>Remarques</translation></message>
<message><source>Group renewal</source><translation>Renouvellement</translation></message>
<message><source>Label copy</source><translation>Copie du document</translation></message>
<message><source>Label date</source><translation>Date d’émission</translation></message>
<message><source>Label issuer</source><translation>Émetteur</translation></message>
<message><source>Label renew</source><translation>À renouveler</translation></message>
<message><source>Label renewal date</source><translation>Renouvellement le</translation></message>
<message><source>Label title</source><translation>Titre</translation></message>
<message><source>Label type</source><translation>Type</translation></message>
<message><source>Menu documents</source><translation>Documents</translation></message>
<message><source>Page copy</source><translation>Copie</translation></message>
<message><source>Page document</source><translation>Document</translation></message>
<message><source>Page notes</source><translation>Remarques</translation></message>
<message><source>TableView attestation</source><translation>Attestation</translation></message>
<message><source>TableView autre</source><translation>Autre</translation></message>
<message><source>TableView certifMed</source><translation>Certificat médical</translation></message>
<message><source>TableView certification</source><translation>Brevet</translation></message>
<message><source>TableView facture</source><translation>Facture</translation></message>
<message><source>TableView licence</source><translation>Licence</translation></message>
</context>
</TS>
