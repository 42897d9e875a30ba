#pragma once

#include "base/failure.h"
#include "records/recordlayout.h"

#include <QByteArrayView>

namespace tavrel {

/// A service that its diver plans to buy, with up to six priced lines: line 0 is the service itself, 1 to 4 its
/// supplements; what line 5 holds is stored, but counts in no total. Prices in euros.
struct Budget : Record {
    QString prestation;
    qint32 quantite_0 = 0, quantite_1 = 0, quantite_2 = 0, quantite_3 = 0, quantite_4 = 0, quantite_5 = 0;
    float prixUnitaire_0 = 0, prixUnitaire_1 = 0, prixUnitaire_2 = 0;
    float prixUnitaire_3 = 0, prixUnitaire_4 = 0, prixUnitaire_5 = 0;
    QString supplement_1, supplement_2, supplement_3, supplement_4;
    qint32 prixDegressif = 0;  ///< 0 or 1: prepaid cards are offered
    qint32 unitesCarte_1 = 0, unitesCarte_2 = 0, unitesCarte_3 = 0, unitesCarte_4 = 0;
    float prixCarte_1 = 0, prixCarte_2 = 0, prixCarte_3 = 0, prixCarte_4 = 0;
    qint32 prevDepense = 0;  ///< 0 or 1: the expense is planned
    QString entreprise;
    qint32 qualitePrix = 0;  ///< value for money, 0 (not rated) to 5
    qint32 delai = 0;        ///< responsiveness, 0 (not rated) to 5
    Date miseAJour;
    QString notes;

    static const RecordLayout& layout();
};

/// The services of a file of an earlier kind: a property list in XML, an array of dictionaries whose keys are the
/// record's properties. Logs when it is none either.
Expected<RecordList> importFromVersion20(QByteArrayView data);

}  // namespace tavrel
