#pragma once

#include "records/recordlayout.h"

namespace tavrel {

/// A service of a breathing-air compressor. Switches are 0 or 1.
struct Compresseur : Record {
    static constexpr float notMeasured = -1;  ///< of an analysis

    QString marque;
    QString modele;
    QString cumulTemps;  ///< running time in all, as typed
    Date date;
    Date temps;                  ///< running time of this service, held as a time of day
    qint32 vidange = 0;          ///< oil changed
    qint32 typeHuile = 0;        ///< 0 synthetic, any other mineral
    qint32 filtreAir = 0;        ///< air filter serviced
    qint32 operationFiltre = 0;  ///< 0 cleaned, 1 replaced
    qint32 cartouche = 0;        ///< filter cartridge changed
    qint32 charbon = 0;          ///< and in it the charcoal
    qint32 alumine = 0;
    qint32 tamis = 0;  ///< molecular sieve
    qint32 depoussierage = 0;
    qint32 controles = 0;
    qint32 soupapes = 0;    ///< valves serviced
    qint32 intSoupape = 0;  ///< 0 verified, 1 set again
    float anHuile = 0;      ///< mg/m3
    float anCO2 = 0;        ///< in anCO2Unit
    float anCO = 0;         ///< in anCOUnit
    float anH2O = 0;        ///< ml/m3
    qint32 anCO2Unit = 0;   ///< 0 ml/m3, 1 ppm
    qint32 anCOUnit = 0;
    QString notes;

    static const RecordLayout& layout();
};

}  // namespace tavrel
