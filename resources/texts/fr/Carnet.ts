<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Carnet</name>
<message><source>&#13;&#13;Bail-out</source><translation>&#13;&#13;Bail-out : </translation></message>
<message><source>&#13;   - Shorty</source><translation>&#13;   - Shorty</translation></message>
<message><source>&#13;   - T-shirt</source><translation>&#13;   - T-shirt</translation></message>
<message><source> Run Time</source><translation>&#13;Run time, ordinateur : </translation></message>
<message><source>0,7 bar</source><translation>0,7 bar</translation></message>
<message><source>0,8 bar</source><translation>0,8 bar</translation></message>
<message><source>0,9 bar</source><translation>0,9 bar</translation></message>
<message><source>1,0 bar</source><translation>1,0 bar</translation></message>
<message><source>1,1 bar</source><translation>1,1 bar</translation></message>
<message><source>1,2 bar</source><translation>1,2 bar</translation></message>
<message><source>1,3 bar</source><translation>1,3 bar</translation></message>
<message><source>1,4 bar</source><translation>1,4 bar</translation></message>
<message><source>1,5 bar</source><translation>1,5 bar</translation></message>
<message><source>1,6 bar</source><translation>1,6 bar</translation></message>
<message><source>Add new dive question</source><translation>Le formulaire contient une nouvelle plongée qui n’est pas encore dans le carnet.</translation></message>
<message><source>Air</source><translation>Air</translation></message>
<message><source>Air tables</source><translation>&#13;Tables à l’air, ordinateur : </translation></message>
<message><source>Air temperature</source><translation>&#13;Température de l’air : </translation></message>
<message><source>All dives</source><translation>Toutes les plongées</translation></message>
<message><source>Altitude</source><translation>&#13;Altitude : </translation></message>
<message><source>Aluminum</source><translation>Aluminium</translation></message>
<message><source>At</source><translation> L à </translation></message>
<message><source>Auxiliary gas</source><translation>Volume disponible : %d L&#13;Volume consommé : %d L</translation></message>
<message><source>Available gas</source><translation>&#13;Gaz disponible : </translation></message>
<message><source>Bad</source><translation>Mauvaise</translation></message>
<message><source>Bar per minute</source><translation>%.2f bar/min</translation></message>
<message><source>Beaufort</source><translation>Beaufort</translation></message>
<message><source>Biology</source><translation>Biologie</translation></message>
<message><source>Bloc principal :</source><translation>Bloc principal :</translation></message>
<message><source>Bloc secondaire :</source><translation>Bloc secondaire :</translation></message>
<message><source>Boat</source><translation>&#13;Bateau : </translation></message>
<message><source>Breathed gas</source><translation>&#13;Gaz consommé : </translation></message>
<message><source>Buddies</source><translation>&#13;Palanquée : </translation></message>
<message><source>CCR rebreather</source><translation>&#13;Recycleur mCCR</translation></message>
<message><source>CNS</source><translation>PpO₂ %.2f bar, horloge SNC %.1f %%</translation></message>
<message><source>Carbon</source><translation>Carbone</translation></message>
<message><source>Card of dives</source><translation>Fiche de synthèse : %@</translation></message>
<message><source>Cave</source><translation>Souterraine</translation></message>
<message><source>Celsius</source><translation>%d °C</translation></message>
<message><source>Character not in Mac OS Roman</source><translation>La plongée n° %d contient le caractère « %@ » (%@), que le texte Mac OS Roman ne peut contenir.</translation></message>
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
<message><source>Computer</source><translation>&#13;Ordinateur : </translation></message>
<message><source>Conditions</source><translation>&#13;&#13;Conditions</translation></message>
<message><source>Configuration</source><translation>&#13;Configuration : </translation></message>
<message><source>Consumption</source><translation>Consommation</translation></message>
<message><source>Consumption of</source><translation>Consommation de gaz : %@</translation></message>
<message><source>Convert altitudes</source><translation>Plongées dont l’altitude dépasse alors 4000 : %d. Si l’une d’elles est modifiée, le formulaire remet son altitude à 0.</translation></message>
<message><source>Convert depth now</source><translation>Prof. actuelle</translation></message>
<message><source>Convert depth then</source><translation>Prof. ensuite</translation></message>
<message><source>Convert explanation</source><translation>Les profondeurs, paliers, altitudes, températures et profils de toutes les plongées sont recalculés et enregistrés. Pressions, volumes et poids restent tels quels. Annuler rétablit les valeurs. Les unités affichées à côté des nombres se choisissent dans Préférences &gt; Général.</translation></message>
<message><source>Convert first dives</source><translation>Les %d premières plongées sur %d</translation></message>
<message><source>Convert preview</source><translation>Plongées avant et après</translation></message>
<message><source>Convert title</source><translation>Convertir les unités</translation></message>
<message><source>Convert to feet</source><translation>De &amp;mètres et degrés Celsius en pieds et degrés Fahrenheit</translation></message>
<message><source>Convert to metres</source><translation>De &amp;pieds et degrés Fahrenheit en mètres et degrés Celsius</translation></message>
<message><source>Convert units</source><translation>&amp;Convertir</translation></message>
<message><source>Convert water now</source><translation>Eau actuelle</translation></message>
<message><source>Convert water then</source><translation>Eau ensuite</translation></message>
<message><source>Current</source><translation>&#13;Courant : </translation></message>
<message><source>Current dive</source><translation>Plongée courante</translation></message>
<message><source>DILUANT :</source><translation>DILUANT :</translation></message>
<message><source>Datas</source><translation>%d valeurs</translation></message>
<message><source>Date</source><translation>&#13;Date : </translation></message>
<message><source>Deco algorythm type</source><translation>&#13;Algorithme : </translation></message>
<message><source>Deco conservatism</source><translation>&#13;Conservatisme : </translation></message>
<message><source>Deco soft name</source><translation>&#13;Logiciel : </translation></message>
<message><source>Decompression</source><translation>&#13;&#13;Décompression</translation></message>
<message><source>Deepest band</source><translation>60 m et +</translation></message>
<message><source>Degree Celsius</source><translation>°C</translation></message>
<message><source>Degree Farenheit</source><translation>°F</translation></message>
<message><source>Delta pressure</source><translation>%d bars consommés</translation></message>
<message><source>Depth</source><translation>&#13;Profondeur : </translation></message>
<message><source>Detail runtime</source><translation>&#13;Détail du run time : </translation></message>
<message><source>Details</source><translation>Détails</translation></message>
<message><source>Difficulty level</source><translation>&#13;Difficulté : </translation></message>
<message><source>Diluent</source><translation>&#13;Bloc de diluant : </translation></message>
<message><source>Dive number</source><translation>Plongée numéro </translation></message>
<message><source>Dive number profile datas title</source><translation>Données du profil de la plongée %d</translation></message>
<message><source>Dive number title</source><translation>Plongée n° %d</translation></message>
<message><source>Dive type</source><translation>&#13;Type de plongée : </translation></message>
<message><source>Dives counted</source><translation>Plongées comptées</translation></message>
<message><source>Dives found</source><translation>Plongées trouvées</translation></message>
<message><source>Drift</source><translation>Dérivante</translation></message>
<message><source>Dry suit</source><translation>Combinaison étanche</translation></message>
<message><source>Easy</source><translation>Facile</translation></message>
<message><source>End pressure</source><translation>&#13;Pression de fin : </translation></message>
<message><source>End time</source><translation>&#13;Heure de fin : </translation></message>
<message><source>Entries</source><translation>Entrées : %d</translation></message>
<message><source>Equipment</source><translation>&#13;&#13;Équipement</translation></message>
<message><source>Excellent</source><translation>Excellente</translation></message>
<message><source>Exceptional</source><translation>Exceptionnelle</translation></message>
<message><source>Execrable</source><translation>Exécrable</translation></message>
<message><source>Explain CNS</source><translation>Horloge SNC = %g min × %.2f %%/min = %.1f %%</translation></message>
<message><source>Explain SAC</source><translation>SAC = %d L / %d min / %.1f bar = %.1f L/min</translation></message>
<message><source>Explain SAC bar</source><translation>SAC = %d bar / %d min / %.1f bar = %.2f bar/min</translation></message>
<message><source>Explain available</source><translation>Gaz disponible = %d L × %d bar = %d L</translation></message>
<message><source>Explain average depth</source><translation>Profondeur moyenne = moyenne de %d points = %@</translation></message>
<message><source>Explain mean depth</source><translation>Profondeur moyenne = %d m / %d plongées = %d m</translation></message>
<message><source>Explain mean temperature</source><translation>Moyenne = %d° / %d températures = %d°</translation></message>
<message><source>Explain mean time</source><translation>Durée moyenne = %d min / %d plongées = %d min</translation></message>
<message><source>Explain nitrogen</source><translation>Azote = 100 %% − %d %% O₂ − %d %% He = %d %%</translation></message>
<message><source>Explain per minute</source><translation>Pression par minute = %d bar / %d min = %.2f bar/min</translation></message>
<message><source>Explain ppO2 of stop</source><translation>PpO₂ = palier %d : %.0f %% O₂ × %d bar = %.2f bar</translation></message>
<message><source>Explain ppO2 of tank</source><translation>PpO₂ = %.0f %% O₂ × %.2f bar au point le plus profond = %.2f bar</translation></message>
<message><source>Explain pressure drop</source><translation>Pression consommée = %d bar − %d bar = %d bar</translation></message>
<message><source>Explain share</source><translation>Part = %d / %d × 100 = %.1f %%</translation></message>
<message><source>Explain used</source><translation>Gaz consommé = %d L × (%d bar − %d bar) = %d L</translation></message>
<message><source>Extreme</source><translation>Extrême</translation></message>
<message><source>Farenheit</source><translation>%d °F</translation></message>
<message><source>Feet</source><translation>%.1f ft</translation></message>
<message><source>Figure SAC</source><translation>Consommation en surface</translation></message>
<message><source>Figure air</source><translation>Température de l’air</translation></message>
<message><source>Figure average depth</source><translation>Profondeur moyenne</translation></message>
<message><source>Figure gas used</source><translation>Gaz consommé</translation></message>
<message><source>Figure oxygen clock</source><translation>Horloge de l’oxygène (SNC)</translation></message>
<message><source>Figure pressure per minute</source><translation>Pression par minute</translation></message>
<message><source>Figure water</source><translation>Température de l’eau</translation></message>
<message><source>Filled from site</source><translation>De la plongée n° %d : %@</translation></message>
<message><source>Find</source><translation>Rechercher</translation></message>
<message><source>Find boats</source><translation>Bateaux</translation></message>
<message><source>Find buddies</source><translation>Équipiers</translation></message>
<message><source>Find computers</source><translation>Ordinateurs</translation></message>
<message><source>Find notes</source><translation>Notes</translation></message>
<message><source>Find wrecks</source><translation>Épaves</translation></message>
<message><source>Flow</source><translation>&#13;Débit : </translation></message>
<message><source>Foggy</source><translation>Brumeux</translation></message>
<message><source>Form of dive</source><translation>Plongée %d sur %d – enregistrée quand vous fermez la fenêtre ou changez de plongée</translation></message>
<message><source>Form of new dive</source><translation>Nouvelle plongée – « Ajouter » l’inscrit à la fin du carnet</translation></message>
<message><source>Found dives</source><translation>%d plongées trouvées</translation></message>
<message><source>GPS template</source><translation>N 00° 00.000'  E 000° 00.000'</translation></message>
<message><source>Gas</source><translation>&#13;&#13;Gaz</translation></message>
<message><source>Gas status</source><translation>Gaz disponible : %d L&#13;Gaz consommé : %d L&#13;Pression consommée : %.2f bar/min&#13;Consommation en surface : %.1f L/min, %.2f bar/min&#13;Profondeur moyenne : %.1f m</translation></message>
<message><source>Gas status US</source><translation>Gaz disponible : %d L&#13;Gaz consommé : %d L&#13;Pression consommée : %.2f bar/min&#13;Consommation en surface : %.1f L/min, %.2f bar/min&#13;Profondeur moyenne : %.1f ft</translation></message>
<message><source>Gas status error</source><translation>Indiquez une pression de départ et une durée de plongée.</translation></message>
<message><source>General</source><translation>&#13;&#13;Généralités</translation></message>
<message><source>Good</source><translation>Bonne</translation></message>
<message><source>Graph bar</source><translation>Profondeurs et gaz</translation></message>
<message><source>Graph share</source><translation>Part des plongées</translation></message>
<message><source>Group apparatus</source><translation>Appareil respiratoire</translation></message>
<message><source>Group bail-outs</source><translation>Blocs de secours (bail-out)</translation></message>
<message><source>Group computer</source><translation>Ordinateur de plongée</translation></message>
<message><source>Group consumption</source><translation>Consommation et oxygène</translation></message>
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
<message><source>High tide</source><translation>Pleine mer</translation></message>
<message><source>Hint future day</source><translation>dans le futur</translation></message>
<message><source>Hint pressure rises</source><translation>supérieure au départ</translation></message>
<message><source>Import UDCF</source><translation>Importer UDCF</translation></message>
<message><source>Import UDDF</source><translation>Importer UDDF</translation></message>
<message><source>Import cancelled</source><translation>L’importation a été annulée.</translation></message>
<message><source>Import element missing</source><translation>l’élément %@ manque</translation></message>
<message><source>Import format unknown</source><translation>Le fichier n’est ni de l’UDCF, ni de l’UDDF, ni un carnet de poche.</translation></message>
<message><source>Import handheld</source><translation>Importer du carnet de poche</translation></message>
<message><source>Import stopped</source><translation>L’importation s’est arrêtée à la plongée %d du fichier : %@.</translation></message>
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
<message><source>Label low setpoint</source><translation>Point de consigne bas (bar)</translation></message>
<message><source>Label maker</source><translation>Fabricant</translation></message>
<message><source>Label material</source><translation>Matériau</translation></message>
<message><source>Label maximum depth</source><translation>Profondeur max.</translation></message>
<message><source>Label method</source><translation>Méthode</translation></message>
<message><source>Label model</source><translation>Modèle</translation></message>
<message><source>Label night dive</source><translation>Plongée de nuit</translation></message>
<message><source>Label nitrogen</source><translation>Azote</translation></message>
<message><source>Label number</source><translation>Numéro</translation></message>
<message><source>Label oxygen</source><translation>Oxygène</translation></message>
<message><source>Label place</source><translation>Lieu</translation></message>
<message><source>Label position</source><translation>Position GPS</translation></message>
<message><source>Label pressure drop</source><translation>Perte de pression</translation></message>
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
<message><source>Litres</source><translation>%d L</translation></message>
<message><source>Litres per minute</source><translation>%.1f L/min</translation></message>
<message><source>Location</source><translation>&#13;Lieu : </translation></message>
<message><source>Low tide</source><translation>Basse mer</translation></message>
<message><source>Max and average depth</source><translation>Profondeur maximale %.1f m, moyenne %.1f m</translation></message>
<message><source>Medium</source><translation>Moyenne</translation></message>
<message><source>Menu card</source><translation>Fiche de synthèse…</translation></message>
<message><source>Menu consumption</source><translation>Consommation de gaz…</translation></message>
<message><source>Menu delete dives</source><translation>Supprimer les plongées…</translation></message>
<message><source>Menu dive</source><translation>Plongée</translation></message>
<message><source>Menu edit dive</source><translation>Modifier la plongée</translation></message>
<message><source>Menu graphs</source><translation>Graphiques des statistiques</translation></message>
<message><source>Menu import UDCF</source><translation>Importer UDCF…</translation></message>
<message><source>Menu import UDDF</source><translation>Importer UDDF…</translation></message>
<message><source>Menu import handheld</source><translation>Importer du carnet de poche…</translation></message>
<message><source>Menu insert dive</source><translation>Insérer avant la plongée sélectionnée</translation></message>
<message><source>Menu new dive</source><translation>Nouvelle plongée</translation></message>
<message><source>Menu previous dives</source><translation>Plongées antérieures…</translation></message>
<message><source>Metres</source><translation>%.1f m</translation></message>
<message><source>Moderate</source><translation>Modéré</translation></message>
<message><source>Movies</source><translation>Vidéo</translation></message>
<message><source>N-W</source><translation>N-O</translation></message>
<message><source>Next dive</source><translation>Plongée suivante</translation></message>
<message><source>Night</source><translation>&#13;Plongée de nuit</translation></message>
<message><source>Nitrox tables</source><translation>&#13;Tables nitrox, ordinateur : </translation></message>
<message><source>No Tek</source><translation>Loisir</translation></message>
<message><source>No datas</source><translation>Pas de données</translation></message>
<message><source>No dive selected</source><translation>Sélectionnez une plongée pour en voir les détails.</translation></message>
<message><source>No dive to export</source><translation>Le carnet ne contient aucune plongée, et l’UDDF ne peut s’écrire sans.</translation></message>
<message><source>No dives yet</source><translation>Aucune plongée. Appuyez sur %@ pour saisir la première.</translation></message>
<message><source>No notes</source><translation>Pas de notes</translation></message>
<message><source>No suit</source><translation>Sans combinaison</translation></message>
<message><source>No wind</source><translation>pas de vent</translation></message>
<message><source>None</source><translation>Nul</translation></message>
<message><source>Normal</source><translation>Normale</translation></message>
<message><source>Notes</source><translation>&#13;&#13;Notes</translation></message>
<message><source>OXYGÈNE :</source><translation>OXYGÈNE :</translation></message>
<message><source>One dive</source><translation>Une plongée</translation></message>
<message><source>One dive found</source><translation>Une plongée trouvée</translation></message>
<message><source>One dive imported</source><translation>Une plongée a été importée.</translation></message>
<message><source>Open circuit</source><translation>&#13;Circuit ouvert</translation></message>
<message><source>Other</source><translation>Autre</translation></message>
<message><source>Oxygen</source><translation>&#13;Recycleur eCCR</translation></message>
<message><source>Page bottles</source><translation>Relais et profil</translation></message>
<message><source>Page conditions</source><translation>Conditions</translation></message>
<message><source>Page decompression</source><translation>Décompression</translation></message>
<message><source>Page dive</source><translation>Plongée</translation></message>
<message><source>Page equipment</source><translation>Matériel et notes</translation></message>
<message><source>Page gas</source><translation>Blocs et gaz</translation></message>
<message><source>Parameters</source><translation>&#13;&#13;Paramètres</translation></message>
<message><source>Pays</source><translation>&#13;Pays : </translation></message>
<message><source>Photo dive</source><translation>Photo</translation></message>
<message><source>Ponies</source><translation>&#13;Blocs relais : </translation></message>
<message><source>Pony 1 title</source><translation>Pony 1 : %d m - %d %% O₂</translation></message>
<message><source>Pony 2 title</source><translation>Pony 2 : %d m - %d %% O₂</translation></message>
<message><source>Pony 3 title</source><translation>Pony 3 : %d m - %d %% O₂</translation></message>
<message><source>PpO2</source><translation>PpO₂ (bar)</translation></message>
<message><source>Previous dive</source><translation>Plongée précédente</translation></message>
<message><source>Previous dives edit</source><translation>Plongées antérieures…</translation></message>
<message><source>Previous dives hint</source><translation>Ce que vous indiquez ici s’ajoute aux statistiques de tous les carnets.</translation></message>
<message><source>Previous dives title</source><translation>Plongées antérieures à ce carnet</translation></message>
<message><source>Profile</source><translation>Profil</translation></message>
<message><source>Profile datas</source><translation>Données du profil</translation></message>
<message><source>Profile of dive</source><translation>Profil de la plongée %d</translation></message>
<message><source>Quarry</source><translation>Carrière</translation></message>
<message><source>Rainy</source><translation>Pluvieux</translation></message>
<message><source>Rating good</source><translation>Bonne</translation></message>
<message><source>Rating never again</source><translation>Plus jamais</translation></message>
<message><source>Rating poor</source><translation>Décevante</translation></message>
<message><source>Rating unforgettable</source><translation>Inoubliable</translation></message>
<message><source>Recorded points</source><translation>Points enregistrés : %d</translation></message>
<message><source>Recreational</source><translation>Loisir</translation></message>
<message><source>Recuperation</source><translation>Récupération</translation></message>
<message><source>Renumber explanation</source><translation>Toutes les plongées sont renumérotées, dans l’ordre où le tableau les montre.</translation></message>
<message><source>Renumber first</source><translation>Numéro de la première plongée :</translation></message>
<message><source>Renumber title</source><translation>Renuméroter les plongées</translation></message>
<message><source>Renumbering</source><translation>Renumérotation des plongées…</translation></message>
<message><source>S-W</source><translation>S-O</translation></message>
<message><source>SCR rebreather</source><translation>&#13;Recycleur SCR</translation></message>
<message><source>Sampling rate</source><translation>Intervalle d’échantillonnage : %@</translation></message>
<message><source>Scaphander</source><translation>&#13;Recycleur hCCR</translation></message>
<message><source>Selected dives</source><translation>Plongées sélectionnées</translation></message>
<message><source>Semi-dry suit</source><translation>Combinaison semi-étanche</translation></message>
<message><source>Shorty</source><translation>Shorty</translation></message>
<message><source>Site</source><translation>&#13;Site : </translation></message>
<message><source>Snowy</source><translation>Neigeux</translation></message>
<message><source>Start pressure</source><translation>&#13;Pression de départ : </translation></message>
<message><source>Start time</source><translation>&#13;Heure de départ : </translation></message>
<message><source>Stat average depth</source><translation>Profondeur moyenne</translation></message>
<message><source>Stat average time</source><translation>Durée moyenne</translation></message>
<message><source>Stat closed</source><translation>Recycleur fermé</translation></message>
<message><source>Stat coldest</source><translation>Eau la plus froide</translation></message>
<message><source>Stat count and share</source><translation>%d (%@)</translation></message>
<message><source>Stat deepest</source><translation>Plongée la plus profonde</translation></message>
<message><source>Stat dives</source><translation>Plongées</translation></message>
<message><source>Stat group depths</source><translation>Profondeurs</translation></message>
<message><source>Stat group gases</source><translation>Gaz</translation></message>
<message><source>Stat group kinds</source><translation>Types de plongée</translation></message>
<message><source>Stat group measures</source><translation>Profondeur, durée et eau</translation></message>
<message><source>Stat group systems</source><translation>Scaphandres</translation></message>
<message><source>Stat label</source><translation>%@ : </translation></message>
<message><source>Stat longest</source><translation>Plongée la plus longue</translation></message>
<message><source>Stat mean water</source><translation>Température moyenne de l’eau</translation></message>
<message><source>Stat night</source><translation>Plongée de nuit</translation></message>
<message><source>Stat open circuit</source><translation>Circuit ouvert</translation></message>
<message><source>Stat semi-closed</source><translation>Recycleur semi-fermé</translation></message>
<message><source>Stat total depth</source><translation>Profondeur cumulée</translation></message>
<message><source>Stat total time</source><translation>Durée cumulée</translation></message>
<message><source>Stat warmest</source><translation>Eau la plus chaude</translation></message>
<message><source>Statistics</source><translation>Statistiques</translation></message>
<message><source>Statistics graphs</source><translation>Graphiques des statistiques</translation></message>
<message><source>Statistics of</source><translation>Statistiques de %@</translation></message>
<message><source>Steel</source><translation>Acier</translation></message>
<message><source>Store dive question</source><translation>La plongée du formulaire a été modifiée et n’est pas encore enregistrée.</translation></message>
<message><source>Strong</source><translation>Fort</translation></message>
<message><source>Structure</source><translation>&#13;Club ou centre : </translation></message>
<message><source>Surface</source><translation>&#13;Intervalle de surface : </translation></message>
<message><source>T-shirt</source><translation>T-shirt</translation></message>
<message><source>TTS</source><translation>&#13;Durée totale de remontée : </translation></message>
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
<message><source>Tank pressure</source><translation> bars</translation></message>
<message><source>Tank_1</source><translation>&#13;Bloc principal : </translation></message>
<message><source>Tank_2</source><translation>&#13;Bloc secondaire : </translation></message>
<message><source>Tek</source><translation>Tek</translation></message>
<message><source>Thundery</source><translation>Orageux</translation></message>
<message><source>Tide coefficient</source><translation>&#13;Coefficient de marée : </translation></message>
<message><source>Time</source><translation>&#13;Durée : </translation></message>
<message><source>Tip add</source><translation>Ajouter une plongée au carnet</translation></message>
<message><source>Tip consumption</source><translation>Afficher le gaz que cette plongée a consommé</translation></message>
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
<message><source>Undo convert units</source><translation>Convertir les unités</translation></message>
<message><source>Undo delete</source><translation>Supprimer les plongées</translation></message>
<message><source>Undo import</source><translation>Importer les plongées</translation></message>
<message><source>Undo insert</source><translation>Insérer la plongée</translation></message>
<message><source>Undo renumber</source><translation>Renuméroter les plongées</translation></message>
<message><source>Undo update</source><translation>Modifier la plongée</translation></message>
<message><source>Unknown temperature</source><translation>Donnée inconnue : aucune température n’a été indiquée</translation></message>
<message><source>Unknown with bad samples</source><translation>Donnée inconnue : le profil contient des profondeurs qui ne sont pas des nombres</translation></message>
<message><source>Unknown without samples</source><translation>Donnée inconnue : pas de profil, donc pas de profondeur moyenne</translation></message>
<message><source>Unknown without start pressure</source><translation>Donnée inconnue : pas de pression de départ</translation></message>
<message><source>Unknown without tank volume</source><translation>Donnée inconnue : pas de volume du bloc</translation></message>
<message><source>Unknown without time</source><translation>Donnée inconnue : pas de durée de plongée</translation></message>
<message><source>Used gas</source><translation>&#13;Gaz utilisé : </translation></message>
<message><source>Used pressure</source><translation>&#13;Pression consommée : </translation></message>
<message><source>Very bad</source><translation>Très mauvaise</translation></message>
<message><source>Very easy</source><translation>Très facile</translation></message>
<message><source>Very good</source><translation>Très bonne</translation></message>
<message><source>Very hard</source><translation>Très difficile</translation></message>
<message><source>Very strong</source><translation>Très fort</translation></message>
<message><source>Violent</source><translation>Violent</translation></message>
<message><source>Visibility</source><translation>&#13;Visibilité : </translation></message>
<message><source>W</source><translation>O</translation></message>
<message><source>Water temperature</source><translation>&#13;Température de l’eau : </translation></message>
<message><source>Weak</source><translation>Faible</translation></message>
<message><source>Weather</source><translation>&#13;Météo : </translation></message>
<message><source>Weight</source><translation>&#13;Lestage : </translation></message>
<message><source>Wet suit</source><translation>Combinaison humide</translation></message>
<message><source>Wind</source><translation>&#13;Vent : </translation></message>
<message><source>Wind force</source><translation>&#13;Force du vent : </translation></message>
<message><source>Wind sector</source><translation>&#13;Secteur du vent : </translation></message>
<message><source>Without previous dives</source><translation>Sans les plongées antérieures</translation></message>
<message><source>Work</source><translation>Travail</translation></message>
<message><source>Wreck</source><translation>Épave</translation></message>
<message><source>Wrecks</source><translation>&#13;Épaves : </translation></message>
<message><source>high setpoint</source><translation>Point de consigne haut (bar)</translation></message>
</context>
</TS>
