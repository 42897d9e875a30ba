<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Calculators</name>
<message><source>Altitude</source><translation>&amp;Altitude</translation></message>
<message><source>Bar</source><translation>&amp;Bar</translation></message>
<message><source>Both converters</source><translation>Les deux convertisseurs</translation></message>
<message><source>By consumption</source><translation>Selon la consommation d’oxygène</translation></message>
<message><source>Calculate</source><translation>&amp;Calculer</translation></message>
<message><source>Conversions</source><translation>Conversions</translation></message>
<message><source>Convert</source><translation>&amp;Convertir</translation></message>
<message><source>Convert decimal</source><translation>Con&amp;vertir</translation></message>
<message><source>Convert from</source><translation>Convertir depuis</translation></message>
<message><source>Convert sexagesimal</source><translation>&amp;Convertir en WGS84</translation></message>
<message><source>Copy</source><translation>Cop&amp;ier</translation></message>
<message><source>Copy hint</source><translation>Copie le résultat</translation></message>
<message><source>Copy report</source><translation>Copier le compte &amp;rendu</translation></message>
<message><source>Cubic feet (US)</source><translation>&amp;Pieds cubes (US)</translation></message>
<message><source>Cubic inches (US)</source><translation>Po&amp;uces cubes (US)</translation></message>
<message><source>Decimal converter</source><translation>Degrés décimaux</translation></message>
<message><source>Decimal latitude</source><translation>Latit&amp;ude</translation></message>
<message><source>Decimal longitude</source><translation>L&amp;ongitude</translation></message>
<message><source>Degrees</source><translation>degrés</translation></message>
<message><source>Degrees Celsius</source><translation>Degrés C&amp;elsius</translation></message>
<message><source>Degrees Fahrenheit</source><translation>Degrés &amp;Fahrenheit</translation></message>
<message><source>Direction</source><translation>&amp;Sens</translation></message>
<message><source>Feet</source><translation>&amp;Pieds</translation></message>
<message><source>Formula</source><translation>Formule</translation></message>
<message><source>GPS datum conversion</source><translation>Conversion de repère GPS</translation></message>
<message><source>Gives a negative depth</source><translation>donne une profondeur négative</translation></message>
<message><source>Gives infinity</source><translation>donne l’infini</translation></message>
<message><source>Inputs</source><translation>Données</translation></message>
<message><source>Is negative</source><translation>est une profondeur négative</translation></message>
<message><source>Kelvin</source><translation>&amp;Kelvin</translation></message>
<message><source>Kilograms</source><translation>&amp;Kilogrammes</translation></message>
<message><source>Latitude</source><translation>Latitude</translation></message>
<message><source>Latitude ED50</source><translation>La&amp;titude</translation></message>
<message><source>Length</source><translation>Longueur</translation></message>
<message><source>Letter of the west</source><translation>O</translation></message>
<message><source>Litres</source><translation>&amp;Litres</translation></message>
<message><source>Longitude</source><translation>Longitude</translation></message>
<message><source>Longitude ED50</source><translation>&amp;Longitude</translation></message>
<message><source>Mass</source><translation>Masse</translation></message>
<message><source>Metres</source><translation>&amp;Mètres</translation></message>
<message><source>Minutes</source><translation>minutes</translation></message>
<message><source>Nitrox</source><translation>Nitrox</translation></message>
<message><source>Position as typed</source><translation>Position, latitude d’abord</translation></message>
<message><source>Position hint</source><translation>Comme sur une carte ou un récepteur : 43° 12,345' N 5° 20,7' O, ou 43.2057, -5.345. Elle remplit les champs des deux convertisseurs.</translation></message>
<message><source>Position hint short</source><translation>Degrés décimaux ou avec minutes ; N, S, E, O ou signes</translation></message>
<message><source>Position not read</source><translation>Pas encore une position : la latitude, puis la longitude</translation></message>
<message><source>Position read</source><translation>Lu : %@</translation></message>
<message><source>Pounds (US)</source><translation>&amp;Livres (US)</translation></message>
<message><source>Pounds per square inch</source><translation>&amp;Livres par pouce carré</translation></message>
<message><source>Pressure</source><translation>Pression</translation></message>
<message><source>Rebreather</source><translation>Recycleur</translation></message>
<message><source>Report</source><translation>Compte rendu</translation></message>
<message><source>Result</source><translation>Résultat</translation></message>
<message><source>Resulting altitude</source><translation>Altitude</translation></message>
<message><source>Resulting position</source><translation>Position</translation></message>
<message><source>Seconds</source><translation>secondes</translation></message>
<message><source>Sexagesimal converter</source><translation>Degrés, minutes et secondes : ED50 → WGS84</translation></message>
<message><source>Signs hint</source><translation>Les trois parties s’additionnent : à l’ouest ou
au sud, chacune prend son signe moins.</translation></message>
<message><source>Stale result</source><translation>Ce résultat correspond à la saisie précédente.</translation></message>
<message><source>Temperature</source><translation>Température</translation></message>
<message><source>Trimix</source><translation>Trimix</translation></message>
<message><source>Typed position</source><translation>&amp;Position</translation></message>
<message><source>Unit conversions</source><translation>Conversions d’unités</translation></message>
<message><source>Volume</source><translation>Volume</translation></message>
</context>
</TS>
