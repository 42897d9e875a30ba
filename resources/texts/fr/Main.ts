<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Main</name>
<message><source>About text</source><translation>Un carnet de plongée, avec des calculateurs et des registres.</translation></message>
<message><source>About title</source><translation>À propos de Tavrel</translation></message>
<message><source>Activities</source><translation>Activités</translation></message>
<message><source>Add</source><translation>Ajouter</translation></message>
<message><source>Add entry</source><translation>Ajouter</translation></message>
<message><source>Add item to ComboBox</source><translation>Ajouter « %@ » à la liste ?</translation></message>
<message><source>Add item to which list</source><translation>La liste est « %@ ». Sa fenêtre, dans le menu Listes, peut en décider une fois pour toutes.</translation></message>
<message><source>Add new card question</source><translation>Le formulaire contient une nouvelle fiche qui n’est pas encore dans la liste.</translation></message>
<message><source>Add second</source><translation>Ajouter en double</translation></message>
<message><source>Add to toolbar</source><translation>Ajouter à la barre d’outils</translation></message>
<message><source>All documents</source><translation>Tous les documents</translation></message>
<message><source>All files</source><translation>Tous les fichiers</translation></message>
<message><source>Answer no</source><translation>&amp;Non</translation></message>
<message><source>Answer yes</source><translation>&amp;Oui</translation></message>
<message><source>Brands</source><translation>Marques</translation></message>
<message><source>Buddies</source><translation>Palanquées</translation></message>
<message><source>Cancel</source><translation>Annuler</translation></message>
<message><source>Cancelled</source><translation>Le travail a été annulé.</translation></message>
<message><source>Cards</source><translation>%d fiches</translation></message>
<message><source>Carnet de plongee</source><translation>Carnet de plongée</translation></message>
<message><source>Causes of sinking</source><translation>Causes de naufrage</translation></message>
<message><source>Check</source><translation>✓</translation></message>
<message><source>Closed</source><translation>Fermé</translation></message>
<message><source>Clubs</source><translation>Clubs</translation></message>
<message><source>Command line description</source><translation>Un carnet de plongée.</translation></message>
<message><source>Command line files</source><translation>Documents à ouvrir.</translation></message>
<message><source>Command line help</source><translation>Afficher cette aide.</translation></message>
<message><source>Command line version</source><translation>Afficher la version.</translation></message>
<message><source>Copy data</source><translation>Copier les données</translation></message>
<message><source>Copy kept</source><translation>Le contenu précédent est conservé dans « %@ ».</translation></message>
<message><source>Copy picture</source><translation>Copier l’image</translation></message>
<message><source>Copying</source><translation>Copie des lignes…</translation></message>
<message><source>Cotation 0</source><translation>☆</translation></message>
<message><source>Cotation 1</source><translation>★</translation></message>
<message><source>Cotation 2</source><translation>★★</translation></message>
<message><source>Cotation 3</source><translation>★★★</translation></message>
<message><source>Cotation 4</source><translation>★★★★</translation></message>
<message><source>Cotation 5</source><translation>★★★★★</translation></message>
<message><source>Cotation in words</source><translation>%d étoiles sur %d</translation></message>
<message><source>Countries</source><translation>Pays</translation></message>
<message><source>Country codes</source><translation>Codes des pays</translation></message>
<message><source>Customise</source><translation>Personnaliser…</translation></message>
<message><source>Customise toolbar</source><translation>Personnaliser la barre d’outils</translation></message>
<message><source>Deco</source><translation>Décompression</translation></message>
<message><source>Delete</source><translation>Supprimer</translation></message>
<message><source>Delete entries</source><translation>Supprimer</translation></message>
<message><source>Discard</source><translation>Abandonner</translation></message>
<message><source>Dismiss</source><translation>Fermer</translation></message>
<message><source>Display</source><translation>Affichage</translation></message>
<message><source>Dive computers</source><translation>Ordinateurs de plongée</translation></message>
<message><source>Divers documents</source><translation>Documents divers</translation></message>
<message><source>Diving bag</source><translation>Sac de plongée</translation></message>
<message><source>Document has no file</source><translation>Le document n’a pas encore été enregistré dans un fichier.</translation></message>
<message><source>Document not opened</source><translation>Impossible d’ouvrir « %@ » : %@</translation></message>
<message><source>Document not saved</source><translation>Impossible d’enregistrer « %@ » : %@</translation></message>
<message><source>Don't save</source><translation>Ne pas enregistrer</translation></message>
<message><source>Empty record book</source><translation>Il n’y a pas encore de fiche. %@ en crée une.</translation></message>
<message><source>Equipment types</source><translation>Types de matériel</translation></message>
<message><source>Erase</source><translation>Effacer</translation></message>
<message><source>Erase card</source><translation>Supprimer la fiche sélectionnée ?</translation></message>
<message><source>Erase cards</source><translation>Supprimer %d fiches ?</translation></message>
<message><source>Erase dive</source><translation>Supprimer la plongée sélectionnée ?</translation></message>
<message><source>Erase dives</source><translation>Supprimer %d plongées ?</translation></message>
<message><source>Erase interventions</source><translation>Supprimer %d interventions ?</translation></message>
<message><source>Erase revisions</source><translation>Supprimer %d révisions ?</translation></message>
<message><source>Erase selection</source><translation>Supprimer les éléments sélectionnés ?</translation></message>
<message><source>Export onto document</source><translation>Une exportation ne peut pas remplacer le fichier du document lui-même.</translation></message>
<message><source>Exporting</source><translation>Exportation…</translation></message>
<message><source>File changed by another</source><translation>Un autre programme a modifié le fichier.</translation></message>
<message><source>File is a folder</source><translation>C’est un dossier et non un fichier.</translation></message>
<message><source>File is not regular</source><translation>Ce n’est pas un fichier ordinaire.</translation></message>
<message><source>File is open</source><translation>Il est ouvert dans une autre fenêtre.</translation></message>
<message><source>File missing</source><translation>Ce fichier n’existe pas.</translation></message>
<message><source>File not readable</source><translation>Le fichier ne peut pas être lu.</translation></message>
<message><source>File not writable</source><translation>Le fichier ne peut pas être écrit.</translation></message>
<message><source>File of newer version</source><translation>Une version plus récente de Tavrel a écrit le fichier. Ce que celle-ci n’en connaît pas serait perdu en l’enregistrant par-dessus.</translation></message>
<message><source>File open elsewhere</source><translation>Il est ouvert dans %@.</translation></message>
<message><source>File permission denied</source><translation>Vous n’en avez pas l’autorisation.</translation></message>
<message><source>File removed by another</source><translation>Un autre programme a supprimé ou renommé le fichier.</translation></message>
<message><source>File system read-only</source><translation>Le disque est protégé en écriture.</translation></message>
<message><source>Filter</source><translation>Filtre</translation></message>
<message><source>Filter hint</source><translation>Filtrer : des mots dans tous les champs, ou champ:mot</translation></message>
<message><source>Filter menu</source><translation>Filtres conservés et champs</translation></message>
<message><source>Filter name</source><translation>Nom du filtre :</translation></message>
<message><source>Filter one field</source><translation>Dans un champ</translation></message>
<message><source>Filter tip</source><translation>Des mots dans tous les champs, sans égard aux accents ni à la casse ; tous doivent être trouvés. Le nom d’un champ restreint : nom:texte, nombre&gt;30, date&gt;=2023-05. Les mots entre guillemets vont ensemble. Échap montre de nouveau tout.</translation></message>
<message><source>Filtering</source><translation>Filtrage…</translation></message>
<message><source>Find in</source><translation>Chercher dans : %@</translation></message>
<message><source>Find where</source><translation>Choisir où chercher</translation></message>
<message><source>Flexible space</source><translation>Espace variable</translation></message>
<message><source>Folder missing</source><translation>Le dossier n’existe pas.</translation></message>
<message><source>Form of card</source><translation>Fiche %d sur %d – enregistrée quand vous fermez la fenêtre ou changez de fiche</translation></message>
<message><source>Form of new card</source><translation>Nouvelle fiche – « Ajouter » la place à la fin de la liste</translation></message>
<message><source>Found cards</source><translation>%d fiches trouvées</translation></message>
<message><source>General</source><translation>Général</translation></message>
<message><source>Hint read as</source><translation>lu comme %@</translation></message>
<message><source>Hint usual maximum</source><translation>d’ordinaire %@ au plus</translation></message>
<message><source>Hint usual minimum</source><translation>d’ordinaire %@ au moins</translation></message>
<message><source>Hint usual range</source><translation>d’ordinaire de %@ à %@</translation></message>
<message><source>Import into</source><translation>« %@ » contient des plongées venues d’ailleurs. Les importer dans « %@ » ?</translation></message>
<message><source>Import into it</source><translation>Importer…</translation></message>
<message><source>Import into new</source><translation>« %@ » contient des plongées venues d’ailleurs. Les importer dans un nouveau carnet ?</translation></message>
<message><source>Insert</source><translation>Insérer</translation></message>
<message><source>Interventions</source><translation>%d interventions</translation></message>
<message><source>Keep filter</source><translation>Conserver le filtre…</translation></message>
<message><source>Keep filter title</source><translation>Conserver le filtre</translation></message>
<message><source>Loading</source><translation>Chargement…</translation></message>
<message><source>Lock holder</source><translation>%@, processus %@ sur %@</translation></message>
<message><source>Lock holder unknown</source><translation>un autre programme</translation></message>
<message><source>Logbook</source><translation>Carnet</translation></message>
<message><source>Materiel</source><translation>Matériel</translation></message>
<message><source>Memo</source><translation>Pense-bête</translation></message>
<message><source>Memo hint</source><translation>Des notes pour vous, gardées d’une session à l’autre</translation></message>
<message><source>Menu about</source><translation>À propos de Tavrel</translation></message>
<message><source>Menu calculators</source><translation>Calculateurs</translation></message>
<message><source>Menu clear recent</source><translation>Effacer la liste</translation></message>
<message><source>Menu close</source><translation>Fermer</translation></message>
<message><source>Menu columns</source><translation>Colonnes</translation></message>
<message><source>Menu convert units</source><translation>Convertir les unités…</translation></message>
<message><source>Menu copy</source><translation>Copier</translation></message>
<message><source>Menu delete cards</source><translation>Supprimer les fiches…</translation></message>
<message><source>Menu edit</source><translation>Édition</translation></message>
<message><source>Menu edit card</source><translation>Modifier la fiche</translation></message>
<message><source>Menu export</source><translation>Exporter des plongées…</translation></message>
<message><source>Menu file</source><translation>Fichier</translation></message>
<message><source>Menu filter</source><translation>Filtrer</translation></message>
<message><source>Menu find</source><translation>Rechercher</translation></message>
<message><source>Menu help</source><translation>Aide</translation></message>
<message><source>Menu import</source><translation>Importer</translation></message>
<message><source>Menu insert card</source><translation>Insérer avant la fiche sélectionnée</translation></message>
<message><source>Menu lists</source><translation>Listes</translation></message>
<message><source>Menu minimise</source><translation>Réduire</translation></message>
<message><source>Menu new</source><translation>Nouveau</translation></message>
<message><source>Menu new card</source><translation>Nouvelle fiche</translation></message>
<message><source>Menu next card</source><translation>Fiche suivante</translation></message>
<message><source>Menu open</source><translation>Ouvrir…</translation></message>
<message><source>Menu open recent</source><translation>Ouvrir récent</translation></message>
<message><source>Menu page setup</source><translation>Mise en page…</translation></message>
<message><source>Menu preferences</source><translation>Préférences…</translation></message>
<message><source>Menu previous card</source><translation>Fiche précédente</translation></message>
<message><source>Menu print</source><translation>&amp;Imprimer…</translation></message>
<message><source>Menu print preview</source><translation>Aperçu avant impression…</translation></message>
<message><source>Menu quit</source><translation>Quitter</translation></message>
<message><source>Menu renumber</source><translation>Renuméroter les plongées…</translation></message>
<message><source>Menu revert</source><translation>Revenir à la version enregistrée…</translation></message>
<message><source>Menu revert to backup</source><translation>Revenir à la copie de secours…</translation></message>
<message><source>Menu save as</source><translation>Enregistrer sous…</translation></message>
<message><source>Menu select all</source><translation>Tout sélectionner</translation></message>
<message><source>Menu view</source><translation>Affichage</translation></message>
<message><source>Menu window</source><translation>Fenêtre</translation></message>
<message><source>Move down</source><translation>Déplacer vers la fin</translation></message>
<message><source>Move up</source><translation>Déplacer vers le début</translation></message>
<message><source>New entry</source><translation>Nouvelle entrée</translation></message>
<message><source>New words</source><translation>&amp;Mot nouveau dans un formulaire :</translation></message>
<message><source>New words always</source><translation>Toujours l’ajouter</translation></message>
<message><source>New words ask</source><translation>Demander</translation></message>
<message><source>New words never</source><translation>Ne jamais l’ajouter</translation></message>
<message><source>Next</source><translation>Suivante</translation></message>
<message><source>No</source><translation>Non</translation></message>
<message><source>No Mac OS Roman</source><translation>Ce système ne sait pas convertir du texte en Mac OS Roman.</translation></message>
<message><source>No space left</source><translation>Il n’y a plus assez de place sur le disque.</translation></message>
<message><source>No such field</source><translation>Il n’y a pas de champ « %@ ».</translation></message>
<message><source>No such value</source><translation>« %@ » ne peut pas valoir « %@ ».</translation></message>
<message><source>No usable field</source><translation>Il n’y a pas de champ « %@ » utilisable ainsi.</translation></message>
<message><source>No valid datas</source><translation>Les valeurs ne sont pas valables.</translation></message>
<message><source>Not a picture format</source><translation>« %@ » ne se termine pas par .png, .svg ou .pdf.</translation></message>
<message><source>Nothing matches</source><translation>Rien ne correspond au filtre.
Échap dans son champ montre de nouveau tout.</translation></message>
<message><source>One card</source><translation>Une fiche</translation></message>
<message><source>One card found</source><translation>1 fiche trouvée</translation></message>
<message><source>One intervention</source><translation>Une intervention</translation></message>
<message><source>One revision</source><translation>Une révision</translation></message>
<message><source>Open anyway</source><translation>Ouvrir quand même</translation></message>
<message><source>Open document</source><translation>Ouvrir</translation></message>
<message><source>Open elsewhere question</source><translation>« %@ » est ouvert dans %@.
Deux programmes qui enregistrent le même document défont chacun les modifications de l’autre.</translation></message>
<message><source>Open read-only</source><translation>Ouvrir en lecture seule</translation></message>
<message><source>Overwrite</source><translation>Remplacer</translation></message>
<message><source>Page of pages</source><translation>Page %d sur %d</translation></message>
<message><source>Pages</source><translation>Pages du formulaire</translation></message>
<message><source>Picture</source><translation>Image</translation></message>
<message><source>Picture cannot be made</source><translation>L’image n’a pas pu être produite.</translation></message>
<message><source>Picture choose</source><translation>Choisir…</translation></message>
<message><source>Picture copy</source><translation>Copier</translation></message>
<message><source>Picture damaged</source><translation>L’image est endommagée.</translation></message>
<message><source>Picture enlarge</source><translation>Agrandir</translation></message>
<message><source>Picture export</source><translation>Exporter…</translation></message>
<message><source>Picture files</source><translation>Images</translation></message>
<message><source>Picture has too many pixels</source><translation>L’image est trop grande : %d × %d pixels, pour %d millions au plus.</translation></message>
<message><source>Picture none</source><translation>Pas d’image. Choisissez un fichier, déposez-le ici ou collez.</translation></message>
<message><source>Picture not shown</source><translation>L’image est d’un type qui ne peut pas être affiché. Elle est conservée telle quelle.</translation></message>
<message><source>Picture not written</source><translation>L’image n’a pas pu être écrite.</translation></message>
<message><source>Picture nowhere</source><translation>Il n’y a pas d’image.</translation></message>
<message><source>Picture paste</source><translation>Coller</translation></message>
<message><source>Picture remove</source><translation>Retirer</translation></message>
<message><source>Picture shown</source><translation>Image, %d × %d pixels</translation></message>
<message><source>Picture unknown format</source><translation>Le fichier n’est pas une image que ce programme sait lire.</translation></message>
<message><source>Places</source><translation>Lieux</translation></message>
<message><source>Preferences not saved</source><translation>Impossible d’enregistrer les préférences dans « %@ ».</translation></message>
<message><source>Previous</source><translation>Précédente</translation></message>
<message><source>Print</source><translation>Imprimer</translation></message>
<message><source>Print preview title</source><translation>Aperçu avant impression</translation></message>
<message><source>Printing</source><translation>Impression…</translation></message>
<message><source>Printing failed</source><translation>Le document n’a pas pu être imprimé.</translation></message>
<message><source>Profile</source><translation>Profil</translation></message>
<message><source>Program is busy</source><translation>Tavrel est déjà ouvert, mais il est occupé et ne répond pas.</translation></message>
<message><source>Read-only title</source><translation>%@ (lecture seule)</translation></message>
<message><source>Rebreather</source><translation>Recycleur</translation></message>
<message><source>Redo</source><translation>Rétablir</translation></message>
<message><source>Redo step</source><translation>Rétablir : %@</translation></message>
<message><source>Reload</source><translation>Recharger</translation></message>
<message><source>Remove filter</source><translation>Supprimer le filtre</translation></message>
<message><source>Remove from toolbar</source><translation>Retirer de la barre d’outils</translation></message>
<message><source>Rename entry hint</source><translation>Un double-clic ou F2 renomme une entrée.</translation></message>
<message><source>Restore</source><translation>Restaurer</translation></message>
<message><source>Revert</source><translation>Revenir</translation></message>
<message><source>Revert question</source><translation>Revenir à la version enregistrée de « %@ » ? Les modifications seront perdues.</translation></message>
<message><source>Revert to backup question</source><translation>Voulez-vous revenir à ce que « %@ » contenait avant son premier enregistrement de cette session ou de la précédente ?
Tout ce qui a été saisi depuis est perdu, à moins de ne pas enregistrer.</translation></message>
<message><source>Revisions</source><translation>%d révisions</translation></message>
<message><source>Save</source><translation>Enregistrer</translation></message>
<message><source>Save changes</source><translation>Enregistrer les modifications de « %@ » ?</translation></message>
<message><source>Save document as</source><translation>Enregistrer sous</translation></message>
<message><source>Save elsewhere</source><translation>Enregistrer sous…</translation></message>
<message><source>Save over change</source><translation>Un autre programme a modifié « %@ » depuis son ouverture.
Remplacer perd ce que ce programme a écrit, recharger ce que vous avez saisi.</translation></message>
<message><source>Save over removal</source><translation>Un autre programme a supprimé ou renommé « %@ » depuis son ouverture.</translation></message>
<message><source>Separator</source><translation>Séparateur</translation></message>
<message><source>Services</source><translation>Prestations</translation></message>
<message><source>Shops</source><translation>Magasins</translation></message>
<message><source>Show data</source><translation>Afficher les données…</translation></message>
<message><source>Shown of all</source><translation>%d sur %d</translation></message>
<message><source>Sites</source><translation>Sites</translation></message>
<message><source>Space</source><translation>Espace</translation></message>
<message><source>Store</source><translation>Enregistrer</translation></message>
<message><source>Store card question</source><translation>La fiche du formulaire a été modifiée et n’est pas encore enregistrée.</translation></message>
<message><source>Synthesis card</source><translation>Fiche de synthèse</translation></message>
<message><source>Tip add</source><translation>Ajouter une fiche à la fin de la liste</translation></message>
<message><source>Tip add second</source><translation>Ajouter les valeurs comme second enregistrement, à la fin de la liste</translation></message>
<message><source>Tip customise</source><translation>Choisir le contenu de cette barre d’outils</translation></message>
<message><source>Tip delete</source><translation>Supprimer les fiches sélectionnées</translation></message>
<message><source>Tip erase</source><translation>Effacer tous les champs</translation></message>
<message><source>Tip insert</source><translation>Insérer la fiche avant celle qui est sélectionnée</translation></message>
<message><source>Tip opens</source><translation>Ctrl+clic pour l’ouvrir</translation></message>
<message><source>Tip print</source><translation>Imprimer la liste</translation></message>
<message><source>Tip save</source><translation>Enregistrer le document</translation></message>
<message><source>Tip synthesis card</source><translation>Afficher la synthèse de toutes les fiches</translation></message>
<message><source>Tip update</source><translation>Enregistrer les champs dans la fiche sélectionnée</translation></message>
<message><source>Toolbar available</source><translation>Disponibles</translation></message>
<message><source>Toolbar icons</source><translation>Icônes</translation></message>
<message><source>Toolbar icons and words</source><translation>Texte sous les icônes</translation></message>
<message><source>Toolbar initial</source><translation>Disposition initiale</translation></message>
<message><source>Toolbar present</source><translation>Dans la barre d’outils</translation></message>
<message><source>Toolbar shows</source><translation>Afficher</translation></message>
<message><source>Toolbar words</source><translation>Texte</translation></message>
<message><source>Toolbar words beside icons</source><translation>Texte à côté des icônes</translation></message>
<message><source>Type budget</source><translation>Budget prévisionnel</translation></message>
<message><source>Type clubs</source><translation>Carnet d’adresses des clubs</translation></message>
<message><source>Type companies</source><translation>Carnet d’adresses des entreprises</translation></message>
<message><source>Type compressor</source><translation>Maintenance du compresseur</translation></message>
<message><source>Type consumables</source><translation>Inventaire des consommables</translation></message>
<message><source>Type documents</source><translation>Documents divers</translation></message>
<message><source>Type equipment</source><translation>Inventaire du matériel</translation></message>
<message><source>Type logbook</source><translation>Carnet de plongée</translation></message>
<message><source>Type rebreather</source><translation>Entretien du recycleur</translation></message>
<message><source>Type wrecks</source><translation>Répertoire des épaves</translation></message>
<message><source>Undo</source><translation>Annuler</translation></message>
<message><source>Undo add card</source><translation>Ajouter la fiche</translation></message>
<message><source>Undo delete card</source><translation>Supprimer les fiches</translation></message>
<message><source>Undo import cards</source><translation>Importer les fiches</translation></message>
<message><source>Undo insert card</source><translation>Insérer la fiche</translation></message>
<message><source>Undo step</source><translation>Annuler : %@</translation></message>
<message><source>Undo update card</source><translation>Modifier la fiche</translation></message>
<message><source>Unknown document type</source><translation>Tavrel ne connaît pas de type de document « %@ ».</translation></message>
<message><source>Unknown kind of document</source><translation>Tavrel ne connaît pas ce genre de document.</translation></message>
<message><source>Unsaved form</source><translation>« %@ » (%@), %@ : la saisie en cours</translation></message>
<message><source>Unsaved later</source><translation>Plus tard</translation></message>
<message><source>Unsaved question</source><translation>Tavrel s’est arrêté sans enregistrer :
%@
Voulez-vous le retrouver ?</translation></message>
<message><source>Unsaved records</source><translation>« %@ » (%@), %@ : toutes les fiches (%@)</translation></message>
<message><source>Unsaved records and form</source><translation>« %@ » (%@), %@ : toutes les fiches (%@) et la saisie en cours</translation></message>
<message><source>Unsaved without file</source><translation>jamais enregistré</translation></message>
<message><source>Unsaved work kept aside</source><translation>Une partie du travail non enregistré d’une session précédente est illisible. Elle reste six mois dans ce dossier : %@</translation></message>
<message><source>Unsaved work not kept</source><translation>Ce qui n’est pas encore enregistré n’a pas pu être mis à l’abri d’un arrêt soudain du programme. Enregistrez sans tarder.</translation></message>
<message><source>Unsaved work not readable</source><translation>Ce qui a été conservé du travail non enregistré est endommagé.</translation></message>
<message><source>Untitled</source><translation>Sans titre</translation></message>
<message><source>Update</source><translation>Valider</translation></message>
<message><source>Used in records</source><translation>Utilisé dans %d fiches des documents ouverts</translation></message>
<message><source>Used so often</source><translation>%d×</translation></message>
<message><source>Wreck types</source><translation>Types d’épaves</translation></message>
<message><source>Wrecks</source><translation>Épaves</translation></message>
<message><source>XML file beyond limits</source><translation>Le fichier XML s’imbrique ou s’étend au-delà de toute mesure et n’a pas été lu.</translation></message>
<message><source>XML file too large</source><translation>Le fichier XML est trop grand pour être lu.</translation></message>
<message><source>XML file without elements</source><translation>Le fichier n’est pas du XML.</translation></message>
<message><source>Yes</source><translation>Oui</translation></message>
</context>
</TS>
