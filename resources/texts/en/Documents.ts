<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Documents</name>
<message><source>Column date</source><translation>Date</translation></message>
<message><source>Column issuer</source><translation>Issued by</translation></message>
<message><source>Column renew</source><translation>Renew</translation></message>
<message><source>Column renewal date</source><translation>Renewal on</translation></message>
<message><source>Column title</source><translation>Title</translation></message>
<message><source>Column type</source><translation>Kind</translation></message>
<message><source>Documents</source><translation>Documents</translation></message>
<message><source>Edit window</source><translation>Document: %@</translation></message>
<message><source>Group copy</source><translation>Copy</translation></message>
<message><source>Group document</source><translation>Document</translation></message>
<message><source>Group notes</source><translation>Remarks</translation></message>
<message><source>Group renewal</source><translation>Renewal</translation></message>
<message><source>Label copy</source><translation>Copy of the document</translation></message>
<message><source>Label date</source><translation>Date of issue</translation></message>
<message><source>Label issuer</source><translation>Issued by</translation></message>
<message><source>Label renew</source><translation>Must be renewed</translation></message>
<message><source>Label renewal date</source><translation>Renewal on</translation></message>
<message><source>Label title</source><translation>Title</translation></message>
<message><source>Label type</source><translation>Kind</translation></message>
<message><source>Menu documents</source><translation>Documents</translation></message>
<message><source>Page copy</source><translation>Copy</translation></message>
<message><source>Page document</source><translation>Document</translation></message>
<message><source>Page notes</source><translation>Remarks</translation></message>
<message><source>TableView attestation</source><translation>Attestation</translation></message>
<message><source>TableView autre</source><translation>Other</translation></message>
<message><source>TableView certifMed</source><translation>Medical certificate</translation></message>
<message><source>TableView certification</source><translation>Certification</translation></message>
<message><source>TableView facture</source><translation>Invoice</translation></message>
<message><source>TableView licence</source><translation>Licence</translation></message>
</context>
</TS>
