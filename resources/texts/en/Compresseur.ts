<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Compresseur</name>
<message><source>Alumin</source><translation>&#13;    - Activated alumina</translation></message>
<message><source>Analyse CO</source><translation>&#13;CO: </translation></message>
<message><source>Analyse CO2</source><translation>&#13;CO₂: </translation></message>
<message><source>Analyse H2O</source><translation>&#13;H₂O: </translation></message>
<message><source>Analyse huile</source><translation>&#13;Oil: </translation></message>
<message><source>Analyzes</source><translation>&#13;&#13;Air analyses</translation></message>
<message><source>Cardridge</source><translation>&#13;- Filter cartridge</translation></message>
<message><source>Charcoal</source><translation>&#13;    - Activated charcoal</translation></message>
<message><source>Cleaning</source><translation>&#13;- Dust removed</translation></message>
<message><source>Controls</source><translation>&#13;- Checks</translation></message>
<message><source>Date</source><translation>Date: </translation></message>
<message><source>Edit window title</source><translation>Service of %@</translation></message>
<message><source>Filter cleaning</source><translation>&#13;- Air filter cleaned</translation></message>
<message><source>Filter replacement</source><translation>&#13;- Air filter replaced</translation></message>
<message><source>Group analyses</source><translation>Air analyses</translation></message>
<message><source>Group cartridge</source><translation>Filter cartridge</translation></message>
<message><source>Group checks</source><translation>Checks</translation></message>
<message><source>Group oil and filter</source><translation>Oil and air filter</translation></message>
<message><source>Group remarks</source><translation>Remarks</translation></message>
<message><source>Group service</source><translation>Service</translation></message>
<message><source>Inventory</source><translation>Compressor maintenance</translation></message>
<message><source>Label air filter</source><translation>Air filter</translation></message>
<message><source>Label alumina</source><translation>Activated alumina</translation></message>
<message><source>Label brand</source><translation>Brand</translation></message>
<message><source>Label carbon dioxide</source><translation>CO₂</translation></message>
<message><source>Label carbon dioxide unit</source><translation>CO₂ unit</translation></message>
<message><source>Label carbon monoxide</source><translation>CO</translation></message>
<message><source>Label carbon monoxide unit</source><translation>CO unit</translation></message>
<message><source>Label cartridge</source><translation>Cartridge changed</translation></message>
<message><source>Label charcoal</source><translation>Activated charcoal</translation></message>
<message><source>Label checks</source><translation>Checks</translation></message>
<message><source>Label cleaning</source><translation>Dust removal</translation></message>
<message><source>Label date</source><translation>Date</translation></message>
<message><source>Label filter operation</source><translation>Operation</translation></message>
<message><source>Label model</source><translation>Model</translation></message>
<message><source>Label oil</source><translation>Oil</translation></message>
<message><source>Label oil change</source><translation>Oil change</translation></message>
<message><source>Label oil content</source><translation>Oil</translation></message>
<message><source>Label running time</source><translation>Running time</translation></message>
<message><source>Label sieve</source><translation>Molecular sieve</translation></message>
<message><source>Label sum time</source><translation>Time in all</translation></message>
<message><source>Label valve operation</source><translation>Operation on valves</translation></message>
<message><source>Label valves</source><translation>Valves</translation></message>
<message><source>Label water</source><translation>Water</translation></message>
<message><source>Menu</source><translation>Service</translation></message>
<message><source>Mineral</source><translation>Mineral</translation></message>
<message><source>Model</source><translation>&#13;Model: </translation></message>
<message><source>Molecular mesh</source><translation>&#13;    - Molecular sieve</translation></message>
<message><source>Operations</source><translation>&#13;&#13;Operations</translation></message>
<message><source>Page analyses</source><translation>Analyses</translation></message>
<message><source>Page operations</source><translation>Operations</translation></message>
<message><source>Page service</source><translation>Service</translation></message>
<message><source>Remarks</source><translation>&#13;&#13;Remarks: </translation></message>
<message><source>Retarage</source><translation>re-set</translation></message>
<message><source>Service</source><translation>Service no. </translation></message>
<message><source>Sum time</source><translation>&#13;Running time in all: </translation></message>
<message><source>Synthetic</source><translation>Synthetic</translation></message>
<message><source>Table name</source><translation>Compressor services</translation></message>
<message><source>TableView cleaning</source><translation>Cleaning</translation></message>
<message><source>TableView replacement</source><translation>Replacement</translation></message>
<message><source>TableView retarage</source><translation>Re-setting</translation></message>
<message><source>TableView verification</source><translation>Verification</translation></message>
<message><source>Time</source><translation>&#13;Running time: </translation></message>
<message><source>Trade mark</source><translation>&#13;Brand: </translation></message>
<message><source>Valves</source><translation>&#13;- Valves: </translation></message>
<message><source>Verification</source><translation>verified</translation></message>
<message><source>Vidange mineral</source><translation>&#13;- Oil change, mineral</translation></message>
<message><source>Vidange synthesis</source><translation>&#13;- Oil change, synthetic</translation></message>
</context>
</TS>
