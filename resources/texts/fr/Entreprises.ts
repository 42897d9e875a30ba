<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Entreprises</name>
<message><source>Activity</source><translation>&#13;Activité : </translation></message>
<message><source>Address</source><translation>&#13;Adresse : </translation></message>
<message><source>Column activity</source><translation>Activité</translation></message>
<message><source>Column country</source><translation>Pays</translation></message>
<message><source>Column e-mail</source><translation>Courriel</translation></message>
<message><source>Column name</source><translation>Nom</translation></message>
<message><source>Column postal code</source><translation>Code postal</translation></message>
<message><source>Column rating</source><translation>Cotation</translation></message>
<message><source>Column telephone</source><translation>Téléphone</translation></message>
<message><source>Column town</source><translation>Ville</translation></message>
<message><source>Column update</source><translation>Mise à jour</translation></message>
<message><source>Companies</source><translation>Entreprises</translation></message>
<message><source>E-mail</source><translation>&#13;Courriel : </translation></message>
<message><source>Edit window</source><translation>Entreprise : %@</translation></message>
<message><source>Fax</source><translation>&#13;Fax : </translation></message>
<message><source>Friday</source><translation>&#13;   Vendredi : </translation></message>
<message><source>Group address</source><translation>Adresse</translation></message>
<message><source>Group company</source><translation>Entreprise</translation></message>
<message><source>Group contact</source><translation>Contact</translation></message>
<message><source>Group hours</source><translation>Horaires : matin de – à, après-midi de – à</translation></message>
<message><source>Group remarks</source><translation>Remarques</translation></message>
<message><source>Inventory</source><translation>Carnet d’adresses des entreprises</translation></message>
<message><source>Label activity</source><translation>Activité</translation></message>
<message><source>Label country</source><translation>Pays</translation></message>
<message><source>Label e-mail</source><translation>Courriel</translation></message>
<message><source>Label fax</source><translation>Fax</translation></message>
<message><source>Label friday</source><translation>Vendredi</translation></message>
<message><source>Label monday</source><translation>Lundi</translation></message>
<message><source>Label name</source><translation>Nom</translation></message>
<message><source>Label postal code</source><translation>Code postal</translation></message>
<message><source>Label rating</source><translation>Cotation</translation></message>
<message><source>Label saturday</source><translation>Samedi</translation></message>
<message><source>Label street</source><translation>Rue</translation></message>
<message><source>Label sunday</source><translation>Dimanche</translation></message>
<message><source>Label telephone</source><translation>Téléphone</translation></message>
<message><source>Label thursday</source><translation>Jeudi</translation></message>
<message><source>Label town</source><translation>Ville</translation></message>
<message><source>Label tuesday</source><translation>Mardi</translation></message>
<message><source>Label update</source><translation>Dernière mise à jour</translation></message>
<message><source>Label web</source><translation>Site web</translation></message>
<message><source>Label wednesday</source><translation>Mercredi</translation></message>
<message><source>Menu companies</source><translation>Entreprises</translation></message>
<message><source>Monday</source><translation>&#13;   Lundi : </translation></message>
<message><source>Name</source><translation>&#13;Nom : </translation></message>
<message><source>Page company</source><translation>Entreprise</translation></message>
<message><source>Page hours</source><translation>Horaires</translation></message>
<message><source>Page remarks</source><translation>Remarques</translation></message>
<message><source>Phone</source><translation>&#13;Téléphone : </translation></message>
<message><source>Remarks</source><translation>&#13;Remarques : </translation></message>
<message><source>Saturday</source><translation>&#13;   Samedi : </translation></message>
<message><source>Schedules</source><translation>&#13;Horaires :</translation></message>
<message><source>Sunday</source><translation>&#13;   Dimanche : </translation></message>
<message><source>Thursday</source><translation>&#13;   Jeudi : </translation></message>
<message><source>Tip today</source><translation>Mettre la date de mise à jour à maintenant</translation></message>
<message><source>Today</source><translation>Aujourd’hui</translation></message>
<message><source>Tuesday</source><translation>&#13;   Mardi : </translation></message>
<message><source>URL</source><translation>&#13;Site web : </translation></message>
<message><source>Update</source><translation>&#13;Mise à jour le : </translation></message>
<message><source>Wednesday</source><translation>&#13;   Mercredi : </translation></message>
</context>
</TS>
