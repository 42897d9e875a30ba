<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Carnet</name>
<message><source>&#13;&#13;Bail-out</source><translation>&#13;&#13;Bail-out: </translation></message>
<message><source>&#13;   - Shorty</source><translation>&#13;   - Shorty</translation></message>
<message><source>&#13;   - T-shirt</source><translation>&#13;   - T-shirt</translation></message>
<message><source> Run Time</source><translation>&#13;Run time, computer: </translation></message>
<message><source>0,7 bar</source><translation>0.7 bar</translation></message>
<message><source>0,8 bar</source><translation>0.8 bar</translation></message>
<message><source>0,9 bar</source><translation>0.9 bar</translation></message>
<message><source>1,0 bar</source><translation>1.0 bar</translation></message>
<message><source>1,1 bar</source><translation>1.1 bar</translation></message>
<message><source>1,2 bar</source><translation>1.2 bar</translation></message>
<message><source>1,3 bar</source><translation>1.3 bar</translation></message>
<message><source>1,4 bar</source><translation>1.4 bar</translation></message>
<message><source>1,5 bar</source><translation>1.5 bar</translation></message>
<message><source>1,6 bar</source><translation>1.6 bar</translation></message>
<message><source>Add new dive question</source><translation>The form holds a new dive that is not in the logbook yet.</translation></message>
<message><source>Air</source><translation>Air</translation></message>
<message><source>Air tables</source><translation>&#13;Air tables, computer: </translation></message>
<message><source>Air temperature</source><translation>&#13;Air temperature: </translation></message>
<message><source>All dives</source><translation>All dives</translation></message>
<message><source>Altitude</source><translation>&#13;Altitude: </translation></message>
<message><source>Aluminum</source><translation>Aluminium</translation></message>
<message><source>At</source><translation> L at </translation></message>
<message><source>Auxiliary gas</source><translation>Gas available: %d L&#13;Gas used: %d L</translation></message>
<message><source>Available gas</source><translation>&#13;Gas available: </translation></message>
<message><source>Bad</source><translation>Bad</translation></message>
<message><source>Bar per minute</source><translation>%.2f bar/min</translation></message>
<message><source>Beaufort</source><translation>Beaufort</translation></message>
<message><source>Biology</source><translation>Marine biology</translation></message>
<message><source>Bloc principal :</source><translation>Main tank:</translation></message>
<message><source>Bloc secondaire :</source><translation>Second tank:</translation></message>
<message><source>Boat</source><translation>&#13;Boat: </translation></message>
<message><source>Breathed gas</source><translation>&#13;Gas breathed: </translation></message>
<message><source>Buddies</source><translation>&#13;Buddies: </translation></message>
<message><source>CCR rebreather</source><translation>&#13;mCCR rebreather</translation></message>
<message><source>CNS</source><translation>ppO₂ %.2f bar, CNS clock %.1f %%</translation></message>
<message><source>Carbon</source><translation>Carbon</translation></message>
<message><source>Card of dives</source><translation>Summary card: %@</translation></message>
<message><source>Cave</source><translation>Cave</translation></message>
<message><source>Celsius</source><translation>%d °C</translation></message>
<message><source>Character not in Mac OS Roman</source><translation>Dive no. %d holds the character “%@” (%@), which Mac OS Roman text cannot hold.</translation></message>
<message><source>Clear</source><translation>Clear</translation></message>
<message><source>Cloudy</source><translation>Cloudy</translation></message>
<message><source>Column apparatus</source><translation>Apparatus</translation></message>
<message><source>Column date</source><translation>Date</translation></message>
<message><source>Column decompression</source><translation>Decompression</translation></message>
<message><source>Column depth</source><translation>Depth</translation></message>
<message><source>Column dive time</source><translation>Duration</translation></message>
<message><source>Column gas</source><translation>Gas</translation></message>
<message><source>Column number</source><translation>No.</translation></message>
<message><source>Column place</source><translation>Place</translation></message>
<message><source>Column rating</source><translation>Rating</translation></message>
<message><source>Column site</source><translation>Site</translation></message>
<message><source>Column tide</source><translation>Tide</translation></message>
<message><source>Column time of day</source><translation>Time</translation></message>
<message><source>Column visibility</source><translation>Visibility</translation></message>
<message><source>Column water</source><translation>Water</translation></message>
<message><source>Column wreck</source><translation>Wreck</translation></message>
<message><source>Computer</source><translation>&#13;Dive computer: </translation></message>
<message><source>Conditions</source><translation>&#13;&#13;Conditions</translation></message>
<message><source>Configuration</source><translation>&#13;Configuration: </translation></message>
<message><source>Consumption</source><translation>Consumption</translation></message>
<message><source>Consumption of</source><translation>Gas consumption: %@</translation></message>
<message><source>Convert altitudes</source><translation>Dives with an altitude beyond 4000 afterwards: %d. When such a dive is edited, the form sets its altitude to 0.</translation></message>
<message><source>Convert depth now</source><translation>Depth now</translation></message>
<message><source>Convert depth then</source><translation>Depth then</translation></message>
<message><source>Convert explanation</source><translation>The depths, stops, altitudes, temperatures and profiles of all dives are calculated anew and stored. Pressures, volumes and weights stay as they are. Undo takes it back. Which units stand beside the numbers is chosen under Preferences &gt; General.</translation></message>
<message><source>Convert first dives</source><translation>The first %d of %d dives</translation></message>
<message><source>Convert preview</source><translation>Dives before and after</translation></message>
<message><source>Convert title</source><translation>Convert units</translation></message>
<message><source>Convert to feet</source><translation>From &amp;metres and degrees Celsius to feet and degrees Fahrenheit</translation></message>
<message><source>Convert to metres</source><translation>From &amp;feet and degrees Fahrenheit to metres and degrees Celsius</translation></message>
<message><source>Convert units</source><translation>&amp;Convert</translation></message>
<message><source>Convert water now</source><translation>Water now</translation></message>
<message><source>Convert water then</source><translation>Water then</translation></message>
<message><source>Current</source><translation>&#13;Current: </translation></message>
<message><source>Current dive</source><translation>Current dive</translation></message>
<message><source>DILUANT :</source><translation>DILUENT:</translation></message>
<message><source>Datas</source><translation>%d values</translation></message>
<message><source>Date</source><translation>&#13;Date: </translation></message>
<message><source>Deco algorythm type</source><translation>&#13;Algorithm: </translation></message>
<message><source>Deco conservatism</source><translation>&#13;Conservatism: </translation></message>
<message><source>Deco soft name</source><translation>&#13;Planning software: </translation></message>
<message><source>Decompression</source><translation>&#13;&#13;Decompression</translation></message>
<message><source>Deepest band</source><translation>60 m and more</translation></message>
<message><source>Degree Celsius</source><translation>°C</translation></message>
<message><source>Degree Farenheit</source><translation>°F</translation></message>
<message><source>Delta pressure</source><translation>%d bar used</translation></message>
<message><source>Depth</source><translation>&#13;Depth: </translation></message>
<message><source>Detail runtime</source><translation>&#13;Run-time table: </translation></message>
<message><source>Details</source><translation>Details</translation></message>
<message><source>Difficulty level</source><translation>&#13;Difficulty: </translation></message>
<message><source>Diluent</source><translation>&#13;Diluent tank: </translation></message>
<message><source>Dive number</source><translation>Dive number </translation></message>
<message><source>Dive number profile datas title</source><translation>Profile data of dive %d</translation></message>
<message><source>Dive number title</source><translation>Dive no. %d</translation></message>
<message><source>Dive type</source><translation>&#13;Dive type: </translation></message>
<message><source>Dives counted</source><translation>Dives counted</translation></message>
<message><source>Dives found</source><translation>Dives found</translation></message>
<message><source>Drift</source><translation>Drift</translation></message>
<message><source>Dry suit</source><translation>Drysuit</translation></message>
<message><source>Easy</source><translation>Easy</translation></message>
<message><source>End pressure</source><translation>&#13;End pressure: </translation></message>
<message><source>End time</source><translation>&#13;End: </translation></message>
<message><source>Entries</source><translation>Entries: %d</translation></message>
<message><source>Equipment</source><translation>&#13;&#13;Equipment</translation></message>
<message><source>Excellent</source><translation>Excellent</translation></message>
<message><source>Exceptional</source><translation>Exceptional</translation></message>
<message><source>Execrable</source><translation>Execrable</translation></message>
<message><source>Explain CNS</source><translation>CNS clock = %g min × %.2f %%/min = %.1f %%</translation></message>
<message><source>Explain SAC</source><translation>SAC = %d L / %d min / %.1f bar = %.1f L/min</translation></message>
<message><source>Explain SAC bar</source><translation>SAC = %d bar / %d min / %.1f bar = %.2f bar/min</translation></message>
<message><source>Explain available</source><translation>Gas available = %d L × %d bar = %d L</translation></message>
<message><source>Explain average depth</source><translation>Average depth = mean of %d samples = %@</translation></message>
<message><source>Explain mean depth</source><translation>Average depth = %d m / %d dives = %d m</translation></message>
<message><source>Explain mean temperature</source><translation>Mean = %d° / %d temperatures = %d°</translation></message>
<message><source>Explain mean time</source><translation>Average time = %d min / %d dives = %d min</translation></message>
<message><source>Explain nitrogen</source><translation>Nitrogen = 100 %% − %d %% O₂ − %d %% He = %d %%</translation></message>
<message><source>Explain per minute</source><translation>Pressure per minute = %d bar / %d min = %.2f bar/min</translation></message>
<message><source>Explain ppO2 of stop</source><translation>ppO₂ = stop %d: %.0f %% O₂ × %d bar = %.2f bar</translation></message>
<message><source>Explain ppO2 of tank</source><translation>ppO₂ = %.0f %% O₂ × %.2f bar at the deepest point = %.2f bar</translation></message>
<message><source>Explain pressure drop</source><translation>Pressure used = %d bar − %d bar = %d bar</translation></message>
<message><source>Explain share</source><translation>Share = %d / %d × 100 = %.1f %%</translation></message>
<message><source>Explain used</source><translation>Gas used = %d L × (%d bar − %d bar) = %d L</translation></message>
<message><source>Extreme</source><translation>Extreme</translation></message>
<message><source>Farenheit</source><translation>%d °F</translation></message>
<message><source>Feet</source><translation>%.1f ft</translation></message>
<message><source>Figure SAC</source><translation>Surface consumption</translation></message>
<message><source>Figure air</source><translation>Air temperature</translation></message>
<message><source>Figure average depth</source><translation>Average depth</translation></message>
<message><source>Figure gas used</source><translation>Gas used</translation></message>
<message><source>Figure oxygen clock</source><translation>Oxygen clock (CNS)</translation></message>
<message><source>Figure pressure per minute</source><translation>Pressure per minute</translation></message>
<message><source>Figure water</source><translation>Water temperature</translation></message>
<message><source>Filled from site</source><translation>From dive no. %d: %@</translation></message>
<message><source>Find</source><translation>Find</translation></message>
<message><source>Find boats</source><translation>Boats</translation></message>
<message><source>Find buddies</source><translation>Buddies</translation></message>
<message><source>Find computers</source><translation>Computers</translation></message>
<message><source>Find notes</source><translation>Notes</translation></message>
<message><source>Find wrecks</source><translation>Wrecks</translation></message>
<message><source>Flow</source><translation>&#13;Flow: </translation></message>
<message><source>Foggy</source><translation>Foggy</translation></message>
<message><source>Form of dive</source><translation>Dive %d of %d – stored when you close the window or go to another dive</translation></message>
<message><source>Form of new dive</source><translation>New dive – “Add” puts it at the end of the logbook</translation></message>
<message><source>Found dives</source><translation>%d dives found</translation></message>
<message><source>GPS template</source><translation>N 00° 00.000'  E 000° 00.000'</translation></message>
<message><source>Gas</source><translation>&#13;&#13;Gas</translation></message>
<message><source>Gas status</source><translation>Gas available: %d L&#13;Gas used: %d L&#13;Pressure used: %.2f bar/min&#13;Surface consumption: %.1f L/min, %.2f bar/min&#13;Average depth: %.1f m</translation></message>
<message><source>Gas status US</source><translation>Gas available: %d L&#13;Gas used: %d L&#13;Pressure used: %.2f bar/min&#13;Surface consumption: %.1f L/min, %.2f bar/min&#13;Average depth: %.1f ft</translation></message>
<message><source>Gas status error</source><translation>Enter a start pressure and a dive time.</translation></message>
<message><source>General</source><translation>&#13;&#13;General</translation></message>
<message><source>Good</source><translation>Good</translation></message>
<message><source>Graph bar</source><translation>Depths and gases</translation></message>
<message><source>Graph share</source><translation>Share of dives</translation></message>
<message><source>Group apparatus</source><translation>Breathing apparatus</translation></message>
<message><source>Group bail-outs</source><translation>Bail-out tanks</translation></message>
<message><source>Group computer</source><translation>Dive computer</translation></message>
<message><source>Group consumption</source><translation>Consumption and oxygen</translation></message>
<message><source>Group decompression</source><translation>Decompression</translation></message>
<message><source>Group dive</source><translation>Dive</translation></message>
<message><source>Group equipment</source><translation>Exposure protection and configuration</translation></message>
<message><source>Group items</source><translation>Equipment</translation></message>
<message><source>Group kind</source><translation>Kind of dive</translation></message>
<message><source>Group notes</source><translation>Notes</translation></message>
<message><source>Group place</source><translation>Place</translation></message>
<message><source>Group presets</source><translation>Gas presets</translation></message>
<message><source>Group run time</source><translation>Run time</translation></message>
<message><source>Group sea</source><translation>Sea</translation></message>
<message><source>Group stage bottles</source><translation>Stage bottles</translation></message>
<message><source>Group stops</source><translation>Decompression stops</translation></message>
<message><source>Group tanks</source><translation>Tanks</translation></message>
<message><source>Group team</source><translation>Team</translation></message>
<message><source>Group weather</source><translation>Weather</translation></message>
<message><source>Hail</source><translation>Hail</translation></message>
<message><source>Handheld files</source><translation>Handheld logbooks</translation></message>
<message><source>Hard</source><translation>Hard</translation></message>
<message><source>High tide</source><translation>High tide</translation></message>
<message><source>Hint future day</source><translation>in the future</translation></message>
<message><source>Hint pressure rises</source><translation>above the start</translation></message>
<message><source>Import UDCF</source><translation>Import UDCF</translation></message>
<message><source>Import UDDF</source><translation>Import UDDF</translation></message>
<message><source>Import cancelled</source><translation>The import was cancelled.</translation></message>
<message><source>Import element missing</source><translation>the element %@ is missing</translation></message>
<message><source>Import format unknown</source><translation>The file is neither UDCF nor UDDF nor a handheld logbook.</translation></message>
<message><source>Import handheld</source><translation>Import from handheld</translation></message>
<message><source>Import stopped</source><translation>The import stopped at dive %d of the file: %@.</translation></message>
<message><source>Imported dives</source><translation>%d dives were imported.</translation></message>
<message><source>Importing</source><translation>Importing dives…</translation></message>
<message><source>Label air temperature</source><translation>Air temperature</translation></message>
<message><source>Label algorithm</source><translation>Algorithm</translation></message>
<message><source>Label altitude</source><translation>Altitude</translation></message>
<message><source>Label apparatus</source><translation>Apparatus</translation></message>
<message><source>Label ballast</source><translation>Ballast</translation></message>
<message><source>Label boat</source><translation>Boat</translation></message>
<message><source>Label buddies</source><translation>Buddies</translation></message>
<message><source>Label club</source><translation>Club or centre</translation></message>
<message><source>Label configuration</source><translation>Configuration</translation></message>
<message><source>Label conservatism</source><translation>Conservatism</translation></message>
<message><source>Label country</source><translation>Country</translation></message>
<message><source>Label country code</source><translation>Country code</translation></message>
<message><source>Label current</source><translation>Current</translation></message>
<message><source>Label date</source><translation>Date</translation></message>
<message><source>Label datum</source><translation>Datum</translation></message>
<message><source>Label difficulty</source><translation>Difficulty</translation></message>
<message><source>Label dive time</source><translation>Dive time</translation></message>
<message><source>Label dive type</source><translation>Type</translation></message>
<message><source>Label end pressure</source><translation>End pressure</translation></message>
<message><source>Label flow</source><translation>Flow</translation></message>
<message><source>Label gas</source><translation>Gas</translation></message>
<message><source>Label helium</source><translation>Helium</translation></message>
<message><source>Label high GF</source><translation>High GF</translation></message>
<message><source>Label immersion</source><translation>Time in</translation></message>
<message><source>Label low GF</source><translation>Low GF</translation></message>
<message><source>Label low setpoint</source><translation>Low setpoint (bar)</translation></message>
<message><source>Label maker</source><translation>Maker</translation></message>
<message><source>Label material</source><translation>Material</translation></message>
<message><source>Label maximum depth</source><translation>Maximum depth</translation></message>
<message><source>Label method</source><translation>Method</translation></message>
<message><source>Label model</source><translation>Model</translation></message>
<message><source>Label night dive</source><translation>Night dive</translation></message>
<message><source>Label nitrogen</source><translation>Nitrogen</translation></message>
<message><source>Label number</source><translation>Dive number</translation></message>
<message><source>Label oxygen</source><translation>Oxygen</translation></message>
<message><source>Label place</source><translation>Place</translation></message>
<message><source>Label position</source><translation>GPS position</translation></message>
<message><source>Label pressure drop</source><translation>Pressure drop</translation></message>
<message><source>Label rating</source><translation>Rating</translation></message>
<message><source>Label sampling interval</source><translation>Sampling interval</translation></message>
<message><source>Label serial number</source><translation>Serial number</translation></message>
<message><source>Label site</source><translation>Site</translation></message>
<message><source>Label software</source><translation>Software</translation></message>
<message><source>Label start pressure</source><translation>Start pressure</translation></message>
<message><source>Label stop depth</source><translation>Depth</translation></message>
<message><source>Label stop made</source><translation>Made</translation></message>
<message><source>Label stop time</source><translation>Time</translation></message>
<message><source>Label suit</source><translation>Suit</translation></message>
<message><source>Label surface interval</source><translation>Surface interval</translation></message>
<message><source>Label tide</source><translation>Tide</translation></message>
<message><source>Label tide coefficient</source><translation>Tide coefficient</translation></message>
<message><source>Label time to surface</source><translation>Time to surface</translation></message>
<message><source>Label visibility</source><translation>Visibility</translation></message>
<message><source>Label volume</source><translation>Volume</translation></message>
<message><source>Label water temperature</source><translation>Water temperature</translation></message>
<message><source>Label weather</source><translation>Sky</translation></message>
<message><source>Label wind</source><translation>Wind</translation></message>
<message><source>Label wind force</source><translation>Wind force</translation></message>
<message><source>Label working pressure</source><translation>Working pressure</translation></message>
<message><source>Label wrecks</source><translation>Wreck</translation></message>
<message><source>Litres</source><translation>%d L</translation></message>
<message><source>Litres per minute</source><translation>%.1f L/min</translation></message>
<message><source>Location</source><translation>&#13;Place: </translation></message>
<message><source>Low tide</source><translation>Low tide</translation></message>
<message><source>Max and average depth</source><translation>Maximum depth %.1f m, average %.1f m</translation></message>
<message><source>Medium</source><translation>Medium</translation></message>
<message><source>Menu card</source><translation>Summary Card…</translation></message>
<message><source>Menu consumption</source><translation>Gas Consumption…</translation></message>
<message><source>Menu delete dives</source><translation>Delete Dives…</translation></message>
<message><source>Menu dive</source><translation>Dive</translation></message>
<message><source>Menu edit dive</source><translation>Edit Dive</translation></message>
<message><source>Menu graphs</source><translation>Statistics Graphs</translation></message>
<message><source>Menu import UDCF</source><translation>Import UDCF…</translation></message>
<message><source>Menu import UDDF</source><translation>Import UDDF…</translation></message>
<message><source>Menu import handheld</source><translation>Import from Handheld…</translation></message>
<message><source>Menu insert dive</source><translation>Insert Before Selected Dive</translation></message>
<message><source>Menu new dive</source><translation>New Dive</translation></message>
<message><source>Menu previous dives</source><translation>Previous Dives…</translation></message>
<message><source>Metres</source><translation>%.1f m</translation></message>
<message><source>Moderate</source><translation>Moderate</translation></message>
<message><source>Movies</source><translation>Filming</translation></message>
<message><source>N-W</source><translation>N-W</translation></message>
<message><source>Next dive</source><translation>Next dive</translation></message>
<message><source>Night</source><translation>&#13;Night dive</translation></message>
<message><source>Nitrox tables</source><translation>&#13;Nitrox tables, computer: </translation></message>
<message><source>No Tek</source><translation>Recreational</translation></message>
<message><source>No datas</source><translation>No data</translation></message>
<message><source>No dive selected</source><translation>Select a dive to see its details.</translation></message>
<message><source>No dive to export</source><translation>The logbook holds no dive, and UDDF cannot be written without one.</translation></message>
<message><source>No dives yet</source><translation>No dives yet. Press %@ to enter the first one.</translation></message>
<message><source>No notes</source><translation>No notes</translation></message>
<message><source>No suit</source><translation>No suit</translation></message>
<message><source>No wind</source><translation>no wind</translation></message>
<message><source>None</source><translation>None</translation></message>
<message><source>Normal</source><translation>Normal</translation></message>
<message><source>Notes</source><translation>&#13;&#13;Notes</translation></message>
<message><source>OXYGÈNE :</source><translation>OXYGEN:</translation></message>
<message><source>One dive</source><translation>One dive</translation></message>
<message><source>One dive found</source><translation>One dive found</translation></message>
<message><source>One dive imported</source><translation>One dive was imported.</translation></message>
<message><source>Open circuit</source><translation>&#13;Open circuit</translation></message>
<message><source>Other</source><translation>Other</translation></message>
<message><source>Oxygen</source><translation>&#13;eCCR rebreather</translation></message>
<message><source>Page bottles</source><translation>Bottles and profile</translation></message>
<message><source>Page conditions</source><translation>Conditions</translation></message>
<message><source>Page decompression</source><translation>Decompression</translation></message>
<message><source>Page dive</source><translation>Dive</translation></message>
<message><source>Page equipment</source><translation>Equipment and notes</translation></message>
<message><source>Page gas</source><translation>Tanks and gas</translation></message>
<message><source>Parameters</source><translation>&#13;&#13;Parameters</translation></message>
<message><source>Pays</source><translation>&#13;Country: </translation></message>
<message><source>Photo dive</source><translation>Photography</translation></message>
<message><source>Ponies</source><translation>&#13;Stage bottles: </translation></message>
<message><source>Pony 1 title</source><translation>Pony 1 : %d m - %d %% O₂</translation></message>
<message><source>Pony 2 title</source><translation>Pony 2 : %d m - %d %% O₂</translation></message>
<message><source>Pony 3 title</source><translation>Pony 3 : %d m - %d %% O₂</translation></message>
<message><source>PpO2</source><translation>ppO₂ (bar)</translation></message>
<message><source>Previous dive</source><translation>Previous dive</translation></message>
<message><source>Previous dives edit</source><translation>Previous dives…</translation></message>
<message><source>Previous dives hint</source><translation>What you enter here is added to the statistics of every logbook.</translation></message>
<message><source>Previous dives title</source><translation>Dives before this logbook</translation></message>
<message><source>Profile</source><translation>Profile</translation></message>
<message><source>Profile datas</source><translation>Profile data</translation></message>
<message><source>Profile of dive</source><translation>Profile of dive %d</translation></message>
<message><source>Quarry</source><translation>Quarry</translation></message>
<message><source>Rainy</source><translation>Rainy</translation></message>
<message><source>Rating good</source><translation>Good</translation></message>
<message><source>Rating never again</source><translation>Never again</translation></message>
<message><source>Rating poor</source><translation>Poor</translation></message>
<message><source>Rating unforgettable</source><translation>Unforgettable</translation></message>
<message><source>Recorded points</source><translation>Recorded points: %d</translation></message>
<message><source>Recreational</source><translation>Recreational</translation></message>
<message><source>Recuperation</source><translation>Recovery</translation></message>
<message><source>Renumber explanation</source><translation>All dives are numbered anew, in the order in which the table shows them.</translation></message>
<message><source>Renumber first</source><translation>Number of the first dive:</translation></message>
<message><source>Renumber title</source><translation>Renumber Dives</translation></message>
<message><source>Renumbering</source><translation>Renumbering the dives…</translation></message>
<message><source>S-W</source><translation>S-W</translation></message>
<message><source>SCR rebreather</source><translation>&#13;SCR rebreather</translation></message>
<message><source>Sampling rate</source><translation>Sampling interval: %@</translation></message>
<message><source>Scaphander</source><translation>&#13;hCCR rebreather</translation></message>
<message><source>Selected dives</source><translation>Selected dives</translation></message>
<message><source>Semi-dry suit</source><translation>Semi-dry suit</translation></message>
<message><source>Shorty</source><translation>Shorty</translation></message>
<message><source>Site</source><translation>&#13;Site: </translation></message>
<message><source>Snowy</source><translation>Snowy</translation></message>
<message><source>Start pressure</source><translation>&#13;Start pressure: </translation></message>
<message><source>Start time</source><translation>&#13;Start: </translation></message>
<message><source>Stat average depth</source><translation>Average depth</translation></message>
<message><source>Stat average time</source><translation>Average time</translation></message>
<message><source>Stat closed</source><translation>Closed-circuit rebreather</translation></message>
<message><source>Stat coldest</source><translation>Coldest water</translation></message>
<message><source>Stat count and share</source><translation>%d (%@)</translation></message>
<message><source>Stat deepest</source><translation>Deepest dive</translation></message>
<message><source>Stat dives</source><translation>Dives</translation></message>
<message><source>Stat group depths</source><translation>Depths</translation></message>
<message><source>Stat group gases</source><translation>Gases</translation></message>
<message><source>Stat group kinds</source><translation>Kinds of dive</translation></message>
<message><source>Stat group measures</source><translation>Depth, time and water</translation></message>
<message><source>Stat group systems</source><translation>Breathing systems</translation></message>
<message><source>Stat label</source><translation>%@: </translation></message>
<message><source>Stat longest</source><translation>Longest dive</translation></message>
<message><source>Stat mean water</source><translation>Mean water temperature</translation></message>
<message><source>Stat night</source><translation>Night dive</translation></message>
<message><source>Stat open circuit</source><translation>Open circuit</translation></message>
<message><source>Stat semi-closed</source><translation>Semi-closed rebreather</translation></message>
<message><source>Stat total depth</source><translation>Total depth</translation></message>
<message><source>Stat total time</source><translation>Total time</translation></message>
<message><source>Stat warmest</source><translation>Warmest water</translation></message>
<message><source>Statistics</source><translation>Statistics</translation></message>
<message><source>Statistics graphs</source><translation>Statistics in graphs</translation></message>
<message><source>Statistics of</source><translation>Statistics of %@</translation></message>
<message><source>Steel</source><translation>Steel</translation></message>
<message><source>Store dive question</source><translation>The dive in the form was changed and is not stored yet.</translation></message>
<message><source>Strong</source><translation>Strong</translation></message>
<message><source>Structure</source><translation>&#13;Club or dive centre: </translation></message>
<message><source>Surface</source><translation>&#13;Surface interval: </translation></message>
<message><source>T-shirt</source><translation>T-shirt</translation></message>
<message><source>TTS</source><translation>&#13;Time to surface: </translation></message>
<message><source>Table of dives</source><translation>Dives</translation></message>
<message><source>TableView air Nx</source><translation>Air / Nx</translation></message>
<message><source>TableView air Nx O2</source><translation>Air / Nx / O2</translation></message>
<message><source>TableView air O2</source><translation>Air / O2</translation></message>
<message><source>TableView air tables</source><translation>Air tables</translation></message>
<message><source>TableView bad</source><translation>Poor</translation></message>
<message><source>TableView computer</source><translation>Computer</translation></message>
<message><source>TableView excellent</source><translation>Excellent</translation></message>
<message><source>TableView exceptional</source><translation>Exceptional</translation></message>
<message><source>TableView execrable</source><translation>Dreadful</translation></message>
<message><source>TableView good</source><translation>Good</translation></message>
<message><source>TableView high tide</source><translation>%d (high)</translation></message>
<message><source>TableView high tide only</source><translation>High tide</translation></message>
<message><source>TableView low tide</source><translation>%d (low)</translation></message>
<message><source>TableView low tide only</source><translation>Low tide</translation></message>
<message><source>TableView medium</source><translation>Fair</translation></message>
<message><source>TableView nitrox tables</source><translation>Nitrox tables</translation></message>
<message><source>TableView very bad</source><translation>Very poor</translation></message>
<message><source>TableView very good</source><translation>Very good</translation></message>
<message><source>Tank pressure</source><translation> bar</translation></message>
<message><source>Tank_1</source><translation>&#13;Main tank: </translation></message>
<message><source>Tank_2</source><translation>&#13;Second tank: </translation></message>
<message><source>Tek</source><translation>Technical</translation></message>
<message><source>Thundery</source><translation>Thundery</translation></message>
<message><source>Tide coefficient</source><translation>&#13;Tide coefficient: </translation></message>
<message><source>Time</source><translation>&#13;Dive time: </translation></message>
<message><source>Tip add</source><translation>Add a dive to the logbook</translation></message>
<message><source>Tip consumption</source><translation>Show how much gas this dive took</translation></message>
<message><source>Tip delete</source><translation>Delete the selected dives</translation></message>
<message><source>Tip import UDCF</source><translation>Import dives from a UDCF file</translation></message>
<message><source>Tip import UDDF</source><translation>Import dives from a UDDF file</translation></message>
<message><source>Tip insert</source><translation>Insert the dive before the selected one</translation></message>
<message><source>Tip preset air</source><translation>Air in the main tank: oxygen 21, nitrogen 79, no helium</translation></message>
<message><source>Tip preset heliox</source><translation>Heliox in the main tank: helium makes up the rest of the oxygen</translation></message>
<message><source>Tip preset nitrox</source><translation>Nitrox in the main tank: nitrogen makes up the rest of the oxygen</translation></message>
<message><source>Tip print</source><translation>Print the logbook</translation></message>
<message><source>Tip profile</source><translation>Show the profile of the dive</translation></message>
<message><source>Tip profile datas</source><translation>Show the profile data of the dive</translation></message>
<message><source>Tip save</source><translation>Save the logbook</translation></message>
<message><source>Tip statistics</source><translation>Show the statistics of the logbook</translation></message>
<message><source>Tip synthesis card</source><translation>Show the summary card of the dives</translation></message>
<message><source>Total dives</source><translation>%d dives</translation></message>
<message><source>Training</source><translation>Training</translation></message>
<message><source>Tropical suit</source><translation>Tropical suit</translation></message>
<message><source>UDCF files</source><translation>UDCF files</translation></message>
<message><source>UDDF files</source><translation>UDDF files</translation></message>
<message><source>Under ice</source><translation>Under ice</translation></message>
<message><source>Undo add</source><translation>Add Dive</translation></message>
<message><source>Undo convert units</source><translation>Convert Units</translation></message>
<message><source>Undo delete</source><translation>Delete Dives</translation></message>
<message><source>Undo import</source><translation>Import</translation></message>
<message><source>Undo insert</source><translation>Insert Dive</translation></message>
<message><source>Undo renumber</source><translation>Renumber Dives</translation></message>
<message><source>Undo update</source><translation>Edit Dive</translation></message>
<message><source>Unknown temperature</source><translation>Not known: no temperature was entered</translation></message>
<message><source>Unknown with bad samples</source><translation>Not known: the profile holds depths that are no numbers</translation></message>
<message><source>Unknown without samples</source><translation>Not known: no profile, so no average depth</translation></message>
<message><source>Unknown without start pressure</source><translation>Not known: no start pressure</translation></message>
<message><source>Unknown without tank volume</source><translation>Not known: no tank volume</translation></message>
<message><source>Unknown without time</source><translation>Not known: no dive time</translation></message>
<message><source>Used gas</source><translation>&#13;Gas: </translation></message>
<message><source>Used pressure</source><translation>&#13;Pressure used: </translation></message>
<message><source>Very bad</source><translation>Very bad</translation></message>
<message><source>Very easy</source><translation>Very easy</translation></message>
<message><source>Very good</source><translation>Very good</translation></message>
<message><source>Very hard</source><translation>Very hard</translation></message>
<message><source>Very strong</source><translation>Very strong</translation></message>
<message><source>Violent</source><translation>Violent</translation></message>
<message><source>Visibility</source><translation>&#13;Visibility: </translation></message>
<message><source>W</source><translation>W</translation></message>
<message><source>Water temperature</source><translation>&#13;Water temperature: </translation></message>
<message><source>Weak</source><translation>Weak</translation></message>
<message><source>Weather</source><translation>&#13;Weather: </translation></message>
<message><source>Weight</source><translation>&#13;Weight: </translation></message>
<message><source>Wet suit</source><translation>Wetsuit</translation></message>
<message><source>Wind</source><translation>&#13;Wind: </translation></message>
<message><source>Wind force</source><translation>&#13;Wind force: </translation></message>
<message><source>Wind sector</source><translation>&#13;Wind sector: </translation></message>
<message><source>Without previous dives</source><translation>Without previous dives</translation></message>
<message><source>Work</source><translation>Work</translation></message>
<message><source>Wreck</source><translation>Wreck</translation></message>
<message><source>Wrecks</source><translation>&#13;Wrecks: </translation></message>
<message><source>high setpoint</source><translation>High setpoint (bar)</translation></message>
</context>
</TS>
