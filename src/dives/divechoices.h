#pragma once

#include "forms/control.h"

// The menus of the dive form. Items stand in the order of their tags with the open choice last; records store the tag.
namespace tavrel::choices {

inline constexpr Choice tide[] = {
    {1, {"Carnet", "High tide"}},
    {2, {"Carnet", "Low tide"}},
    {0, literal("-")},
};

/// Tags of a dive's datum: 0 ED50, 1 WGS84, any other unknown.
inline constexpr Choice datum[] = {{0, literal("ED50")}, {1, literal("WGS84")}, {2, literal("...")}};

inline constexpr Choice weather[] = {
    {0, {"Carnet", "Clear"}}, {1, {"Carnet", "Cloudy"}}, {2, {"Carnet", "Foggy"}},    {3, {"Carnet", "Rainy"}},
    {4, {"Carnet", "Hail"}},  {5, {"Carnet", "Snowy"}},  {6, {"Carnet", "Thundery"}}, {7, literal("-")},
};

inline constexpr Choice windSector[] = {
    {1, literal("N")},   {2, literal("N-E")}, {3, literal("E")},   {4, literal("S-E")}, {5, literal("S")},
    {6, literal("S-W")}, {7, literal("W")},   {8, literal("N-W")}, {0, literal("-")},
};

/// Beaufort 0 to 12.
inline constexpr Choice windForce[] = {
    {0, literal("0")},   {1, literal("1")},   {2, literal("2")},   {3, literal("3")}, {4, literal("4")},
    {5, literal("5")},   {6, literal("6")},   {7, literal("7")},   {8, literal("8")}, {9, literal("9")},
    {10, literal("10")}, {11, literal("11")}, {12, literal("12")},
};

inline constexpr Choice current[] = {
    {0, {"Carnet", "None"}},        {1, {"Carnet", "Weak"}},    {2, {"Carnet", "Moderate"}}, {3, {"Carnet", "Strong"}},
    {4, {"Carnet", "Very strong"}}, {5, {"Carnet", "Violent"}}, {6, literal("-")},
};

/// The best comes first although its tag is the highest.
inline constexpr Choice visibility[] = {
    {8, {"Carnet", "TableView exceptional"}},
    {0, {"Carnet", "TableView excellent"}},
    {1, {"Carnet", "TableView very good"}},
    {2, {"Carnet", "TableView good"}},
    {3, {"Carnet", "TableView medium"}},
    {4, {"Carnet", "TableView bad"}},
    {5, {"Carnet", "TableView very bad"}},
    {6, {"Carnet", "TableView execrable"}},
    {7, literal("-")},
};

inline constexpr Choice diveKind[] = {
    {0, {"Carnet", "Wreck"}},         {1, {"Carnet", "Recreational"}}, {3, {"Carnet", "Photo dive"}},
    {4, {"Carnet", "Tek"}},           {5, {"Carnet", "Cave"}},         {6, {"Carnet", "Movies"}},
    {7, {"Carnet", "Work"}},          {9, {"Carnet", "Drift"}},        {10, {"Carnet", "Under ice"}},
    {11, {"Carnet", "Training"}},     {12, {"Carnet", "Biology"}},     {13, {"Carnet", "Quarry"}},
    {14, {"Carnet", "Recuperation"}}, {8, {"Carnet", "Other"}},
};

inline constexpr Choice rating[] = {
    {1, {"Carnet", "Rating unforgettable"}},
    {2, {"Carnet", "Rating good"}},
    {3, {"Carnet", "Rating poor"}},
    {4, {"Carnet", "Rating never again"}},
    {0, literal("-")},
};

inline constexpr Choice decoMethod[] = {
    {0, {"Carnet", "TableView computer"}},
    {1, {"Carnet", "TableView air tables"}},
    {2, {"Carnet", "TableView nitrox tables"}},
    {3, literal("Run time")},
};

inline constexpr Choice apparatus[] = {
    {0, literal("OC")}, {1, literal("SCR")}, {2, literal("mCCR")}, {3, literal("eCCR")}, {4, literal("hCCR")},
};

inline constexpr Choice gas[] = {
    {0, {"Carnet", "Air"}}, {1, literal("Nitrox")}, {2, literal("Trimix")},
    {3, literal("Heliox")}, {4, literal("Triox")},  {5, literal("Heliair")},
};

/// Oxygen set points. Tags 1 to 5 rise from 1.2 to 1.6 bar, 6 to 10 fall from 1.1 to 0.7 bar.
inline constexpr Choice setPoint[] = {
    {1, literal("1,2 bar")}, {2, literal("1,3 bar")},  {3, literal("1,4 bar")}, {4, literal("1,5 bar")},
    {5, literal("1,6 bar")}, {6, literal("1,1 bar")},  {7, literal("1,0 bar")}, {8, literal("0,9 bar")},
    {9, literal("0,8 bar")}, {10, literal("0,7 bar")}, {0, literal("...")},
};

inline constexpr Choice tankMaterial[] = {
    {0, {"Carnet", "Aluminum"}},
    {1, {"Carnet", "Carbon"}},
    {2, {"Carnet", "Steel"}},
};

inline constexpr Choice suit[] = {
    {0, {"Carnet", "Wet suit"}},      {1, {"Carnet", "Dry suit"}},      {2, {"Carnet", "Shorty"}},
    {3, {"Carnet", "No suit"}},       {4, {"Carnet", "Semi-dry suit"}}, {5, {"Carnet", "T-shirt"}},
    {6, {"Carnet", "Tropical suit"}},
};

inline constexpr Choice configuration[] = {{1, {"Carnet", "Tek"}}, {0, {"Carnet", "No Tek"}}};

/// Codes of the sampling interval, as profile/profileseries.h times them.
inline constexpr Choice samplingRate[] = {
    {0, literal("10 s")},  {1, literal("20 s")}, {2, literal("30 s")}, {3, literal("1 min")},
    {4, literal("2 min")}, {5, literal("4 s")},  {6, literal("1 s")},  {7, literal("5 s")},
};

}  // namespace tavrel::choices
