#include "recordbooks/bookcase.h"

#include "archive/typedstreamtree.h"
#include "recordbooks/recordbooks.h"

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

FieldValue valueAt(FieldKind kind, int place) {
    switch (kind) {
        case FieldKind::integer:
            return qint32(place + 1);
        case FieldKind::real:
            return static_cast<float>(place) + 1.5F;
        case FieldKind::text:
            return QStringLiteral("t%1").arg(place + 1);
        case FieldKind::date:
            return Date((place + 1) * 86400.0);
        default:
            return Image();
    }
}

std::shared_ptr<Record> distinctRecord(const BookCase& book) {
    const RecordLayout& layout = book.book().layout();
    const auto record = layout.make();
    const auto items = archivedItems(book);
    for (std::size_t place = 0; place < items.size(); ++place) {
        const Field field = layout.field(std::string_view(items[place].field));
        if (!field.isNull()) {
            field.setValue(*record, valueAt(field.kind(), static_cast<int>(place)));
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

const std::vector<BookCase> bookCases{
    {"Materiel", &invMateriel, "Equipment", "newMatos addMatos insertMatos updateMatos deleteMatos", "One card", 3,
     "matosNo:@ typeMatos:@ marqueMatos:@ serieMatos:@ dateAchat:@ quantiteMatos:i prixMatos:@ lastRevision:@ "
     "nextRevision:@ firstRequalification:@ nextRequalification<lastRevision:@ noInspection:i bloc:i tiv:i noTIV:@ "
     "nomTIV:@ capaciteBloc:f pressionService:i pressionEpreuve:i notesMatos:@ equipState:i factureMatos:i "
     "lieuAchatMatos:@"},
    {"Epaves", &repEpaves, "Epaves", "newWreck addWreck insertWreck updateWreck deleteWreck", "One card", 5,
     "nom:@ type:@ immatriculation:@ nationalite:@ longueur:f largeur:f materiau:i jauge:i propulsion:i "
     "dateConstruction:@ lieuConstruction:@ dateNaufrage:@ causeNaufrage:@ pointHaut:f pointBas:f orientationSwitch:i "
     "orientation:i inclinaison:i dateVisite:@ aVisiter:i lieu:@ site:@ pays:@ gps:@ gpsSystem:i acces:i accesBord:i "
     "localisation:i interet:i technicite:i relevement1:@ relevement2:@ relevement3<relevement1:@ photo:@ notes:@ "
     "typeMachine:@ puissance:@ natureFond:@ nomsPrecedents:@ armateur:@ ports:@ capitaine:@ equipage:@ chargement:@ "
     "provenance:@ destination:@ miseAJour:@"},
    {"Compresseur", &maintComp, "Compresseur", "newService addService insertMaintenance updateService deleteService",
     "One service", 3,
     "marque:@ modele:@ cumulTemps:@ date:@ temps:@ vidange:i typeHuile:i filtreAir:i operationFiltre:i cartouche:i "
     "charbon:i alumine:i tamis:i depoussierage:i controles:i soupapes:i intSoupape:i anHuile:f anCO2:f anCO:f "
     "anH2O:f anCO2Unit:i anCOUnit:i notes:@"},
    {"Rebreather", &rebreatherServ, "Rebreather",
     "newRebreatherService addRebreatherService insertRebreatherService updateRebreatherService "
     "deleteRebreatherService",
     "One intervention", 3,
     "date:@ rebreatherTime:@ sofnoTime:@ sofnolime:i disinfection:i battery:i cells:i nbCells:i injector:i valve:i "
     "oRing:i electronicHead:i scrubber:i mpO2:i mpO2Value:f cell1:i cell2:i cell3:i cell4:i cell5:i cell1_in:@ "
     "cell2_in:@ cell3_in:@ cell4_in:@ cell5_in:@ notes:@"},
    {"Consommables", &invConso, "Consommables", "newPart addPart insertPart updatePart deletePart", "One card", 3,
     "reference:@ marque:@ utilisation:@ stock:f reserve:f rangement:@ noInventaire:i dateInventaire:@ notes:@"},
};

}  // namespace tavrel
