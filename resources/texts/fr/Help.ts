<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Help</name>
<message><source>A field of texts</source><translation>Un champ de texte</translation></message>
<message><source>A new record</source><translation>Une nouvelle fiche</translation></message>
<message><source>Adds a record through the document's form</source><translation>Ajoute une fiche par le formulaire du document</translation></message>
<message><source>Adds words that have no field of their own to the notes</source><translation>Ajoute aux notes les mots qui n’ont pas de champ à eux</translation></message>
<message><source>Any typed stream</source><translation>N’importe quel flux typé</translation></message>
<message><source>Appends the dives of a file to a logbook: UDDF 3, another logbook and, with --format standard, anything that holds dives are read by their meaning. In the other formats a dive that cannot be taken ends the import: the dives before it are kept and saved, the reason is told, and the exit code is 1.</source><translation>Ajoute les plongées d’un fichier à un carnet : UDDF 3, un autre carnet et, avec --format standard, tout ce qui contient des plongées sont lus selon leur sens. Dans les autres formats, une plongée qui ne peut être prise arrête l’importation : les plongées qui la précèdent sont gardées et enregistrées, la raison est dite, et le code de retour est 1.</translation></message>
<message><source>As one JSON object</source><translation>En un objet JSON</translation></message>
<message><source>COMMANDS</source><translation>COMMANDES</translation></message>
<message><source>Changes a record through the document's form</source><translation>Modifie une fiche par le formulaire du document</translation></message>
<message><source>Changes the file although another program has it open or changes it meanwhile, or a newer version wrote it</source><translation>Modifie le fichier même si un autre programme l’a ouvert ou le modifie entre-temps, ou si une version plus récente l’a écrit</translation></message>
<message><source>Decimal degrees: ed50-wgs84 (default) or wgs84-ed50</source><translation>Degrés décimaux : ed50-wgs84 (par défaut) ou wgs84-ed50</translation></message>
<message><source>Display program version information and exit</source><translation>Affiche la version du programme et se termine</translation></message>
<message><source>Diving calculators</source><translation>Calculateurs de plongée</translation></message>
<message><source>Draws what the windows print into a PDF, SVG or PNG</source><translation>Dessine en PDF, SVG ou PNG ce que les fenêtres impriment</translation></message>
<message><source>ED50 to WGS84 from "degrees minutes seconds", with a report; the parts are added, so west and south each takes its minus sign</source><translation>De ED50 vers WGS84 à partir de « degrés minutes secondes », avec un rapport ; les parties s’additionnent : à l’ouest et au sud, chacune prend son signe moins</translation></message>
<message><source>Either</source><translation>L’un ou l’autre</translation></message>
<message><source>Everything, as one JSON object</source><translation>Tout, en un objet JSON</translation></message>
<message><source>Exit codes: 0 done, 1 failed (the reason on standard error, the file as it was), 2 wrong usage.</source><translation>Codes de retour : 0 réussi, 1 échec (la raison sur la sortie d’erreur, le fichier inchangé), 2 appel incorrect.</translation></message>
<message><source>Gas consumption and oxygen clock of a dive</source><translation>Consommation de gaz et horloge de l’oxygène d’une plongée</translation></message>
<message><source>Height above the ellipsoid, m</source><translation>Hauteur au-dessus de l’ellipsoïde, m</translation></message>
<message><source>How SOURCE is read; told by its contents when not given</source><translation>Comment SOURCE est lu ; reconnu par son contenu par défaut</translation></message>
<message><source>KEY=VALUE, a setting for this run only; a dictionary as a JSON object</source><translation>CLÉ=VALEUR, un réglage pour cette fois seulement ; un dictionnaire en objet JSON</translation></message>
<message><source>Latitude, positive to the north</source><translation>Latitude, positive vers le nord</translation></message>
<message><source>Leaves out dives that the logbook holds already; on for standard</source><translation>Laisse de côté les plongées déjà dans le carnet ; actif pour standard</translation></message>
<message><source>Leaves out the dives before the logbook</source><translation>Laisse de côté les plongées d’avant le carnet</translation></message>
<message><source>Lists the records of a document</source><translation>Liste les fiches d’un document</translation></message>
<message><source>Lists the records whose field holds a text, case aside</source><translation>Liste les fiches dont le champ contient un texte, sans regarder la casse</translation></message>
<message><source>Longitude, positive to the east</source><translation>Longitude, positive vers l’est</translation></message>
<message><source>Makes an empty document</source><translation>Crée un document vide</translation></message>
<message><source>NAME</source><translation>NOM</translation></message>
<message><source>NOTES</source><translation>NOTES</translation></message>
<message><source>NUMBER</source><translation>NOMBRE</translation></message>
<message><source>Numbers all records in their order</source><translation>Numérote toutes les fiches dans leur ordre</translation></message>
<message><source>OPTIONS</source><translation>OPTIONS</translation></message>
<message><source>One JSON object, unrounded</source><translation>Un objet JSON, sans arrondi</translation></message>
<message><source>One series, an element to a line</source><translation>Une série, un élément par ligne</translation></message>
<message><source>Options</source><translation>Options</translation></message>
<message><source>Orders all dives by date and numbers them on</source><translation>Trie toutes les plongées par date et poursuit leur numérotation</translation></message>
<message><source>Oxygen partial pressure, bar</source><translation>Pression partielle d’oxygène, bar</translation></message>
<message><source>Positionals</source><translation>Arguments</translation></message>
<message><source>Print this help message and exit</source><translation>Affiche cette aide et se termine</translation></message>
<message><source>Prints the completion script for bash or the manual page</source><translation>Affiche le script de complétion pour bash ou la page de manuel</translation></message>
<message><source>Prints the dives that SOURCE holds and changes nothing</source><translation>Affiche les plongées que contient SOURCE et ne change rien</translation></message>
<message><source>Prints them as JSON</source><translation>Les affiche en JSON</translation></message>
<message><source>Prints which fields the format would lose, and of how many dives; writes nothing</source><translation>Dit quels champs le format perdrait, et pour combien de plongées ; n’écrit rien</translation></message>
<message><source>REQUIRED</source><translation>OBLIGATOIRE</translation></message>
<message><source>Removes records</source><translation>Supprime des fiches</translation></message>
<message><source>SERIES=TEXTFILE: replaces a series by the lines of a file, and saves the logbook</source><translation>SÉRIE=FICHIER : remplace une série par les lignes d’un fichier, et enregistre le carnet</translation></message>
<message><source>SUBCOMMAND</source><translation>COMMANDE</translation></message>
<message><source>SYNOPSIS</source><translation>SYNOPSIS</translation></message>
<message><source>Shows the edit form with a record, or a new one, and entries; stores nothing</source><translation>Montre le formulaire avec une fiche, ou une nouvelle, et des saisies ; n’enregistre rien</translation></message>
<message><source>Shows the synthesis card</source><translation>Montre la fiche de synthèse</translation></message>
<message><source>Shows the table of a document as its window does</source><translation>Montre le tableau d’un document comme sa fenêtre</translation></message>
<message><source>Sorts as clicks on the headers of these columns do, and saves the order</source><translation>Trie comme les clics sur les en-têtes de ces colonnes, et enregistre l’ordre</translation></message>
<message><source>Statistics of all dives and of those before the logbook</source><translation>Statistiques de toutes les plongées et de celles d’avant le carnet</translation></message>
<message><source>Subcommands</source><translation>Commandes</translation></message>
<message><source>Summary and geometry as JSON</source><translation>Résumé et géométrie en JSON</translation></message>
<message><source>TEXT</source><translation>TEXTE</translation></message>
<message><source>Takes them too</source><translation>Les prend aussi</translation></message>
<message><source>Tavrel on the command line: the documents and calculators of the divers' application</source><translation>Tavrel en ligne de commande : les documents et les calculateurs de l’application des plongeurs</translation></message>
<message><source>Tells what a typed stream holds</source><translation>Dit ce que contient un flux typé</translation></message>
<message><source>The columns' fields, in the order of the clicks</source><translation>Les champs des colonnes, dans l’ordre des clics</translation></message>
<message><source>The decimal converter's steps on standard error</source><translation>Les étapes du convertisseur décimal sur la sortie d’erreur</translation></message>
<message><source>The dive's row, from 0</source><translation>La ligne de la plongée, à partir de 0</translation></message>
<message><source>The document</source><translation>Le document</translation></message>
<message><source>The fields that a table gets columns for; all of them else</source><translation>Les champs qui ont leur colonne dans un tableau ; tous sinon</translation></message>
<message><source>The fields to list, separated by commas</source><translation>Les champs à lister, séparés par des virgules</translation></message>
<message><source>The file to write, ending in .pdf, .svg or .png</source><translation>Le fichier à écrire, terminé par .pdf, .svg ou .png</translation></message>
<message><source>The file to write; - is the standard output</source><translation>Le fichier à écrire ; - est la sortie standard</translation></message>
<message><source>The file with the dives</source><translation>Le fichier qui contient les plongées</translation></message>
<message><source>The first number</source><translation>Le premier numéro</translation></message>
<message><source>The format</source><translation>Le format</translation></message>
<message><source>The logbook</source><translation>Le carnet de plongée</translation></message>
<message><source>The moment that counts as now, as 2024-05-03T10:30:00</source><translation>Le moment qui vaut maintenant, comme 2024-05-03T10:30:00</translation></message>
<message><source>The picture's file, such as copy.png; .tiff gives the stored bytes</source><translation>Le fichier de l’image, comme copie.png ; .tiff donne les octets enregistrés</translation></message>
<message><source>The record's row, from 0</source><translation>La ligne de la fiche, à partir de 0</translation></message>
<message><source>The recorded profile of a dive: what it amounts to, its picture in figures, its series, and replacing them</source><translation>Le profil enregistré d’une plongée : son résumé, son tracé en chiffres, ses séries, et leur remplacement</translation></message>
<message><source>The records' rows, from 0</source><translation>Les lignes des fiches, à partir de 0</translation></message>
<message><source>The records' rows, from 0, of a card; the dive's of a profile</source><translation>Les lignes des fiches, à partir de 0, pour une fiche de synthèse ; celle de la plongée pour un profil</translation></message>
<message><source>The records' rows, from 0; all when not given</source><translation>Les lignes des fiches, à partir de 0 ; toutes par défaut</translation></message>
<message><source>The text</source><translation>Le texte</translation></message>
<message><source>The type's name, such as "Carnet de plongee", or its record class</source><translation>Le nom du type, comme « Carnet de plongee », ou la classe de ses fiches</translation></message>
<message><source>The unit of the value</source><translation>L’unité de la valeur</translation></message>
<message><source>The value</source><translation>La valeur</translation></message>
<message><source>The whole tree, as one JSON object</source><translation>L’arbre entier, en un objet JSON</translation></message>
<message><source>Time, min</source><translation>Durée, min</translation></message>
<message><source>Usage</source><translation>Utilisation</translation></message>
<message><source>What to draw</source><translation>Ce qu’il faut dessiner</translation></message>
<message><source>Writes a logbook in another format; TARGET is written as a whole or, on a failure, not at all.</source><translation>Écrit un carnet dans un autre format ; TARGET est écrit en entier ou, en cas d’échec, pas du tout.</translation></message>
<message><source>Writes a stored picture as a file</source><translation>Écrit une image enregistrée dans un fichier</translation></message>
<message><source>field=value, by the field's or the control's name</source><translation>champ=valeur, par le nom du champ ou de la commande du formulaire</translation></message>
</context>
</TS>
