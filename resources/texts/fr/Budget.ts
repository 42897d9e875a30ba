<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
<name>Budget</name>
<message><source>Bad</source><translation>Mauvais</translation></message>
<message><source>Card</source><translation>&#13;Carte de </translation></message>
<message><source>Column delay</source><translation>Délai</translation></message>
<message><source>Column quantity</source><translation>Quantité</translation></message>
<message><source>Column service</source><translation>Prestation</translation></message>
<message><source>Column supplier</source><translation>Entreprise</translation></message>
<message><source>Column unit price</source><translation>Prix unitaire</translation></message>
<message><source>Column update</source><translation>Mise à jour</translation></message>
<message><source>Column value</source><translation>Qualité-prix</translation></message>
<message><source>Cotation</source><translation>&#13;Rapport qualité-prix : </translation></message>
<message><source>Delay</source><translation>&#13;Réactivité : </translation></message>
<message><source>Discount price</source><translation>%.2f € l’unité</translation></message>
<message><source>Edit window</source><translation>Prestation : %@</translation></message>
<message><source>Entreprise</source><translation>&#13;Entreprise : </translation></message>
<message><source>Good</source><translation>Bon</translation></message>
<message><source>Group cards</source><translation>Cartes</translation></message>
<message><source>Group discount</source><translation>Tarif dégressif</translation></message>
<message><source>Group notes</source><translation>Remarques</translation></message>
<message><source>Group service</source><translation>Prestation</translation></message>
<message><source>Group supplements</source><translation>Suppléments (la dernière ligne ne compte pas dans le total)</translation></message>
<message><source>Group supplier</source><translation>Prestataire</translation></message>
<message><source>Group total</source><translation>Total</translation></message>
<message><source>Hint not stored</source><translation>Ce libellé n’est pas enregistré : une fiche garde les libellés de quatre suppléments.</translation></message>
<message><source>Inefficient</source><translation>Lent</translation></message>
<message><source>Inventory</source><translation>Budget prévisionnel</translation></message>
<message><source>Label card price</source><translation>Prix</translation></message>
<message><source>Label card units</source><translation>Unités</translation></message>
<message><source>Label delay</source><translation>Réactivité</translation></message>
<message><source>Label discount</source><translation>Cartes prépayées à prix dégressif</translation></message>
<message><source>Label planned</source><translation>La dépense est prévue</translation></message>
<message><source>Label price of unit</source><translation>Prix de l’unité</translation></message>
<message><source>Label quantity</source><translation>Quantité</translation></message>
<message><source>Label service</source><translation>Prestation</translation></message>
<message><source>Label supplement</source><translation>Supplément</translation></message>
<message><source>Label supplier</source><translation>Entreprise</translation></message>
<message><source>Label total</source><translation>Total</translation></message>
<message><source>Label unit price</source><translation>Prix unitaire</translation></message>
<message><source>Label update</source><translation>Dernière mise à jour</translation></message>
<message><source>Label value</source><translation>Rapport qualité-prix</translation></message>
<message><source>Medium</source><translation>Moyen</translation></message>
<message><source>Menu services</source><translation>Prestations</translation></message>
<message><source>Money</source><translation> €</translation></message>
<message><source>N/A</source><translation>Sans avis</translation></message>
<message><source>Page cards</source><translation>Cartes prépayées</translation></message>
<message><source>Page service</source><translation>Prestation</translation></message>
<message><source>Page supplier</source><translation>Prestataire</translation></message>
<message><source>Prestation</source><translation>&#13;&#13;Prestation : </translation></message>
<message><source>Price per unit</source><translation>&#13;Prix unitaire (€) :</translation></message>
<message><source>Quantity</source><translation>   Quantité : </translation></message>
<message><source>Remarks</source><translation>&#13;Remarques : </translation></message>
<message><source>Satisfying</source><translation>Satisfaisant</translation></message>
<message><source>Services</source><translation>Prestations prévues</translation></message>
<message><source>Supplement</source><translation>&#13;Supplément : </translation></message>
<message><source>Units at</source><translation> unités à</translation></message>
<message><source>Very bad</source><translation>Très mauvais</translation></message>
<message><source>Very good</source><translation>Très bon</translation></message>
<message><source>Very inefficient</source><translation>Très lent</translation></message>
<message><source>Very satisfying</source><translation>Très satisfaisant</translation></message>
</context>
</TS>
