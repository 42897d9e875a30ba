<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Materiel</name>
<message><source>A reparer</source><translation>To repair</translation></message>
<message><source>Capacity</source><translation>&#13;Capacity (l): </translation></message>
<message><source>Card No</source><translation>&#13;Card no.: </translation></message>
<message><source>Edit window title</source><translation>Equipment card no. %@</translation></message>
<message><source>Elapsed time</source><translation>Time elapsed</translation></message>
<message><source>En service</source><translation>In service</translation></message>
<message><source>Equipment state</source><translation>&#13;State: </translation></message>
<message><source>Equipment type</source><translation>&#13;Equipment type: </translation></message>
<message><source>Facture</source><translation>&#13;Invoice: </translation></message>
<message><source>First test pressure</source><translation>&#13;First pressure test: </translation></message>
<message><source>Gift</source><translation>Given away</translation></message>
<message><source>Group inspection</source><translation>Periodic inspection</translation></message>
<message><source>Group item</source><translation>Item</translation></message>
<message><source>Group purchase</source><translation>Purchase</translation></message>
<message><source>Group remarks</source><translation>Remarks</translation></message>
<message><source>Group tank</source><translation>Tank</translation></message>
<message><source>Inventory</source><translation>Equipment inventory</translation></message>
<message><source>Label brand</source><translation>Brand</translation></message>
<message><source>Label capacity</source><translation>Capacity</translation></message>
<message><source>Label first pressure test</source><translation>First pressure test</translation></message>
<message><source>Label inspection progress</source><translation>Inspection period</translation></message>
<message><source>Label invoice</source><translation>Invoice held</translation></message>
<message><source>Label last inspection</source><translation>Last inspection</translation></message>
<message><source>Label next inspection</source><translation>Next inspection</translation></message>
<message><source>Label next pressure test</source><translation>Next pressure test</translation></message>
<message><source>Label no inspection</source><translation>No inspection needed</translation></message>
<message><source>Label number</source><translation>Number</translation></message>
<message><source>Label price</source><translation>Price</translation></message>
<message><source>Label purchase date</source><translation>Purchase date</translation></message>
<message><source>Label quantity</source><translation>Quantity</translation></message>
<message><source>Label serial number</source><translation>Serial number</translation></message>
<message><source>Label service pressure</source><translation>Service pressure</translation></message>
<message><source>Label shop</source><translation>Place of purchase</translation></message>
<message><source>Label state</source><translation>State</translation></message>
<message><source>Label tank</source><translation>Tank</translation></message>
<message><source>Label technician inspection</source><translation>Visual inspection by a technician</translation></message>
<message><source>Label technician name</source><translation>Technician’s name</translation></message>
<message><source>Label technician number</source><translation>Technician’s number</translation></message>
<message><source>Label test pressure</source><translation>Test pressure</translation></message>
<message><source>Label type</source><translation>Type</translation></message>
<message><source>Last inspection</source><translation>&#13;Last inspection: </translation></message>
<message><source>Litres</source><translation>L</translation></message>
<message><source>Lost</source><translation>Lost</translation></message>
<message><source>Menu</source><translation>Equipment</translation></message>
<message><source>Next inspection</source><translation>&#13;Next inspection: </translation></message>
<message><source>Next test pressure</source><translation>&#13;Next pressure test: </translation></message>
<message><source>Out of date</source><translation>Inspection overdue</translation></message>
<message><source>Page inspection</source><translation>Inspection</translation></message>
<message><source>Page item</source><translation>Item</translation></message>
<message><source>Page remarks</source><translation>Remarks</translation></message>
<message><source>Price</source><translation>&#13;Price: </translation></message>
<message><source>Purchase date</source><translation>&#13;Purchase date: </translation></message>
<message><source>Purchase date as text</source><translation>Purchase date: %@</translation></message>
<message><source>Purchase location</source><translation>&#13;Place of purchase: </translation></message>
<message><source>Quantity</source><translation>&#13;Quantity: </translation></message>
<message><source>Reforme</source><translation>Scrapped</translation></message>
<message><source>Remarks</source><translation>&#13;Remarks: </translation></message>
<message><source>Replace</source><translation>To replace</translation></message>
<message><source>Serial No</source><translation>&#13;Serial no.: </translation></message>
<message><source>Service pressure</source><translation>&#13;Service pressure (bar): </translation></message>
<message><source>Sold</source><translation>Sold</translation></message>
<message><source>TIV No</source><translation>&#13;Technician no.: </translation></message>
<message><source>TIV technician</source><translation>&#13;Inspection technician: </translation></message>
<message><source>Table name</source><translation>Equipment inventory</translation></message>
<message><source>Test pressure</source><translation>&#13;Test pressure (bar): </translation></message>
<message><source>Trade mark</source><translation>&#13;Brand: </translation></message>
</context>
</TS>
