<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Cli</name>
<message><source>Big-endian</source><translation>Ordre des octets : gros-boutiste</translation></message>
<message><source>Calculator required</source><translation>Il manque le nom d’un calculateur.</translation></message>
<message><source>Class line</source><translation>  %@, version %d : %d objets</translation></message>
<message><source>Classes</source><translation>Classes :</translation></message>
<message><source>Command required</source><translation>Il manque une commande.</translation></message>
<message><source>Drawn of one row</source><translation>« %@ » ne représente qu’une seule ligne.</translation></message>
<message><source>Drawn without rows</source><translation>--row ne va pas avec « %@ », qui représente tout le document.</translation></message>
<message><source>File exists</source><translation>« %@ » existe déjà.</translation></message>
<message><source>First number too high</source><translation>Le premier numéro peut aller jusqu’à %d, pour que la dernière plongée en reçoive un aussi.</translation></message>
<message><source>Groups</source><translation>Groupes : %d</translation></message>
<message><source>Little-endian</source><translation>Ordre des octets : petit-boutiste</translation></message>
<message><source>No card</source><translation>Les documents du type « %@ » n’ont pas de fiche de synthèse.</translation></message>
<message><source>No picture field</source><translation>Les documents du type « %@ » ne contiennent pas d’images.</translation></message>
<message><source>No such row</source><translation>Il n’y a pas de ligne %d : le document compte %d fiches, numérotées à partir de 0.</translation></message>
<message><source>No such type</source><translation>« %@ » n’est pas un type de document. Types : %@.</translation></message>
<message><source>Not a logbook</source><translation>« %@ » n’est pas un carnet de plongée.</translation></message>
<message><source>Not a moment</source><translation>« %@ » n’est pas une date avec une heure, comme 2024-05-03T10:30:00.</translation></message>
<message><source>Not a replacement</source><translation>« %@ » n’est pas un remplacement. Les remplacements s’écrivent SÉRIE=FICHIER ; les séries sont depth, ascent, slow, ceiling, surface, gas et pressure.</translation></message>
<message><source>Not an entry</source><translation>« %@ » n’est pas de la forme champ=valeur.</translation></message>
<message><source>Not decimal degrees</source><translation>« %@ » n’est pas en degrés décimaux. Faut-il --sexagesimal ?</translation></message>
<message><source>Not sexagesimal</source><translation>« %@ » n’est pas en degrés, minutes et secondes.</translation></message>
<message><source>Objects</source><translation>Objets : %d</translation></message>
<message><source>Option for value</source><translation>« %@ » se trouve à la place d’une valeur.</translation></message>
<message><source>Output not written</source><translation>La sortie n’a pas pu être écrite.</translation></message>
<message><source>Picture endings</source><translation>Le nom du fichier doit se terminer par .pdf, .svg ou .png.</translation></message>
<message><source>Pressure drop line</source><translation>Bloc %d : %@</translation></message>
<message><source>References</source><translation>Références : %d</translation></message>
<message><source>Row</source><translation>Ligne</translation></message>
<message><source>Row or new</source><translation>Indiquez soit --row, soit --new.</translation></message>
<message><source>System version</source><translation>Version du système : %d</translation></message>
<message><source>Usage excludes</source><translation>%@ ne va pas avec %@.</translation></message>
<message><source>Usage help</source><translation>L’option --help en dit plus.</translation></message>
<message><source>Usage no choice</source><translation>%@ : « %@ » ne fait pas partie de %@.</translation></message>
<message><source>Usage no value</source><translation>%@ : « %@ » n’est pas une valeur possible.</translation></message>
<message><source>Usage once</source><translation>%@ ne peut être donné qu’une fois.</translation></message>
<message><source>Usage required</source><translation>Il manque %@.</translation></message>
<message><source>Usage requires</source><translation>%@ ne va pas sans %@.</translation></message>
<message><source>Usage unexpected</source><translation>Inattendu : %@</translation></message>
<message><source>Usage value missing</source><translation>%@ : il manque la valeur.</translation></message>
<message><source>Usual values</source><translation>, d’ordinaire %@ [%@]</translation></message>
</context>
</TS>
