<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Structures</name>
<message><source>Address</source><translation>&#13;Address: </translation></message>
<message><source>Affiliation</source><translation>&#13;Affiliation: </translation></message>
<message><source>Associative</source><translation>Non-profit</translation></message>
<message><source>Clubs</source><translation>Clubs and centres</translation></message>
<message><source>Column affiliation</source><translation>Affiliation</translation></message>
<message><source>Column country</source><translation>Country</translation></message>
<message><source>Column dives made</source><translation>Dives</translation></message>
<message><source>Column e-mail</source><translation>E-mail</translation></message>
<message><source>Column name</source><translation>Name</translation></message>
<message><source>Column postal code</source><translation>Postal code</translation></message>
<message><source>Column rating</source><translation>Rating</translation></message>
<message><source>Column telephone</source><translation>Telephone</translation></message>
<message><source>Column town</source><translation>Town</translation></message>
<message><source>Column update</source><translation>Updated</translation></message>
<message><source>Commerciale</source><translation>Commercial</translation></message>
<message><source>Cotation</source><translation>&#13;Rating: </translation></message>
<message><source>E-mail</source><translation>&#13;E-mail: </translation></message>
<message><source>Edit window</source><translation>Club: %@</translation></message>
<message><source>Fax</source><translation>&#13;Fax: </translation></message>
<message><source>Friday</source><translation>&#13;   Friday: </translation></message>
<message><source>Gerant</source><translation>&#13;Manager: </translation></message>
<message><source>Group address</source><translation>Address</translation></message>
<message><source>Group club</source><translation>Club</translation></message>
<message><source>Group contact</source><translation>Contact</translation></message>
<message><source>Group courses</source><translation>Courses</translation></message>
<message><source>Group dives</source><translation>Dives</translation></message>
<message><source>Group hours</source><translation>Opening hours: morning from – to, afternoon from – to</translation></message>
<message><source>Group remarks</source><translation>Remarks</translation></message>
<message><source>Group try-dive</source><translation>Try-dive</translation></message>
<message><source>Inventory</source><translation>Club address book</translation></message>
<message><source>Label affiliation</source><translation>Affiliation</translation></message>
<message><source>Label country</source><translation>Country</translation></message>
<message><source>Label course</source><translation>Course</translation></message>
<message><source>Label dive</source><translation>Offer</translation></message>
<message><source>Label dives made</source><translation>Dives made</translation></message>
<message><source>Label e-mail</source><translation>E-mail</translation></message>
<message><source>Label fax</source><translation>Fax</translation></message>
<message><source>Label manager</source><translation>Manager</translation></message>
<message><source>Label mobile</source><translation>Mobile</translation></message>
<message><source>Label name</source><translation>Name</translation></message>
<message><source>Label postal code</source><translation>Postal code</translation></message>
<message><source>Label price</source><translation>Price</translation></message>
<message><source>Label rating</source><translation>Rating</translation></message>
<message><source>Label street</source><translation>Street</translation></message>
<message><source>Label telephone</source><translation>Telephone</translation></message>
<message><source>Label town</source><translation>Town</translation></message>
<message><source>Label try-dive</source><translation>Price</translation></message>
<message><source>Label type</source><translation>Type</translation></message>
<message><source>Label update</source><translation>Last update</translation></message>
<message><source>Label web</source><translation>Web</translation></message>
<message><source>Menu clubs</source><translation>Clubs</translation></message>
<message><source>Mobile</source><translation>&#13;Mobile: </translation></message>
<message><source>Monday</source><translation>&#13;   Monday: </translation></message>
<message><source>N/A</source><translation>Unknown</translation></message>
<message><source>NBDives</source><translation>&#13;Dives made: </translation></message>
<message><source>Name</source><translation>&#13;Name: </translation></message>
<message><source>Page club</source><translation>Club</translation></message>
<message><source>Page hours</source><translation>Opening Hours and Remarks</translation></message>
<message><source>Page prices</source><translation>Prices</translation></message>
<message><source>Phone</source><translation>&#13;Telephone: </translation></message>
<message><source>Prices</source><translation>&#13;Prices:&#13;</translation></message>
<message><source>Remarks</source><translation>&#13;Remarks: </translation></message>
<message><source>Saturday</source><translation>&#13;   Saturday: </translation></message>
<message><source>Schedules</source><translation>&#13;Opening hours:</translation></message>
<message><source>Sunday</source><translation>&#13;   Sunday: </translation></message>
<message><source>Thursday</source><translation>&#13;   Thursday: </translation></message>
<message><source>Tuesday</source><translation>&#13;   Tuesday: </translation></message>
<message><source>Type</source><translation>&#13;Type: </translation></message>
<message><source>URL</source><translation>&#13;Web: </translation></message>
<message><source>Update</source><translation>&#13;Updated on: </translation></message>
<message><source>Wednesday</source><translation>&#13;   Wednesday: </translation></message>
</context>
</TS>
