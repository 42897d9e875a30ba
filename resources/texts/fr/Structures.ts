<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Structures</name>
<message><source>Address</source><translation>&#13;Adresse : </translation></message>
<message><source>Affiliation</source><translation>&#13;Affiliation : </translation></message>
<message><source>Associative</source><translation>Associatif</translation></message>
<message><source>Clubs</source><translation>Clubs et centres</translation></message>
<message><source>Column affiliation</source><translation>Affiliation</translation></message>
<message><source>Column country</source><translation>Pays</translation></message>
<message><source>Column dives made</source><translation>Plongées</translation></message>
<message><source>Column e-mail</source><translation>Courriel</translation></message>
<message><source>Column name</source><translation>Nom</translation></message>
<message><source>Column postal code</source><translation>Code postal</translation></message>
<message><source>Column rating</source><translation>Cotation</translation></message>
<message><source>Column telephone</source><translation>Téléphone</translation></message>
<message><source>Column town</source><translation>Ville</translation></message>
<message><source>Column update</source><translation>Mise à jour</translation></message>
<message><source>Commerciale</source><translation>Commercial</translation></message>
<message><source>Cotation</source><translation>&#13;Cotation : </translation></message>
<message><source>E-mail</source><translation>&#13;Courriel : </translation></message>
<message><source>Edit window</source><translation>Club : %@</translation></message>
<message><source>Fax</source><translation>&#13;Fax : </translation></message>
<message><source>Friday</source><translation>&#13;   Vendredi : </translation></message>
<message><source>Gerant</source><translation>&#13;Gérant : </translation></message>
<message><source>Group address</source><translation>Adresse</translation></message>
<message><source>Group club</source><translation>Club</translation></message>
<message><source>Group contact</source><translation>Contact</translation></message>
<message><source>Group courses</source><translation>Formations</translation></message>
<message><source>Group dives</source><translation>Plongées</translation></message>
<message><source>Group hours</source><translation>Horaires : matin de – à, après-midi de – à</translation></message>
<message><source>Group remarks</source><translation>Remarques</translation></message>
<message><source>Group try-dive</source><translation>Baptême</translation></message>
<message><source>Inventory</source><translation>Carnet d’adresses des clubs</translation></message>
<message><source>Label affiliation</source><translation>Affiliation</translation></message>
<message><source>Label country</source><translation>Pays</translation></message>
<message><source>Label course</source><translation>Formation</translation></message>
<message><source>Label dive</source><translation>Offre</translation></message>
<message><source>Label dives made</source><translation>Plongées effectuées</translation></message>
<message><source>Label e-mail</source><translation>Courriel</translation></message>
<message><source>Label fax</source><translation>Fax</translation></message>
<message><source>Label manager</source><translation>Gérant</translation></message>
<message><source>Label mobile</source><translation>Portable</translation></message>
<message><source>Label name</source><translation>Nom</translation></message>
<message><source>Label postal code</source><translation>Code postal</translation></message>
<message><source>Label price</source><translation>Prix</translation></message>
<message><source>Label rating</source><translation>Cotation</translation></message>
<message><source>Label street</source><translation>Rue</translation></message>
<message><source>Label telephone</source><translation>Téléphone</translation></message>
<message><source>Label town</source><translation>Ville</translation></message>
<message><source>Label try-dive</source><translation>Prix</translation></message>
<message><source>Label type</source><translation>Type</translation></message>
<message><source>Label update</source><translation>Dernière mise à jour</translation></message>
<message><source>Label web</source><translation>Site web</translation></message>
<message><source>Menu clubs</source><translation>Clubs</translation></message>
<message><source>Mobile</source><translation>&#13;Portable : </translation></message>
<message><source>Monday</source><translation>&#13;   Lundi : </translation></message>
<message><source>N/A</source><translation>Inconnu</translation></message>
<message><source>NBDives</source><translation>&#13;Plongées effectuées : </translation></message>
<message><source>Name</source><translation>&#13;Nom : </translation></message>
<message><source>Page club</source><translation>Club</translation></message>
<message><source>Page hours</source><translation>Horaires et remarques</translation></message>
<message><source>Page prices</source><translation>Tarifs</translation></message>
<message><source>Phone</source><translation>&#13;Téléphone : </translation></message>
<message><source>Prices</source><translation>&#13;Tarifs :&#13;</translation></message>
<message><source>Remarks</source><translation>&#13;Remarques : </translation></message>
<message><source>Saturday</source><translation>&#13;   Samedi : </translation></message>
<message><source>Schedules</source><translation>&#13;Horaires :</translation></message>
<message><source>Sunday</source><translation>&#13;   Dimanche : </translation></message>
<message><source>Thursday</source><translation>&#13;   Jeudi : </translation></message>
<message><source>Tuesday</source><translation>&#13;   Mardi : </translation></message>
<message><source>Type</source><translation>&#13;Type : </translation></message>
<message><source>URL</source><translation>&#13;Site web : </translation></message>
<message><source>Update</source><translation>&#13;Mise à jour le : </translation></message>
<message><source>Wednesday</source><translation>&#13;   Mercredi : </translation></message>
</context>
</TS>
