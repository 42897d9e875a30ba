#pragma once

#include "recordbooks/openinghours.h"

namespace tavrel {

/// A diving club or centre. Prices in euros.
struct Structures : OpeningHours {
    QString nom;
    qint32 type = 0;  ///< 0 non-profit, 1 commercial, 2 unknown
    QString affiliation;
    QString gerant;
    QString adresse;
    qint32 codePostal = 0;  ///< a number, so a leading zero is lost
    QString ville;
    QString pays;
    QString telephone;
    QString portable;
    QString fax;
    QString url;
    QString email;
    qint32 cotation = 0;  ///< 0 (not rated) to 5
    Date miseAJour;       ///< when the card was brought up to date
    QString plongee_1, plongee_2, plongee_3, plongee_4, plongee_5;
    float bapteme = 0;  ///< a try-dive
    float prix_1 = 0, prix_2 = 0, prix_3 = 0, prix_4 = 0, prix_5 = 0;
    QString formation_1, formation_2, formation_3, formation_4, formation_5, formation_6;
    float prixForm_1 = 0, prixForm_2 = 0, prixForm_3 = 0, prixForm_4 = 0, prixForm_5 = 0, prixForm_6 = 0;
    qint32 nbPlongees = 0;  ///< dives made with the club
    QString remarques;

    static const RecordLayout& layout();
};

}  // namespace tavrel
