#pragma once

#include "dives/divecodes.h"
#include "forms/control.h"

// The menus of the dive form. Items stand in the order of their tags with the open choice last; records store the tag.
namespace tavrel::choices {

inline constexpr Choice tide[] = {
    {Tide::high, {"Carnet", "High tide"}},
    {Tide::low, {"Carnet", "Low tide"}},
    {Tide::none, literal("-")},
};

inline constexpr Choice datum[] = {
    {Datum::ed50, literal("ED50")}, {Datum::wgs84, literal("WGS84")}, {Datum::unknown, literal("...")}};

inline constexpr Choice weather[] = {
    {Weather::clear, {"Carnet", "Clear"}},       {Weather::cloudy, {"Carnet", "Cloudy"}},
    {Weather::foggy, {"Carnet", "Foggy"}},       {Weather::rainy, {"Carnet", "Rainy"}},
    {Weather::hail, {"Carnet", "Hail"}},         {Weather::snowy, {"Carnet", "Snowy"}},
    {Weather::thundery, {"Carnet", "Thundery"}}, {Weather::notGiven, literal("-")},
};

inline constexpr Choice windSector[] = {
    {WindSector::north, literal("N")},    {WindSector::northEast, literal("N-E")},
    {WindSector::east, literal("E")},     {WindSector::southEast, literal("S-E")},
    {WindSector::south, literal("S")},    {WindSector::southWest, {"Carnet", "S-W"}},
    {WindSector::west, {"Carnet", "W"}},  {WindSector::northWest, {"Carnet", "N-W"}},
    {WindSector::notGiven, literal("-")},
};

/// Beaufort 0 to 12.
inline constexpr Choice windForce[] = {
    {0, literal("0")},   {1, literal("1")},   {2, literal("2")},   {3, literal("3")}, {4, literal("4")},
    {5, literal("5")},   {6, literal("6")},   {7, literal("7")},   {8, literal("8")}, {9, literal("9")},
    {10, literal("10")}, {11, literal("11")}, {12, literal("12")},
};

inline constexpr Choice current[] = {
    {Current::none, {"Carnet", "None"}},
    {Current::weak, {"Carnet", "Weak"}},
    {Current::moderate, {"Carnet", "Moderate"}},
    {Current::strong, {"Carnet", "Strong"}},
    {Current::veryStrong, {"Carnet", "Very strong"}},
    {Current::violent, {"Carnet", "Violent"}},
    {Current::notGiven, literal("-")},
};

/// The best comes first although its tag is the highest.
inline constexpr Choice visibility[] = {
    {Visibility::exceptional, {"Carnet", "TableView exceptional"}},
    {Visibility::excellent, {"Carnet", "TableView excellent"}},
    {Visibility::veryGood, {"Carnet", "TableView very good"}},
    {Visibility::good, {"Carnet", "TableView good"}},
    {Visibility::medium, {"Carnet", "TableView medium"}},
    {Visibility::bad, {"Carnet", "TableView bad"}},
    {Visibility::veryBad, {"Carnet", "TableView very bad"}},
    {Visibility::execrable, {"Carnet", "TableView execrable"}},
    {Visibility::notGiven, literal("-")},
};

inline constexpr Choice diveKind[] = {
    {DiveKind::wreck, {"Carnet", "Wreck"}},
    {DiveKind::recreational, {"Carnet", "Recreational"}},
    {DiveKind::photo, {"Carnet", "Photo dive"}},
    {DiveKind::tek, {"Carnet", "Tek"}},
    {DiveKind::cave, {"Carnet", "Cave"}},
    {DiveKind::movies, {"Carnet", "Movies"}},
    {DiveKind::work, {"Carnet", "Work"}},
    {DiveKind::drift, {"Carnet", "Drift"}},
    {DiveKind::underIce, {"Carnet", "Under ice"}},
    {DiveKind::training, {"Carnet", "Training"}},
    {DiveKind::biology, {"Carnet", "Biology"}},
    {DiveKind::quarry, {"Carnet", "Quarry"}},
    {DiveKind::recuperation, {"Carnet", "Recuperation"}},
    {DiveKind::other, {"Carnet", "Other"}},
};

inline constexpr Choice rating[] = {
    {Rating::unforgettable, {"Carnet", "Rating unforgettable"}},
    {Rating::good, {"Carnet", "Rating good"}},
    {Rating::poor, {"Carnet", "Rating poor"}},
    {Rating::neverAgain, {"Carnet", "Rating never again"}},
    {Rating::none, literal("-")},
};

inline constexpr Choice decoMethod[] = {
    {DecoMethod::computer, {"Carnet", "TableView computer"}},
    {DecoMethod::airTables, {"Carnet", "TableView air tables"}},
    {DecoMethod::nitroxTables, {"Carnet", "TableView nitrox tables"}},
    {DecoMethod::runTime, literal("Run time")},
};

inline constexpr Choice apparatus[] = {
    {Apparatus::openCircuit, literal("OC")},    {Apparatus::semiClosed, literal("SCR")},
    {Apparatus::manualClosed, literal("mCCR")}, {Apparatus::electronicClosed, literal("eCCR")},
    {Apparatus::hybridClosed, literal("hCCR")},
};

inline constexpr Choice gas[] = {
    {Gas::air, {"Carnet", "Air"}},    {Gas::nitrox, literal("Nitrox")}, {Gas::trimix, literal("Trimix")},
    {Gas::heliox, literal("Heliox")}, {Gas::triox, literal("Triox")},   {Gas::heliair, literal("Heliair")},
};

/// Oxygen set points. Tags 1 to 5 rise from 1.2 to 1.6 bar, 6 to 10 fall from 1.1 to 0.7 bar.
inline constexpr Choice setPoint[] = {
    {1, {"Carnet", "1,2 bar"}}, {2, {"Carnet", "1,3 bar"}},  {3, {"Carnet", "1,4 bar"}}, {4, {"Carnet", "1,5 bar"}},
    {5, {"Carnet", "1,6 bar"}}, {6, {"Carnet", "1,1 bar"}},  {7, {"Carnet", "1,0 bar"}}, {8, {"Carnet", "0,9 bar"}},
    {9, {"Carnet", "0,8 bar"}}, {10, {"Carnet", "0,7 bar"}}, {0, literal("...")},
};

inline constexpr Choice tankMaterial[] = {
    {TankMaterial::aluminium, {"Carnet", "Aluminum"}},
    {TankMaterial::carbon, {"Carnet", "Carbon"}},
    {TankMaterial::steel, {"Carnet", "Steel"}},
};

inline constexpr Choice suit[] = {
    {Suit::wet, {"Carnet", "Wet suit"}},           {Suit::dry, {"Carnet", "Dry suit"}},
    {Suit::shorty, {"Carnet", "Shorty"}},          {Suit::none, {"Carnet", "No suit"}},
    {Suit::semiDry, {"Carnet", "Semi-dry suit"}},  {Suit::tShirt, {"Carnet", "T-shirt"}},
    {Suit::tropical, {"Carnet", "Tropical suit"}},
};

inline constexpr Choice configuration[] = {{Configuration::tek, {"Carnet", "Tek"}},
                                           {Configuration::noTek, {"Carnet", "No Tek"}}};

/// Codes of the sampling interval, as profile/sampling.h times them.
inline constexpr Choice samplingRate[] = {
    {0, literal("10 s")},  {1, literal("20 s")}, {2, literal("30 s")}, {3, literal("1 min")},
    {4, literal("2 min")}, {5, literal("4 s")},  {6, literal("1 s")},  {7, literal("5 s")},
};

}  // namespace tavrel::choices
