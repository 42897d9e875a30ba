<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Epaves</name>
<message><source>Access</source><translation>&#13;Access: </translation></message>
<message><source>Armateur</source><translation>&#13;Owner: </translation></message>
<message><source>Bottom type</source><translation>&#13;Bottom: </translation></message>
<message><source>Build date</source><translation>&#13;Built: </translation></message>
<message><source>Build location</source><translation>&#13;Built at: </translation></message>
<message><source>Captain</source><translation>&#13;Captain: </translation></message>
<message><source>Cargo</source><translation>&#13;Cargo: </translation></message>
<message><source>Characteristics</source><translation>&#13;&#13;Characteristics</translation></message>
<message><source>Concrete</source><translation>Concrete</translation></message>
<message><source>Country</source><translation>&#13;Country: </translation></message>
<message><source>Crew</source><translation>&#13;Crew: </translation></message>
<message><source>Degree</source><translation>°</translation></message>
<message><source>Depth unit</source><translation> m</translation></message>
<message><source>Difficult</source><translation>Difficult</translation></message>
<message><source>Difficulty</source><translation>&#13;Difficulty: </translation></message>
<message><source>Easy</source><translation>Easy</translation></message>
<message><source>Edit window title</source><translation>Wreck: %@</translation></message>
<message><source>First visit date</source><translation>&#13;First visit: </translation></message>
<message><source>From port</source><translation>&#13;From: </translation></message>
<message><source>GPS</source><translation>&#13;GPS position: </translation></message>
<message><source>Group dive</source><translation>Diving it</translation></message>
<message><source>Group engine</source><translation>Propulsion</translation></message>
<message><source>Group landmarks</source><translation>Landmarks</translation></message>
<message><source>Group lie</source><translation>How it lies</translation></message>
<message><source>Group life</source><translation>Life</translation></message>
<message><source>Group place</source><translation>Place</translation></message>
<message><source>Group remarks</source><translation>Remarks</translation></message>
<message><source>Group ship</source><translation>Ship</translation></message>
<message><source>Group sinking</source><translation>Last voyage</translation></message>
<message><source>Harbours</source><translation>&#13;Home ports: </translation></message>
<message><source>High depth</source><translation>&#13;Shallowest point: </translation></message>
<message><source>Historic</source><translation>&#13;&#13;History</translation></message>
<message><source>Inclination</source><translation>&#13;List: </translation></message>
<message><source>Interest</source><translation>&#13;Interest: </translation></message>
<message><source>Iron</source><translation>Iron</translation></message>
<message><source>Label access</source><translation>Access</translation></message>
<message><source>Label access on board</source><translation>Access on board</translation></message>
<message><source>Label bottom</source><translation>Bottom</translation></message>
<message><source>Label build date</source><translation>Built</translation></message>
<message><source>Label build place</source><translation>Built at</translation></message>
<message><source>Label captain</source><translation>Captain</translation></message>
<message><source>Label cargo</source><translation>Cargo</translation></message>
<message><source>Label country</source><translation>Country</translation></message>
<message><source>Label crew</source><translation>Crew</translation></message>
<message><source>Label datum</source><translation>Datum</translation></message>
<message><source>Label deepest point</source><translation>Deepest point</translation></message>
<message><source>Label difficulty</source><translation>Difficulty</translation></message>
<message><source>Label engine type</source><translation>Engine type</translation></message>
<message><source>Label finding</source><translation>Finding it</translation></message>
<message><source>Label first visit</source><translation>First visit</translation></message>
<message><source>Label from port</source><translation>From</translation></message>
<message><source>Label harbours</source><translation>Home ports</translation></message>
<message><source>Label inclination</source><translation>List</translation></message>
<message><source>Label interest</source><translation>Interest</translation></message>
<message><source>Label landmark 1</source><translation>First</translation></message>
<message><source>Label landmark 2</source><translation>Second</translation></message>
<message><source>Label landmark 3</source><translation>Third</translation></message>
<message><source>Label length</source><translation>Length</translation></message>
<message><source>Label material</source><translation>Material</translation></message>
<message><source>Label name</source><translation>Name</translation></message>
<message><source>Label nationality</source><translation>Nationality</translation></message>
<message><source>Label orientation</source><translation>Orientation</translation></message>
<message><source>Label orientation given</source><translation>Orientation known</translation></message>
<message><source>Label owner</source><translation>Owner</translation></message>
<message><source>Label picture</source><translation>Picture</translation></message>
<message><source>Label place</source><translation>Place</translation></message>
<message><source>Label position</source><translation>GPS position</translation></message>
<message><source>Label power</source><translation>Power</translation></message>
<message><source>Label previous names</source><translation>Previous names</translation></message>
<message><source>Label propulsion</source><translation>Propulsion</translation></message>
<message><source>Label registration</source><translation>Registration</translation></message>
<message><source>Label shallowest point</source><translation>Shallowest point</translation></message>
<message><source>Label sinking cause</source><translation>Cause of sinking</translation></message>
<message><source>Label sinking date</source><translation>Sunk on</translation></message>
<message><source>Label site</source><translation>Site</translation></message>
<message><source>Label to port</source><translation>To</translation></message>
<message><source>Label to visit</source><translation>Still to be visited</translation></message>
<message><source>Label tonnage</source><translation>Tonnage</translation></message>
<message><source>Label type</source><translation>Type of ship</translation></message>
<message><source>Label updated</source><translation>Updated on</translation></message>
<message><source>Label width</source><translation>Width</translation></message>
<message><source>Land mark 1</source><translation>&#13;Landmark 1: </translation></message>
<message><source>Land mark 2</source><translation>&#13;Landmark 2: </translation></message>
<message><source>Land mark 3</source><translation>&#13;Landmark 3: </translation></message>
<message><source>Land marks</source><translation>&#13;&#13;Landmarks</translation></message>
<message><source>Localisation</source><translation>&#13;Finding it: </translation></message>
<message><source>Localisation title</source><translation>&#13;&#13;Location</translation></message>
<message><source>Location</source><translation>&#13;Place: </translation></message>
<message><source>Low depth</source><translation>&#13;Deepest point: </translation></message>
<message><source>Medium</source><translation>Medium</translation></message>
<message><source>Menu</source><translation>Wreck</translation></message>
<message><source>Nationality</source><translation>&#13;Nationality: </translation></message>
<message><source>None</source><translation>None</translation></message>
<message><source>Orientation</source><translation>&#13;Orientation: </translation></message>
<message><source>Page dive</source><translation>Dive</translation></message>
<message><source>Page history</source><translation>History</translation></message>
<message><source>Page place</source><translation>Place</translation></message>
<message><source>Page remarks</source><translation>Remarks</translation></message>
<message><source>Page ship</source><translation>Ship</translation></message>
<message><source>Polyester</source><translation>Polyester</translation></message>
<message><source>Port</source><translation>To port</translation></message>
<message><source>Remarks</source><translation>&#13;Remarks: </translation></message>
<message><source>Ship wreck cause</source><translation>&#13;Cause of sinking: </translation></message>
<message><source>Ship wreck date</source><translation>&#13;Sunk on: </translation></message>
<message><source>Site</source><translation>&#13;Site: </translation></message>
<message><source>Starboard</source><translation>To starboard</translation></message>
<message><source>Table name</source><translation>Wreck repertory</translation></message>
<message><source>TableView diesel</source><translation>Diesel</translation></message>
<message><source>TableView diesel elec</source><translation>Diesel-electric</translation></message>
<message><source>TableView essence</source><translation>Petrol</translation></message>
<message><source>TableView kerosene</source><translation>Kerosene</translation></message>
<message><source>TableView nucleaire</source><translation>Nuclear</translation></message>
<message><source>TableView rames</source><translation>Oars</translation></message>
<message><source>TableView remorque</source><translation>Towed</translation></message>
<message><source>TableView vapeur</source><translation>Steam</translation></message>
<message><source>TableView voile</source><translation>Sail</translation></message>
<message><source>To port</source><translation>&#13;To: </translation></message>
<message><source>Updated on</source><translation>&#13;Updated on: </translation></message>
<message><source>Wood</source><translation>Wood</translation></message>
<message><source>Wreck length</source><translation>&#13;Length (m): </translation></message>
<message><source>Wreck material</source><translation>&#13;Material: </translation></message>
<message><source>Wreck name</source><translation>Name: </translation></message>
<message><source>Wreck power</source><translation>&#13;Power: </translation></message>
<message><source>Wreck previous names</source><translation>&#13;Previous names: </translation></message>
<message><source>Wreck propulsion</source><translation>&#13;Propulsion: </translation></message>
<message><source>Wreck registration</source><translation>&#13;Registration: </translation></message>
<message><source>Wreck tonnage</source><translation>&#13;Tonnage: </translation></message>
<message><source>Wreck type</source><translation>&#13;Type of ship: </translation></message>
<message><source>Wreck type machine</source><translation>&#13;Engine type: </translation></message>
<message><source>Wreck wide</source><translation>&#13;Width (m): </translation></message>
<message><source>Wrecks</source><translation>Wreck repertory</translation></message>
</context>
</TS>
