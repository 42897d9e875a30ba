<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Archive</name>
<message><source>At byte</source><translation>à l’octet %lld</translation></message>
<message><source>Cancelled</source><translation>Annulé.</translation></message>
<message><source>Class loop</source><translation>Le fichier est endommagé : une classe descend d’elle-même.</translation></message>
<message><source>Count too large</source><translation>Le fichier est endommagé : il annonce plus de données qu’il n’en contient.</translation></message>
<message><source>Missing item</source><translation>Le fichier est endommagé : une fiche se termine avant son dernier champ.</translation></message>
<message><source>Nil name</source><translation>Le fichier est endommagé : un type ou une classe n’a pas de nom.</translation></message>
<message><source>No color</source><translation>L’archive ne contient pas de couleur.</translation></message>
<message><source>Not number</source><translation>Le fichier est endommagé : une série contient autre chose que des nombres.</translation></message>
<message><source>Not typed stream</source><translation>Le fichier n’est pas un document de ce programme.</translation></message>
<message><source>Root not array</source><translation>Le fichier ne contient pas de liste de fiches.</translation></message>
<message><source>Too deep</source><translation>Les éléments du fichier sont imbriqués trop profondément.</translation></message>
<message><source>Too much</source><translation>Le fichier se déploie bien au-delà de ce qu’il peut vouloir dire.</translation></message>
<message><source>Truncated</source><translation>Le fichier est endommagé : il se termine trop tôt.</translation></message>
<message><source>Undefined reference</source><translation>Le fichier est endommagé : il renvoie à un élément qu’il n’a pas défini.</translation></message>
<message><source>Unexpected tag</source><translation>Le fichier est endommagé : il contient une marque inattendue.</translation></message>
<message><source>Unknown type</source><translation>Le fichier est endommagé : il contient une valeur d’un type inconnu.</translation></message>
<message><source>Unknown version</source><translation>Le fichier est écrit dans une version inconnue du format d’archive.</translation></message>
<message><source>Value out of range</source><translation>Le fichier est endommagé : un nombre est trop grand pour son champ.</translation></message>
<message><source>Version</source><translation>version %d</translation></message>
<message><source>Wrong class</source><translation>Le fichier contient des fiches d’une autre nature.</translation></message>
<message><source>Wrong item object</source><translation>Le fichier est endommagé : un champ contient un élément d’une autre nature.</translation></message>
<message><source>Wrong item type</source><translation>Le fichier est endommagé : un champ n’est pas du type attendu.</translation></message>
<message><source>Wrong reference</source><translation>Le fichier est endommagé : il renvoie à un élément d’une autre nature.</translation></message>
</context>
</TS>
