#pragma once

#include "records/recordlayout.h"

namespace tavrel {

/// An item of an equipment inventory. Switches are 0 or 1.
struct Materiel : Record {
    QString matosNo;  ///< as typed; a new card proposes its place in the list
    QString typeMatos;
    QString marqueMatos;
    QString serieMatos;
    Date dateAchat;
    QString dateAchatMatos;  ///< day, month and year as versions 1 and 2 stored them
    qint32 quantiteMatos = 0;
    QString prixMatos;             ///< as typed
    qint32 factureMatos = 0;       ///< an invoice is held
    QString lieuAchatMatos;        ///< place of purchase
    qint32 equipState = 0;         ///< 0 in service, 1 to repair, 2 scrapped, 3 given, 4 sold, 5 lost, 6 to replace
    Date lastRevision;             ///< last inspection
    Date nextRevision;             ///< next inspection due
    QString firstRequalification;  ///< first pressure test, as typed
    Date nextRequalification;      ///< next pressure test; a file gives back lastRevision in its place
    qint32 noInspection = 0;       ///< needs no periodic inspection
    qint32 bloc = 0;               ///< a tank
    qint32 tiv = 0;                ///< its visual inspection is done by a technician
    QString noTIV;
    QString nomTIV;
    float capaciteBloc = 0;      ///< litres
    qint32 pressionService = 0;  ///< bar
    qint32 pressionEpreuve = 0;  ///< bar
    QString notesMatos;
    float progress = 0;  ///< never stored; the column of this name shows what inspectionProgress() gives

    static const RecordLayout& layout();

    /// How far the moment lies between the last and the next inspection, percent; 0 when these are equal.
    double inspectionProgress(const Date& now) const;
};

}  // namespace tavrel
