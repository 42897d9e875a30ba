<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Carnet</name>
<message><source>&#13;   - Shorty</source><translation>&#13;   - Shorty</translation></message>
<message><source>&#13;   - T-shirt</source><translation>&#13;   - T-shirt</translation></message>
<message><source>Air</source><translation>Air</translation></message>
<message><source>Bad</source><translation>Mauvaise</translation></message>
<message><source>Biology</source><translation>Biologie</translation></message>
<message><source>Cave</source><translation>Souterraine</translation></message>
<message><source>Celsius</source><translation>%d °C</translation></message>
<message><source>Character not in Mac OS Roman</source><translation>La plongée n° %d contient le caractère « %@ » (%@), que le texte Mac OS Roman ne peut contenir.</translation></message>
<message><source>Clear</source><translation>Dégagé</translation></message>
<message><source>Cloudy</source><translation>Nuageux</translation></message>
<message><source>Degree Celsius</source><translation>°C</translation></message>
<message><source>Degree Farenheit</source><translation>°F</translation></message>
<message><source>Dive number title</source><translation>Plongée n° %d</translation></message>
<message><source>Drift</source><translation>Dérivante</translation></message>
<message><source>Dry suit</source><translation>Combinaison étanche</translation></message>
<message><source>Easy</source><translation>Facile</translation></message>
<message><source>Entries</source><translation>Entrées : %d</translation></message>
<message><source>Excellent</source><translation>Excellente</translation></message>
<message><source>Exceptional</source><translation>Exceptionnelle</translation></message>
<message><source>Execrable</source><translation>Exécrable</translation></message>
<message><source>Extreme</source><translation>Extrême</translation></message>
<message><source>Farenheit</source><translation>%d °F</translation></message>
<message><source>Find</source><translation>Rechercher</translation></message>
<message><source>Foggy</source><translation>Brumeux</translation></message>
<message><source>Found dives</source><translation>%d plongées trouvées</translation></message>
<message><source>GPS template</source><translation>N 00° 00.000'  E 000° 00.000'</translation></message>
<message><source>Good</source><translation>Bonne</translation></message>
<message><source>Hail</source><translation>Grêle</translation></message>
<message><source>Hard</source><translation>Difficile</translation></message>
<message><source>Helium percent</source><translation>L’hélium doit être compris entre 0 et 86 pour cent.</translation></message>
<message><source>Import UDCF</source><translation>Importer UDCF</translation></message>
<message><source>Import UDDF</source><translation>Importer UDDF</translation></message>
<message><source>Import cancelled</source><translation>L’importation a été annulée.</translation></message>
<message><source>Import element missing</source><translation>l’élément %@ manque</translation></message>
<message><source>Import format unknown</source><translation>Le fichier n’est ni UDCF, ni UDDF, ni un carnet d’ordinateur de poche.</translation></message>
<message><source>Import stopped</source><translation>L’importation s’est arrêtée à la plongée %d du fichier : %@.</translation></message>
<message><source>Imported dives</source><translation>%d plongées ont été importées.</translation></message>
<message><source>Medium</source><translation>Moyenne</translation></message>
<message><source>Moderate</source><translation>Modéré</translation></message>
<message><source>Movies</source><translation>Vidéo</translation></message>
<message><source>No dive to export</source><translation>Le carnet ne contient aucune plongée, et l’UDDF ne peut s’écrire sans.</translation></message>
<message><source>No such field</source><translation>Les plongées n’ont pas de champ « %@ » utilisable ainsi.</translation></message>
<message><source>No suit</source><translation>Sans combinaison</translation></message>
<message><source>None</source><translation>Nul</translation></message>
<message><source>Normal</source><translation>Normale</translation></message>
<message><source>One dive</source><translation>Une plongée</translation></message>
<message><source>One dive found</source><translation>Une plongée trouvée</translation></message>
<message><source>One dive imported</source><translation>Une plongée a été importée.</translation></message>
<message><source>Other</source><translation>Autre</translation></message>
<message><source>Photo dive</source><translation>Photo</translation></message>
<message><source>PpO2</source><translation>PpO₂ (bar)</translation></message>
<message><source>Pressure in out</source><translation>La pression de fin ne doit pas dépasser la pression de départ et aucune des deux ne peut être négative.</translation></message>
<message><source>Profile</source><translation>Profil</translation></message>
<message><source>Profile datas</source><translation>Données du profil</translation></message>
<message><source>Quarry</source><translation>Carrière</translation></message>
<message><source>Rainy</source><translation>Pluvieux</translation></message>
<message><source>Recreational</source><translation>Loisir</translation></message>
<message><source>Recuperation</source><translation>Récupération</translation></message>
<message><source>Semi-dry suit</source><translation>Combinaison semi-étanche</translation></message>
<message><source>Snowy</source><translation>Neigeux</translation></message>
<message><source>Statistics</source><translation>Statistiques</translation></message>
<message><source>Strong</source><translation>Fort</translation></message>
<message><source>TableView air Nx</source><translation>Air / Nx</translation></message>
<message><source>TableView air Nx O2</source><translation>Air / Nx / O2</translation></message>
<message><source>TableView air O2</source><translation>Air / O2</translation></message>
<message><source>TableView air tables</source><translation>Tables air</translation></message>
<message><source>TableView bad</source><translation>Mauvaise</translation></message>
<message><source>TableView computer</source><translation>Ordinateur</translation></message>
<message><source>TableView excellent</source><translation>Excellente</translation></message>
<message><source>TableView exceptional</source><translation>Exceptionnelle</translation></message>
<message><source>TableView execrable</source><translation>Exécrable</translation></message>
<message><source>TableView good</source><translation>Bonne</translation></message>
<message><source>TableView high tide</source><translation>%d (PM)</translation></message>
<message><source>TableView high tide only</source><translation>Pleine mer</translation></message>
<message><source>TableView low tide</source><translation>%d (BM)</translation></message>
<message><source>TableView low tide only</source><translation>Basse mer</translation></message>
<message><source>TableView medium</source><translation>Moyenne</translation></message>
<message><source>TableView nitrox tables</source><translation>Tables nitrox</translation></message>
<message><source>TableView very bad</source><translation>Très mauvaise</translation></message>
<message><source>TableView very good</source><translation>Très bonne</translation></message>
<message><source>Tek</source><translation>Tek</translation></message>
<message><source>Thundery</source><translation>Orageux</translation></message>
<message><source>Tip add</source><translation>Ajouter une plongée au carnet</translation></message>
<message><source>Tip delete</source><translation>Supprimer les plongées sélectionnées</translation></message>
<message><source>Tip import UDCF</source><translation>Importer des plongées d’un fichier UDCF</translation></message>
<message><source>Tip import UDDF</source><translation>Importer des plongées d’un fichier UDDF</translation></message>
<message><source>Tip insert</source><translation>Insérer la plongée avant celle qui est sélectionnée</translation></message>
<message><source>Tip print</source><translation>Imprimer le carnet</translation></message>
<message><source>Tip profile</source><translation>Afficher le profil de la plongée</translation></message>
<message><source>Tip profile datas</source><translation>Afficher les données du profil de la plongée</translation></message>
<message><source>Tip save</source><translation>Enregistrer le carnet</translation></message>
<message><source>Tip statistics</source><translation>Afficher les statistiques du carnet</translation></message>
<message><source>Tip synthesis card</source><translation>Afficher la fiche de synthèse des plongées</translation></message>
<message><source>Total dives</source><translation>%d plongées</translation></message>
<message><source>Training</source><translation>Formation</translation></message>
<message><source>Tropical suit</source><translation>Combinaison tropicale</translation></message>
<message><source>Under ice</source><translation>Sous glace</translation></message>
<message><source>Undo add</source><translation>Ajouter la plongée</translation></message>
<message><source>Undo delete</source><translation>Supprimer les plongées</translation></message>
<message><source>Undo import</source><translation>Importation</translation></message>
<message><source>Undo insert</source><translation>Insérer la plongée</translation></message>
<message><source>Undo renumber</source><translation>Renuméroter les plongées</translation></message>
<message><source>Undo update</source><translation>Modifier la plongée</translation></message>
<message><source>Very bad</source><translation>Très mauvaise</translation></message>
<message><source>Very easy</source><translation>Très facile</translation></message>
<message><source>Very good</source><translation>Très bonne</translation></message>
<message><source>Very hard</source><translation>Très difficile</translation></message>
<message><source>Very strong</source><translation>Très fort</translation></message>
<message><source>Violent</source><translation>Violent</translation></message>
<message><source>Weak</source><translation>Faible</translation></message>
<message><source>Wet suit</source><translation>Combinaison humide</translation></message>
<message><source>Work</source><translation>Travail</translation></message>
<message><source>Wreck</source><translation>Épave</translation></message>
<message><source>high setpoint</source><translation>Point de consigne haut (bar)</translation></message>
</context>
</TS>
