#pragma once

#include "dives/plongee.h"

#include <array>
#include <utility>

namespace tavrel {

// The members of a dive that repeat for each tank, bottle and stop, so that they can be walked.

struct MainTankFields {
    qint32 Plongee::*material;
    qint32 Plongee::*volume;
    qint32 Plongee::*start;
    qint32 Plongee::*end;
    qint32 Plongee::*gas;
    qint32 Plongee::*oxygen;
    qint32 Plongee::*helium;
};
inline constexpr std::array<MainTankFields, 2> mainTankFields{{
    {&Plongee::alliageBloc, &Plongee::volumeBloc, &Plongee::pressionDepart, &Plongee::pressionFin, &Plongee::gaz,
     &Plongee::o2Mix, &Plongee::heMix},
    {&Plongee::alliageBloc_2, &Plongee::volumeBloc_2, &Plongee::pressionDepart_2, &Plongee::pressionFin_2,
     &Plongee::gaz_2, &Plongee::o2Mix_2, &Plongee::heMix_2},
}};

struct BottleFields {
    qint32 Plongee::*volume;
    qint32 Plongee::*start;
    qint32 Plongee::*end;
};
inline constexpr std::array<BottleFields, 3> stageFields{{
    {&Plongee::volPony1, &Plongee::pressDepartPony1, &Plongee::pressFinPony1},
    {&Plongee::volPony2, &Plongee::pressDepartPony2, &Plongee::pressFinPony2},
    {&Plongee::volPony3, &Plongee::pressDepartPony3, &Plongee::pressFinPony3},
}};
inline constexpr std::array<BottleFields, 2> bailoutFields{{
    {&Plongee::volBailout1, &Plongee::pressDepartBailout1, &Plongee::pressFinBailout1},
    {&Plongee::volBailout2, &Plongee::pressDepartBailout2, &Plongee::pressFinBailout2},
}};

/// Oxygen and helium, percent.
using GasFields = std::pair<qint32 Plongee::*, qint32 Plongee::*>;
inline constexpr std::array<GasFields, 2> bailoutGasFields{{
    {&Plongee::O2Bailout1, &Plongee::HeBailout1},
    {&Plongee::O2Bailout2, &Plongee::HeBailout2},
}};

struct StopFields {
    float Plongee::*depth;
    qint32 Plongee::*minutes;
    qint32 Plongee::*made;
    GasFields gas;
};
inline constexpr std::array<StopFields, 6> stopFields{{
    {&Plongee::decoDepth_Level_1,
     &Plongee::decoTime_Level_1,
     &Plongee::deco_Level_1_sw,
     {&Plongee::decoO2_Level_1, &Plongee::decoHe_Level_1}},
    {&Plongee::decoDepth_Level_2,
     &Plongee::decoTime_Level_2,
     &Plongee::deco_Level_2_sw,
     {&Plongee::decoO2_Level_2, &Plongee::decoHe_Level_2}},
    {&Plongee::decoDepth_Level_3,
     &Plongee::decoTime_Level_3,
     &Plongee::deco_Level_3_sw,
     {&Plongee::decoO2_Level_3, &Plongee::decoHe_Level_3}},
    {&Plongee::decoDepth_Level_4,
     &Plongee::decoTime_Level_4,
     &Plongee::deco_Level_4_sw,
     {&Plongee::decoO2_Level_4, &Plongee::decoHe_Level_4}},
    {&Plongee::decoDepth_Level_5,
     &Plongee::decoTime_Level_5,
     &Plongee::deco_Level_5_sw,
     {&Plongee::decoO2_Level_5, &Plongee::decoHe_Level_5}},
    {&Plongee::decoDepth_Level_6,
     &Plongee::decoTime_Level_6,
     &Plongee::deco_Level_6_sw,
     {&Plongee::decoO2_Level_6, &Plongee::decoHe_Level_6}},
}};

/// The twelve pieces of equipment.
inline constexpr std::array<QString Plongee::*, 12> equipmentFields{
    &Plongee::equip_1, &Plongee::equip_2, &Plongee::equip_3, &Plongee::equip_4,  &Plongee::equip_5,  &Plongee::equip_6,
    &Plongee::equip_7, &Plongee::equip_8, &Plongee::equip_9, &Plongee::equip_10, &Plongee::equip_11, &Plongee::equip_12,
};

}  // namespace tavrel
