<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Main</name>
<message><source>Add</source><translation>Ajouter</translation></message>
<message><source>Add item to ComboBox</source><translation>Ajouter « %@ » à la liste ?</translation></message>
<message><source>Add to toolbar</source><translation>Ajouter à la barre d’outils</translation></message>
<message><source>Cancel</source><translation>Annuler</translation></message>
<message><source>Cancelled</source><translation>Le travail a été annulé.</translation></message>
<message><source>Carnet de plongee</source><translation>Carnet de plongée</translation></message>
<message><source>Cotation 1</source><translation>★</translation></message>
<message><source>Customise</source><translation>Personnaliser…</translation></message>
<message><source>Customise toolbar</source><translation>Personnaliser la barre d’outils</translation></message>
<message><source>Deco</source><translation>Décompression</translation></message>
<message><source>Delete</source><translation>Supprimer</translation></message>
<message><source>Display</source><translation>Affichage</translation></message>
<message><source>Divers documents</source><translation>Documents divers</translation></message>
<message><source>Document has no file</source><translation>Le document n’a pas encore été enregistré dans un fichier.</translation></message>
<message><source>Document not opened</source><translation>Impossible d’ouvrir « %@ » : %@</translation></message>
<message><source>Document not saved</source><translation>Impossible d’enregistrer « %@ » : %@</translation></message>
<message><source>Erase</source><translation>Effacer</translation></message>
<message><source>Erase dive</source><translation>Supprimer les plongées sélectionnées ?</translation></message>
<message><source>Erase selection</source><translation>Supprimer les éléments sélectionnés ?</translation></message>
<message><source>File is a folder</source><translation>C’est un dossier et non un fichier.</translation></message>
<message><source>File is not regular</source><translation>Ce n’est pas un fichier ordinaire.</translation></message>
<message><source>File missing</source><translation>Ce fichier n’existe pas.</translation></message>
<message><source>File not readable</source><translation>Le fichier ne peut pas être lu.</translation></message>
<message><source>File not writable</source><translation>Le fichier ne peut pas être écrit.</translation></message>
<message><source>File permission denied</source><translation>Vous n’en avez pas l’autorisation.</translation></message>
<message><source>File system read-only</source><translation>Le disque est protégé en écriture.</translation></message>
<message><source>Flexible space</source><translation>Espace variable</translation></message>
<message><source>Folder missing</source><translation>Le dossier n’existe pas.</translation></message>
<message><source>General</source><translation>Général</translation></message>
<message><source>Insert</source><translation>Insérer</translation></message>
<message><source>Logbook</source><translation>Carnet</translation></message>
<message><source>Materiel</source><translation>Matériel</translation></message>
<message><source>Menu columns</source><translation>Colonnes</translation></message>
<message><source>Menu copy</source><translation>Copier</translation></message>
<message><source>Menu find</source><translation>Rechercher</translation></message>
<message><source>Menu select all</source><translation>Tout sélectionner</translation></message>
<message><source>Move down</source><translation>Déplacer vers la fin</translation></message>
<message><source>Move up</source><translation>Déplacer vers le début</translation></message>
<message><source>No</source><translation>Non</translation></message>
<message><source>No Mac OS Roman</source><translation>Ce système ne sait pas convertir du texte en Mac OS Roman.</translation></message>
<message><source>No space left</source><translation>Il n’y a plus assez de place sur le disque.</translation></message>
<message><source>No such field</source><translation>Il n’y a pas de champ « %@ ».</translation></message>
<message><source>No such value</source><translation>« %@ » ne peut pas valoir « %@ ».</translation></message>
<message><source>No valid datas</source><translation>Les valeurs ne sont pas valables.</translation></message>
<message><source>Preferences not saved</source><translation>Impossible d’enregistrer les préférences dans « %@ ».</translation></message>
<message><source>Print</source><translation>Imprimer</translation></message>
<message><source>Printing</source><translation>Impression…</translation></message>
<message><source>Profile</source><translation>Profil</translation></message>
<message><source>Rebreather</source><translation>Recycleur</translation></message>
<message><source>Remove from toolbar</source><translation>Retirer de la barre d’outils</translation></message>
<message><source>Save</source><translation>Enregistrer</translation></message>
<message><source>Separator</source><translation>Séparateur</translation></message>
<message><source>Space</source><translation>Espace</translation></message>
<message><source>Synthesis card</source><translation>Fiche de synthèse</translation></message>
<message><source>Tip customise</source><translation>Choisir le contenu de cette barre d’outils</translation></message>
<message><source>Tip erase</source><translation>Effacer tous les champs</translation></message>
<message><source>Toolbar available</source><translation>Disponibles</translation></message>
<message><source>Toolbar icons</source><translation>Icônes</translation></message>
<message><source>Toolbar icons and words</source><translation>Texte sous les icônes</translation></message>
<message><source>Toolbar initial</source><translation>Disposition initiale</translation></message>
<message><source>Toolbar present</source><translation>Dans la barre d’outils</translation></message>
<message><source>Toolbar shows</source><translation>Afficher</translation></message>
<message><source>Toolbar words</source><translation>Texte</translation></message>
<message><source>Toolbar words beside icons</source><translation>Texte à côté des icônes</translation></message>
<message><source>Unknown document type</source><translation>Tavrel ne connaît pas de type de document « %@ ».</translation></message>
<message><source>Untitled</source><translation>Sans titre</translation></message>
<message><source>XML file beyond limits</source><translation>Le fichier XML s’imbrique ou s’étend au-delà de toute mesure et n’a pas été lu.</translation></message>
<message><source>XML file too large</source><translation>Le fichier XML est trop grand pour être lu.</translation></message>
<message><source>XML file without elements</source><translation>Le fichier n’est pas du XML.</translation></message>
<message><source>Yes</source><translation>Oui</translation></message>
</context>
</TS>
