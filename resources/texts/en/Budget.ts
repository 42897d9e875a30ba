<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Budget</name>
<message><source>Bad</source><translation>Bad</translation></message>
<message><source>Card</source><translation>&#13;Card of </translation></message>
<message><source>Column delay</source><translation>Delay</translation></message>
<message><source>Column quantity</source><translation>Quantity</translation></message>
<message><source>Column service</source><translation>Service</translation></message>
<message><source>Column supplier</source><translation>Company</translation></message>
<message><source>Column unit price</source><translation>Unit price</translation></message>
<message><source>Column update</source><translation>Updated</translation></message>
<message><source>Column value</source><translation>Value</translation></message>
<message><source>Cotation</source><translation>&#13;Value for money: </translation></message>
<message><source>Delay</source><translation>&#13;Responsiveness: </translation></message>
<message><source>Discount price</source><translation>%.2f € per unit</translation></message>
<message><source>Edit window</source><translation>Service: %@</translation></message>
<message><source>Entreprise</source><translation>&#13;Company: </translation></message>
<message><source>Good</source><translation>Good</translation></message>
<message><source>Group cards</source><translation>Cards</translation></message>
<message><source>Group discount</source><translation>Discount</translation></message>
<message><source>Group notes</source><translation>Remarks</translation></message>
<message><source>Group service</source><translation>Service</translation></message>
<message><source>Group supplements</source><translation>Supplements (the last line does not count in the total)</translation></message>
<message><source>Group supplier</source><translation>Supplier</translation></message>
<message><source>Group total</source><translation>Total</translation></message>
<message><source>Hint not stored</source><translation>This label is not stored: a card keeps the labels of four supplements.</translation></message>
<message><source>Inefficient</source><translation>Slow</translation></message>
<message><source>Inventory</source><translation>Budget forecast</translation></message>
<message><source>Label card price</source><translation>Price</translation></message>
<message><source>Label card units</source><translation>Units</translation></message>
<message><source>Label delay</source><translation>Responsiveness</translation></message>
<message><source>Label discount</source><translation>Prepaid cards at a discount</translation></message>
<message><source>Label planned</source><translation>The expense is planned</translation></message>
<message><source>Label price of unit</source><translation>Price of a unit</translation></message>
<message><source>Label quantity</source><translation>Quantity</translation></message>
<message><source>Label service</source><translation>Service</translation></message>
<message><source>Label supplement</source><translation>Supplement</translation></message>
<message><source>Label supplier</source><translation>Company</translation></message>
<message><source>Label total</source><translation>Total</translation></message>
<message><source>Label unit price</source><translation>Unit price</translation></message>
<message><source>Label update</source><translation>Last update</translation></message>
<message><source>Label value</source><translation>Value for money</translation></message>
<message><source>Medium</source><translation>Medium</translation></message>
<message><source>Menu services</source><translation>Services</translation></message>
<message><source>Money</source><translation> €</translation></message>
<message><source>N/A</source><translation>Not rated</translation></message>
<message><source>Page cards</source><translation>Prepaid Cards</translation></message>
<message><source>Page service</source><translation>Service</translation></message>
<message><source>Page supplier</source><translation>Supplier</translation></message>
<message><source>Prestation</source><translation>&#13;&#13;Service: </translation></message>
<message><source>Price per unit</source><translation>&#13;Price per unit (€):</translation></message>
<message><source>Quantity</source><translation>   Quantity: </translation></message>
<message><source>Remarks</source><translation>&#13;Remarks: </translation></message>
<message><source>Satisfying</source><translation>Satisfying</translation></message>
<message><source>Services</source><translation>Planned services</translation></message>
<message><source>Supplement</source><translation>&#13;Supplement: </translation></message>
<message><source>Units at</source><translation> units at</translation></message>
<message><source>Very bad</source><translation>Very bad</translation></message>
<message><source>Very good</source><translation>Very good</translation></message>
<message><source>Very inefficient</source><translation>Very slow</translation></message>
<message><source>Very satisfying</source><translation>Very satisfying</translation></message>
</context>
</TS>
