#pragma once

#include "recordbooks/openinghours.h"

namespace tavrel {

/// A company that a diver deals with: a shop, a school, a boat operator, a repairer.
struct Entreprises : OpeningHours {
    QString entreprise;
    QString adresse;
    QString codePostal;  ///< a text, which keeps its leading zeros
    QString ville;
    QString pays;
    QString telephone;
    QString fax;
    QString email;
    QString url;
    QString activite;
    Date miseAJour;  ///< when the card was brought up to date
    QString remarques;
    qint32 cotation = 0;  ///< 0 (not rated) to 5

    static const RecordLayout& layout();
};

}  // namespace tavrel
