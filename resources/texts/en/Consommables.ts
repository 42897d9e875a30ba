<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Consommables</name>
<message><source>Edit window title</source><translation>Part %@</translation></message>
<message><source>Group part</source><translation>Part</translation></message>
<message><source>Group remarks</source><translation>Remarks</translation></message>
<message><source>Group stock</source><translation>Stock</translation></message>
<message><source>Inventory</source><translation>Consumables inventory</translation></message>
<message><source>Label brand</source><translation>Brand</translation></message>
<message><source>Label inventory date</source><translation>Last inventory</translation></message>
<message><source>Label level</source><translation>Stock level</translation></message>
<message><source>Label not counted</source><translation>Not counted at inventories</translation></message>
<message><source>Label reference</source><translation>Reference</translation></message>
<message><source>Label reserve</source><translation>Reserve</translation></message>
<message><source>Label stock</source><translation>In stock</translation></message>
<message><source>Label storage</source><translation>Storage place</translation></message>
<message><source>Label use</source><translation>Use</translation></message>
<message><source>Location</source><translation>&#13;Storage place: </translation></message>
<message><source>Menu</source><translation>Part</translation></message>
<message><source>Page part</source><translation>Part</translation></message>
<message><source>Page remarks</source><translation>Remarks</translation></message>
<message><source>Page stock</source><translation>Stock</translation></message>
<message><source>Quantity</source><translation>&#13;Quantity: </translation></message>
<message><source>Reference</source><translation>&#13;Reference: </translation></message>
<message><source>Remarks</source><translation>&#13;Remarks: </translation></message>
<message><source>Table name</source><translation>Consumables inventory</translation></message>
<message><source>Trade mark</source><translation>&#13;Brand: </translation></message>
<message><source>Use</source><translation>&#13;Use: </translation></message>
</context>
</TS>
