<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Consommables</name>
<message><source>Edit window title</source><translation>Pièce %@</translation></message>
<message><source>Group part</source><translation>Pièce</translation></message>
<message><source>Group remarks</source><translation>Remarques</translation></message>
<message><source>Group stock</source><translation>Stock</translation></message>
<message><source>Inventory</source><translation>Inventaire des consommables</translation></message>
<message><source>Label brand</source><translation>Marque</translation></message>
<message><source>Label inventory date</source><translation>Dernier inventaire</translation></message>
<message><source>Label level</source><translation>Niveau du stock</translation></message>
<message><source>Label not counted</source><translation>Non compté à l’inventaire</translation></message>
<message><source>Label reference</source><translation>Référence</translation></message>
<message><source>Label reserve</source><translation>Réserve</translation></message>
<message><source>Label stock</source><translation>En stock</translation></message>
<message><source>Label storage</source><translation>Rangement</translation></message>
<message><source>Label use</source><translation>Utilisation</translation></message>
<message><source>Location</source><translation>&#13;Rangement : </translation></message>
<message><source>Menu</source><translation>Pièce</translation></message>
<message><source>Page part</source><translation>Pièce</translation></message>
<message><source>Page remarks</source><translation>Remarques</translation></message>
<message><source>Page stock</source><translation>Stock</translation></message>
<message><source>Quantity</source><translation>&#13;Quantité : </translation></message>
<message><source>Reference</source><translation>&#13;Référence : </translation></message>
<message><source>Remarks</source><translation>&#13;Remarques : </translation></message>
<message><source>Table name</source><translation>Inventaire des consommables</translation></message>
<message><source>Trade mark</source><translation>&#13;Marque : </translation></message>
<message><source>Use</source><translation>&#13;Utilisation : </translation></message>
</context>
</TS>
