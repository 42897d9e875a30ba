<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Entreprises</name>
<message><source>Activity</source><translation>&#13;Activity: </translation></message>
<message><source>Address</source><translation>&#13;Address: </translation></message>
<message><source>Column activity</source><translation>Activity</translation></message>
<message><source>Column country</source><translation>Country</translation></message>
<message><source>Column e-mail</source><translation>E-mail</translation></message>
<message><source>Column name</source><translation>Name</translation></message>
<message><source>Column postal code</source><translation>Postal code</translation></message>
<message><source>Column rating</source><translation>Rating</translation></message>
<message><source>Column telephone</source><translation>Telephone</translation></message>
<message><source>Column town</source><translation>Town</translation></message>
<message><source>Column update</source><translation>Updated</translation></message>
<message><source>Companies</source><translation>Companies</translation></message>
<message><source>E-mail</source><translation>&#13;E-mail: </translation></message>
<message><source>Edit window</source><translation>Company: %@</translation></message>
<message><source>Fax</source><translation>&#13;Fax: </translation></message>
<message><source>Friday</source><translation>&#13;   Friday: </translation></message>
<message><source>Group address</source><translation>Address</translation></message>
<message><source>Group company</source><translation>Company</translation></message>
<message><source>Group contact</source><translation>Contact</translation></message>
<message><source>Group hours</source><translation>Opening hours: morning from – to, afternoon from – to</translation></message>
<message><source>Group remarks</source><translation>Remarks</translation></message>
<message><source>Inventory</source><translation>Company address book</translation></message>
<message><source>Label activity</source><translation>Activity</translation></message>
<message><source>Label country</source><translation>Country</translation></message>
<message><source>Label e-mail</source><translation>E-mail</translation></message>
<message><source>Label fax</source><translation>Fax</translation></message>
<message><source>Label friday</source><translation>Friday</translation></message>
<message><source>Label monday</source><translation>Monday</translation></message>
<message><source>Label name</source><translation>Name</translation></message>
<message><source>Label postal code</source><translation>Postal code</translation></message>
<message><source>Label rating</source><translation>Rating</translation></message>
<message><source>Label saturday</source><translation>Saturday</translation></message>
<message><source>Label street</source><translation>Street</translation></message>
<message><source>Label sunday</source><translation>Sunday</translation></message>
<message><source>Label telephone</source><translation>Telephone</translation></message>
<message><source>Label thursday</source><translation>Thursday</translation></message>
<message><source>Label town</source><translation>Town</translation></message>
<message><source>Label tuesday</source><translation>Tuesday</translation></message>
<message><source>Label update</source><translation>Last update</translation></message>
<message><source>Label web</source><translation>Web</translation></message>
<message><source>Label wednesday</source><translation>Wednesday</translation></message>
<message><source>Menu companies</source><translation>Companies</translation></message>
<message><source>Monday</source><translation>&#13;   Monday: </translation></message>
<message><source>Name</source><translation>&#13;Name: </translation></message>
<message><source>Page company</source><translation>Company</translation></message>
<message><source>Page hours</source><translation>Opening Hours</translation></message>
<message><source>Page remarks</source><translation>Remarks</translation></message>
<message><source>Phone</source><translation>&#13;Telephone: </translation></message>
<message><source>Remarks</source><translation>&#13;Remarks: </translation></message>
<message><source>Saturday</source><translation>&#13;   Saturday: </translation></message>
<message><source>Schedules</source><translation>&#13;Opening hours:</translation></message>
<message><source>Sunday</source><translation>&#13;   Sunday: </translation></message>
<message><source>Thursday</source><translation>&#13;   Thursday: </translation></message>
<message><source>Tip today</source><translation>Set the last update to now</translation></message>
<message><source>Today</source><translation>Today</translation></message>
<message><source>Tuesday</source><translation>&#13;   Tuesday: </translation></message>
<message><source>URL</source><translation>&#13;Web: </translation></message>
<message><source>Update</source><translation>&#13;Updated on: </translation></message>
<message><source>Wednesday</source><translation>&#13;   Wednesday: </translation></message>
</context>
</TS>
