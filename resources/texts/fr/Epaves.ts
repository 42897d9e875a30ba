<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Epaves</name>
<message><source>Access</source><translation>&#13;Accès : </translation></message>
<message><source>Armateur</source><translation>&#13;Armateur : </translation></message>
<message><source>Bottom type</source><translation>&#13;Nature du fond : </translation></message>
<message><source>Build date</source><translation>&#13;Date de construction : </translation></message>
<message><source>Build location</source><translation>&#13;Lieu de construction : </translation></message>
<message><source>Captain</source><translation>&#13;Capitaine : </translation></message>
<message><source>Cargo</source><translation>&#13;Chargement : </translation></message>
<message><source>Characteristics</source><translation>&#13;&#13;Caractéristiques</translation></message>
<message><source>Concrete</source><translation>Béton</translation></message>
<message><source>Country</source><translation>&#13;Pays : </translation></message>
<message><source>Crew</source><translation>&#13;Équipage : </translation></message>
<message><source>Degree</source><translation>°</translation></message>
<message><source>Depth unit</source><translation> m</translation></message>
<message><source>Difficult</source><translation>Difficile</translation></message>
<message><source>Difficulty</source><translation>&#13;Technicité : </translation></message>
<message><source>Easy</source><translation>Facile</translation></message>
<message><source>Edit window title</source><translation>Épave : %@</translation></message>
<message><source>First visit date</source><translation>&#13;Première visite : </translation></message>
<message><source>From port</source><translation>&#13;Provenance : </translation></message>
<message><source>GPS</source><translation>&#13;Position GPS : </translation></message>
<message><source>Group dive</source><translation>La plongée</translation></message>
<message><source>Group engine</source><translation>Propulsion</translation></message>
<message><source>Group landmarks</source><translation>Relèvements</translation></message>
<message><source>Group lie</source><translation>Position sur le fond</translation></message>
<message><source>Group life</source><translation>Carrière</translation></message>
<message><source>Group place</source><translation>Lieu</translation></message>
<message><source>Group remarks</source><translation>Remarques</translation></message>
<message><source>Group ship</source><translation>Navire</translation></message>
<message><source>Group sinking</source><translation>Dernier voyage</translation></message>
<message><source>Harbours</source><translation>&#13;Ports d’attache : </translation></message>
<message><source>High depth</source><translation>&#13;Point haut : </translation></message>
<message><source>Historic</source><translation>&#13;&#13;Historique</translation></message>
<message><source>Inclination</source><translation>&#13;Inclinaison : </translation></message>
<message><source>Interest</source><translation>&#13;Intérêt : </translation></message>
<message><source>Iron</source><translation>Fer</translation></message>
<message><source>Label access</source><translation>Accès</translation></message>
<message><source>Label access on board</source><translation>Accès à bord</translation></message>
<message><source>Label bottom</source><translation>Nature du fond</translation></message>
<message><source>Label build date</source><translation>Date de construction</translation></message>
<message><source>Label build place</source><translation>Lieu de construction</translation></message>
<message><source>Label captain</source><translation>Capitaine</translation></message>
<message><source>Label cargo</source><translation>Chargement</translation></message>
<message><source>Label country</source><translation>Pays</translation></message>
<message><source>Label crew</source><translation>Équipage</translation></message>
<message><source>Label datum</source><translation>Système géodésique</translation></message>
<message><source>Label deepest point</source><translation>Point bas</translation></message>
<message><source>Label difficulty</source><translation>Technicité</translation></message>
<message><source>Label engine type</source><translation>Type de machine</translation></message>
<message><source>Label finding</source><translation>Localisation</translation></message>
<message><source>Label first visit</source><translation>Première visite</translation></message>
<message><source>Label from port</source><translation>Provenance</translation></message>
<message><source>Label harbours</source><translation>Ports d’attache</translation></message>
<message><source>Label inclination</source><translation>Inclinaison</translation></message>
<message><source>Label interest</source><translation>Intérêt</translation></message>
<message><source>Label landmark 1</source><translation>Premier</translation></message>
<message><source>Label landmark 2</source><translation>Deuxième</translation></message>
<message><source>Label landmark 3</source><translation>Troisième</translation></message>
<message><source>Label length</source><translation>Longueur</translation></message>
<message><source>Label material</source><translation>Matériau</translation></message>
<message><source>Label name</source><translation>Nom</translation></message>
<message><source>Label nationality</source><translation>Nationalité</translation></message>
<message><source>Label orientation</source><translation>Orientation</translation></message>
<message><source>Label orientation given</source><translation>Orientation connue</translation></message>
<message><source>Label owner</source><translation>Armateur</translation></message>
<message><source>Label picture</source><translation>Photo</translation></message>
<message><source>Label place</source><translation>Lieu</translation></message>
<message><source>Label position</source><translation>Position GPS</translation></message>
<message><source>Label power</source><translation>Puissance</translation></message>
<message><source>Label previous names</source><translation>Noms précédents</translation></message>
<message><source>Label propulsion</source><translation>Propulsion</translation></message>
<message><source>Label registration</source><translation>Immatriculation</translation></message>
<message><source>Label shallowest point</source><translation>Point haut</translation></message>
<message><source>Label sinking cause</source><translation>Cause du naufrage</translation></message>
<message><source>Label sinking date</source><translation>Date du naufrage</translation></message>
<message><source>Label site</source><translation>Site</translation></message>
<message><source>Label to port</source><translation>Destination</translation></message>
<message><source>Label to visit</source><translation>Reste à visiter</translation></message>
<message><source>Label tonnage</source><translation>Jauge</translation></message>
<message><source>Label type</source><translation>Type de navire</translation></message>
<message><source>Label updated</source><translation>Mise à jour le</translation></message>
<message><source>Label width</source><translation>Largeur</translation></message>
<message><source>Land mark 1</source><translation>&#13;Relèvement 1 : </translation></message>
<message><source>Land mark 2</source><translation>&#13;Relèvement 2 : </translation></message>
<message><source>Land mark 3</source><translation>&#13;Relèvement 3 : </translation></message>
<message><source>Land marks</source><translation>&#13;&#13;Relèvements</translation></message>
<message><source>Localisation</source><translation>&#13;Localisation : </translation></message>
<message><source>Localisation title</source><translation>&#13;&#13;Localisation</translation></message>
<message><source>Location</source><translation>&#13;Lieu : </translation></message>
<message><source>Low depth</source><translation>&#13;Point bas : </translation></message>
<message><source>Medium</source><translation>Moyen</translation></message>
<message><source>Menu</source><translation>Épave</translation></message>
<message><source>Nationality</source><translation>&#13;Nationalité : </translation></message>
<message><source>None</source><translation>Aucune</translation></message>
<message><source>Orientation</source><translation>&#13;Orientation : </translation></message>
<message><source>Page dive</source><translation>Plongée</translation></message>
<message><source>Page history</source><translation>Histoire</translation></message>
<message><source>Page place</source><translation>Lieu</translation></message>
<message><source>Page remarks</source><translation>Remarques</translation></message>
<message><source>Page ship</source><translation>Navire</translation></message>
<message><source>Polyester</source><translation>Polyester</translation></message>
<message><source>Port</source><translation>Bâbord</translation></message>
<message><source>Remarks</source><translation>&#13;Remarques : </translation></message>
<message><source>Ship wreck cause</source><translation>&#13;Cause du naufrage : </translation></message>
<message><source>Ship wreck date</source><translation>&#13;Date du naufrage : </translation></message>
<message><source>Site</source><translation>&#13;Site : </translation></message>
<message><source>Starboard</source><translation>Tribord</translation></message>
<message><source>Table name</source><translation>Répertoire des épaves</translation></message>
<message><source>TableView diesel</source><translation>Diesel</translation></message>
<message><source>TableView diesel elec</source><translation>Diesel-électrique</translation></message>
<message><source>TableView essence</source><translation>Essence</translation></message>
<message><source>TableView kerosene</source><translation>Kérosène</translation></message>
<message><source>TableView nucleaire</source><translation>Nucléaire</translation></message>
<message><source>TableView rames</source><translation>Rames</translation></message>
<message><source>TableView remorque</source><translation>Remorqué</translation></message>
<message><source>TableView vapeur</source><translation>Vapeur</translation></message>
<message><source>TableView voile</source><translation>Voile</translation></message>
<message><source>To port</source><translation>&#13;Destination : </translation></message>
<message><source>Updated on</source><translation>&#13;Mise à jour le : </translation></message>
<message><source>Wood</source><translation>Bois</translation></message>
<message><source>Wreck length</source><translation>&#13;Longueur (m) : </translation></message>
<message><source>Wreck material</source><translation>&#13;Matériau : </translation></message>
<message><source>Wreck name</source><translation>Nom : </translation></message>
<message><source>Wreck power</source><translation>&#13;Puissance : </translation></message>
<message><source>Wreck previous names</source><translation>&#13;Noms précédents : </translation></message>
<message><source>Wreck propulsion</source><translation>&#13;Propulsion : </translation></message>
<message><source>Wreck registration</source><translation>&#13;Immatriculation : </translation></message>
<message><source>Wreck tonnage</source><translation>&#13;Jauge : </translation></message>
<message><source>Wreck type</source><translation>&#13;Type de navire : </translation></message>
<message><source>Wreck type machine</source><translation>&#13;Type de machine : </translation></message>
<message><source>Wreck wide</source><translation>&#13;Largeur (m) : </translation></message>
<message><source>Wrecks</source><translation>Répertoire des épaves</translation></message>
</context>
</TS>
