#pragma once

#include "records/recordlayout.h"

namespace tavrel {

/// A wreck of a repertory. Lengths and depths are metres; switches are 0 or 1.
struct Epaves : Record {
    QString nom;
    QString type;  ///< of ship
    QString immatriculation;
    QString nationalite;
    float longueur = 0;
    float largeur = 0;
    qint32 materiau = 0;    ///< of the hull: 0 none given, 1 wood, 2 iron, 3 polyester, 4 concrete
    qint32 jauge = 0;       ///< tonnage
    qint32 propulsion = 0;  ///< 0 none given, 1 petrol, 2 diesel, 3 kerosene, 4 nuclear, 5 oars, 6 steam, 7 sail, 8
                            ///< towed, 9 diesel-electric
    QString dateConstruction;
    QString lieuConstruction;
    QString dateNaufrage;
    QString causeNaufrage;
    float pointHaut = 0;
    float pointBas = 0;
    qint32 orientationSwitch = 0;  ///< an orientation is given
    qint32 orientation = 0;        ///< degrees
    qint32 inclinaison = 0;        ///< list: 0 none given, 1 upright, 2 to port, 3 to starboard
    Date dateVisite;               ///< first visit
    qint32 aVisiter = 0;           ///< still to be visited
    QString lieu;
    QString site;
    QString pays;
    QString gps;              ///< as typed
    qint32 gpsSystem = 0;     ///< 1 WGS84, 2 ED50
    qint32 acces = 0;         ///< 0 none given, 1 easy, 2 medium, 3 difficult
    qint32 accesBord = 0;     ///< likewise, on board
    qint32 localisation = 0;  ///< likewise, of finding it
    qint32 interet = 0;       ///< 0 to 5
    qint32 technicite = 0;    ///< 0 to 5
    QString relevement1;      ///< landmarks
    QString relevement2;
    QString relevement3;  ///< a file gives back the first in its place
    QString photo;
    QString notes;
    QString typeMachine;
    QString puissance;
    QString natureFond;
    QString nomsPrecedents;
    QString armateur;
    QString ports;
    QString capitaine;
    QString equipage;
    QString chargement;
    QString provenance;
    QString destination;
    Date miseAJour;

    static const RecordLayout& layout();
};

}  // namespace tavrel
