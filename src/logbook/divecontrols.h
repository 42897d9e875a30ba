#pragma once

#include "dives/divechoices.h"
#include "forms/controltable.h"

namespace tavrel {

/// The lists that a logbook owns for its combo boxes.
enum class DiveList { tankVolumes, tankPressures, decoSoftware, decoAlgorithms };

/// The dive form: six pages, each control once. Members bear the names of their controls; a row of controls is one
/// member.
struct DiveControls : ControlTable<DiveControls> {
    static constexpr std::array<const char*, 6> levels{"1", "2", "3", "4", "5", "6"};
    static constexpr std::array<const char*, 2> tanks{"", "_2"};
    static constexpr std::array<const char*, 12> items{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"};
    static constexpr std::array<const char*, 3> ponies{"1", "2", "3"};
    static constexpr std::array<const char*, 2> bailouts{"1", "2"};
    static constexpr std::array<const char*, 6> stopCaptions{"3", "6", "9", "12", "15", "18"};
    static constexpr std::array<Title, 2> setPointCaptions{{{"Carnet", "PpO2"}, {"Carnet", "high setpoint"}}};

    // Page 1: the dive, where and with whom.
    const int diveGroup = group({1, {"Carnet", "Group dive"}, GroupLayout::pairs, 2});
    const Id noPlongeeField = add({.name = "noPlongeeField",
                                   .kind = ControlKind::wholeNumber,
                                   .field = "noPlongee",
                                   .label = {"Carnet", "Label number"}});
    const Id surfaceField = add({.name = "surfaceField",
                                 .field = "surface",
                                 .label = {"Carnet", "Label surface interval"},
                                 .clearedText = "--:--",
                                 .width = 8});
    const Id dateField =
        add({.name = "dateField", .kind = ControlKind::date, .field = "date", .label = {"Carnet", "Label date"}});
    const Id heureField = add(
        {.name = "heureField", .kind = ControlKind::time, .field = "heure", .label = {"Carnet", "Label immersion"}});
    const Id profondeurField = add({.name = "profondeurField",
                                    .kind = ControlKind::decimal,
                                    .field = "profondeur",
                                    .label = {"Carnet", "Label maximum depth"},
                                    .usualMinimum = 0,
                                    .usualMaximum = 1000});
    const Id ftDepthField = add({.name = "ftDepthField", .kind = ControlKind::readOnly, .beside = true});
    const Id tempsField = add({.name = "tempsField",
                               .kind = ControlKind::wholeNumber,
                               .field = "temps",
                               .label = {"Carnet", "Label dive time"},
                               .unit = literal("min"),
                               .usualMinimum = 0,
                               .usualMaximum = 1440});
    const Id altitudeField = add({.name = "altitudeField",
                                  .kind = ControlKind::wholeNumber,
                                  .field = "altitude",
                                  .label = {"Carnet", "Label altitude"},
                                  .clearedText = "0",
                                  .usualMinimum = 0,
                                  .usualMaximum = 4000});
    const Id ftAltitudeField = add({.name = "ftAltitudeField", .kind = ControlKind::readOnly, .beside = true});

    const int placeGroup = group({1, {"Carnet", "Group place"}, GroupLayout::pairs, 2});
    const Id lieuField = add({.name = "lieuField",
                              .kind = ControlKind::combo,
                              .field = "lieu",
                              .label = {"Carnet", "Label place"},
                              .pickList = PickList::tableauDesLieux});
    const Id siteField = add({.name = "siteField",
                              .kind = ControlKind::combo,
                              .field = "site",
                              .label = {"Carnet", "Label site"},
                              .pickList = PickList::tableauDesSites});
    const Id paysField = add({.name = "paysField",
                              .kind = ControlKind::combo,
                              .field = "pays",
                              .label = {"Carnet", "Label country"},
                              .pickList = PickList::tableauDesPays});
    const Id countryCodeField = add({.name = "countryCodeField",
                                     .kind = ControlKind::combo,
                                     .field = "countryCode",
                                     .label = {"Carnet", "Label country code"},
                                     .pickList = PickList::countryCodeArray,
                                     .width = 8});
    const Id gpsField = add({.name = "gpsField", .field = "gps", .label = {"Carnet", "Label position"}, .width = 26});
    const Id gpsSystemPopUp = add({.name = "gpsSystemPopUp",
                                   .kind = ControlKind::popUp,
                                   .field = "gpsSystem",
                                   .label = {"Carnet", "Label datum"},
                                   .clearedTag = Datum::wgs84,
                                   .choices = choices::datum});

    const int teamGroup = group({1, {"Carnet", "Group team"}, GroupLayout::pairs, 2});
    const Id partenairesField = add({.name = "partenairesField",
                                     .kind = ControlKind::combo,
                                     .field = "partenaires",
                                     .label = {"Carnet", "Label buddies"},
                                     .pickList = PickList::tableauDesPalanquees});
    const Id structureField = add({.name = "structureField",
                                   .kind = ControlKind::combo,
                                   .field = "structure",
                                   .label = {"Carnet", "Label club"},
                                   .pickList = PickList::tableauDesStructures});
    const Id bateauField = add({.name = "bateauField", .field = "bateau", .label = {"Carnet", "Label boat"}});
    const Id epavesField = add({.name = "epavesField",
                                .kind = ControlKind::combo,
                                .field = "epaves",
                                .label = {"Carnet", "Label wrecks"},
                                .pickList = PickList::tableauDesEpaves});

    // Page 2: the conditions.
    const int seaGroup = group({2, {"Carnet", "Group sea"}, GroupLayout::pairs, 2});
    const Id coeffField = add({.name = "coeffField",
                               .kind = ControlKind::wholeNumber,
                               .field = "coeff",
                               .label = {"Carnet", "Label tide coefficient"},
                               .clearedText = "-",
                               .notGiven = 0});
    const Id pmBmPopUp = add({.name = "pmBmPopUp",
                              .kind = ControlKind::popUp,
                              .field = "pmBm",
                              .label = {"Carnet", "Label tide"},
                              .choices = choices::tide});
    const Id courantPopUp = add({.name = "courantPopUp",
                                 .kind = ControlKind::popUp,
                                 .field = "courant",
                                 .label = {"Carnet", "Label current"},
                                 .clearedTag = Current::notGiven,
                                 .choices = choices::current});
    const Id visibilitePopUp = add({.name = "visibilitePopUp",
                                    .kind = ControlKind::popUp,
                                    .field = "visibilite",
                                    .label = {"Carnet", "Label visibility"},
                                    .clearedTag = Visibility::notGiven,
                                    .choices = choices::visibility});
    const Id tempEauField = add({.name = "tempEauField",
                                 .kind = ControlKind::wholeNumber,
                                 .field = "tempEau",
                                 .label = {"Carnet", "Label water temperature"},
                                 .clearedText = "-",
                                 .notGiven = temperatureNotGiven});
    const Id fahrEauField = add({.name = "fahrEauField", .kind = ControlKind::readOnly, .beside = true});

    const int weatherGroup = group({2, {"Carnet", "Group weather"}, GroupLayout::pairs, 2});
    const Id meteoPopUp = add({.name = "meteoPopUp",
                               .kind = ControlKind::popUp,
                               .field = "meteo",
                               .label = {"Carnet", "Label weather"},
                               .clearedTag = Weather::notGiven,
                               .choices = choices::weather});
    const Id tempAirField = add({.name = "tempAirField",
                                 .kind = ControlKind::wholeNumber,
                                 .field = "tempAir",
                                 .label = {"Carnet", "Label air temperature"},
                                 .clearedText = "-",
                                 .notGiven = temperatureNotGiven});
    const Id fahrAirField = add({.name = "fahrAirField", .kind = ControlKind::readOnly, .beside = true});
    const Id ventSecteurPopUp = add({.name = "ventSecteurPopUp",
                                     .kind = ControlKind::popUp,
                                     .field = "ventSecteur",
                                     .label = {"Carnet", "Label wind"},
                                     .choices = choices::windSector});
    const Id ventForcePopUp = add({.name = "ventForcePopUp",
                                   .kind = ControlKind::popUp,
                                   .field = "ventForce",
                                   .label = {"Carnet", "Label wind force"},
                                   .unit = {"Carnet", "Beaufort"},
                                   .choices = choices::windForce});

    const int kindGroup = group({2, {"Carnet", "Group kind"}, GroupLayout::pairs, 2});
    const Id typePlongeePopUp = add({.name = "typePlongeePopUp",
                                     .kind = ControlKind::popUp,
                                     .field = "typePlongee",
                                     .label = {"Carnet", "Label dive type"},
                                     .clearedTag = DiveKind::other,
                                     .choices = choices::diveKind});
    const Id nocturneSwitch = add({.name = "nocturneSwitch",
                                   .kind = ControlKind::onOff,
                                   .field = "nocturne",
                                   .label = {"Carnet", "Label night dive"}});
    const Id difficulteSlider = add({.name = "difficulteSlider",
                                     .kind = ControlKind::slider,
                                     .field = "difficulte",
                                     .label = {"Carnet", "Label difficulty"},
                                     .minimum = 0,
                                     .maximum = 5});
    const Id difficulteField =
        add({.name = "difficulteField", .kind = ControlKind::readOnly, .width = 10, .beside = true});
    const Id inoubliablePopUp = add({.name = "inoubliablePopUp",
                                     .kind = ControlKind::popUp,
                                     .field = "inoubliable",
                                     .label = {"Carnet", "Label rating"},
                                     .choices = choices::rating});

    // Page 3: decompression.
    const int decoGroup = group({3, {"Carnet", "Group decompression"}, GroupLayout::pairs, 2});
    const Id decoPopUp = add({.name = "decoPopUp",
                              .kind = ControlKind::popUp,
                              .field = "deco",
                              .label = {"Carnet", "Label method"},
                              .choices = choices::decoMethod});
    const Id decoSoftNameField = add({.name = "decoSoftNameField",
                                      .kind = ControlKind::combo,
                                      .field = "decoSoftName",
                                      .label = {"Carnet", "Label software"},
                                      .clearedText = "-",
                                      .ownList = int(DiveList::decoSoftware)});
    const Id deco_TTS_Field = add({.name = "deco_TTS_Field",
                                   .kind = ControlKind::wholeNumber,
                                   .field = "deco_TTS",
                                   .label = {"Carnet", "Label time to surface"},
                                   .unit = literal("min"),
                                   .clearedText = "-"});
    const Id decoAlgoTypeField = add({.name = "decoAlgoTypeField",
                                      .kind = ControlKind::combo,
                                      .field = "decoAlgoType",
                                      .label = {"Carnet", "Label algorithm"},
                                      .clearedText = "-",
                                      .ownList = int(DiveList::decoAlgorithms)});
    const Id lowGFField = add({.name = "lowGFField",
                               .kind = ControlKind::wholeNumber,
                               .field = "lowGF",
                               .label = {"Carnet", "Label low GF"},
                               .unit = literal("%")});
    const Id decoConservatismField = add({.name = "decoConservatismField",
                                          .field = "decoConservatism",
                                          .label = {"Carnet", "Label conservatism"},
                                          .clearedText = "-"});
    const Id highGFField = add({.name = "highGFField",
                                .kind = ControlKind::wholeNumber,
                                .field = "highGF",
                                .label = {"Carnet", "Label high GF"},
                                .unit = literal("%")});

    const int stopsGroup = group({3, {"Carnet", "Group stops"}, GroupLayout::columns});
    const std::array<Id, 6> deco_Level_Switch = addEach<6>(levels, {.name = "deco_Level_%_Switch",
                                                                    .kind = ControlKind::onOff,
                                                                    .field = "deco_Level_%_sw",
                                                                    .label = {"Carnet", "Label stop made"}});
    const std::array<Id, 6> depthDeco_Level_Field = addEach<6>(levels, {.name = "depthDeco_Level_%_Field",
                                                                        .kind = ControlKind::decimal,
                                                                        .field = "decoDepth_Level_%",
                                                                        .label = {"Carnet", "Label stop depth"},
                                                                        .usualMinimum = 0,
                                                                        .usualMaximum = 1000});
    const std::array<Id, 6> ft_m_Field =
        addEach<6>(stopCaptions, {.name = "ft_%m_Field", .kind = ControlKind::readOnly, .beside = true});
    const std::array<Id, 6> timeDeco_Level_Field = addEach<6>(levels, {.name = "timeDeco_Level_%_Field",
                                                                       .kind = ControlKind::wholeNumber,
                                                                       .field = "decoTime_Level_%",
                                                                       .label = {"Carnet", "Label stop time"},
                                                                       .unit = literal("min"),
                                                                       .clearedText = "-",
                                                                       .usualMinimum = 0,
                                                                       .usualMaximum = 1440});
    const std::array<Id, 6> decoO2_Level_Field = addEach<6>(levels, {.name = "decoO2_Level_%_Field",
                                                                     .kind = ControlKind::wholeNumber,
                                                                     .field = "decoO2_Level_%",
                                                                     .label = {"Carnet", "Label oxygen"},
                                                                     .unit = literal("%"),
                                                                     .clearedText = "-",
                                                                     .usualMinimum = 0,
                                                                     .usualMaximum = 100});
    const std::array<Id, 6> decoHe_Level_Field = addEach<6>(levels, {.name = "decoHe_Level_%_Field",
                                                                     .kind = ControlKind::wholeNumber,
                                                                     .field = "decoHe_Level_%",
                                                                     .label = {"Carnet", "Label helium"},
                                                                     .unit = literal("%"),
                                                                     .clearedText = "0",
                                                                     .usualMinimum = 0,
                                                                     .usualMaximum = 100});

    const int runtimeGroup = group({3, {"Carnet", "Group run time"}, GroupLayout::pairs, 1, 1});
    const Id runtimeField =
        add({.name = "runtimeField", .kind = ControlKind::longText, .field = "runtime", .fixedPitch = true});

    // Page 4: apparatus, tanks and gas.
    const int apparatusGroup = group({4, {"Carnet", "Group apparatus"}, GroupLayout::pairs, 2, wholeWidth});
    const Id rebreatherMatrix = add({.name = "rebreatherMatrix",
                                     .kind = ControlKind::radio,
                                     .field = "rebreather",
                                     .label = {"Carnet", "Label apparatus"},
                                     .choices = choices::apparatus});
    const Id flowField = add({.name = "flowField",
                              .kind = ControlKind::decimal,
                              .field = "flow",
                              .label = {"Carnet", "Label flow"},
                              .unit = literal("L/min"),
                              .clearedText = "0"});
    const Id setPointField =
        add({.name = "setPointField", .kind = ControlKind::readOnly, .captions = setPointCaptions});
    const Id ppO2PopUp = add({.name = "ppO2PopUp",
                              .kind = ControlKind::popUp,
                              .field = "ppO2",
                              .label = {"Carnet", "PpO2"},
                              .choices = choices::setPoint,
                              .beside = true});
    const Id lowSetpointPopUp = add({.name = "lowSetpointPopUp",
                                     .kind = ControlKind::popUp,
                                     .field = "lowSetpoint",
                                     .label = {"Carnet", "Label low setpoint"},
                                     .choices = choices::setPoint});

    const int tanksGroup = group({4, {"Carnet", "Group tanks"}, GroupLayout::rows});
    const std::array<Id, 2> blocField = addEach<2>(tanks, {.name = "bloc%Field", .kind = ControlKind::readOnly});
    const std::array<Id, 2> alliageBlocPopUp = addEach<2>(tanks, {.name = "alliageBloc%PopUp",
                                                                  .kind = ControlKind::popUp,
                                                                  .field = "alliageBloc%",
                                                                  .label = {"Carnet", "Label material"},
                                                                  .choices = choices::tankMaterial});
    const std::array<Id, 2> volumeBlocField = addEach<2>(tanks, {.name = "volumeBloc%Field",
                                                                 .kind = ControlKind::combo,
                                                                 .field = "volumeBloc%",
                                                                 .label = {"Carnet", "Label volume"},
                                                                 .unit = literal("L"),
                                                                 .ownList = int(DiveList::tankVolumes),
                                                                 .width = 8});
    const std::array<Id, 2> pressionBlocField = addEach<2>(tanks, {.name = "pressionBloc%Field",
                                                                   .kind = ControlKind::combo,
                                                                   .field = "pressionBloc%",
                                                                   .label = {"Carnet", "Label working pressure"},
                                                                   .unit = literal("bar"),
                                                                   .ownList = int(DiveList::tankPressures),
                                                                   .width = 8});
    const std::array<Id, 2> departField = addEach<2>(tanks, {.name = "depart%Field",
                                                             .kind = ControlKind::wholeNumber,
                                                             .field = "pressionDepart%",
                                                             .label = {"Carnet", "Label start pressure"},
                                                             .unit = literal("bar"),
                                                             .usualMinimum = 0,
                                                             .usualMaximum = 400});
    const std::array<Id, 2> finField = addEach<2>(tanks, {.name = "fin%Field",
                                                          .kind = ControlKind::wholeNumber,
                                                          .field = "pressionFin%",
                                                          .label = {"Carnet", "Label end pressure"},
                                                          .unit = literal("bar"),
                                                          .usualMinimum = 0,
                                                          .usualMaximum = 400});
    const std::array<Id, 2> deltaPressureField = addEach<2>(
        tanks,
        {.name = "deltaPressure%Field", .kind = ControlKind::readOnly, .label = {"Carnet", "Label pressure drop"}});
    const std::array<Id, 2> gazPopUp = addEach<2>(tanks, {.name = "gaz%PopUp",
                                                          .kind = ControlKind::popUp,
                                                          .field = "gaz%",
                                                          .label = {"Carnet", "Label gas"},
                                                          .choices = choices::gas});
    const std::array<Id, 2> o2MixField = addEach<2>(tanks, {.name = "o2Mix%Field",
                                                            .kind = ControlKind::wholeNumber,
                                                            .field = "o2Mix%",
                                                            .label = {"Carnet", "Label oxygen"},
                                                            .unit = literal("%"),
                                                            .clearedText = "21",
                                                            .usualMinimum = 1,
                                                            .usualMaximum = 100});
    const std::array<Id, 2> heMixField = addEach<2>(tanks, {.name = "heMix%Field",
                                                            .kind = ControlKind::wholeNumber,
                                                            .field = "heMix%",
                                                            .label = {"Carnet", "Label helium"},
                                                            .unit = literal("%"),
                                                            .clearedText = "0",
                                                            .usualMinimum = 0,
                                                            .usualMaximum = 86});
    const std::array<Id, 2> n2MixField = addEach<2>(tanks, {.name = "n2Mix%Field",
                                                            .kind = ControlKind::readOnly,
                                                            .label = {"Carnet", "Label nitrogen"},
                                                            .unit = literal("%"),
                                                            .clearedText = "79"});

    const int presetsGroup = group({4, {"Carnet", "Group presets"}, GroupLayout::pairs, 1, 1});
    const Id razAirButton = add({.name = "razAirButton",
                                 .kind = ControlKind::button,
                                 .label = {"Carnet", "Air"},
                                 .tip = {"Carnet", "Tip preset air"}});
    const Id razNitroxButton = add({.name = "razNitroxButton",
                                    .kind = ControlKind::button,
                                    .label = literal("Nitrox"),
                                    .tip = {"Carnet", "Tip preset nitrox"}});
    const Id razHelioxButton = add({.name = "razHelioxButton",
                                    .kind = ControlKind::button,
                                    .label = literal("Heliox"),
                                    .tip = {"Carnet", "Tip preset heliox"}});

    const int oxygenGroup = group({4, {"Carnet", "Group consumption"}, GroupLayout::pairs, 1, 1});
    const Id consommationButton = add({.name = "consommationButton",
                                       .kind = ControlKind::button,
                                       .label = {"Carnet", "Menu consumption"},
                                       .tip = {"Carnet", "Tip consumption"}});
    const Id sncDrawer = add({.name = "sncDrawer", .kind = ControlKind::readOnly});

    // Page 5: stage bottles, bail-outs, the dive computer and its profile.
    const int poniesGroup = group({5, {"Carnet", "Group stage bottles"}, GroupLayout::columns, 1, wholeWidth});
    const std::array<Id, 3> pony_TitleField =
        addEach<3>(ponies, {.name = "pony_%_TitleField", .kind = ControlKind::readOnly});
    const std::array<Id, 3> pony_VolumeField = addEach<3>(ponies, {.name = "pony_%_VolumeField",
                                                                   .kind = ControlKind::wholeNumber,
                                                                   .field = "volPony%",
                                                                   .label = {"Carnet", "Label volume"},
                                                                   .unit = literal("L"),
                                                                   .clearedText = "0"});
    const std::array<Id, 3> pony_DepartField = addEach<3>(ponies, {.name = "pony_%_DepartField",
                                                                   .kind = ControlKind::wholeNumber,
                                                                   .field = "pressDepartPony%",
                                                                   .label = {"Carnet", "Label start pressure"},
                                                                   .unit = literal("bar"),
                                                                   .clearedText = "0"});
    const std::array<Id, 3> pony_FinField = addEach<3>(ponies, {.name = "pony_%_FinField",
                                                                .kind = ControlKind::wholeNumber,
                                                                .field = "pressFinPony%",
                                                                .label = {"Carnet", "Label end pressure"},
                                                                .unit = literal("bar"),
                                                                .clearedText = "0"});
    const std::array<Id, 3> pony_ConsoField = addEach<3>(
        ponies,
        {.name = "consoPony_%Field", .kind = ControlKind::readOnly, .label = {"Carnet", "Consumption"}, .width = 24});
    const std::array<Id, 3> pony_Progress =
        addEach<3>(ponies, {.name = "gaz%Progress", .kind = ControlKind::gauge, .width = 10, .beside = true});

    const int bailoutsGroup = group({5, {"Carnet", "Group bail-outs"}, GroupLayout::columns, 1, wholeWidth});
    const std::array<Id, 2> bailout_VolumeField = addEach<2>(bailouts, {.name = "bailout_%_VolumeField",
                                                                        .kind = ControlKind::wholeNumber,
                                                                        .field = "volBailout%",
                                                                        .label = {"Carnet", "Label volume"},
                                                                        .unit = literal("L"),
                                                                        .clearedText = "0"});
    const std::array<Id, 2> bailout_DepartField = addEach<2>(bailouts, {.name = "bailout_%_DepartField",
                                                                        .kind = ControlKind::wholeNumber,
                                                                        .field = "pressDepartBailout%",
                                                                        .label = {"Carnet", "Label start pressure"},
                                                                        .unit = literal("bar"),
                                                                        .clearedText = "0"});
    const std::array<Id, 2> bailout_FinField = addEach<2>(bailouts, {.name = "bailout_%_FinField",
                                                                     .kind = ControlKind::wholeNumber,
                                                                     .field = "pressFinBailout%",
                                                                     .label = {"Carnet", "Label end pressure"},
                                                                     .unit = literal("bar"),
                                                                     .clearedText = "0"});
    const std::array<Id, 2> bailout_O2Field = addEach<2>(bailouts, {.name = "bailout_%_O2Field",
                                                                    .kind = ControlKind::wholeNumber,
                                                                    .field = "O2Bailout%",
                                                                    .label = {"Carnet", "Label oxygen"},
                                                                    .unit = literal("%"),
                                                                    .clearedText = "0"});
    const std::array<Id, 2> bailout_HeField = addEach<2>(bailouts, {.name = "bailout_%_HeField",
                                                                    .kind = ControlKind::wholeNumber,
                                                                    .field = "HeBailout%",
                                                                    .label = {"Carnet", "Label helium"},
                                                                    .unit = literal("%"),
                                                                    .clearedText = "0"});
    const std::array<Id, 2> bailout_ConsoField = addEach<2>(bailouts, {.name = "consoBailout_%Field",
                                                                       .kind = ControlKind::readOnly,
                                                                       .label = {"Carnet", "Consumption"},
                                                                       .width = 24});
    const std::array<Id, 2> bailout_Progress =
        addEach<2>(bailouts, {.name = "gazBailout%Progress", .kind = ControlKind::gauge, .width = 10, .beside = true});

    const int computerGroup = group({5, {"Carnet", "Group computer"}, GroupLayout::pairs});
    const Id fabricantField = add({.name = "fabricantField", .field = "fabricant", .label = {"Carnet", "Label maker"}});
    const Id ordinateurField = add({.name = "ordinateurField",
                                    .kind = ControlKind::combo,
                                    .field = "ordinateur",
                                    .label = {"Carnet", "Label model"},
                                    .pickList = PickList::tableauDesOrdis});
    const Id serieField = add({.name = "serieField", .field = "serie", .label = {"Carnet", "Label serial number"}});
    const Id samplingRatePopUp = add({.name = "samplingRatePopUp",
                                      .kind = ControlKind::popUp,
                                      .field = "samplingRate",
                                      .label = {"Carnet", "Label sampling interval"},
                                      .choices = choices::samplingRate});

    const int profileGroup = group({5, {"Carnet", "Profile"}, GroupLayout::pairs, 1, 1});
    const Id profilView = add({.name = "profilView", .kind = ControlKind::view});
    const Id maxAverageDepthField = add({.name = "maxAverageDepthField", .kind = ControlKind::readOnly});
    const Id samplingRateField = add({.name = "samplingRateField", .kind = ControlKind::readOnly});
    const Id recordedPointsField = add({.name = "recordedPointsField", .kind = ControlKind::readOnly});

    // Page 6: equipment and notes.
    const int equipmentGroup = group({6, {"Carnet", "Group equipment"}, GroupLayout::pairs, 3});
    const Id combinaisonPopUp = add({.name = "combinaisonPopUp",
                                     .kind = ControlKind::popUp,
                                     .field = "combinaison",
                                     .label = {"Carnet", "Label suit"},
                                     .choices = choices::suit});
    const Id lestageField = add({.name = "lestageField",
                                 .kind = ControlKind::decimal,
                                 .field = "lestage",
                                 .label = {"Carnet", "Label ballast"},
                                 .unit = literal("kg")});
    const Id configurationPopUp = add({.name = "configurationPopUp",
                                       .kind = ControlKind::popUp,
                                       .field = "configuration",
                                       .label = {"Carnet", "Label configuration"},
                                       .clearedTag = Configuration::tek,
                                       .choices = choices::configuration});

    const int itemsGroup = group({6, {"Carnet", "Group items"}, GroupLayout::pairs, 3});
    const std::array<Id, 12> equipement_Field = addEach<12>(items, {.name = "equipement_%_Field",
                                                                    .kind = ControlKind::combo,
                                                                    .field = "equip_%",
                                                                    .pickList = PickList::sacDePlongee});

    const int notesGroup = group({6, {"Carnet", "Group notes"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const DiveControls& table();

private:
    DiveControls() = default;  // one table serves every form
};

}  // namespace tavrel
