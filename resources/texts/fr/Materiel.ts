<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Materiel</name>
<message><source>A reparer</source><translation>À réparer</translation></message>
<message><source>Capacity</source><translation>&#13;Capacité (l) : </translation></message>
<message><source>Card No</source><translation>&#13;Fiche n° : </translation></message>
<message><source>Edit window title</source><translation>Fiche de matériel n° %@</translation></message>
<message><source>Elapsed time</source><translation>Temps écoulé</translation></message>
<message><source>En service</source><translation>En service</translation></message>
<message><source>Equipment state</source><translation>&#13;État : </translation></message>
<message><source>Equipment type</source><translation>&#13;Type de matériel : </translation></message>
<message><source>Facture</source><translation>&#13;Facture : </translation></message>
<message><source>First test pressure</source><translation>&#13;Première épreuve : </translation></message>
<message><source>Gift</source><translation>Donné</translation></message>
<message><source>Group inspection</source><translation>Révision périodique</translation></message>
<message><source>Group item</source><translation>Article</translation></message>
<message><source>Group purchase</source><translation>Achat</translation></message>
<message><source>Group remarks</source><translation>Remarques</translation></message>
<message><source>Group tank</source><translation>Bloc</translation></message>
<message><source>Inventory</source><translation>Inventaire du matériel</translation></message>
<message><source>Label brand</source><translation>Marque</translation></message>
<message><source>Label capacity</source><translation>Capacité</translation></message>
<message><source>Label first pressure test</source><translation>Première épreuve</translation></message>
<message><source>Label inspection progress</source><translation>Période de révision</translation></message>
<message><source>Label invoice</source><translation>Facture conservée</translation></message>
<message><source>Label last inspection</source><translation>Dernière révision</translation></message>
<message><source>Label next inspection</source><translation>Prochaine révision</translation></message>
<message><source>Label next pressure test</source><translation>Prochaine requalification</translation></message>
<message><source>Label no inspection</source><translation>Sans révision</translation></message>
<message><source>Label number</source><translation>Numéro</translation></message>
<message><source>Label price</source><translation>Prix</translation></message>
<message><source>Label purchase date</source><translation>Date d’achat</translation></message>
<message><source>Label quantity</source><translation>Quantité</translation></message>
<message><source>Label serial number</source><translation>Numéro de série</translation></message>
<message><source>Label service pressure</source><translation>Pression de service</translation></message>
<message><source>Label shop</source><translation>Lieu d’achat</translation></message>
<message><source>Label state</source><translation>État</translation></message>
<message><source>Label tank</source><translation>Bloc</translation></message>
<message><source>Label technician inspection</source><translation>Inspection visuelle par un technicien</translation></message>
<message><source>Label technician name</source><translation>Nom du technicien</translation></message>
<message><source>Label technician number</source><translation>Numéro du technicien</translation></message>
<message><source>Label test pressure</source><translation>Pression d’épreuve</translation></message>
<message><source>Label type</source><translation>Type</translation></message>
<message><source>Last inspection</source><translation>&#13;Dernière révision : </translation></message>
<message><source>Litres</source><translation>L</translation></message>
<message><source>Lost</source><translation>Perdu</translation></message>
<message><source>Menu</source><translation>Matériel</translation></message>
<message><source>Next inspection</source><translation>&#13;Prochaine révision : </translation></message>
<message><source>Next test pressure</source><translation>&#13;Prochaine requalification : </translation></message>
<message><source>Out of date</source><translation>Révision dépassée</translation></message>
<message><source>Page inspection</source><translation>Révision</translation></message>
<message><source>Page item</source><translation>Article</translation></message>
<message><source>Page remarks</source><translation>Remarques</translation></message>
<message><source>Price</source><translation>&#13;Prix : </translation></message>
<message><source>Purchase date</source><translation>&#13;Date d’achat : </translation></message>
<message><source>Purchase date as text</source><translation>Date d’achat : %@</translation></message>
<message><source>Purchase location</source><translation>&#13;Lieu d’achat : </translation></message>
<message><source>Quantity</source><translation>&#13;Quantité : </translation></message>
<message><source>Reforme</source><translation>Réformé</translation></message>
<message><source>Remarks</source><translation>&#13;Remarques : </translation></message>
<message><source>Replace</source><translation>À remplacer</translation></message>
<message><source>Serial No</source><translation>&#13;N° de série : </translation></message>
<message><source>Service pressure</source><translation>&#13;Pression de service (bar) : </translation></message>
<message><source>Sold</source><translation>Vendu</translation></message>
<message><source>TIV No</source><translation>&#13;N° du technicien : </translation></message>
<message><source>TIV technician</source><translation>&#13;Technicien d’inspection : </translation></message>
<message><source>Table name</source><translation>Inventaire du matériel</translation></message>
<message><source>Test pressure</source><translation>&#13;Pression d’épreuve (bar) : </translation></message>
<message><source>Trade mark</source><translation>&#13;Marque : </translation></message>
</context>
</TS>
