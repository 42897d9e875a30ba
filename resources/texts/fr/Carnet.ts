<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Carnet</name>
<message><source>&#13;   - Shorty</source><translation>&#13;   - Shorty</translation></message>
<message><source>&#13;   - T-shirt</source><translation>&#13;   - T-shirt</translation></message>
<message><source>Air</source><translation>Air</translation></message>
<message><source>Aluminum</source><translation>Aluminium</translation></message>
<message><source>Bad</source><translation>Mauvaise</translation></message>
<message><source>Beaufort</source><translation>Beaufort</translation></message>
<message><source>Biology</source><translation>Biologie</translation></message>
<message><source>Carbon</source><translation>Carbone</translation></message>
<message><source>Cave</source><translation>Souterraine</translation></message>
<message><source>Celsius</source><translation>%d °C</translation></message>
<message><source>Character not in Mac OS Roman</source><translation>La plongée n° %d contient le caractère « %@ » (%@), que le texte Mac OS Roman ne peut contenir.</translation></message>
<message><source>Clear</source><translation>Dégagé</translation></message>
<message><source>Cloudy</source><translation>Nuageux</translation></message>
<message><source>Column apparatus</source><translation>Appareil</translation></message>
<message><source>Column date</source><translation>Date</translation></message>
<message><source>Column decompression</source><translation>Décompression</translation></message>
<message><source>Column depth</source><translation>Prof.</translation></message>
<message><source>Column dive time</source><translation>Durée</translation></message>
<message><source>Column gas</source><translation>Gaz</translation></message>
<message><source>Column number</source><translation>N°</translation></message>
<message><source>Column place</source><translation>Lieu</translation></message>
<message><source>Column rating</source><translation>Avis</translation></message>
<message><source>Column site</source><translation>Site</translation></message>
<message><source>Column tide</source><translation>Marée</translation></message>
<message><source>Column time of day</source><translation>Heure</translation></message>
<message><source>Column visibility</source><translation>Visibilité</translation></message>
<message><source>Column water</source><translation>Eau</translation></message>
<message><source>Column wreck</source><translation>Épave</translation></message>
<message><source>Copying</source><translation>Copie des plongées…</translation></message>
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
<message><source>Find boats</source><translation>Bateaux</translation></message>
<message><source>Find buddies</source><translation>Équipiers</translation></message>
<message><source>Find computers</source><translation>Ordinateurs</translation></message>
<message><source>Find in</source><translation>Chercher dans : %@</translation></message>
<message><source>Find notes</source><translation>Notes</translation></message>
<message><source>Find where</source><translation>Choisir où chercher</translation></message>
<message><source>Find wrecks</source><translation>Épaves</translation></message>
<message><source>Foggy</source><translation>Brumeux</translation></message>
<message><source>Form of dive</source><translation>Plongée %d sur %d – enregistrée quand vous fermez la fenêtre ou changez de plongée</translation></message>
<message><source>Form of new dive</source><translation>Nouvelle plongée – « Ajouter » l’inscrit à la fin du carnet</translation></message>
<message><source>Found dives</source><translation>%d plongées trouvées</translation></message>
<message><source>GPS template</source><translation>N 00° 00.000'  E 000° 00.000'</translation></message>
<message><source>Good</source><translation>Bonne</translation></message>
<message><source>Group apparatus</source><translation>Appareil respiratoire</translation></message>
<message><source>Group bail-outs</source><translation>Blocs de secours (bail-out)</translation></message>
<message><source>Group computer</source><translation>Ordinateur de plongée</translation></message>
<message><source>Group decompression</source><translation>Décompression</translation></message>
<message><source>Group dive</source><translation>Plongée</translation></message>
<message><source>Group equipment</source><translation>Protection et configuration</translation></message>
<message><source>Group items</source><translation>Matériel</translation></message>
<message><source>Group kind</source><translation>Type de plongée</translation></message>
<message><source>Group notes</source><translation>Notes</translation></message>
<message><source>Group place</source><translation>Lieu</translation></message>
<message><source>Group presets</source><translation>Gaz prédéfinis</translation></message>
<message><source>Group run time</source><translation>Run time</translation></message>
<message><source>Group sea</source><translation>Mer</translation></message>
<message><source>Group stage bottles</source><translation>Blocs relais (ponies)</translation></message>
<message><source>Group stops</source><translation>Paliers</translation></message>
<message><source>Group tanks</source><translation>Blocs</translation></message>
<message><source>Group team</source><translation>Palanquée</translation></message>
<message><source>Group weather</source><translation>Météo</translation></message>
<message><source>Hail</source><translation>Grêle</translation></message>
<message><source>Handheld files</source><translation>Carnets de poche</translation></message>
<message><source>Hard</source><translation>Difficile</translation></message>
<message><source>Helium percent</source><translation>L’hélium doit être compris entre 0 et 86 pour cent.</translation></message>
<message><source>High tide</source><translation>Pleine mer</translation></message>
<message><source>Import UDCF</source><translation>Importer UDCF</translation></message>
<message><source>Import UDDF</source><translation>Importer UDDF</translation></message>
<message><source>Import cancelled</source><translation>L’importation a été annulée.</translation></message>
<message><source>Import element missing</source><translation>l’élément %@ manque</translation></message>
<message><source>Import format unknown</source><translation>Le fichier n’est ni de l’UDCF, ni de l’UDDF, ni un carnet de poche.</translation></message>
<message><source>Import handheld</source><translation>Importer du carnet de poche</translation></message>
<message><source>Import stopped</source><translation>L’importation s’est arrêtée à la plongée %d du fichier : %@.</translation></message>
<message><source>Imported dives</source><translation>%d plongées ont été importées.</translation></message>
<message><source>Importing</source><translation>Importation des plongées…</translation></message>
<message><source>Label air temperature</source><translation>Température de l’air</translation></message>
<message><source>Label algorithm</source><translation>Algorithme</translation></message>
<message><source>Label altitude</source><translation>Altitude</translation></message>
<message><source>Label apparatus</source><translation>Appareil</translation></message>
<message><source>Label ballast</source><translation>Lestage</translation></message>
<message><source>Label boat</source><translation>Bateau</translation></message>
<message><source>Label buddies</source><translation>Palanquée</translation></message>
<message><source>Label club</source><translation>Club ou centre</translation></message>
<message><source>Label configuration</source><translation>Configuration</translation></message>
<message><source>Label conservatism</source><translation>Conservatisme</translation></message>
<message><source>Label country</source><translation>Pays</translation></message>
<message><source>Label country code</source><translation>Code du pays</translation></message>
<message><source>Label current</source><translation>Courant</translation></message>
<message><source>Label date</source><translation>Date</translation></message>
<message><source>Label datum</source><translation>Système géodésique</translation></message>
<message><source>Label difficulty</source><translation>Difficulté</translation></message>
<message><source>Label dive time</source><translation>Durée</translation></message>
<message><source>Label dive type</source><translation>Type</translation></message>
<message><source>Label end pressure</source><translation>Pression de fin</translation></message>
<message><source>Label flow</source><translation>Débit</translation></message>
<message><source>Label gas</source><translation>Gaz</translation></message>
<message><source>Label helium</source><translation>Hélium</translation></message>
<message><source>Label high GF</source><translation>GF haut</translation></message>
<message><source>Label immersion</source><translation>Heure d’immersion</translation></message>
<message><source>Label low GF</source><translation>GF bas</translation></message>
<message><source>Label low setpoint</source><translation>Setpoint bas (bar)</translation></message>
<message><source>Label maker</source><translation>Fabricant</translation></message>
<message><source>Label material</source><translation>Matière</translation></message>
<message><source>Label maximum depth</source><translation>Profondeur max.</translation></message>
<message><source>Label method</source><translation>Méthode</translation></message>
<message><source>Label model</source><translation>Modèle</translation></message>
<message><source>Label night dive</source><translation>Plongée de nuit</translation></message>
<message><source>Label nitrogen</source><translation>Azote</translation></message>
<message><source>Label number</source><translation>Numéro</translation></message>
<message><source>Label oxygen</source><translation>Oxygène</translation></message>
<message><source>Label place</source><translation>Lieu</translation></message>
<message><source>Label position</source><translation>Position GPS</translation></message>
<message><source>Label rating</source><translation>Appréciation</translation></message>
<message><source>Label sampling interval</source><translation>Échantillonnage</translation></message>
<message><source>Label serial number</source><translation>N° de série</translation></message>
<message><source>Label site</source><translation>Site</translation></message>
<message><source>Label software</source><translation>Logiciel</translation></message>
<message><source>Label start pressure</source><translation>Pression de départ</translation></message>
<message><source>Label stop depth</source><translation>Profondeur</translation></message>
<message><source>Label stop made</source><translation>Fait</translation></message>
<message><source>Label stop time</source><translation>Durée</translation></message>
<message><source>Label suit</source><translation>Combinaison</translation></message>
<message><source>Label surface interval</source><translation>Intervalle de surface</translation></message>
<message><source>Label tide</source><translation>Marée</translation></message>
<message><source>Label tide coefficient</source><translation>Coefficient de marée</translation></message>
<message><source>Label time to surface</source><translation>Durée de remontée (DTR)</translation></message>
<message><source>Label visibility</source><translation>Visibilité</translation></message>
<message><source>Label volume</source><translation>Volume</translation></message>
<message><source>Label water temperature</source><translation>Température de l’eau</translation></message>
<message><source>Label weather</source><translation>Ciel</translation></message>
<message><source>Label wind</source><translation>Vent</translation></message>
<message><source>Label wind force</source><translation>Force du vent</translation></message>
<message><source>Label working pressure</source><translation>Pression de service</translation></message>
<message><source>Label wrecks</source><translation>Épave</translation></message>
<message><source>Low tide</source><translation>Basse mer</translation></message>
<message><source>Medium</source><translation>Moyenne</translation></message>
<message><source>Menu delete dives</source><translation>Supprimer les plongées…</translation></message>
<message><source>Menu dive</source><translation>Plongée</translation></message>
<message><source>Menu edit dive</source><translation>Modifier la plongée</translation></message>
<message><source>Menu insert dive</source><translation>Insérer avant la plongée choisie</translation></message>
<message><source>Menu new dive</source><translation>Nouvelle plongée</translation></message>
<message><source>Moderate</source><translation>Modéré</translation></message>
<message><source>Movies</source><translation>Vidéo</translation></message>
<message><source>New dive not added</source><translation>Le formulaire contient une nouvelle plongée qui n’est pas encore dans le carnet.</translation></message>
<message><source>Next</source><translation>Suivante</translation></message>
<message><source>Next dive</source><translation>Plongée suivante</translation></message>
<message><source>No Tek</source><translation>Loisir</translation></message>
<message><source>No dive to export</source><translation>Le carnet ne contient aucune plongée, et l’UDDF ne peut s’écrire sans.</translation></message>
<message><source>No dives yet</source><translation>Aucune plongée. Appuyez sur %@ pour saisir la première.</translation></message>
<message><source>No such field</source><translation>Les plongées n’ont pas de champ « %@ » utilisable ainsi.</translation></message>
<message><source>No suit</source><translation>Sans combinaison</translation></message>
<message><source>None</source><translation>Nul</translation></message>
<message><source>Normal</source><translation>Normale</translation></message>
<message><source>One dive</source><translation>Une plongée</translation></message>
<message><source>One dive found</source><translation>Une plongée trouvée</translation></message>
<message><source>One dive imported</source><translation>Une plongée a été importée.</translation></message>
<message><source>Other</source><translation>Autre</translation></message>
<message><source>Page bottles</source><translation>Relais et ordinateur</translation></message>
<message><source>Page conditions</source><translation>Conditions</translation></message>
<message><source>Page decompression</source><translation>Décompression</translation></message>
<message><source>Page dive</source><translation>Plongée</translation></message>
<message><source>Page equipment</source><translation>Matériel et notes</translation></message>
<message><source>Page gas</source><translation>Blocs et gaz</translation></message>
<message><source>Pages</source><translation>Pages de la fiche de plongée</translation></message>
<message><source>Photo dive</source><translation>Photo</translation></message>
<message><source>PpO2</source><translation>PpO₂ (bar)</translation></message>
<message><source>Pressure in out</source><translation>La pression de fin ne doit pas dépasser la pression de départ et aucune des deux ne peut être négative.</translation></message>
<message><source>Previous</source><translation>Précédente</translation></message>
<message><source>Previous dive</source><translation>Plongée précédente</translation></message>
<message><source>Profile</source><translation>Profil</translation></message>
<message><source>Profile datas</source><translation>Données du profil</translation></message>
<message><source>Quarry</source><translation>Carrière</translation></message>
<message><source>Rainy</source><translation>Pluvieux</translation></message>
<message><source>Rating good</source><translation>Bonne</translation></message>
<message><source>Rating never again</source><translation>Plus jamais</translation></message>
<message><source>Rating poor</source><translation>Décevante</translation></message>
<message><source>Rating unforgettable</source><translation>Inoubliable</translation></message>
<message><source>Recreational</source><translation>Loisir</translation></message>
<message><source>Recuperation</source><translation>Récupération</translation></message>
<message><source>Renumber explanation</source><translation>Toutes les plongées sont renumérotées, dans l’ordre où le tableau les montre.</translation></message>
<message><source>Renumber first</source><translation>Numéro de la première plongée :</translation></message>
<message><source>Renumber title</source><translation>Renuméroter les plongées</translation></message>
<message><source>Renumbering</source><translation>Renumérotation des plongées…</translation></message>
<message><source>Replace dive</source><translation>Remplacer la plongée %d</translation></message>
<message><source>Semi-dry suit</source><translation>Combinaison semi-étanche</translation></message>
<message><source>Shorty</source><translation>Shorty</translation></message>
<message><source>Snowy</source><translation>Neigeux</translation></message>
<message><source>Statistics</source><translation>Statistiques</translation></message>
<message><source>Steel</source><translation>Acier</translation></message>
<message><source>Strong</source><translation>Fort</translation></message>
<message><source>T-shirt</source><translation>T-shirt</translation></message>
<message><source>Table of dives</source><translation>Plongées</translation></message>
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
<message><source>Tip preset air</source><translation>Air dans le bloc principal : oxygène 21, azote 79, sans hélium</translation></message>
<message><source>Tip preset heliox</source><translation>Héliox dans le bloc principal : l’hélium complète l’oxygène</translation></message>
<message><source>Tip preset nitrox</source><translation>Nitrox dans le bloc principal : l’azote complète l’oxygène</translation></message>
<message><source>Tip print</source><translation>Imprimer le carnet</translation></message>
<message><source>Tip profile</source><translation>Afficher le profil de la plongée</translation></message>
<message><source>Tip profile datas</source><translation>Afficher les données du profil de la plongée</translation></message>
<message><source>Tip save</source><translation>Enregistrer le carnet</translation></message>
<message><source>Tip statistics</source><translation>Afficher les statistiques du carnet</translation></message>
<message><source>Tip synthesis card</source><translation>Afficher la fiche de synthèse des plongées</translation></message>
<message><source>Total dives</source><translation>%d plongées</translation></message>
<message><source>Training</source><translation>Formation</translation></message>
<message><source>Tropical suit</source><translation>Combinaison tropicale</translation></message>
<message><source>UDCF files</source><translation>Fichiers UDCF</translation></message>
<message><source>UDDF files</source><translation>Fichiers UDDF</translation></message>
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
