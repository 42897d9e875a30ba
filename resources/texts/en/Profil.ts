<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Profil</name>
<message><source>Ascent alarm</source><translation>ascent alarm</translation></message>
<message><source>At the surface</source><translation>at the surface</translation></message>
<message><source>Bottom gas</source><translation>Bottom</translation></message>
<message><source>Ceiling violated</source><translation>ceiling violated</translation></message>
<message><source>Data</source><translation>Data…</translation></message>
<message><source>Depth m</source><translation>Depth (m)</translation></message>
<message><source>Depth no value</source><translation>Time: %.1f min</translation></message>
<message><source>Depth time</source><translation>Depth: %.1f m   Time: %.1f min</translation></message>
<message><source>Editor explanation</source><translation>Each line is one sample. Importing replaces the series that are marked by their texts and stores the dive.</translation></message>
<message><source>Gas bar</source><translation>Gas (bar)</translation></message>
<message><source>Gas switch</source><translation>change to %d %% O₂</translation></message>
<message><source>Import elsewhere question</source><translation>Series were typed for dive %d. Import them into dive %d?</translation></message>
<message><source>Import question</source><translation>Import the series that you typed into dive %d?</translation></message>
<message><source>Import series</source><translation>Import Marked Series</translation></message>
<message><source>No profile</source><translation>This dive has no recorded profile.</translation></message>
<message><source>O2</source><translation>O₂</translation></message>
<message><source>Page layout</source><translation>Page Setup…</translation></message>
<message><source>PpO2</source><translation>ppO₂ %.1f bar</translation></message>
<message><source>Profile description</source><translation>%d samples over %.0f minutes, maximum depth %.1f m, average depth %.1f m.</translation></message>
<message><source>Profile description without average</source><translation>%d samples over %.0f minutes, maximum depth %.1f m; some depths are no numbers.</translation></message>
<message><source>Profile of the dive</source><translation>Profile of the dive</translation></message>
<message><source>Replace</source><translation>Replace</translation></message>
<message><source>Replace all</source><translation>Replace all by nothing</translation></message>
<message><source>Sample ppO2</source><translation>ppO₂ %.2f bar</translation></message>
<message><source>Series ascent</source><translation>Ascent alarm</translation></message>
<message><source>Series ceiling</source><translation>Ceiling</translation></message>
<message><source>Series depth</source><translation>Depth (m)</translation></message>
<message><source>Series gas</source><translation>Gas switch</translation></message>
<message><source>Series pressure</source><translation>Pressure (bar)</translation></message>
<message><source>Series slow</source><translation>Slow down</translation></message>
<message><source>Series surface</source><translation>Surface</translation></message>
<message><source>Slow down</source><translation>slow down</translation></message>
<message><source>Table depth</source><translation>Depth (m)</translation></message>
<message><source>Table events</source><translation>Events</translation></message>
<message><source>Table oxygen</source><translation>O₂ of the gas</translation></message>
<message><source>Table ppO2</source><translation>ppO₂ (bar)</translation></message>
<message><source>Table pressure</source><translation>Pressure (bar)</translation></message>
<message><source>Table sample</source><translation>Sample</translation></message>
<message><source>Table time</source><translation>Time</translation></message>
<message><source>Time min</source><translation>Time (min)</translation></message>
<message><source>Time scale</source><translation>Sampling interval:</translation></message>
<message><source>Tip replace all</source><translation>Empties the seven texts and chooses them all</translation></message>
<message><source>Typed for dive</source><translation>Typed for dive %d</translation></message>
<message><source>Values of the sample</source><translation>Values of the sample</translation></message>
</context>
</TS>
