#pragma once

#include "profile/profileseries.h"
#include "records/recordlayout.h"

#include <memory>

namespace tavrel {

/// One dive. A fresh record has every number at 0 and every object empty; the dive form and the importers fill it.
/// Depths, temperatures and volumes are kept as entered; no unit is converted on storage.
struct Plongee : ProfileSeries {
    qint32 noPlongee = 0;
    qint32 coeff = 0;  ///< tide coefficient, 20 to 120; 0 none
    qint32 pmBm = 0;   ///< 0 none, 1 high tide, 2 low tide
    Date date;
    QString lieu;
    QString site;
    QString pays;
    QString countryCode;
    QString gps;
    qint32 gpsSystem = 0;  ///< 0 ED50, 1 WGS84
    QString partenaires;
    QString epaves;
    QString structure;
    QString bateau;
    QString surface;  ///< surface interval, as typed
    Date heure;

    float profondeur = 0;  ///< maximum depth, as entered
    qint32 temps = 0;      ///< minutes
    qint32 altitude = 0;   ///< metres, 0 to 4000
    qint32 deco = 0;       ///< 0 computer, 1 air tables, 2 nitrox tables, 3 run time
    qint32 deco_TTS = 0;   ///< time to surface, minutes

    // The six stops: made or not, gas (percent), depth as entered, minutes.
    qint32 deco_Level_1_sw = 0, deco_Level_2_sw = 0, deco_Level_3_sw = 0;
    qint32 deco_Level_4_sw = 0, deco_Level_5_sw = 0, deco_Level_6_sw = 0;
    qint32 decoO2_Level_1 = 0, decoO2_Level_2 = 0, decoO2_Level_3 = 0;
    qint32 decoO2_Level_4 = 0, decoO2_Level_5 = 0, decoO2_Level_6 = 0;
    qint32 decoHe_Level_1 = 0, decoHe_Level_2 = 0, decoHe_Level_3 = 0;
    qint32 decoHe_Level_4 = 0, decoHe_Level_5 = 0, decoHe_Level_6 = 0;
    float decoDepth_Level_1 = 0, decoDepth_Level_2 = 0, decoDepth_Level_3 = 0;
    float decoDepth_Level_4 = 0, decoDepth_Level_5 = 0, decoDepth_Level_6 = 0;
    qint32 decoTime_Level_1 = 0, decoTime_Level_2 = 0, decoTime_Level_3 = 0;
    qint32 decoTime_Level_4 = 0, decoTime_Level_5 = 0, decoTime_Level_6 = 0;

    // Stage bottles and bail-outs: litres, bar, percent.
    qint32 volPony1 = 0, volPony2 = 0, volPony3 = 0;
    qint32 pressDepartPony1 = 0, pressDepartPony2 = 0, pressDepartPony3 = 0;
    qint32 pressFinPony1 = 0, pressFinPony2 = 0, pressFinPony3 = 0;
    qint32 volBailout1 = 0, volBailout2 = 0;
    qint32 pressDepartBailout1 = 0, pressDepartBailout2 = 0;
    qint32 pressFinBailout1 = 0, pressFinBailout2 = 0;
    qint32 O2Bailout1 = 0, O2Bailout2 = 0;
    qint32 HeBailout1 = 0, HeBailout2 = 0;

    // The two tanks: litres, bar, percent. gaz: 0 air, 1 nitrox, 2 trimix, 3 heliox, 4 triox, 5 heliair.
    qint32 alliageBloc = 0, volumeBloc = 0, pressionBloc = 0, pressionDepart = 0, pressionFin = 0, gaz = 0;
    float flow = 0;  ///< semi-closed rebreather supply, litres per minute
    qint32 o2Mix = 0, heMix = 0;
    qint32 alliageBloc_2 = 0, volumeBloc_2 = 0, pressionBloc_2 = 0, pressionDepart_2 = 0, pressionFin_2 = 0, gaz_2 = 0;
    qint32 o2Mix_2 = 0, heMix_2 = 0;
    /// Set points: tags 1 to 5 are 1.2 to 1.6 bar, 6 to 10 run downwards from 1.1 to 0.7 bar.
    qint32 ppO2 = 0, lowSetpoint = 0;

    QString decoSoftName;
    QString decoAlgoType;
    QString decoConservatism;
    qint32 highGF = 0, lowGF = 0;  ///< gradient factors, percent
    QString runtime;

    qint32 meteo = 0, ventSecteur = 0, ventForce = 0, visibilite = 0, courant = 0, typePlongee = 0;
    qint32 nocturne = 0;
    qint32 tempEau = 0, tempAir = 0;  ///< whole degrees as entered; -50 not given
    qint32 inoubliable = 0;           ///< overall rating
    qint32 combinaison = 0;           ///< exposure suit
    QString fabricant;
    QString ordinateur;
    QString serie;
    qint32 samplingRate = 0;  ///< code 0 to 7: 10, 20, 30, 60, 120, 4, 1, 5 seconds
    qint32 computerMode = 0;  ///< in memory only
    QString equip_1, equip_2, equip_3, equip_4, equip_5, equip_6;
    QString equip_7, equip_8, equip_9, equip_10, equip_11, equip_12;
    qint32 rebreather = 0;  ///< 0 open circuit, 1 SCR, 2 mCCR, 3 eCCR, 4 hCCR
    float lestage = 0;      ///< ballast
    qint32 configuration = 0;
    QString notes;
    qint32 difficulte = 0;  ///< 0 to 5
    qint32 etranger = 0;    ///< in memory only, read by nothing

    /// The archived items in their order, class name "Plongee", class version 25.
    static const RecordLayout& layout();
};

/// Dives are shared and never edited in place: a change replaces the record.
using DivePointer = std::shared_ptr<const Plongee>;

}  // namespace tavrel
