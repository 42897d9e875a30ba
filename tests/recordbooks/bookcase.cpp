#include "recordbooks/bookcase.h"

#include "archive/typedstreamtree.h"
#include "recordbooks/recordbooks.h"
#include "support/records.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sstream>

namespace tavrel {

std::vector<ArchivedItem> archivedItems(const BookCase& book) {
    std::vector<ArchivedItem> items;
    std::istringstream words(book.archive);
    for (std::string word; words >> word;) {
        const auto colon = word.find(':');
        const std::string names = word.substr(0, colon);
        const auto arrow = names.find('<');
        items.push_back(
            {names.substr(0, arrow), arrow == std::string::npos ? names : names.substr(arrow + 1), word[colon + 1]});
    }
    return items;
}

std::shared_ptr<Record> distinctRecord(const BookCase& book) {
    const RecordLayout& layout = book.book().layout();
    const auto record = layout.make();
    const auto items = archivedItems(book);
    for (std::size_t place = 0; place < items.size(); ++place) {
        const Field field = layout.field(std::string_view(items[place].field));
        if (!field.isNull()) {
            field.setValue(*record, distinctValue(field.kind(), static_cast<int>(place) + 1));
        }
    }
    return record;
}

QStringList itemsOf(const QByteArray& file) {
    JsonWriter json;
    if (!writeStreamJson(json, file)) {
        return {QStringLiteral("not a typed stream")};
    }
    const QJsonObject root = QJsonDocument::fromJson(QByteArray::fromStdString(json.text())).object();
    const auto valueOf = [](const QJsonValue& group) { return group[1][0]; };
    const QJsonValue list = valueOf(root[QStringLiteral("groups")][0]);
    const QJsonValue record = valueOf(list[QStringLiteral("groups")][1]);
    QStringList items;
    QHash<int, QString> met;
    for (const auto& group : record[QStringLiteral("groups")].toArray()) {
        const QJsonValue value = valueOf(group);
        // Texts and days are objects with one group of one value, or such an object met again.
        const QJsonValue held = value.isObject() ? valueOf(value[QStringLiteral("groups")][0]) : value;
        QString shown = held.isNull() ? QStringLiteral("nil") : held.toVariant().toString();
        if (value[QStringLiteral("ref")].isDouble()) {
            shown = met[value[QStringLiteral("ref")].toInt()];
        } else if (value.isObject()) {
            met[value[QStringLiteral("id")].toInt()] = shown;
        }
        items << group[0][0].toString() + u' ' + shown;
    }
    return items;
}

namespace {

/// The opening hours of a week, four to the day.
std::string week() {
    std::string hours;
    for (const char* day : {"Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi", "Dimanche"}) {
        for (const char* place : {"_1", "_2", "_3", "_4"}) {
            hours += std::string("horaire") + day + place + ":@ ";
        }
    }
    return hours;
}

}  // namespace

const std::vector<BookCase> bookCases{
    {"Materiel", &invMateriel, "Equipment", "newMatos addMatos insertMatos updateMatos deleteMatos", "One card", 3,
     "matosNo> typeMatos marqueMatos serieMatos dateAchat> quantiteMatos> prixMatos> factureMatos| "
     "lieuAchatMatos equipState lastRevision> nextRevision> progress>",
     "matosNo:@ typeMatos:@ marqueMatos:@ serieMatos:@ dateAchat:@ quantiteMatos:i prixMatos:@ lastRevision:@ "
     "nextRevision:@ firstRequalification:@ nextRequalification<lastRevision:@ noInspection:i bloc:i tiv:i noTIV:@ "
     "nomTIV:@ capaciteBloc:f pressionService:i pressionEpreuve:i notesMatos:@ equipState:i factureMatos:i "
     "lieuAchatMatos:@"},
    {"Epaves", &repEpaves, "Epaves", "newWreck addWreck insertWreck updateWreck deleteWreck", "One card", 5,
     "nom type nationalite longueur> propulsion dateNaufrage> causeNaufrage pointHaut> pointBas> lieu site pays "
     "interet technicite",
     "nom:@ type:@ immatriculation:@ nationalite:@ longueur:f largeur:f materiau:i jauge:i propulsion:i "
     "dateConstruction:@ lieuConstruction:@ dateNaufrage:@ causeNaufrage:@ pointHaut:f pointBas:f orientationSwitch:i "
     "orientation:i inclinaison:i dateVisite:@ aVisiter:i lieu:@ site:@ pays:@ gps:@ gpsSystem:i acces:i accesBord:i "
     "localisation:i interet:i technicite:i relevement1:@ relevement2:@ relevement3<relevement1:@ photo:@ notes:@ "
     "typeMachine:@ puissance:@ natureFond:@ nomsPrecedents:@ armateur:@ ports:@ capitaine:@ equipage:@ chargement:@ "
     "provenance:@ destination:@ miseAJour:@"},
    {"Compresseur", &maintComp, "Compresseur", "newService addService insertMaintenance updateService deleteService",
     "One service", 3,
     "date> marque modele temps> cumulTemps> vidange| operationFiltre intSoupape anHuile> anCO2> anCO> anH2O>",
     "marque:@ modele:@ cumulTemps:@ date:@ temps:@ vidange:i typeHuile:i filtreAir:i operationFiltre:i cartouche:i "
     "charbon:i alumine:i tamis:i depoussierage:i controles:i soupapes:i intSoupape:i anHuile:f anCO2:f anCO:f "
     "anH2O:f anCO2Unit:i anCOUnit:i notes:@"},
    {"Rebreather", &rebreatherServ, "Rebreather",
     "newRebreatherService addRebreatherService insertRebreatherService updateRebreatherService "
     "deleteRebreatherService",
     "One intervention", 3,
     "date> rebreatherTime> sofnoTime> sofnolime| disinfection| battery| nbCells> mpO2Value> injector| valve| "
     "oRing| electronicHead| scrubber|",
     "date:@ rebreatherTime:@ sofnoTime:@ sofnolime:i disinfection:i battery:i cells:i nbCells:i injector:i valve:i "
     "oRing:i electronicHead:i scrubber:i mpO2:i mpO2Value:f cell1:i cell2:i cell3:i cell4:i cell5:i cell1_in:@ "
     "cell2_in:@ cell3_in:@ cell4_in:@ cell5_in:@ notes:@"},
    {"Consommables", &invConso, "Consommables", "newPart addPart insertPart updatePart deletePart", "One card", 3,
     "reference marque utilisation stock> reserve> progress> rangement dateInventaire>",
     "reference:@ marque:@ utilisation:@ stock:f reserve:f rangement:@ noInventaire:i dateInventaire:@ notes:@"},
    {"Budget", &previBudget, "Budget", "newPrestation addPrestation insertPrestation updatePrestation deletePrestation",
     "One card", 3, "prestation quantite_0> prixUnitaire_0> entreprise qualitePrix delai miseAJour>",
     "prestation:@ quantite_0:i quantite_1:i quantite_2:i quantite_3:i quantite_4:i quantite_5:i "
     "prixUnitaire_0:f prixUnitaire_1:f prixUnitaire_2:f prixUnitaire_3:f prixUnitaire_4:f "
     "prixUnitaire_5:f supplement_1:@ supplement_2:@ supplement_3:@ supplement_4:@ prixDegressif:i "
     "unitesCarte_1:i unitesCarte_2:i unitesCarte_3:i unitesCarte_4:i prixCarte_1:f prixCarte_2:f "
     "prixCarte_3:f prixCarte_4:f prevDepense:i entreprise:@ qualitePrix:i delai:i miseAJour:@ notes:@",
     "\r\rFile dir : /home/b.file\r\rEdition date : 2024-06-15 "},
    {"Entreprises", &adressesEts, "Entreprises", "newFirm addFirm insertFirm updateEntreprise deleteFirm", "One card",
     3, "entreprise activite codePostal ville pays telephone email cotation miseAJour>",
     "entreprise:@ adresse:@ codePostal:@ ville:@ pays:@ telephone:@ fax:@ email:@ url:@ activite:@ "
     "miseAJour:@ " +
         week() + "remarques:@ cotation:i",
     "\rFile dir : /home\r\rEdition date : 2024-06-15 ", 1},
    {"Structures", &adressesStruct, "Structures",
     "newStructure addStructure insertStructure updateStructure deleteStructure", "One card", 3,
     "nom affiliation codePostal> ville pays telephone email cotation nbPlongees> miseAJour>",
     "nom:@ type:i affiliation:@ gerant:@ adresse:@ codePostal:i ville:@ pays:@ telephone:@ portable:@ "
     "fax:@ url:@ email:@ cotation:i miseAJour:@ plongee_1:@ plongee_2:@ plongee_3:@ plongee_4:@ "
     "plongee_5:@ bapteme:f prix_1:f prix_2:f prix_3:f prix_4:f prix_5:f formation_1:@ formation_2:@ "
     "formation_3:@ formation_4:@ formation_5:@ formation_6:@ prixForm_1:f prixForm_2:f prixForm_3:f "
     "prixForm_4:f prixForm_5:f prixForm_6:f " +
         week() + "nbPlongees:i remarques:@",
     "\rFile dir : /home\r\rEdition date : 2024-06-15 ", 1},
    {"DiversDocs", &diversDocuments, "Miscellaneous documents", "newDoc addDoc insertDoc updateDoc deleteDoc",
     "One card", 3, "type titre emetteur date> renouveler| dateRenouvellement>",
     "type:i titre:@ emetteur:@ date:@ renouveler:i dateRenouvellement:@ photocopy:@ notes:@", nullptr},
};

}  // namespace tavrel
